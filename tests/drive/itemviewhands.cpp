#include "tests/drive/itemviewhands.h"

#include "tests/drive/userhands.h"
#include "tests/drive/walk.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCursor>
#include <QScrollBar>

namespace {

/// The part of a view in which a cell can be used: nearer to an edge a drag scrolls the view, when
/// there is more behind that edge.
QRect quietArea(const QAbstractItemView &view)
{
    const QRect all = view.viewport()->rect();
    const int margin = qMin(view.autoScrollMargin() + 2, all.width() / 4);
    const QScrollBar *bar = view.horizontalScrollBar();
    return all.adjusted(bar->value() > bar->minimum() ? margin : 0, 0,
                        bar->value() < bar->maximum() ? -margin : 0, 0);
}

} // namespace

ItemViewHands::ItemViewHands(Walk &walk, const QString &viewName)
    : m_walk(walk), m_view(onGui([&] { return walk.find<QAbstractItemView>(viewName); }))
{
}

QPoint ItemViewHands::distance(int row, int column) const
{
    const QRect cell = m_view->visualRect(m_view->model()->index(row, column));
    const QRect area = quietArea(*m_view);
    const int seenWidth = qMin(cell.right(), area.right()) - qMax(cell.left(), area.left()) + 1;
    const int seenHeight = qMin(cell.bottom(), area.bottom()) - qMax(cell.top(), area.top()) + 1;
    QPoint distance;
    if (seenWidth < qMin(cell.width() / 2, 24))
        distance.setX(cell.center().x() - area.center().x());
    if (seenHeight < qMin(cell.height() / 2, 10))
        distance.setY(cell.center().y() - area.center().y());
    return distance;
}

bool ItemViewHands::scrollTowards(int row, int column, Qt::Orientation direction)
{
    const auto left = [&] {
        const QPoint both = distance(row, column);
        return direction == Qt::Horizontal ? both.x() : both.y();
    };
    const int pixels = onGui(left);
    if (pixels == 0)
        return true;
    const QScrollBar *bar =
        direction == Qt::Horizontal ? m_view->horizontalScrollBar() : m_view->verticalScrollBar();
    int before = 0;
    int notchPixels = 1;
    QPoint position;
    onGui([&] {
        before = bar->value();
        notchPixels = qMin(QApplication::wheelScrollLines() * bar->singleStep(), bar->pageStep());
        position = Walk::screenCenter(m_view->viewport());
        return true;
    });
    const int sign = pixels > 0 ? 1 : -1;
    const int notches = sign * qMax(1, qAbs(pixels) / qMax(1, notchPixels));
    return UserHands::wheelAt(position, notches, direction)
        // A view that has just changed may find that there is nothing to scroll.
        && m_walk.waitFor(QStringLiteral("%1 to scroll").arg(m_view->objectName()),
                          [&] { return bar->value() != before || left() == 0; });
}

bool ItemViewHands::find(int row, int column, QPoint *position)
{
    if (m_view == nullptr)
        return m_walk.fail(QStringLiteral("The view is not to be seen."));
    const int enough = 100;
    const auto inView = [&] { return distance(row, column).isNull(); };
    for (int attempt = 0; attempt < enough && !onGui(inView); ++attempt) {
        if (!scrollTowards(row, column, Qt::Horizontal)
            || !scrollTowards(row, column, Qt::Vertical))
            return false;
    }
    if (!onGui(inView))
        return m_walk.fail(QStringLiteral("Cannot bring cell %1, %2 of %3 into view.")
                               .arg(row)
                               .arg(column)
                               .arg(m_view->objectName()));
    *position = onGui([&] {
        const QRect cell = m_view->visualRect(m_view->model()->index(row, column));
        const QPoint middle = (cell & quietArea(*m_view)).center();
        return m_view->viewport()->mapToGlobal(middle) * m_view->devicePixelRatioF();
    });
    return true;
}

bool ItemViewHands::click(int row, int column)
{
    QPoint position;
    return find(row, column, &position) && UserHands::clickAt(position);
}

bool ItemViewHands::doubleClick(int row, int column)
{
    QPoint position;
    return find(row, column, &position) && UserHands::doubleClickAt(position);
}

bool dragAndDrop(Walk &walk, const QPoint &from, const QPoint &to)
{
    // During a drag the pointer tells whether what is under it would take the item.
    const auto dragging = [] { return QGuiApplication::overrideCursor() != nullptr; };
    const auto accepted = [] {
        const QCursor *cursor = QGuiApplication::overrideCursor();
        return cursor != nullptr && cursor->shape() == Qt::DragCopyCursor;
    };
    if (!UserHands::holdAt(from))
        return walk.fail(QStringLiteral("Cannot press the mouse button."));
    // Only movements turn the press into a drag, and the window may see several of them as one.
    const int enough = 100;
    QPoint start = from;
    for (int i = 0; i < enough && !onGui(dragging); ++i) {
        start = from + QPoint(0, 6 * (i % 3 + 1));
        UserHands::moveTo(start);
    }
    bool fits = walk.waitFor(QStringLiteral("the drag to begin"), dragging);
    const int stretches = 3;
    for (int i = 1; fits && i <= stretches; ++i)
        UserHands::moveTo(start + (to - start) * i / stretches);
    fits = fits && walk.waitFor(QStringLiteral("the drag to be welcome"), accepted);
    return UserHands::release() && fits
        && walk.waitFor(QStringLiteral("the drag to end"), [&] { return !dragging(); });
}
