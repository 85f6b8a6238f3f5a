#include "rules/charkind.h"

#include "rules/charkindtables.h"

#include <array>

namespace {

bool within(uint unit, uint first, uint last)
{
    return unit >= first && unit <= last;
}

uint unitAt(QStringView units, int position)
{
    return position < units.size() ? units.at(position).unicode() : 0;
}

// The tables spread out for look-up. Full-width codes of the tables have the lead bytes 0x81 to
// 0x83. A 0 means that no row holds the code.
class Lookup
{
public:
    Lookup()
    {
        using namespace CharKindTables;
        for (const SymbolRow &row : symbols)
            addWidthPair(row.half, row.full);
        for (int i = 0; i < 10; ++i)
            addWidthPair('0' + i, 0x824F + i);
        for (int i = 0; i < 26; ++i) {
            addWidthPair('A' + i, 0x8260 + i);
            addWidthPair('a' + i, 0x8281 + i);
        }
        for (const KanaRow &row : kana) {
            halfToKatakana[row.half] = row.katakana;
            halfToHiragana[row.half] = row.hiragana;
            half[slot(row.katakana)] = row.half;
            addKanaPair(row.hiragana, row.katakana);
        }
        for (const SoundMarkRow &row : soundMarks) {
            const int mark = row.mark - 0xDE;
            markedToKatakana[mark][row.half] = row.katakana;
            markedToHiragana[mark][row.half] = row.hiragana;
            half[slot(row.katakana)] = quint16(row.half << 8 | row.mark);
            addKanaPair(row.hiragana, row.katakana);
        }
    }

    static int slot(uint full) { return int(full) - 0x8100; }
    static bool hasSlot(uint full) { return within(full, 0x8100, 0x83FF); }

    std::array<quint16, 256> halfToFull{}; // digits, letters, symbols
    std::array<quint16, 256> halfToKatakana{};
    std::array<quint16, 256> halfToHiragana{};
    std::array<std::array<quint16, 256>, 2> markedToKatakana{};
    std::array<std::array<quint16, 256>, 2> markedToHiragana{};
    std::array<quint16, 768> half{}; // one unit, or two in one number
    std::array<quint16, 768> katakana{};
    std::array<quint16, 768> hiragana{};

private:
    void addWidthPair(int halfCode, int fullCode)
    {
        halfToFull[size_t(halfCode)] = quint16(fullCode);
        quint16 &back = half[size_t(slot(uint(fullCode)))];
        if (back == 0)
            back = quint16(halfCode);
    }
    void addKanaPair(quint16 hiraganaCode, quint16 katakanaCode)
    {
        katakana[size_t(slot(hiraganaCode))] = katakanaCode;
        hiragana[size_t(slot(katakanaCode))] = hiraganaCode;
    }
};

const Lookup &lookup()
{
    static const Lookup instance;
    return instance;
}

// Walks a text, appends to the result.
class Walk
{
public:
    explicit Walk(const QString &units) : m_units(units) { m_result.reserve(units.size() * 2); }

    bool atEnd() const { return m_position >= m_units.size(); }
    CharKind kind() const { return charKind(m_units, m_position); }
    uint unit() const { return unitAt(m_units, m_position); }
    uint nextUnit() const { return unitAt(m_units, m_position + 1); }
    uint pair() const { return unit() << 8 | nextUnit(); }

    // Puts a code of one or two bytes in the place of the next `count` units.
    void put(uint code, int count)
    {
        if (code > 0xFF)
            m_result.append(QChar(code >> 8));
        m_result.append(QChar(code & 0xFF));
        m_position += count;
    }
    void copy(int count)
    {
        m_result.append(m_units.data() + m_position, count);
        m_position += count;
    }
    void copyCharacter(CharKind kind) { copy(isDoubleByte(kind) ? 2 : 1); }
    // Where no row holds the code, the unit or the whole double-byte character stays.
    void putOrCopy(uint code, CharKind kind, int count)
    {
        if (code != 0)
            put(code, count);
        else
            copyCharacter(kind);
    }
    const QString &result() const { return m_result; }

private:
    static bool isDoubleByte(CharKind kind)
    {
        switch (kind) {
        case FullDigit:
        case FullLetter:
        case FullSymbol:
        case FullKatakana:
        case Hiragana:
        case OtherDoubleByte:
            return true;
        default:
            return false;
        }
    }

    QStringView m_units;
    int m_position = 0;
    QString m_result;
};

uint inFullTable(const std::array<quint16, 768> &table, uint code)
{
    return Lookup::hasSlot(code) ? table[size_t(Lookup::slot(code))] : 0;
}

} // namespace

CharKind charKind(QStringView units, int position)
{
    const uint c = unitAt(units, position);
    const uint d = unitAt(units, position + 1);
    if (within(c, 0x20, 0x2F) || within(c, 0x3A, 0x40) || within(c, 0x5B, 0x60)
        || within(c, 0x7B, 0x7E) || within(c, 0xA1, 0xA5))
        return HalfSymbol;
    if (within(c, 0x30, 0x39))
        return HalfDigit;
    if (within(c, 0x41, 0x5A) || within(c, 0x61, 0x7A))
        return HalfLetter;
    if (within(c, 0xA6, 0xDD))
        return d == 0xDE || d == 0xDF ? HalfKatakanaWithMark : HalfKatakana;
    if ((c == 0x81 && within(d, 0x40, 0xFC)) || (c == 0x83 && within(d, 0x9E, 0xEF)))
        return FullSymbol;
    if (c == 0x82 && within(d, 0x4F, 0x58))
        return FullDigit;
    if (c == 0x82 && (within(d, 0x60, 0x79) || within(d, 0x81, 0x9A)))
        return FullLetter;
    if (c == 0x82 && within(d, 0x9F, 0xF1))
        return Hiragana;
    if (c == 0x83 && within(d, 0x40, 0x96))
        return FullKatakana;
    // 0xA0, 0xDE and 0xDF lie in this range too, so that they take a following byte with them.
    if (within(c, 0x84, 0xFC) && within(d, 0x40, 0xFC))
        return OtherDoubleByte;
    return UnknownKind;
}

QString toFullWidth(const QString &units)
{
    const Lookup &tables = lookup();
    Walk walk(units);
    while (!walk.atEnd()) {
        const CharKind kind = walk.kind();
        switch (kind) {
        case HalfDigit:
        case HalfLetter:
        case HalfSymbol:
            walk.putOrCopy(tables.halfToFull[walk.unit()], kind, 1);
            break;
        case HalfKatakana:
            // The prolonged sound mark is of this kind, but stands in no kana row: it stays.
            walk.putOrCopy(tables.halfToKatakana[walk.unit()], kind, 1);
            break;
        case HalfKatakanaWithMark:
            walk.putOrCopy(tables.markedToKatakana[walk.nextUnit() - 0xDE][walk.unit()], kind, 2);
            break;
        default:
            walk.copyCharacter(kind);
            break;
        }
    }
    return walk.result();
}

QString toHalfWidth(const QString &units)
{
    const Lookup &tables = lookup();
    Walk walk(units);
    while (!walk.atEnd()) {
        const CharKind kind = walk.kind();
        switch (kind) {
        case FullDigit:
        case FullLetter:
        case FullSymbol:
        case FullKatakana:
            walk.putOrCopy(inFullTable(tables.half, walk.pair()), kind, 2);
            break;
        default:
            walk.copyCharacter(kind);
            break;
        }
    }
    return walk.result();
}

QString toKatakana(const QString &units)
{
    const Lookup &tables = lookup();
    Walk walk(units);
    while (!walk.atEnd()) {
        const CharKind kind = walk.kind();
        if (kind == Hiragana)
            walk.putOrCopy(inFullTable(tables.katakana, walk.pair()), kind, 2);
        else
            walk.copyCharacter(kind);
    }
    return walk.result();
}

QString toHiragana(const QString &units)
{
    const Lookup &tables = lookup();
    Walk walk(units);
    while (!walk.atEnd()) {
        const CharKind kind = walk.kind();
        switch (kind) {
        case FullKatakana:
            walk.putOrCopy(inFullTable(tables.hiragana, walk.pair()), kind, 2);
            break;
        case HalfKatakana:
            walk.putOrCopy(tables.halfToHiragana[walk.unit()], kind, 1);
            break;
        case HalfKatakanaWithMark:
            walk.putOrCopy(tables.markedToHiragana[walk.nextUnit() - 0xDE][walk.unit()], kind, 2);
            break;
        default:
            walk.copyCharacter(kind);
            break;
        }
    }
    return walk.result();
}
