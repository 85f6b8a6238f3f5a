// Output items and tables for tests, written down briefly.
#pragma once

#include "engine/table.h"
#include "settings/outputitem.h"

// An item that takes these columns of the input row.
inline OutputItem columns(const QList<int> &numbers, const QString &separator = QString())
{
    OutputItem item;
    for (const int number : numbers)
        item.appendMapping(InputSource, number, "column");
    item.separator = separator;
    item.distinct = "NO";
    return item;
}

struct Tested {
    int column;
    QString rule;
};

inline OutputItem underConditions(OutputItem item, const QString &combination,
                                  const QList<Tested> &tested)
{
    for (const Tested &condition : tested) {
        item.appendCondition(InputSource, condition.column, "column");
        item.condRules.last() = condition.rule;
    }
    item.condCombination = combination;
    return item;
}

inline OutputItem withRules(OutputItem item, const QStringList &rules)
{
    item.rules = rules;
    return item;
}

inline OutputItem withAfterRules(OutputItem item, const QStringList &rules)
{
    item.afterRules = rules;
    return item;
}

inline OutputItem distinct(OutputItem item)
{
    item.distinct = "YES";
    return item;
}

inline OutputItem merged(OutputItem item, const QString &merge,
                         const QString &separator = QString())
{
    item.merge = merge;
    item.mergeSeparator = separator;
    return item;
}

// The data rows of a table with five headings.
inline Table tableOf(const QList<QStringList> &dataRows)
{
    QList<QStringList> rows = {{"a", "b", "c", "d", "e"}};
    rows += dataRows;
    Table table;
    table.setRows(TextRows(rows));
    return table;
}
