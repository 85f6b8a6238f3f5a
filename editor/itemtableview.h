// The tables of the convert setting dialog. Whatever the mouse does in them, the keyboard can do.
#pragma once

#include <QTableView>

class ItemTableView : public QTableView
{
    Q_OBJECT

public:
    using QTableView::QTableView;

    /// The release of the mouse that ends a double click reports a click, too; it is that one.
    bool isEndingDoubleClick() const { return m_isEndingDoubleClick; }

    /// Makes a column as wide, and a row as high, as what they show; a row no lower than one line.
    void fitToContents(const QModelIndex &index);
    void fitAllToContents();

signals:
    /// Delete was pressed on the current cell.
    void removalRequested();
    /// Alt and an arrow: the current column is to go one place to the left or to the right.
    void moveLeftRequested();
    void moveRightRequested();

protected:
    /// Return and F2 are a double click on the current cell, the space bar is a click; Ctrl+C takes
    /// what a drag would take, Ctrl+V drops it on the current cell.
    void keyPressEvent(QKeyEvent *event) override;
    /// A tip is shown as it stands: the name of an item may look like markup.
    bool viewportEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void fitRow(int row);
    void copy();
    void paste();

    bool m_isEndingDoubleClick = false;
};
