// The input side of a convert setting while it is edited: the combined item list that output items
// refer to by position, example values below it, and the input forms that they were made from. Its
// items are dragged onto the output side.
#pragma once

#include "editor/samplefile.h"
#include "engine/table.h"
#include "settings/inputsetting.h"

#include <QAbstractTableModel>

class InputModeModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Row { ItemRow, FirstExampleRow, SecondExampleRow };

    /// The columns by which a further form is joined; -1 where none is chosen.
    struct KeyPair {
        int targetKey = -1; ///< an item that is there
        int key = -1;       ///< a heading of the further form
    };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;

    QStringList mimeTypes() const override;
    /// Whatever row the drag starts on, it carries the item of the column.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override;
    Qt::DropActions supportedDropActions() const override;

    /// No items yet: the next form is the first one.
    bool isEmpty() const { return m_table.columnCount() == 0; }
    QStringList items() const { return m_table.rowTexts(ItemRow); }
    const QList<InputForm> &forms() const { return m_forms; }
    /// The item with which a form begins; invalid when there is no such form or item.
    QModelIndex firstItemOfForm(int form) const;

    /// Drops all items and all forms.
    void clear();
    void load(const QString &settingName);
    /// The items, the examples and the forms as a setting keeps them.
    InputSetting setting() const;
    void save(const QString &settingName) const;

    /// Begins anew with the items, the examples and the form of this sample.
    void addFirstForm(const SampleFile &sample);
    /// The first item, and for it the first heading, with equal texts; without such a pair none.
    KeyPair findKeyPair(const QStringList &heads) const;
    /// Adds a further form and joins its sample. Returns false and changes nothing when a key is
    /// not chosen or does not fit.
    bool joinForm(const SampleFile &sample, KeyPair keys);

private:
    Table m_table;
    QList<InputForm> m_forms;
};
