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
    /// `table` must outlive this object and stay unchanged.
    OutputRows(const Table &table, const QList<OutputItem> &items, const CompanyInfo &company);
    Q_DISABLE_COPY(OutputRows)

    /// Adds the output row of the table's next data row.
    void appendNext();

    /// Removes every row whose first N values equal those of an earlier row, N being the number of
    /// items marked distinct (whichever items these are), and folds its values into the earlier row.
    /// After that the after-merge rules apply. Without a distinct item nothing happens at all.
    void removeDuplicatesAndMerge();

    int count() const;
    int itemCount() const { return m_builder.itemCount(); }

    /// The value of one item in one row. Valid until the next call.
    QStringView value(int row, int item);
    QStringList row(int row);

    /// The input row (of the table) that an output row was made of, and after it, in their order, those
    /// that were folded into it; RowGroups::none ends them.
    quint32 firstInputRow(int row) const;
    quint32 nextInputRow(quint32 inputRow) const;

private:
    struct MergeItem {
        bool mergesTexts;
        bool mergesNumbers;
        QString separator;
        RuleList afterRules;
    };

    void buildKey(quint32 inputRow, std::vector<WorkingText> &values) const;
    void addToGroup(quint32 inputRow);
    void mergeTexts(quint32 inputRow, int item);
    void mergeNumbers(quint32 inputRow, int item);

    const Table &m_table;
    const OutputRowBuilder m_builder;
    std::vector<MergeItem> m_mergeItems;
    int m_distinctCount = 0;
    int m_appended = 0;
    bool m_merged = false;
    RowGroups m_groups;
    WorkingText m_value;
    WorkingText m_folded;
    std::vector<WorkingText> m_key;
    std::vector<WorkingText> m_otherKey;
};
