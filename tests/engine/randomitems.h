// Random output items and tables, damaged ones among them. A seed always gives the same ones.
#pragma once

#include "engine/table.h"
#include "settings/outputitem.h"

#include <QRandomGenerator>

template <typename List> auto anyOf(const List &list, QRandomGenerator &random)
{
    return list.at(random.bounded(list.size()));
}

inline QStringList someOf(const QStringList &list, int maximum, QRandomGenerator &random)
{
    QStringList some;
    for (int count = random.bounded(maximum + 1); count > 0; --count)
        some.append(anyOf(list, random));
    return some;
}

inline const QStringList someRules = {
    "left(2)",
    "right(1)",
    "cutLeft(1)",
    "cutRight(1)",
    "curRight(1)",
    "left(0)",
    "breakLine(1)",
    "newLine(REMOVE)",
    "newLine(CRLF)",
    "prepend(0)",
    "append(1)",
    "append(한)",
    "find(contains(a),matchedString,replace(b))",
    "find(contains(1),fullString,print)",
    "find(startsWith(a),matchedString,delete)",
    "find(equalTo(b),fullString,replace(a))",
    "charType(upperCase)",
    "charType(fullWidth)",
    "trim",
    "simplified",
    "unknown(1)",
    "",
};

inline const QStringList someConditions = {
    "equalTo(a)",
    "notEqualTo(a)",
    "contains(1)",
    "notContains()",
    "startsWith(a)",
    "endsWith(b)",
    "equalTo()",
    "range(greaterThan(0),unLimit)",
    "range(unLimit,notGreaterThan(1))",
    "range(notLessThan(1),lessThan(100))",
    "range()",
    "range",
    "Contains(a)",
    "",
};

inline const QStringList someTexts = {"",   "a",          "a",   "b",  "ab", "1",  "2",
                                      "-1", "007",        "3.5", " 7", "A",  "한", "x",
                                      "\n", "2147483647", "é ",  "10", ",",  "0"};

// Lists of different lengths and numbers out of range included: settings can be damaged.
inline OutputItem randomItem(QRandomGenerator &random)
{
    OutputItem item;
    const QList<int> kinds = {0, 1, 1, 1, 1, 2, -1};
    const auto numbers = [&](int count) {
        QList<int> list;
        for (int i = 0; i < count; ++i)
            list.append(random.bounded(10) == 0 ? random.bounded(-3, 12) : random.bounded(4));
        return list;
    };
    const auto someKinds = [&](int count) {
        QList<int> list;
        for (int i = 0; i < count; ++i)
            list.append(anyOf(kinds, random));
        return list;
    };
    const auto nearly = [&random](int count) {
        return random.bounded(15) == 0 ? random.bounded(4) : count;
    };
    const int mapped = random.bounded(4);
    item.mapNums = numbers(mapped);
    item.mapSources = someKinds(nearly(mapped));
    item.separator = anyOf(QStringList{"", " ", "-", ",", "\n"}, random);
    if (random.bounded(3) == 0) {
        const int tested = random.bounded(4);
        item.condNums = numbers(tested);
        item.condSources = someKinds(nearly(tested));
        for (int i = nearly(tested); i > 0; --i)
            item.conditions.append("shown");
        for (int i = nearly(tested); i > 0; --i)
            item.condRules.append(anyOf(someConditions, random));
        item.condCombination = anyOf(QStringList{"AND", "AND", "OR", "OR", "and", ""}, random);
    }
    item.rules = random.bounded(2) == 0 ? someOf(someRules, 3, random) : QStringList();
    item.afterRules = random.bounded(2) == 0 ? someOf(someRules, 3, random) : QStringList();
    item.distinct = anyOf(QStringList{"YES", "NO", "NO", "", "yes"}, random);
    item.merge = anyOf(QStringList{"STRING", "STRING", "NUMBER", "NUMBER", "", "NONE"}, random);
    item.mergeSeparator = anyOf(QStringList{"", "/", "\n", ", "}, random);
    return item;
}

inline Table randomTable(QRandomGenerator &random)
{
    const int texts = 2 + random.bounded(someTexts.size() - 1);
    const auto rows = [&](int count) {
        QList<QStringList> rows = {{"a", "b", "c"}};
        for (int row = 0; row < count; ++row) {
            QStringList fields;
            for (int column = 0; column < 3; ++column)
                fields.append(someTexts.at(random.bounded(texts)));
            rows.append(fields);
        }
        return TextRows(rows);
    };
    Table table;
    table.setRows(rows(random.bounded(30)));
    if (random.bounded(2) == 0)
        table.join(rows(random.bounded(6)), random.bounded(3), random.bounded(3));
    return table;
}
