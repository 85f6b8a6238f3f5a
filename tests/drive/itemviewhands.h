// The mouse on the cells of a table or the rows of a list, which are scrolled into view when they
// cannot be seen.
#pragma once

#include <QPoint>
#include <QString>

class QAbstractItemView;
class Walk;

class ItemViewHands
{
public:
    /// The view of this name in the front window.
    ItemViewHands(Walk &walk, const QString &viewName);

    bool click(int row, int column);
    bool doubleClick(int row, int column);
    /// The pixel of the real screen in the middle of what is seen of a cell.
    bool find(int row, int column, QPoint *position);

private:
    /// How far the cell's middle is from the middle of the view; nothing when enough of it is seen.
    QPoint distance(int row, int column) const;
    bool scrollTowards(int row, int column, Qt::Orientation direction);

    Walk &m_walk;
    QAbstractItemView *m_view;
};

/// Drags what lies at one pixel of the screen onto another one.
bool dragAndDrop(Walk &walk, const QPoint &from, const QPoint &to);
