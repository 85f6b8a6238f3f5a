// The examples of the help's tables that say what they show, in their attributes: a rule with a
// value before and after it, or a condition with a value and whether it holds.
#pragma once

#include <QList>
#include <QString>

struct ExampleRow {
    QString place; ///< file and line
    QString rule;
    QString before;
    QString after;
    QString condition;
    QString value;
    QString holds; ///< as written
    QString problem;
};

/// The rows of every page of one language, in the order of the contents.
QList<ExampleRow> exampleRows(const QString &helpFolder, const QString &language);
