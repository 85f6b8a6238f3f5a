#include "engine/textrows.h"

#include <QBitArray>

namespace {

// A unit that occurs in none of the texts.
char16_t unusedUnit(const QList<QStringList> &rows)
{
    QBitArray used(0x10000);
    for (const QStringList &row : rows) {
        for (const QString &field : row) {
            for (const QChar unit : field)
                used.setBit(unit.unicode());
        }
    }
    int unit = 0;
    while (unit < 0xFFFF && used.testBit(unit))
        ++unit;
    return char16_t(unit);
}

} // namespace

TextRows::TextRows(const QList<QStringList> &rows) : m_separator(unusedUnit(rows))
{
    for (const QStringList &row : rows) {
        if (row.isEmpty()) {
            m_rows.push_back({1, 0});
            continue;
        }
        const size_t begin = m_text.size();
        const QString text = row.join(QChar(m_separator));
        m_text.append(reinterpret_cast<const char16_t *>(text.utf16()), size_t(text.size()));
        appendRow(begin, m_text.size());
    }
    finish();
}

int TextRows::fieldCount(int row) const
{
    Fields fields = this->fields(row);
    QStringView field;
    int count = 0;
    while (fields.next(&field))
        ++count;
    return count;
}

QStringView TextRows::field(int row, int column) const
{
    Fields fields = this->fields(row);
    QStringView field;
    for (int i = 0; i <= column; ++i) {
        if (!fields.next(&field))
            return QStringView();
    }
    return field;
}

QStringList TextRows::row(int row) const
{
    QStringList texts;
    Fields fields = this->fields(row);
    QStringView field;
    while (fields.next(&field))
        texts.append(field.toString());
    return texts;
}

void TextRows::reserveRows(double count)
{
    m_rows.reserve(size_t(qMin(count, double(maximumUnits))));
}
