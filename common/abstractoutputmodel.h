// The common base of the models that show what is to be output: a table whose columns are the
// things to be filled (output items, statement fields) and whose rows are their properties. Cells
// that accept drops take dragged items; the item editor changes what they have taken.
#pragma once

#include "common/dragpayload.h"

#include <QAbstractTableModel>

class AbstractOutputModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    QStringList mimeTypes() const override;
    Qt::DropActions supportedDropActions() const override;
    /// Only onto a cell whose flags accept drops, and only what decodes as items.
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

    /// The text between the mapped values of the cell. Their texts are the cell's edit role.
    virtual QString separator(const QModelIndex &index) const = 0;
    /// Keeps the mapped values that stood at these positions, in this order, and sets the
    /// separator. Returns false and changes nothing for a cell without mapped values.
    virtual bool setMappings(const QModelIndex &index, const QList<int> &positions,
                             const QString &separator) = 0;

signals:
    /// The model has changed the data of this cell.
    void itemChanged(const QModelIndex &index);
    /// The cell has taken so many dropped items behind those that it had.
    void itemsDropped(const QModelIndex &index, int count);

protected:
    /// Adds dropped items to a cell that accepts drops; returns whether it has.
    virtual bool addDroppedItems(const QModelIndex &index, const QList<DragItem> &items) = 0;
};
