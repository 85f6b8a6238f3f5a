// What a user does in the fields of a dialog, one field after the other.
#pragma once

#include <QList>
#include <QString>

struct FormStep {
    enum Kind { Choose, Write, Check };

    Kind kind;
    QString widget; ///< object name
    int row;        ///< Choose: of a combo box, list, tool box or tab widget; Check: 0 takes it off
    QString text;   ///< Write: of a text field or a number box

    static FormStep choose(const QString &widget, int row) { return {Choose, widget, row, {}}; }
    static FormStep write(const QString &widget, const QString &text)
    {
        return {Write, widget, 0, text};
    }
    /// A check box or a radio button.
    static FormStep check(const QString &widget, bool on = true)
    {
        return {Check, widget, on ? 1 : 0, {}};
    }
};

using FormSteps = QList<FormStep>;

/// What composes a rule on the pages of the rule editors. Empty when they cannot write such a rule.
FormSteps ruleSteps(const QString &rule);
/// What writes a condition in the condition editor.
FormSteps conditionSteps(const QString &condition);
/// What sets the merging in the merge editor.
FormSteps mergeSteps(const QString &merge, const QString &separator);
