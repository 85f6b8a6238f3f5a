// The output side of a convert setting while it is edited: each column is one output item, each row
// one of its properties. The editors of a property take the item out, change it and put it back.
#pragma once

#include "common/abstractoutputmodel.h"
#include "settings/outputitem.h"

class OutputModeModel : public AbstractOutputModel
{
    Q_OBJECT

public:
    enum Row { NameRow, OutputRow, ConditionsRow, RulesRow, DistinctRow, MergeRow, RowCount };
    enum Role { AfterRulesRole = Qt::UserRole };

    using AbstractOutputModel::AbstractOutputModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Takes the name, and the rules in the roles that data() gives them. The check state is
    /// refused: a click on it is a toggleDistinct().
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    QString separator(const QModelIndex &index) const override;
    bool setMappings(const QModelIndex &index, const QList<int> &positions,
                     const QString &separator) override;

    const QList<OutputItem> &items() const { return m_items; }
    /// An empty item for a column that is not there.
    OutputItem item(int column) const { return m_items.value(column); }
    /// Every change of an item goes through here; the cells that show it are reported. Like the
    /// other operations on a column it returns false when there is no such column.
    bool setItem(int column, const OutputItem &item);

    /// Add a new, empty item and return its name cell.
    QModelIndex appendItem();
    /// Before the item of this column; at the end when there is none.
    QModelIndex insertItem(int column);
    bool removeItem(int column);
    bool moveItemLeft(int column);
    bool moveItemRight(int column);
    bool toggleDistinct(int column);
    /// Removes a tested value together with its condition.
    bool removeCondition(int column, int position);
    void clear();

    /// The columns that count for the removal of duplicates.
    QList<int> distinctColumns() const;
    /// The columns whose values are merged, as texts or as numbers.
    QList<int> mergeColumns() const;

    void load(const QString &settingName);
    void save(const QString &settingName) const;

protected:
    bool addDroppedItems(const QModelIndex &index, const QList<DragItem> &items) override;

private:
    bool hasColumn(int column) const { return column >= 0 && column < m_items.size(); }
    bool moveItem(int from, int to);

    QList<OutputItem> m_items;
};
