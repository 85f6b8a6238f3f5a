// What the rule editors of output items and of statement fields have in common: the pages, and
// lists of rules that are filled from them.
#pragma once

#include "common/dialog.h"

#include <QStringList>

class QListWidget;
class RulePages;

class AbstractRuleDialog : public Dialog
{
    Q_OBJECT

protected:
    explicit AbstractRuleDialog(QWidget *parent);

    /// Called once, after the form has been set up, with the pages that stand in it.
    void setPages(RulePages *pages);

    /// Appends the rule of the open page to a list; nothing when the page gives none.
    void addRule(QListWidget *list);
    /// Deletes the current rule of a list; nothing without one.
    static void deleteRule(QListWidget *list);
    /// Called once for each list: fills it and gives it its keys.
    void setUpList(QListWidget *list, const QStringList &rules);
    static QStringList rules(const QListWidget *list);

private slots:
    void on_replaceBox_currentIndexChanged(int index);
    void on_lengthComboBox2_currentIndexChanged(int index);

private:
    RulePages *m_pages = nullptr;
};
