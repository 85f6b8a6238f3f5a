#include "common/abstractruledialog.h"

#include "common/rulepages.h"

#include <QListWidget>
#include <QShortcut>

AbstractRuleDialog::AbstractRuleDialog(QWidget *parent) : Dialog(parent) {}

void AbstractRuleDialog::setPages(RulePages *pages)
{
    m_pages = pages;
    connect(pages, &RulePages::refused, this, &AbstractRuleDialog::warn);
}

void AbstractRuleDialog::addRule(QListWidget *list)
{
    const QString rule = m_pages->ruleText();
    if (rule.isEmpty())
        return;
    list->addItem(rule);
    list->scrollToBottom();
}

void AbstractRuleDialog::deleteRule(QListWidget *list)
{
    delete list->currentItem();
}

void AbstractRuleDialog::setUpList(QListWidget *list, const QStringList &rules)
{
    list->addItems(rules);
    // The keyboard's focus makes a rule current without marking it; what goes must be seen.
    connect(list, &QListWidget::currentRowChanged, list,
            [list](int row) { list->setCurrentRow(row); });
    auto *deleteKey = new QShortcut(QKeySequence::Delete, list);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, [list] { deleteRule(list); });
}

QStringList AbstractRuleDialog::rules(const QListWidget *list)
{
    QStringList rules;
    for (int row = 0; row < list->count(); ++row)
        rules.append(list->item(row)->text());
    return rules;
}

void AbstractRuleDialog::on_replaceBox_currentIndexChanged(int index)
{
    m_pages->setReplaceMethod(index);
}

void AbstractRuleDialog::on_lengthComboBox2_currentIndexChanged(int index)
{
    m_pages->setLengthMethod(index);
}
