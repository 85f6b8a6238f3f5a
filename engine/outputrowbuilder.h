// Builds the values of one output row from one row of the input table: each output item collects
// its sources, tests its conditions and applies its rules. A failing condition empties a value,
// never drops a row.
#pragma once

#include "engine/table.h"
#include "rules/rule.h"
#include "settings/companyinfo.h"
#include "settings/outputitem.h"

#include <vector>

class OutputRowBuilder
{
public:
    /// Reads every condition and rule text once.
    OutputRowBuilder(const QList<OutputItem> &items, const CompanyInfo &company);

    int itemCount() const { return int(m_items.size()); }

    /// The input columns that the first `itemCount` items read lie before this one.
    int columnLimit(int itemCount) const;

    /// The value of one item. It may be a view into the table.
    void buildValue(int item, const Table::Row &inputRow, WorkingText &value) const;

    /// All values, in item order.
    QStringList buildOutputRow(const Table::Row &inputRow) const;

private:
    // Where one text comes from.
    struct Source {
        bool isInput;
        int column;   // of the input row
        QString text; // of the company, the same in every row

        QStringView value(const Table::Row &inputRow) const
        {
            return isInput ? inputRow.value(column) : QStringView(text);
        }
    };
    struct TestedSource {
        Source source;
        Condition condition;
    };
    struct Item {
        std::vector<Source> sources;
        QString separator;
        bool isConditional;
        Combination combination;
        std::vector<TestedSource> tested;
        RuleList rules;
    };

    static bool passes(const Item &item, const Table::Row &inputRow);

    std::vector<Item> m_items;
};
