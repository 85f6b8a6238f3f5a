#include "tests/drive/itemwalk.h"

#include "editor/outputmodemodel.h"
#include "tests/drive/formhands.h"
#include "tests/drive/rulewalk.h"
#include "tests/drive/sourcehands.h"
#include "tests/drive/userhands.h"
#include "tests/drive/walk.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTableView>

namespace {

const char *const settingDialog = "ConvertSettingDialog";

const QTableView *outputView(const Walk &walk)
{
    return walk.find<QTableView>(QStringLiteral("outputModeView"));
}

} // namespace

ItemWalk::ItemWalk(Walk &walk)
    : m_walk(walk), m_cells(walk, QStringLiteral("outputModeView")), m_model(onGui([&] {
          return qobject_cast<const OutputModeModel *>(
              static_cast<const QAbstractItemModel *>(outputView(walk)->model()));
      }))
{
}

int ItemWalk::column() const
{
    return m_model->columnCount() - 1;
}

OutputItem ItemWalk::item() const
{
    return m_model->item(column());
}

bool ItemWalk::add(const OutputItem &plan)
{
    return addNamed(plan.name) && addMappings(plan) && addConditions(plan)
        && setSeparator(plan.separator) && addRules(plan) && setFlags(plan);
}

bool ItemWalk::addNamed(const QString &name)
{
    const auto editor = [this] {
        auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        return edit != nullptr && outputView(m_walk)->isAncestorOf(edit) ? edit : nullptr;
    };
    return m_walk.click(QStringLiteral("addItemButton"))
        && m_walk.waitFor(QStringLiteral("the name's editor"), [&] { return editor() != nullptr; })
        && UserHands::type(name)
        && m_walk.waitFor(QStringLiteral("the name to be typed"),
                          [&] { return editor() != nullptr && editor()->text() == name; })
        && UserHands::press({QStringLiteral("Return")})
        && m_walk.waitFor(QStringLiteral("the name to be taken"),
                          [&] { return editor() == nullptr && item().name == name; });
}

bool ItemWalk::addMappings(const OutputItem &plan)
{
    SourceHands sources(m_walk, QStringLiteral("outputModeView"));
    for (int i = 0; i < plan.mappings.size(); ++i) {
        const int column = onGui([this] { return this->column(); });
        if (!sources.bring(plan.mapSources.at(i), plan.mapNums.at(i), OutputModeModel::OutputRow,
                           column)
            || !m_walk.waitFor(QStringLiteral("%1 to be mapped").arg(plan.mappings.at(i)),
                               [&] { return item().mappings == plan.mappings.mid(0, i + 1); }))
            return false;
    }
    return true;
}

bool ItemWalk::addConditions(const OutputItem &plan)
{
    SourceHands sources(m_walk, QStringLiteral("outputModeView"));
    for (int i = 0; i < plan.conditions.size(); ++i) {
        const int column = onGui([this] { return this->column(); });
        if (!sources.bring(plan.condSources.at(i), plan.condNums.at(i),
                           OutputModeModel::ConditionsRow, column)
            || !m_walk.waitForFront("EditConditionsDialog") || !fillCondition(plan, i)
            || !m_walk.waitForFront(settingDialog))
            return false;
    }
    return true;
}

// The editor has opened by itself, with the new condition current.
bool ItemWalk::fillCondition(const OutputItem &plan, int position)
{
    const QString condition = plan.condRules.at(position);
    const int combination = plan.condCombination == QLatin1String("OR") ? 1 : 0;
    const int row = onGui([this] {
        return m_walk.find<QListWidget>(QStringLiteral("itemListWidget"))->currentRow();
    });
    if (row != position)
        return m_walk.fail(QStringLiteral("The condition editor stands in row %1, not in the new "
                                          "one.")
                               .arg(row));
    return fillForm(m_walk, conditionSteps(condition))
        && m_walk.takeScreenshotOnce(condition.startsWith(QLatin1String("range"))
                                         ? QStringLiteral("number_condition")
                                         : QStringLiteral("text_condition"))
        && m_walk.click(QStringLiteral("saveButton"))
        && m_walk.waitFor(QStringLiteral("the condition %1 to be stored").arg(condition),
                          [&] { return item().condRules.value(position) == condition; })
        && fillForm(m_walk, {FormStep::choose(QStringLiteral("combinationComboBox"), combination)})
        && m_walk.click(QStringLiteral("okButton"));
}

bool ItemWalk::setSeparator(const QString &separator)
{
    if (separator.isEmpty())
        return true;
    return m_cells.doubleClick(OutputModeModel::OutputRow, onGui([this] { return column(); }))
        && fillSeparator(m_walk, separator) && m_walk.waitForFront(settingDialog);
}

bool ItemWalk::addRules(const OutputItem &plan)
{
    if (plan.rules.isEmpty() && plan.afterRules.isEmpty())
        return true;
    return m_cells.doubleClick(OutputModeModel::RulesRow, onGui([this] { return column(); }))
        && m_walk.waitForFront("RuleDialog")
        && composeRules(m_walk, plan.rules, QStringLiteral("addBeforeButton"),
                        QStringLiteral("beforeListWidget"))
        && composeRules(m_walk, plan.afterRules, QStringLiteral("addAfterButton"),
                        QStringLiteral("afterListWidget"))
        && m_walk.takeScreenshotOnce(QStringLiteral("rules"))
        && m_walk.click(QStringLiteral("okButton")) && m_walk.waitForFront(settingDialog);
}

bool ItemWalk::setFlags(const OutputItem &plan)
{
    const int column = onGui([this] { return this->column(); });
    if (plan.isDistinct()
        && !(m_cells.click(OutputModeModel::DistinctRow, column)
             && m_walk.waitFor(QStringLiteral("the item to be distinct"),
                               [this] { return item().isDistinct(); })))
        return false;
    if (!plan.merges())
        return true;
    return m_cells.doubleClick(OutputModeModel::MergeRow, column)
        && m_walk.waitForFront("MergeDialog")
        && fillForm(m_walk, mergeSteps(plan.merge, plan.mergeSeparator))
        && m_walk.takeScreenshotOnce(QStringLiteral("merge"))
        && m_walk.click(QStringLiteral("okButton")) && m_walk.waitForFront(settingDialog);
}
