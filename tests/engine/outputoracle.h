// Output rows, the removal of duplicates and merging as plain loops over string lists, in the order
// in which they are told. Quadratic and easy to check by eye; the engine must give the same rows.
#pragma once

#include "rules/condition.h"
#include "rules/functiontext.h"
#include "rules/rule.h"
#include "settings/companyinfo.h"
#include "settings/outputitem.h"

namespace OutputOracle {

inline QString sourceValue(int kind, int number, const QStringList &inputRow,
                           const CompanyInfo &company)
{
    if (kind == 0)
        return company.value(number);
    if (kind == 1)
        return inputRow.value(number);
    return QString();
}

inline bool passes(const OutputItem &item, const QStringList &inputRow, const CompanyInfo &company)
{
    if (item.conditions.isEmpty())
        return true;
    bool pass = false;
    for (int k = 0; k < item.condNums.size(); ++k) {
        const QString tested =
            sourceValue(item.condSources.value(k), item.condNums.at(k), inputRow, company);
        const QString expression = item.condRules.value(k);
        bool result;
        if (functionName(expression) == "range")
            result = evaluateNumberRange(functionArgs(expression).split(','), tested.toInt());
        else
            result = evaluateStringCondition(expression, tested);
        if (item.condCombination == "AND") {
            pass = result;
            if (!result)
                break;
        } else if (item.condCombination == "OR") {
            pass = pass || result;
        }
    }
    return pass;
}

inline QStringList buildOutputRow(const QList<OutputItem> &items, const QStringList &inputRow,
                                  const CompanyInfo &company)
{
    QStringList row;
    for (const OutputItem &item : items) {
        QString value;
        if (passes(item, inputRow, company)) {
            QStringList collected;
            for (int m = 0; m < item.mapNums.size(); ++m) {
                const int kind = item.mapSources.value(m);
                if (kind == 0 || kind == 1)
                    collected.append(sourceValue(kind, item.mapNums.at(m), inputRow, company));
            }
            value = collected.join(item.separator);
            for (const QString &rule : item.rules)
                value = applyRule(rule, value);
        }
        row.append(value);
    }
    return row;
}

/// `groups` tells which of the rows, by their number before, make up each row that is left.
inline void removeDuplicatesAndMerge(QList<QStringList> &rows, const QList<OutputItem> &items,
                                     QList<QList<int>> *groups)
{
    QList<int> mergeItems;
    int n = 0;
    for (int i = 0; i < items.size(); ++i) {
        if (items.at(i).distinct == "YES")
            ++n;
        if (items.at(i).merge == "STRING" || items.at(i).merge == "NUMBER")
            mergeItems.append(i);
    }
    groups->clear();
    for (int i = 0; i < rows.size(); ++i)
        groups->append(QList<int>{i});
    if (n == 0)
        return;
    for (int i = 0; i < rows.size(); ++i) {
        QList<QStringList> duplicates;
        for (int j = i + 1; j < rows.size();) {
            bool equal = true;
            for (int position = 0; position < n; ++position)
                equal = equal && rows.at(i).value(position) == rows.at(j).value(position);
            if (!equal) {
                ++j;
                continue;
            }
            duplicates.append(rows.takeAt(j));
            (*groups)[i] += groups->takeAt(j);
        }
        QStringList copy = rows.at(i);
        if (!duplicates.isEmpty()) {
            for (const int c : mergeItems) {
                if (items.at(c).merge == "STRING") {
                    for (const QStringList &duplicate : duplicates)
                        copy[c] += items.at(c).mergeSeparator + duplicate.value(c);
                } else {
                    quint32 sum = quint32(copy.at(c).toInt());
                    for (const QStringList &duplicate : duplicates)
                        sum += quint32(duplicate.value(c).toInt());
                    copy[c] = QString::number(qint32(sum));
                }
            }
        }
        for (int k = 0; k < copy.size(); ++k) {
            for (const QString &rule : items.at(k).afterRules)
                copy[k] = applyRule(rule, copy.at(k));
        }
        rows[i] = copy;
    }
}

} // namespace OutputOracle
