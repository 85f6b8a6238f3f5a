#include "rules/chartype.h"

#include "rules/charkind.h"
#include "rules/cp932.h"
#include "rules/workingtext.h"

namespace {

using Converter = QString (*)(const QString &units);

void appendBytes(QString &units, quint16 code)
{
    if (code > 0xFF)
        units.append(QChar(code >> 8));
    units.append(QChar(code & 0xFF));
}

void appendDecoded(TextBuffer &text, const QString &units)
{
    for (int i = 0; i < units.size(); ++i) {
        const uint unit = units.at(i).unicode();
        if (Cp932::isLeadByte(unit) && i + 1 < units.size())
            text.append(Cp932::decode(quint16(unit << 8 | units.at(++i).unicode())));
        else
            text.append(Cp932::decode(quint16(unit)));
    }
}

bool endsWithSoundMark(const QString &units)
{
    return units.endsWith(QChar(0xDE)) || units.endsWith(QChar(0xDF));
}

// Converts run by run. A character that the code page cannot hold ends a run and is copied, so its
// code unit is never taken for a byte. A double-byte character behind a sound mark begins a new
// run: the mark's byte would otherwise be taken together with its first one, and the text be
// garbled.
void convertRuns(Converter convert, QStringView text, TextBuffer &out)
{
    QString run;
    const auto flush = [&] {
        if (!run.isEmpty())
            appendDecoded(out, convert(run));
        run.clear();
    };
    for (const QChar character : text) {
        const quint16 code = Cp932::encode(character);
        if (code == 0) {
            flush();
            out.append(character);
            continue;
        }
        if (code > 0xFF && endsWithSoundMark(run))
            flush();
        appendBytes(run, code);
    }
    flush();
}

// Scripts without letter case that make up most of an order: everything from the CJK symbols to the
// last ideograph, and the Hangul syllables. Only the plain ASCII letters beside them change.
bool hasOnlyPlainCase(QStringView text)
{
    uint others = 0;
    for (const QChar character : text) {
        const ushort unit = character.unicode();
        const bool isOther = (unit >= 0x80) & (ushort(unit - 0x2E80) >= 0xA000 - 0x2E80)
            & (ushort(unit - 0xAC00) >= 0xD7A4 - 0xAC00);
        others += isOther; // no early end: the whole loop runs eight units at a time
    }
    return others == 0;
}

// The library's case mapping, without its cost where the mapping is plain.
void changeCase(bool toUpper, WorkingText &value)
{
    const QStringView text = value.view();
    if (!hasOnlyPlainCase(text)) {
        const QString whole = text.toString();
        value.rebuild(
            [&](TextBuffer &out) { out.append(toUpper ? whole.toUpper() : whole.toLower()); });
        return;
    }
    const char16_t first = toUpper ? u'a' : u'A';
    value.rebuild([&](TextBuffer &out) {
        out.append(text);
        for (char16_t &unit : out)
            unit = uint(unit) - first < 26 ? unit ^ 0x20 : unit;
    });
}

template <Converter convert> void convertKinds(WorkingText &value)
{
    const QStringView text = value.view();
    value.rebuild([text](TextBuffer &out) { convertRuns(convert, text, out); });
}

const struct {
    const char *kind;
    CharTypeConversion conversion;
} conversions[] = {
    {"lowerCase", [](WorkingText &value) { changeCase(false, value); }},
    {"upperCase", [](WorkingText &value) { changeCase(true, value); }},
    {"fullWidth", convertKinds<toFullWidth>},
    {"halfWidth", convertKinds<toHalfWidth>},
    {"hirakana", convertKinds<toHiragana>},
    {"katakana", convertKinds<toKatakana>},
};

} // namespace

CharTypeConversion charTypeConversion(const QString &kind)
{
    for (const auto &entry : conversions) {
        if (kind == QLatin1String(entry.kind))
            return entry.conversion;
    }
    return nullptr;
}
