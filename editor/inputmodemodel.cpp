#include "editor/inputmodemodel.h"

#include "common/dragpayload.h"
#include "editor/columnlabel.h"
#include "settings/outputitem.h"

#include <QHash>

int InputModeModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_table.rowCount();
}

int InputModeModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_table.columnCount();
}

QVariant InputModeModel::data(const QModelIndex &index, int role) const
{
    if (!hasIndex(index.row(), index.column()))
        return QVariant();
    const QString text = m_table.value(index.row(), index.column());
    if (role == Qt::DisplayRole)
        return text;
    // A cell that shows nothing still says where it stands.
    if (role == Qt::AccessibleTextRole && text.isEmpty())
        return columnLabel(index.column());
    return QVariant();
}

QVariant InputModeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const int sectionCount = orientation == Qt::Horizontal ? columnCount() : rowCount();
    if (role != Qt::DisplayRole || section < 0 || section >= sectionCount)
        return QVariant();
    if (orientation == Qt::Horizontal)
        return columnLabel(section);
    return section == ItemRow ? tr("Item") : tr("Ex %1").arg(section);
}

Qt::ItemFlags InputModeModel::flags(const QModelIndex &index) const
{
    if (!hasIndex(index.row(), index.column()))
        return Qt::NoItemFlags;
    return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
}

bool InputModeModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count <= 0 || count > rowCount() - row)
        return false;
    if (row == ItemRow) {
        // The row that comes up becomes the item row and may have another length.
        beginResetModel();
        m_table.removeRows(row, count);
        endResetModel();
        return true;
    }
    beginRemoveRows(parent, row, row + count - 1);
    m_table.removeRows(row, count);
    endRemoveRows();
    return true;
}

QStringList InputModeModel::mimeTypes() const
{
    return {dragItemsMimeType()};
}

QMimeData *InputModeModel::mimeData(const QModelIndexList &indexes) const
{
    QList<DragItem> dragged;
    for (const QModelIndex &index : indexes)
        dragged.append({InputSource, index.column(), m_table.value(ItemRow, index.column())});
    return dragged.isEmpty() ? nullptr : encodeDragItems(dragged);
}

Qt::DropActions InputModeModel::supportedDragActions() const
{
    return Qt::CopyAction;
}

Qt::DropActions InputModeModel::supportedDropActions() const
{
    return Qt::IgnoreAction;
}

QModelIndex InputModeModel::firstItemOfForm(int form) const
{
    if (form < 0 || form >= m_forms.size())
        return QModelIndex();
    int column = 0;
    for (int i = 0; i < form; ++i) {
        const InputForm &before = m_forms.at(i);
        const bool hasDroppedKey = i > 0 && before.key >= 0 && before.key < before.heads.size();
        column += before.heads.size() - (hasDroppedKey ? 1 : 0);
    }
    return index(ItemRow, column);
}

void InputModeModel::clear()
{
    beginResetModel();
    m_table.clear();
    m_forms.clear();
    endResetModel();
}

void InputModeModel::load(const QString &settingName)
{
    const InputSetting input = loadInputSetting(settingName);
    QList<QStringList> rows{input.heads};
    for (const QStringList &example : {input.ex1, input.ex2}) {
        if (!example.isEmpty())
            rows.append(example);
    }
    beginResetModel();
    m_table.setRows(TextRows(rows));
    m_forms = input.files;
    endResetModel();
}

InputSetting InputModeModel::setting() const
{
    InputSetting input;
    input.heads = m_table.rowTexts(ItemRow);
    input.ex1 = m_table.rowTexts(FirstExampleRow);
    input.ex2 = m_table.rowTexts(SecondExampleRow);
    input.files = m_forms;
    return input;
}

void InputModeModel::save(const QString &settingName) const
{
    saveInputSetting(settingName, setting());
}

void InputModeModel::addFirstForm(const SampleFile &sample)
{
    InputForm form;
    form.name = sample.formName;
    form.heads = sample.heads();
    form.targetKey = -1;
    form.key = -1;
    beginResetModel();
    m_table.setRows(TextRows(sample.records));
    m_forms = {form};
    endResetModel();
}

InputModeModel::KeyPair InputModeModel::findKeyPair(const QStringList &heads) const
{
    QHash<QString, int> firstColumns; // of each text among the headings
    for (int key = heads.size() - 1; key >= 0; --key)
        firstColumns.insert(heads.at(key), key);
    const QStringList items = this->items();
    for (int targetKey = 0; targetKey < items.size(); ++targetKey) {
        const int key = firstColumns.value(items.at(targetKey), -1);
        if (key >= 0)
            return {targetKey, key};
    }
    return {};
}

bool InputModeModel::joinForm(const SampleFile &sample, KeyPair keys)
{
    if (sample.records.isEmpty() || keys.targetKey < 0 || keys.key < 0)
        return false;
    Table joined = m_table;
    if (!joined.join(TextRows(sample.records), keys.targetKey, keys.key))
        return false;
    InputForm form;
    form.name = sample.formName;
    form.heads = sample.heads();
    form.targetKey = keys.targetKey;
    form.key = keys.key;
    // A join can add columns and rows and change rows at once.
    beginResetModel();
    m_table = std::move(joined);
    m_forms.append(form);
    endResetModel();
    return true;
}
