// The input table of a conversion: the rows of the input files, concatenated or joined by key
// columns. It is the one container of input data: the run reads it, the setting editor shows and
// changes it. The texts stay where the reader put them; a joined row is a list of references.
#pragma once

#include "engine/textrows.h"

#include <climits>
#include <memory>

class Table
{
    struct Part;

public:
    /// A cursor on one row. Fields are looked up as far as they are asked for, and kept when the
    /// next row repeats them (as joined rows do). Valid as long as the table lives unchanged.
    class Row
    {
    public:
        /// `columnLimit`: no column from this one on will be asked for, so none is looked up.
        Row(const Table &table, int row, int columnLimit = INT_MAX);

        /// `row` must be a row of the table.
        void moveTo(int row);
        /// Empty for a column that the row does not have, or beyond the limit.
        QStringView value(int column) const
        {
            if (size_t(column) < m_fieldCount || findFields(column))
                return m_fields[size_t(column)];
            return QStringView();
        }
        int fieldCount() const;

    private:
        bool findFields(int column) const;
        void findFieldsOfPart(size_t part) const;

        const Table &m_table;
        int m_row;
        const size_t m_columnLimit;
        // What has been found so far: the fields of the first m_partCount parts.
        mutable std::vector<QStringView> m_fields;
        mutable size_t m_fieldCount = 0;
        mutable std::vector<size_t> m_partEnds; // the number of fields when each part was through
        mutable size_t m_partCount = 0;
    };

    void clear();
    /// No rows at all, not even the heading row.
    bool isEmpty() const { return m_rowCount == 0; }
    /// Counts the heading row.
    int rowCount() const { return m_rowCount; }
    /// The length of the heading row.
    int columnCount() const { return m_columnCount; }

    Row row(int row) const { return Row(*this, row); }
    /// Empty for a row or a column that is not there.
    QString value(int row, int column) const;
    QStringList rowTexts(int row) const;

    /// Replaces everything; row 0 is the heading row.
    void setRows(TextRows rows);
    /// Adds the rows behind the heading row of `rows` at the end; rows added to a joined table have
    /// no partners. To an empty table nothing is added.
    void appendDataRows(TextRows rows);

    /// Joins the rows of a further file on equal texts in `tableColumn` of the table and
    /// `fileColumn` of the file. Its headings and values, without the file column, are added to the
    /// rows. A table row becomes one row for each partner, in the file's order; without a partner
    /// it stays as it is, shorter than the heading row. A column that does not exist reads as empty
    /// in every row. Returns false and changes nothing when a column lies beyond the one behind the
    /// last. Keys that are equal in too many rows on both sides (as with a wrong pair of columns)
    /// throw std::bad_alloc before they fill all memory.
    bool join(TextRows rows, int tableColumn, int fileColumn);

    /// Removes `count` rows from `row` on; a range beyond the table is cut.
    void removeRows(int row, int count);

private:
    static constexpr quint32 noRow = 0xFFFFFFFF;
    static constexpr size_t greatestRowCount = 100000000;

    // What one file, or several files of the same form, adds to a row.
    struct Part {
        struct File {
            std::shared_ptr<const TextRows> rows;
            quint32 firstRow;    // its number among the rows of all files
            quint32 skippedRows; // the heading row of the files behind the first
        };
        std::vector<File> files;
        int droppedColumn = -1; // the key column, which the row has already

        quint32 rowCount() const;
        void add(TextRows rows, quint32 skippedRows);
        TextRows::Fields fields(quint32 row) const;
    };

    bool isPlain() const { return m_references.empty(); }
    quint32 reference(int row, size_t part) const;
    QStringView field(int row, int column) const;
    void makeReferences();
    void appendReferences(std::vector<quint32> &references, int row) const;

    std::vector<Part> m_parts;
    // For each row one reference to each part; empty while the table is just the rows of one part.
    std::vector<quint32> m_references;
    int m_rowCount = 0;
    int m_columnCount = 0;
};
