// Rows of texts in one block of memory: all texts behind one another, and the offset of each. An
// order export is a million short texts; one string object for each would cost twenty times as much
// time and space.
#pragma once

#include <QList>
#include <QStringList>
#include <QStringView>
#include <string>
#include <vector>

class TextRows
{
public:
    /// The most code units that one block can hold.
    static constexpr qint64 maximumUnits = 0xFFFFFFF0;

    TextRows() = default;
    explicit TextRows(const QList<QStringList> &rows);

    int rowCount() const { return m_rowCount; }
    int fieldCount(int row) const;
    /// Empty where the row has no such field. Valid as long as this object lives unchanged.
    QStringView field(int row, int column) const;
    QStringList row(int row) const;

    void appendRow(const QStringList &fields);
    /// Keeps the first rows only.
    void truncate(int rowCount);

    /// For the reader, which fills the text first and cuts it into rows in place.
    std::u16string &text() { return m_text; }
    /// A row whose `count` fields lie in text(): field i begins at begins[i] and ends one unit before
    /// begins[i + 1] (there are count + 1 entries).
    void appendRow(const quint32 *begins, int count);
    /// Sets memory aside for `factor` times the rows that are there now, so that it need not be moved
    /// while it grows. Memory that is never used costs nothing.
    void expectMoreRows(double factor);

private:
    size_t firstBegin(int row) const
    {
        return m_rowBegins.empty() ? size_t(row) * size_t(m_width + 1) : m_rowBegins[size_t(row)];
    }
    void noteRaggedRow();

    std::u16string m_text;
    std::vector<quint32> m_begins;    // each row: its fields' offsets, and the end of the last + 1
    std::vector<size_t> m_rowBegins;  // index into m_begins; empty while all rows are equally long
    int m_width = 0;                  // fields of each row, while they are equally long
    int m_rowCount = 0;
};

inline int TextRows::fieldCount(int row) const
{
    if (m_rowBegins.empty())
        return m_width;
    const size_t next = row + 1 < m_rowCount ? m_rowBegins[size_t(row) + 1] : m_begins.size();
    return int(next - m_rowBegins[size_t(row)]) - 1;
}

inline QStringView TextRows::field(int row, int column) const
{
    if (column < 0 || column >= fieldCount(row))
        return QStringView();
    const quint32 *begin = m_begins.data() + firstBegin(row) + column;
    return QStringView(m_text.data() + begin[0], qsizetype(begin[1] - begin[0]) - 1);
}
