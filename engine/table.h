// The input table of a conversion: the rows of the input files, concatenated or joined by key
// columns. It is the one container of input data: the run reads it, the setting editor shows and
// changes it. The texts stay where the reader put them; a joined row is a list of references.
#pragma once

#include "engine/textrows.h"

#include <memory>

class Table
{
    struct Part;

public:
    /// One row of the table, resolved for reading. Valid as long as the table lives unchanged.
    class Row
    {
    public:
        /// Empty for a column that the row does not have.
        QStringView value(int column) const;
        int fieldCount() const;

    private:
        friend class Table;
        Row(const std::vector<Part> &parts, const quint32 *references, quint32 only)
            : m_parts(parts), m_references(references), m_only(only)
        {
        }
        quint32 reference(size_t part) const { return m_references ? m_references[part] : m_only; }

        const std::vector<Part> &m_parts;
        const quint32 *m_references; // one for each part; null while there is one part
        quint32 m_only;              // the row of that part
    };

    void clear();
    /// No rows at all, not even the heading row.
    bool isEmpty() const { return m_rowCount == 0; }
    /// Counts the heading row.
    int rowCount() const { return m_rowCount; }
    /// The length of the heading row.
    int columnCount() const { return m_columnCount; }

    Row row(int row) const;
    /// Empty for a row or a column that is not there.
    QStringView value(int row, int column) const;
    QStringList rowTexts(int row) const;

    /// Replaces everything; row 0 is the heading row.
    void setRows(TextRows rows);
    /// Adds the rows behind the heading row of `rows` at the end. To an empty table nothing is added.
    void appendDataRows(TextRows rows);

    /// Joins the rows of a further file on equal texts in `tableColumn` of the table and `fileColumn`
    /// of the file. Its headings and values, without the file column, are added to the rows. A table
    /// row becomes one row for each partner, in the file's order; without a partner it stays as it
    /// is, shorter than the heading row. A column that does not exist reads as empty in every row.
    /// Returns false and changes nothing when a column lies beyond the one behind the last.
    bool join(TextRows rows, int tableColumn, int fileColumn);

    /// Removes `count` rows from `row` on; a range beyond the table is cut.
    void removeRows(int row, int count);

private:
    static constexpr quint32 noRow = 0xFFFFFFFF;

    // What one file, or several files of the same form, adds to a row.
    struct Part {
        // The rows of all files in one numbering; file i begins with number firstRows[i].
        std::vector<std::shared_ptr<const TextRows>> files;
        std::vector<quint32> firstRows;
        int droppedColumn = -1; // the key column, which the row has already

        quint32 rowCount() const;
        void add(TextRows rows, int skippedRows);
        QStringView field(quint32 row, int column) const;
        int fieldCount(quint32 row) const;
        bool dropsColumnOf(int storedFields) const
        {
            return droppedColumn >= 0 && droppedColumn < storedFields;
        }

    private:
        const TextRows &locate(quint32 &row) const;
        std::vector<quint32> m_skippedRows; // heading rows of the files behind the first
    };

    bool isPlain() const { return m_references.empty(); }
    void makeReferences();

    std::vector<Part> m_parts;
    // For each row one reference to each part; empty while the table is just the rows of one part.
    std::vector<quint32> m_references;
    int m_rowCount = 0;
    int m_columnCount = 0;
};
