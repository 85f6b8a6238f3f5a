#include "editor/outputmodemodel.h"

namespace {

// What each row is called, and the tip of its cells, where %1 is the name of the item.
struct RowText {
    const char *title;
    const char *tip;
};

const RowText rowTexts[OutputModeModel::RowCount] = {
    {QT_TRANSLATE_NOOP("OutputModeModel", "Name"),
     QT_TRANSLATE_NOOP("OutputModeModel", "Double click to edit '%1'")},
    {QT_TRANSLATE_NOOP("OutputModeModel", "Output"),
     QT_TRANSLATE_NOOP("OutputModeModel", "Double click to edit output items for '%1'")},
    {QT_TRANSLATE_NOOP("OutputModeModel", "Conditions"),
     QT_TRANSLATE_NOOP("OutputModeModel", "Double click to edit conditions for '%1'")},
    {QT_TRANSLATE_NOOP("OutputModeModel", "Rules"),
     QT_TRANSLATE_NOOP("OutputModeModel", "Double click to edit rules for '%1'")},
    {QT_TRANSLATE_NOOP("OutputModeModel", "Distinct"),
     QT_TRANSLATE_NOOP("OutputModeModel", "Check to delete duplication for '%1'")},
    {QT_TRANSLATE_NOOP("OutputModeModel", "Merge"),
     QT_TRANSLATE_NOOP("OutputModeModel", "Double click to edit merge option for '%1'")},
};

} // namespace

// The rules in the order of their use; a line parts those before from those after the merging.
static QString rulesText(const OutputItem &item)
{
    QStringList lists;
    for (const QStringList &rules : {item.rules, item.afterRules}) {
        if (!rules.isEmpty())
            lists.append(rules.join(QStringLiteral("+\n")));
    }
    return lists.join(QStringLiteral("\n----\n"));
}

static QVariant displayData(const OutputItem &item, int row)
{
    switch (row) {
    case OutputModeModel::NameRow:
        return item.name;
    case OutputModeModel::OutputRow:
        return item.mappings.join(QStringLiteral("+\n"));
    case OutputModeModel::ConditionsRow:
        return item.conditions.join(QLatin1Char(' ') + item.condCombination + QLatin1Char('\n'));
    case OutputModeModel::RulesRow:
        return rulesText(item);
    case OutputModeModel::MergeRow:
        return item.merge == QLatin1String("NO") ? QString() : item.merge;
    default:
        return QVariant();
    }
}

static QVariant editData(const OutputItem &item, int row)
{
    switch (row) {
    case OutputModeModel::NameRow:
        return item.name;
    case OutputModeModel::OutputRow:
        return item.mappings;
    case OutputModeModel::ConditionsRow:
        return item.conditions;
    case OutputModeModel::RulesRow:
        return item.rules;
    default:
        return QVariant();
    }
}

// Lists of different lengths, as a damaged setting may have them, are left alone until the user
// changes something; then they follow the list that the user sees.
static void arrangeMappings(OutputItem &item, const QList<int> &positions)
{
    const OutputItem before = item;
    QList<int> positionsBefore;
    for (int position = 0; position < before.mappings.size(); ++position)
        positionsBefore.append(position);
    if (positions == positionsBefore)
        return;
    while (!item.mapSources.isEmpty() || !item.mapNums.isEmpty() || !item.mappings.isEmpty())
        item.removeMapping(0);
    for (const int position : positions) {
        if (positionsBefore.contains(position))
            item.appendMapping(before.mapSources.value(position), before.mapNums.value(position),
                               before.mappings.at(position));
    }
}

// Apart from the tips, which hold the name in every row.
static bool showsTheSame(const OutputItem &item, const OutputItem &other, int row)
{
    switch (row) {
    case OutputModeModel::RulesRow:
        return item.rules == other.rules && item.afterRules == other.afterRules;
    case OutputModeModel::DistinctRow:
        return item.isDistinct() == other.isDistinct();
    default:
        return displayData(item, row) == displayData(other, row)
            && editData(item, row) == editData(other, row);
    }
}

int OutputModeModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(RowCount);
}

int OutputModeModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_items.size();
}

QVariant OutputModeModel::data(const QModelIndex &index, int role) const
{
    const int row = index.row();
    if (!hasIndex(row, index.column()))
        return QVariant();
    const OutputItem &item = m_items.at(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return displayData(item, row);
    case Qt::EditRole:
        return editData(item, row);
    case Qt::ToolTipRole:
    case Qt::StatusTipRole:
        return tr(rowTexts[row].tip).arg(item.name);
    case Qt::AccessibleTextRole:
        // A text that is shown is read out by itself.
        if (displayData(item, row).toString().isEmpty())
            return tr(rowTexts[row].tip).arg(item.name);
        return QVariant();
    case Qt::CheckStateRole:
        if (row == DistinctRow)
            return item.isDistinct() ? Qt::Checked : Qt::Unchecked;
        return QVariant();
    case AfterRulesRole:
        return row == RulesRow ? item.afterRules : QVariant();
    default:
        return QVariant();
    }
}

QVariant OutputModeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal || role != Qt::DisplayRole)
        return AbstractOutputModel::headerData(section, orientation, role);
    return section >= 0 && section < RowCount ? tr(rowTexts[section].title) : QVariant();
}

Qt::ItemFlags OutputModeModel::flags(const QModelIndex &index) const
{
    if (!hasIndex(index.row(), index.column()))
        return Qt::NoItemFlags;
    switch (index.row()) {
    case NameRow:
        return AbstractOutputModel::flags(index) | Qt::ItemIsEditable;
    case OutputRow:
    case ConditionsRow:
        return Qt::ItemIsEnabled | Qt::ItemIsDropEnabled;
    case DistinctRow:
        return Qt::ItemIsEnabled | Qt::ItemIsUserCheckable;
    default:
        return Qt::ItemIsEnabled;
    }
}

bool OutputModeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    OutputItem changed = item(index.column());
    if (index.row() == NameRow && (role == Qt::EditRole || role == Qt::DisplayRole))
        changed.name = value.toString();
    else if (index.row() == RulesRow && role == Qt::EditRole)
        changed.rules = value.toStringList();
    else if (index.row() == RulesRow && role == AfterRulesRole)
        changed.afterRules = value.toStringList();
    else
        return false;
    return setItem(index.column(), changed);
}

QString OutputModeModel::separator(const QModelIndex &index) const
{
    return index.row() == OutputRow ? item(index.column()).separator : QString();
}

bool OutputModeModel::setMappings(const QModelIndex &index, const QList<int> &positions,
                                  const QString &separator)
{
    if (index.row() != OutputRow)
        return false;
    OutputItem changed = item(index.column());
    arrangeMappings(changed, positions);
    changed.separator = separator;
    return setItem(index.column(), changed);
}

bool OutputModeModel::setItem(int column, const OutputItem &item)
{
    if (!hasColumn(column))
        return false;
    const OutputItem before = m_items.at(column);
    m_items[column] = item;
    const bool tipsChanged = item.name != before.name;
    if (tipsChanged)
        emit dataChanged(index(0, column), index(RowCount - 1, column));
    for (int row = 0; row < RowCount; ++row) {
        if (showsTheSame(item, before, row))
            continue;
        const QModelIndex cell = index(row, column);
        if (!tipsChanged)
            emit dataChanged(cell, cell);
        emit itemChanged(cell);
    }
    return true;
}

QModelIndex OutputModeModel::appendItem()
{
    return insertItem(m_items.size());
}

QModelIndex OutputModeModel::insertItem(int column)
{
    const int inserted = hasColumn(column) ? column : m_items.size();
    beginInsertColumns(QModelIndex(), inserted, inserted);
    m_items.insert(inserted, OutputItem());
    endInsertColumns();
    return index(NameRow, inserted);
}

bool OutputModeModel::removeItem(int column)
{
    if (!hasColumn(column))
        return false;
    beginRemoveColumns(QModelIndex(), column, column);
    m_items.removeAt(column);
    endRemoveColumns();
    return true;
}

bool OutputModeModel::moveItemLeft(int column)
{
    return moveItem(column, column - 1);
}

bool OutputModeModel::moveItemRight(int column)
{
    return moveItem(column, column + 1);
}

bool OutputModeModel::moveItem(int from, int to)
{
    if (!hasColumn(from) || !hasColumn(to))
        return false;
    // The notification names the column before which the item comes to stand.
    beginMoveColumns(QModelIndex(), from, from, QModelIndex(), to > from ? to + 1 : to);
    m_items.move(from, to);
    endMoveColumns();
    return true;
}

bool OutputModeModel::toggleDistinct(int column)
{
    OutputItem changed = item(column);
    changed.distinct = changed.isDistinct() ? QStringLiteral("NO") : QStringLiteral("YES");
    return setItem(column, changed);
}

bool OutputModeModel::removeCondition(int column, int position)
{
    OutputItem changed = item(column);
    changed.removeCondition(position);
    return setItem(column, changed);
}

void OutputModeModel::clear()
{
    beginResetModel();
    m_items.clear();
    endResetModel();
}

QList<int> OutputModeModel::distinctColumns() const
{
    QList<int> columns;
    for (int column = 0; column < m_items.size(); ++column) {
        if (m_items.at(column).isDistinct())
            columns.append(column);
    }
    return columns;
}

QList<int> OutputModeModel::mergeColumns() const
{
    QList<int> columns;
    for (int column = 0; column < m_items.size(); ++column) {
        if (m_items.at(column).merges())
            columns.append(column);
    }
    return columns;
}

void OutputModeModel::load(const QString &settingName)
{
    beginResetModel();
    m_items = loadOutputItems(settingName);
    endResetModel();
}

void OutputModeModel::save(const QString &settingName) const
{
    saveOutputItems(settingName, m_items);
}

bool OutputModeModel::addDroppedItems(const QModelIndex &index, const QList<DragItem> &items)
{
    OutputItem changed = item(index.column());
    for (const DragItem &dropped : items) {
        const QString text = dropped.source == CompanySource
            ? QLatin1Char('[') + dropped.text + QLatin1Char(']')
            : dropped.text;
        if (index.row() == OutputRow)
            changed.appendMapping(dropped.source, dropped.number, text);
        else
            changed.appendCondition(dropped.source, dropped.number, text);
    }
    return setItem(index.column(), changed);
}
