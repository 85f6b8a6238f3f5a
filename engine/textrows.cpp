#include "engine/textrows.h"

TextRows::TextRows(const QList<QStringList> &rows)
{
    for (const QStringList &row : rows)
        appendRow(row);
}

QStringList TextRows::row(int row) const
{
    QStringList fields;
    const int count = fieldCount(row);
    fields.reserve(count);
    for (int column = 0; column < count; ++column)
        fields.append(field(row, column).toString());
    return fields;
}

void TextRows::appendRow(const QStringList &fields)
{
    std::vector<quint32> begins;
    begins.reserve(size_t(fields.size()) + 1);
    for (const QString &field : fields) {
        begins.push_back(quint32(m_text.size()));
        m_text.append(reinterpret_cast<const char16_t *>(field.utf16()), size_t(field.size()));
        m_text.push_back(u'\0');
    }
    begins.push_back(quint32(m_text.size()));
    appendRow(begins.data(), fields.size());
}

void TextRows::appendRow(const quint32 *begins, int count)
{
    if (m_rowCount == 0)
        m_width = count;
    else if (count != m_width && m_rowBegins.empty())
        noteRaggedRow();
    if (!m_rowBegins.empty())
        m_rowBegins.push_back(m_begins.size());
    m_begins.insert(m_begins.end(), begins, begins + count + 1);
    ++m_rowCount;
}

// From now on every row needs its own index.
void TextRows::noteRaggedRow()
{
    for (int row = 0; row < m_rowCount; ++row)
        m_rowBegins.push_back(size_t(row) * size_t(m_width + 1));
}

void TextRows::truncate(int rowCount)
{
    if (rowCount >= m_rowCount)
        return;
    m_begins.resize(firstBegin(rowCount));
    if (!m_rowBegins.empty())
        m_rowBegins.resize(size_t(rowCount));
    m_rowCount = rowCount;
}

void TextRows::expectMoreRows(double factor)
{
    const double reserve = 1.1 * factor * double(m_begins.size());
    m_begins.reserve(size_t(qMin(reserve, double(maximumUnits))));
}
