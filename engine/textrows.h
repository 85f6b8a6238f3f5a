// Rows of texts in one block of memory: the rows behind one another, the fields of a row with a
// separator between them. An order export is a million short texts; one string object for each
// would cost twenty times as much time and space. Fields are found when a row is read.
#pragma once

#include "engine/linescan.h"

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

    /// Walks over the fields of one row.
    class Fields
    {
    public:
        Fields() = default;
        /// Takes the next field; false behind the last one.
        bool next(QStringView *field);

    private:
        friend class TextRows;
        Fields(const char16_t *position, const char16_t *end, char16_t separator)
            : m_position(position), m_end(end), m_separator(separator)
        {
        }

        const char16_t *m_position = nullptr; // null behind the last field
        const char16_t *m_end = nullptr;
        char16_t m_separator = u',';
    };

    /// No rows; text read from a file, its fields separated by commas, is added later.
    TextRows() = default;
    /// The rows of a list, whatever their texts hold.
    explicit TextRows(const QList<QStringList> &rows);

    int rowCount() const { return int(m_rows.size()); }
    /// Views are valid as long as this object lives unchanged.
    Fields fields(int row) const;
    int fieldCount(int row) const;
    /// Empty where the row has no such field.
    QStringView field(int row, int column) const;
    QStringList row(int row) const;

    /// For the reader, which fills the text first and then says which parts of it are rows, each
    /// with at least one field. When the text is complete, finish() ends it.
    std::u16string &text() { return m_text; }
    void appendRow(size_t begin, size_t end) { m_rows.push_back({quint32(begin), quint32(end)}); }
    void finish() { m_text.append(UnitScan::padding, u'\0'); }
    /// Sets address space aside for this many rows, so that they need not be moved while they grow.
    void reserveRows(double count);

private:
    // A row that has no field at all, not even an empty one, ends before it begins.
    struct Span {
        quint32 begin;
        quint32 end;
        bool hasFields() const { return end >= begin; }
    };

    std::u16string m_text;
    std::vector<Span> m_rows;
    char16_t m_separator = u',';
};

inline bool TextRows::Fields::next(QStringView *field)
{
    if (!m_position)
        return false;
    const char16_t *fieldEnd = UnitScan::findPadded(m_position, m_end, m_separator);
    *field = QStringView(m_position, qsizetype(fieldEnd - m_position));
    m_position = fieldEnd == m_end ? nullptr : fieldEnd + 1;
    return true;
}

inline TextRows::Fields TextRows::fields(int row) const
{
    const Span &span = m_rows[size_t(row)];
    if (!span.hasFields())
        return Fields();
    return Fields(m_text.data() + span.begin, m_text.data() + span.end, m_separator);
}
