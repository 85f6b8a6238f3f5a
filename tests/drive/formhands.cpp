#include "tests/drive/formhands.h"

#include "tests/drive/itemviewhands.h"
#include "tests/drive/userhands.h"
#include "tests/drive/walk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBox>

namespace {

/// The row that a field shows. For the window's thread, as the next two.
int shownRow(const QWidget *field)
{
    if (const auto *combo = qobject_cast<const QComboBox *>(field))
        return combo->currentIndex();
    if (const auto *pages = qobject_cast<const QToolBox *>(field))
        return pages->currentIndex();
    if (const auto *tabs = qobject_cast<const QTabWidget *>(field))
        return tabs->currentIndex();
    if (const auto *list = qobject_cast<const QListWidget *>(field))
        return list->selectedItems().isEmpty() ? -1 : list->row(list->selectedItems().first());
    return -1;
}

QString shownText(const QWidget *field)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(field))
        return edit->text();
    if (const auto *edit = qobject_cast<const QPlainTextEdit *>(field))
        return edit->toPlainText();
    if (const auto *box = qobject_cast<const QSpinBox *>(field))
        return box->text();
    return QString();
}

bool shows(const QWidget *field, const FormStep &step)
{
    if (field == nullptr)
        return false;
    switch (step.kind) {
    case FormStep::Choose:
        return shownRow(field) == step.row;
    case FormStep::Write:
        return shownText(field) == step.text;
    default:
        return field->property("checked").toBool() == (step.row != 0);
    }
}

/// From the open list, by keys.
bool chooseInCombo(Walk &walk, const FormStep &step)
{
    const auto popupOpen = [] { return QApplication::activePopupWidget() != nullptr; };
    QStringList keys{QStringLiteral("Home")};
    for (int row = 0; row < step.row; ++row)
        keys.append(QStringLiteral("Down"));
    keys.append(QStringLiteral("Return"));
    return walk.click(step.widget)
        && walk.waitFor(QStringLiteral("the list of %1 to open").arg(step.widget), popupOpen)
        && UserHands::press(keys)
        && walk.waitFor(QStringLiteral("the list of %1 to close").arg(step.widget),
                        [&] { return !popupOpen(); });
}

bool choose(Walk &walk, const FormStep &step)
{
    if (onGui([&] { return walk.find<QComboBox>(step.widget) != nullptr; }))
        return chooseInCombo(walk, step);
    if (onGui([&] { return walk.find<QListWidget>(step.widget) != nullptr; }))
        return ItemViewHands(walk, step.widget).click(step.row, 0);
    const QPoint heading = onGui([&] {
        if (const auto *tabs = walk.find<QTabWidget>(step.widget)) {
            const QTabBar *bar = tabs->tabBar();
            return bar->mapToGlobal(bar->tabRect(step.row).center()) * bar->devicePixelRatioF();
        }
        // The headings of a tool box are the buttons right in it.
        const auto *pages = walk.find<QToolBox>(step.widget);
        return Walk::screenCenter(
            pages->findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly)
                .at(step.row));
    });
    return UserHands::clickAt(heading);
}

bool write(Walk &walk, const FormStep &step)
{
    const bool hasMask = onGui([&] {
        const auto *edit = walk.find<QLineEdit>(step.widget);
        return edit != nullptr && !edit->inputMask().isEmpty();
    });
    const auto hasFocus = [&] { return walk.find<QWidget>(step.widget)->hasFocus(); };
    if (!walk.click(step.widget)
        || !walk.waitFor(QStringLiteral("%1 to take the keys").arg(step.widget), hasFocus))
        return false;
    if (hasMask) {
        // The field puts the hyphens itself.
        return UserHands::press({QStringLiteral("Home")})
            && UserHands::type(QString(step.text).remove(QLatin1Char('-')));
    }
    if (!UserHands::press({QStringLiteral("ctrl+a")}))
        return false;
    return step.text.isEmpty() ? UserHands::press({QStringLiteral("Delete")})
                               : UserHands::type(step.text);
}

bool carryOut(Walk &walk, const FormStep &step)
{
    switch (step.kind) {
    case FormStep::Choose:
        return choose(walk, step);
    case FormStep::Write:
        return write(walk, step);
    default:
        return walk.click(step.widget);
    }
}

} // namespace

bool fillForm(Walk &walk, const FormSteps &steps)
{
    for (const FormStep &step : steps) {
        const auto done = [&] { return shows(walk.find<QWidget>(step.widget), step); };
        const bool isList = onGui([&] { return walk.find<QListWidget>(step.widget) != nullptr; });
        if (!isList && onGui(done))
            continue;
        const QString wanted = step.kind == FormStep::Write ? step.text : QString::number(step.row);
        if (!carryOut(walk, step)
            || !walk.waitFor(QStringLiteral("%1 to show %2").arg(step.widget, wanted), done))
            return false;
    }
    return true;
}
