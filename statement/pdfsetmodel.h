// The statement fields of a convert setting while they are edited: each column is one field, each
// row one of its properties.
#pragma once

#include "common/abstractoutputmodel.h"
#include "statement/statementsetting.h"

class PdfSetModel : public AbstractOutputModel
{
    Q_OBJECT

public:
    enum Row { PrintRow, OutputRow, RuleRow, RowCount };

    using AbstractOutputModel::AbstractOutputModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Takes the rules of a field that can have some. The check state is refused: a click on it is
    /// a togglePrint().
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// Only items of the input: a statement field reads no company field.
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;

    QString separator(const QModelIndex &index) const override;
    bool setMappings(const QModelIndex &index, const QList<int> &positions,
                     const QString &separator) override;

    /// Prints a field that is not printed, and the reverse. False when there is no such field.
    bool togglePrint(int field);

    const StatementFieldList &fields() const { return m_fields; }
    /// Begins anew with these fields.
    void setFields(const StatementFieldList &fields);

protected:
    bool addDroppedItems(const QModelIndex &index, const QList<DragItem> &items) override;

private:
    const StatementField &field(const QModelIndex &index) const
    {
        return m_fields[size_t(index.column())];
    }
    QVariant displayData(const QModelIndex &index) const;
    QVariant editData(const QModelIndex &index) const;
    QString tip(const QModelIndex &index) const;
    /// Every change of a field goes through here; the cell is reported when it shows the change.
    void setField(const QModelIndex &cell, const StatementField &field);

    StatementFieldList m_fields;
};
