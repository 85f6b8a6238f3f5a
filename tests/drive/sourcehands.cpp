#include "tests/drive/sourcehands.h"

#include "settings/companyinfo.h"
#include "settings/outputitem.h"
#include "tests/drive/userhands.h"
#include "tests/drive/walk.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QSet>

namespace {

QString inputView()
{
    return QStringLiteral("InputModeView");
}

/// The label of a company field, in the order of CompanyInfo::Field.
QString companyLabel(int field)
{
    static const char *const names[CompanyInfo::FieldCount] = {
        "companyName", "storeName", "storeSite", "postCode", "address", "phone", "fax", "email"};
    return QLatin1String(names[field]);
}

QStringList steps(const char *back, const char *forth, int count)
{
    QStringList keys;
    for (int i = 0; i < qAbs(count); ++i)
        keys.append(QLatin1String(count < 0 ? back : forth));
    return keys;
}

QSet<int> kindsBroughtByKeys; // so far, in all views

} // namespace

SourceHands::SourceHands(Walk &walk, const QString &targetView)
    : m_walk(walk), m_targetView(targetView), m_inputItems(walk, inputView()),
      m_targets(walk, targetView)
{
}

bool SourceHands::bring(int sourceKind, int number, int targetRow, int targetColumn)
{
    if (kindsBroughtByKeys.contains(sourceKind))
        return drag(sourceKind, number, targetRow, targetColumn);
    kindsBroughtByKeys.insert(sourceKind);
    return copyByKeys(sourceKind, number) && pasteByKeys(targetRow, targetColumn);
}

bool SourceHands::drag(int sourceKind, int number, int targetRow, int targetColumn)
{
    QPoint from;
    QPoint to;
    if (sourceKind == CompanySource)
        from =
            onGui([&] { return Walk::screenCenter(m_walk.find<QWidget>(companyLabel(number))); });
    else if (!m_inputItems.find(0, number, &from))
        return false;
    return m_targets.find(targetRow, targetColumn, &to) && dragAndDrop(m_walk, from, to);
}

bool SourceHands::copyByKeys(int sourceKind, int number)
{
    onGui([] {
        QGuiApplication::clipboard()->clear();
        return true;
    });
    const bool there = sourceKind == CompanySource
        ? tabTo(companyLabel(number))
        : tabTo(inputView()) && goTo(inputView(), 0, number);
    return there && UserHands::press({QStringLiteral("ctrl+c")})
        && m_walk.waitFor(QStringLiteral("the item to be copied"), [] {
               const QMimeData *data = QGuiApplication::clipboard()->mimeData();
               return data != nullptr && !data->formats().isEmpty();
           });
}

bool SourceHands::pasteByKeys(int targetRow, int targetColumn)
{
    return tabTo(m_targetView) && goTo(m_targetView, targetRow, targetColumn)
        && UserHands::press({QStringLiteral("ctrl+v")});
}

bool SourceHands::tabTo(const QString &objectName)
{
    const auto focus = [] {
        const QWidget *widget = QApplication::focusWidget();
        return widget != nullptr ? widget->objectName() : QString();
    };
    const int enough = 100;
    for (int i = 0; i < enough; ++i) {
        const QString before = onGui(focus);
        if (before == objectName)
            return true;
        if (!UserHands::press({QStringLiteral("Tab")})
            || !m_walk.waitFor(QStringLiteral("the focus to leave %1").arg(before),
                               [&] { return focus() != before; }))
            return false;
    }
    return m_walk.fail(QStringLiteral("The tab key does not reach %1.").arg(objectName));
}

bool SourceHands::goTo(const QString &viewName, int row, int column)
{
    const auto current = [&] {
        const QModelIndex index = m_walk.find<QAbstractItemView>(viewName)->currentIndex();
        return QPoint(index.column(), index.row());
    };
    const QPoint wanted(column, row);
    // Without a current cell the first key makes the first one current.
    if (onGui(current).x() < 0 && !UserHands::press({QStringLiteral("Right")}))
        return false;
    if (!m_walk.waitFor(QStringLiteral("a current cell"), [&] { return current().x() >= 0; }))
        return false;
    const QPoint left = wanted - onGui(current);
    const QStringList keys = steps("Left", "Right", left.x()) + steps("Up", "Down", left.y());
    return (keys.isEmpty() || UserHands::press(keys))
        && m_walk.waitFor(QStringLiteral("the current cell to be %1, %2").arg(row).arg(column),
                          [&] { return current() == wanted; });
}
