#include "rules/chartype.h"

#include "rules/charkind.h"
#include "rules/cp932.h"
#include "rules/workingtext.h"

namespace {

using Converter = QString (*)(const QString &units);

const struct {
    const char *kind;
    Converter convert;
} converters[] = {
    {"fullWidth", toFullWidth},
    {"halfWidth", toHalfWidth},
    {"hirakana", toHiragana},
    {"katakana", toKatakana},
};

void appendBytes(QString &units, quint16 code)
{
    if (code > 0xFF)
        units.append(QChar(code >> 8));
    units.append(QChar(code & 0xFF));
}

void appendDecoded(QString &text, const QString &units)
{
    for (int i = 0; i < units.size(); ++i) {
        const uint unit = units.at(i).unicode();
        if (Cp932::isLeadByte(unit) && i + 1 < units.size())
            text.append(Cp932::decode(quint16(unit << 8 | units.at(++i).unicode())));
        else
            text.append(Cp932::decode(quint16(unit)));
    }
}

// Converts run by run: a character that the code page cannot hold ends a run and is copied, so its
// code unit is never taken for a byte.
void convertKinds(Converter convert, QStringView text, QString &out)
{
    QString run;
    const auto flush = [&] {
        if (!run.isEmpty())
            appendDecoded(out, convert(run));
        run.clear();
    };
    for (const QChar character : text) {
        const quint16 code = Cp932::encode(character);
        if (code != 0) {
            appendBytes(run, code);
        } else {
            flush();
            out.append(character);
        }
    }
    flush();
}

} // namespace

void applyCharType(const QString &kind, WorkingText &value)
{
    const QStringView text = value.view();
    if (kind == QLatin1String("lowerCase")) {
        value.rebuild([&](QString &out) { out.append(text.toString().toLower()); });
        return;
    }
    if (kind == QLatin1String("upperCase")) {
        value.rebuild([&](QString &out) { out.append(text.toString().toUpper()); });
        return;
    }
    for (const auto &entry : converters) {
        if (kind == QLatin1String(entry.kind)) {
            value.rebuild([&](QString &out) { convertKinds(entry.convert, text, out); });
            return;
        }
    }
}
