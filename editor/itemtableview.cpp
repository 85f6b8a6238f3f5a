#include "editor/itemtableview.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

void ItemTableView::fitToContents(const QModelIndex &index)
{
    resizeColumnToContents(index.column());
    fitRow(index.row());
}

void ItemTableView::fitAllToContents()
{
    resizeColumnsToContents();
    for (int row = 0; model() != nullptr && row < model()->rowCount(); ++row)
        fitRow(row);
}

void ItemTableView::fitRow(int row)
{
    setRowHeight(row, qMax(fontMetrics().height(), sizeHintForRow(row)));
}

void ItemTableView::keyPressEvent(QKeyEvent *event)
{
    if (state() == EditingState) {
        // What the editor in a cell has not used comes here; Return has ended it.
        QTableView::keyPressEvent(event);
        return;
    }
    const QModelIndex current = currentIndex();
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isAlt = event->modifiers() == Qt::AltModifier;
    const int key = event->key();
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (isPlain && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2)) {
        if (!current.isValid())
            return; // in particular it does not press the dialog's default button
        if (current.flags().testFlag(Qt::ItemIsEditable))
            edit(current);
        else
            emit doubleClicked(current);
    } else if (isPlain && key == Qt::Key_Space && current.isValid()) {
        emit clicked(current);
    } else if (isPlain && key == Qt::Key_Delete) {
        emit removalRequested();
    } else if (isAlt && key == Qt::Key_Left) {
        emit moveLeftRequested();
    } else if (isAlt && key == Qt::Key_Right) {
        emit moveRightRequested();
    } else {
        QTableView::keyPressEvent(event);
    }
}

bool ItemTableView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QString tip = indexAt(help->pos()).data(Qt::ToolTipRole).toString();
        if (Qt::mightBeRichText(tip)) {
            QToolTip::showText(help->globalPos(), tip.toHtmlEscaped(), viewport());
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

void ItemTableView::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_isEndingDoubleClick = true;
    QTableView::mouseDoubleClickEvent(event);
}

void ItemTableView::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    m_isEndingDoubleClick = false;
}

void ItemTableView::copy()
{
    // Of a column, whatever cells of it are selected, there is one item.
    QModelIndexList indexes;
    const QModelIndexList selected = selectedIndexes();
    for (const QModelIndex &index : selected) {
        const auto isSameColumn = [&index](const QModelIndex &other) {
            return other.column() == index.column();
        };
        if (std::none_of(indexes.begin(), indexes.end(), isSameColumn))
            indexes.append(index);
    }
    if (indexes.isEmpty() && currentIndex().isValid())
        indexes.append(currentIndex());
    // A model whose items cannot be dragged would give something that nobody here takes.
    if (!dragEnabled() || indexes.isEmpty())
        return;
    if (QMimeData *data = model()->mimeData(indexes))
        QGuiApplication::clipboard()->setMimeData(data);
}

void ItemTableView::paste()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const QModelIndex current = currentIndex();
    if (data != nullptr && model()->canDropMimeData(data, Qt::CopyAction, -1, -1, current))
        model()->dropMimeData(data, Qt::CopyAction, -1, -1, current);
}
