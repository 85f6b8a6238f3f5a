#include "common/abstractoutputmodel.h"

#include <QMimeData>

QStringList AbstractOutputModel::mimeTypes() const
{
    return {dragItemsMimeType()};
}

// A copy: what is dragged stays where it is.
Qt::DropActions AbstractOutputModel::supportedDropActions() const
{
    return Qt::CopyAction;
}

// A view reports a drop onto a cell with that cell as parent, without row and column. A row and a
// column without a parent mean the gap before that cell: the pointer was on a neighbour that
// accepts no drops, so nothing must land in the cell.
bool AbstractOutputModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                          int column, const QModelIndex &parent) const
{
    return data && action == Qt::CopyAction && row < 0 && column < 0
        && flags(parent).testFlag(Qt::ItemIsDropEnabled) && !decodeDragItems(*data).isEmpty();
}

bool AbstractOutputModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                       int column, const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const QList<DragItem> items = decodeDragItems(*data);
    if (!addDroppedItems(parent, items))
        return false;
    emit itemsDropped(parent, items.size());
    return true;
}
