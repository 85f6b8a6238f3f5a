// The output rows of a run, before and after duplicates are removed. Only which input rows make up
// an output row is kept; a value is built when it is asked for. The columns that decide about
// duplicates are therefore built before all others.
#pragma once

#include "engine/outputrowbuilder.h"
#include "engine/rowgroups.h"
#include "rules/workingtext.h"

class OutputRows
{
public:
    /// `table` has at least its heading row, must outlive this object and stay unchanged.
    OutputRows(const Table &table, const QList<OutputItem> &items, const CompanyInfo &company);
    Q_DISABLE_COPY(OutputRows)

    /// Adds the output row of the table's next data row; called once for each data row at most.
    void appendNext();

    /// From now on the rows are those without duplicates: appendNext() has found them, buildRow()
    /// merges their values. Removed is every row whose first N values equal those of an earlier
    /// row, N being the number of items marked distinct (whichever items these are); its values are
    /// folded into the earlier row, and after that the after-merge rules apply. Without a distinct
    /// item nothing happens at all.
    void removeDuplicatesAndMerge();

    int count() const;
    int itemCount() const { return m_builder.itemCount(); }

    /// Builds the values of one row, one for each item. Valid until the next call.
    const std::vector<WorkingText> &buildRow(int row);
    QStringList row(int row);

    /// The input row (of the table) that an output row was made of, and after it, in their order,
    /// those that were folded into it; RowGroups::none ends them.
    quint32 firstInputRow(int row) const;
    quint32 nextInputRow(quint32 inputRow) const;

private:
    struct MergeItem {
        bool mergesNumbers; // otherwise texts, for an item that merges
        QString separator;
        RuleList afterRules;
        quint32 sum; // of the row being built
    };

    // The values by which rows are compared, built when they are needed; serves as a key of
    // RowGroups.
    class KeyBuilder
    {
    public:
        KeyBuilder(const Table &table, const OutputRowBuilder &builder, int valueCount)
            : m_builder(builder), m_cursor(table, 0, builder.columnLimit(valueCount)),
              m_current(valueCount), m_other(valueCount)
        {
        }
        void moveTo(quint32 row);
        int compareWith(quint32 row);
        uint hash() const { return hashOf(m_current.values); }
        uint hashOf(quint32 row) { return hashOf(build(row, m_other)); }

    private:
        struct Key {
            explicit Key(int valueCount) : values(size_t(valueCount)) {}
            quint32 inputRow = RowGroups::none;
            std::vector<WorkingText> values;
        };
        const std::vector<WorkingText> &build(quint32 row, Key &key);
        static uint hashOf(const std::vector<WorkingText> &values);

        const OutputRowBuilder &m_builder;
        Table::Row m_cursor;
        Key m_current;
        Key m_other;
    };

    void foldRows(quint32 firstInputRow);

    const OutputRowBuilder m_builder;
    std::vector<MergeItem> m_mergeItems; // one for each item
    std::vector<int> m_mergingItems;     // those whose values are folded together
    const int m_distinctCount;
    int m_appended = 0;
    bool m_merged = false;
    RowGroups m_groups;

    Table::Row m_inputRow;
    const int m_tableRowCount;
    std::vector<WorkingText> m_values;
    WorkingText m_folded;
    KeyBuilder m_key;
};
