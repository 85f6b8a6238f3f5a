#include "statement/searchabletext.h"

namespace {

struct SameShape {
    ushort told;    // the lower one
    ushort written; // what texts hold
};

// What fonts for Korean and Japanese draw alike, beside what Unicode's compatibility forms tell:
// spaces and punctuation, a few kanji, then the variant forms of radicals.
const SameShape sameShapes[] = {
    {0x0009, 0x0020}, {0x00B7, 0x30FB}, {0x00B7, 0x2022}, {0x02BB, 0x2018}, {0x1160, 0x3164},
    {0x2003, 0x3000}, {0x2012, 0x2013}, {0x2022, 0x2027}, {0x2027, 0x30FB}, {0x2026, 0x22EF},
    {0x2035, 0xFF40}, {0x2215, 0xFF0F}, {0x2329, 0x3008}, {0x232A, 0x3009}, {0x301C, 0xFF5E},
    {0x2F3E, 0x6238}, {0x002D, 0x2011}, {0x3ADA, 0x66F6}, {0x3B35, 0x80F6}, {0x58AB, 0x58FF},
    {0x665A, 0x6669}, {0x670C, 0x80A6}, {0x6710, 0x80CA}, {0x6713, 0x8101}, {0x2E82, 0x4E5B},
    {0x2E83, 0x4E5A}, {0x2E85, 0x4EBB}, {0x2E89, 0x5202}, {0x2E8B, 0x353E}, {0x2E8E, 0x5140},
    {0x2E8F, 0x5C23}, {0x2E90, 0x5C22}, {0x2E92, 0x5DF3}, {0x2E93, 0x5E7A}, {0x2E94, 0x5F51},
    {0x2E95, 0x5F50}, {0x2E96, 0x5FC4}, {0x2E98, 0x624C}, {0x2E99, 0x6535}, {0x2E9B, 0x65E1},
    {0x2E9E, 0x6B7A}, {0x2EA0, 0x6C11}, {0x2EA1, 0x6C35}, {0x2EA3, 0x706C}, {0x2EA4, 0x722B},
    {0x2EA6, 0x4E2C}, {0x2EA8, 0x72AD}, {0x2EAB, 0x7F52}, {0x2EAD, 0x793B}, {0x2EAF, 0x7CF9},
    {0x2EB0, 0x7E9F}, {0x2EB1, 0x7F53}, {0x2EB3, 0x34C1}, {0x2EB9, 0x8002}, {0x2EBA, 0x8080},
    {0x2EBE, 0x8279}, {0x2EBF, 0x8279}, {0x2EC1, 0x864E}, {0x2EC2, 0x8864}, {0x2EC3, 0x8980},
    {0x2EC4, 0x897F}, {0x2EC5, 0x89C1}, {0x2EC6, 0x89D2}, {0x2EC8, 0x8BA0}, {0x2EC9, 0x8D1D},
    {0x2ECB, 0x8F66}, {0x2ECC, 0x8FB6}, {0x2ECD, 0x8FB6}, {0x2ECE, 0x8FB6}, {0x2ED0, 0x9485},
    {0x2ED1, 0x9577}, {0x2ED2, 0x9578}, {0x2ED3, 0x957F}, {0x2ED4, 0x95E8}, {0x2ED6, 0x961D},
    {0x2ED8, 0x9752}, {0x2ED9, 0x97E6}, {0x2EDA, 0x9875}, {0x2EDB, 0x98CE}, {0x2EDC, 0x98DE},
    {0x2EDD, 0x98DF}, {0x2EDF, 0x98E0}, {0x2EE0, 0x9963}, {0x2EE2, 0x9A6C}, {0x2EE3, 0x9AA8},
    {0x2EE4, 0x9B3C}, {0x2EE5, 0x9C7C}, {0x2EE6, 0x9E1F}, {0x2EE7, 0x5364}, {0x2EE8, 0x9EA6},
    {0x2EE9, 0x9EC4}, {0x2EEA, 0x9EFE}, {0x2EEB, 0x6589}, {0x2EEC, 0x9F50}, {0x2EED, 0x6B6F},
    {0x2EEE, 0x9F7F}, {0x2EEF, 0x7ADC}, {0x2EF0, 0x9F99}, {0x2EF1, 0x9F9C}, {0x2EF2, 0x4E80},
};

} // namespace

void UsedCharacters::add(const QString &text)
{
    for (const QChar character : text)
        m_used.set(character.unicode());
}

SearchableTextDevice::SearchableTextDevice(QIODevice &target, const UsedCharacters &used)
    : m_target(target), m_used(used)
{
    // Unbuffered: a table comes in one piece, as it is written.
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 SearchableTextDevice::writeData(const char *data, qint64 size)
{
    QByteArray bytes = QByteArray::fromRawData(data, int(size));
    if (bytes.contains("begincmap"))
        mend(bytes);
    return m_target.write(bytes);
}

// A line of a table names two glyphs, and for these and all between them the characters:
// <0001> <0003> [<65E5> <672C> <8A9E>]
void SearchableTextDevice::mend(QByteArray &table) const
{
    bool isCharacter = false;
    for (int i = 0; i + 5 < table.size(); ++i) {
        const char c = table.at(i);
        if (c == '[' || c == ']')
            isCharacter = c == '[';
        if (!isCharacter || c != '<' || table.at(i + 5) != '>')
            continue;
        bool isNumber = false;
        const ushort character = table.mid(i + 1, 4).toUShort(&isNumber, 16);
        if (isNumber) {
            const QByteArray hex = QByteArray::number(written(character), 16).toUpper();
            table.replace(i + 1, 4, hex.rightJustified(4, '0'));
        }
    }
}

ushort SearchableTextDevice::written(ushort character) const
{
    if (m_used.contains(character))
        return character;
    const QString compatible = QString(QChar(character)).normalized(QString::NormalizationForm_KC);
    if (compatible.size() == 1 && m_used.contains(compatible.at(0).unicode()))
        return compatible.at(0).unicode();
    for (const SameShape &shape : sameShapes) {
        if (shape.told == character && m_used.contains(shape.written))
            return shape.written;
    }
    return character;
}
