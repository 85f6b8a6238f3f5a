#include "statement/pdfsetmodel.h"

#include "settings/outputitem.h"

#include <QMimeData>
#include <algorithm>

// Only texts are transformed; amounts and quantities are taken as they come.
static bool canHaveRules(int field)
{
    return field < StatementFields::Quantity;
}

// What a statement works out by itself when the input has no column for it.
static bool isComputed(int field)
{
    switch (field) {
    case StatementFields::Subtotal:
    case StatementFields::Sum:
    case StatementFields::TotalSum:
    case StatementFields::Payment:
        return true;
    default:
        return false;
    }
}

// The colour type belongs to a library that only programs with windows load, and only they show
// cells; the others get no colour.
static QVariant colour(const char *name)
{
    if (QMetaType::sizeOf(QMetaType::QColor) == 0)
        return QVariant();
    QVariant colour = QString::fromLatin1(name);
    colour.convert(QMetaType::QColor);
    return colour;
}

// Lists of different lengths, as a damaged setting may have them, are left alone until the user
// changes something; then they follow the list that the user sees. What has lost its number is
// filled from no column.
static void pairMappings(StatementField &field)
{
    while (field.mapNums.size() < field.mappings.size())
        field.mapNums.append(-1);
    field.mapNums = field.mapNums.mid(0, field.mappings.size());
}

static void arrangeMappings(StatementField &field, const QList<int> &positions)
{
    QList<int> positionsBefore;
    for (int position = 0; position < field.mappings.size(); ++position)
        positionsBefore.append(position);
    if (positions == positionsBefore)
        return;
    pairMappings(field);
    const StatementField before = field;
    field.mapNums.clear();
    field.mappings.clear();
    for (const int position : positions) {
        if (!positionsBefore.contains(position))
            continue;
        field.mapNums.append(before.mapNums.at(position));
        field.mappings.append(before.mappings.at(position));
    }
}

int PdfSetModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(RowCount);
}

int PdfSetModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(StatementFields::Count);
}

QVariant PdfSetModel::displayData(const QModelIndex &index) const
{
    const StatementField &shown = field(index);
    switch (index.row()) {
    case OutputRow:
        if (shown.mappings.isEmpty() && isComputed(index.column()))
            return tr("[Auto]");
        return shown.mappings.join(QStringLiteral("+\n"));
    case RuleRow:
        return shown.rules.join(QStringLiteral("+\n"));
    default:
        return QVariant();
    }
}

QVariant PdfSetModel::editData(const QModelIndex &index) const
{
    switch (index.row()) {
    case OutputRow:
        return field(index).mappings;
    case RuleRow:
        return field(index).rules;
    default:
        return QVariant();
    }
}

QString PdfSetModel::tip(const QModelIndex &index) const
{
    const QString name = StatementFields::displayName(index.column());
    switch (index.row()) {
    case PrintRow:
        return tr("Check to print '%1'").arg(name);
    case OutputRow:
        return tr("Double click to edit output items for '%1'").arg(name);
    default:
        return canHaveRules(index.column()) ? tr("Double click to edit rules for '%1'").arg(name)
                                            : tr("Cannot assign rules for '%1'").arg(name);
    }
}

QVariant PdfSetModel::data(const QModelIndex &index, int role) const
{
    const int row = index.row();
    if (!hasIndex(row, index.column()))
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return displayData(index);
    case Qt::EditRole:
        return editData(index);
    case Qt::ToolTipRole:
    case Qt::StatusTipRole:
        return tip(index);
    case Qt::AccessibleTextRole:
        // A text that is shown is read out by itself.
        return displayData(index).toString().isEmpty() ? tip(index) : QVariant();
    case Qt::CheckStateRole:
        if (row == PrintRow)
            return field(index).toPrint ? Qt::Checked : Qt::Unchecked;
        return QVariant();
    case Qt::BackgroundRole:
        if (row == RuleRow)
            return canHaveRules(index.column()) ? colour("#ffffff") : colour("#d3d3d3");
        return QVariant();
    case Qt::ForegroundRole:
        // On a dark desktop the usual text would be as light as these cells.
        return row == RuleRow ? colour("#000000") : QVariant();
    default:
        return QVariant();
    }
}

QVariant PdfSetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Horizontal)
        return StatementFields::displayName(section);
    switch (section) {
    case PrintRow:
        return tr("Print");
    case OutputRow:
        return tr("Output");
    case RuleRow:
        return tr("Rule");
    default:
        return QVariant();
    }
}

Qt::ItemFlags PdfSetModel::flags(const QModelIndex &index) const
{
    if (!hasIndex(index.row(), index.column()))
        return Qt::NoItemFlags;
    switch (index.row()) {
    case PrintRow:
        return Qt::ItemIsEnabled | Qt::ItemIsUserCheckable;
    case OutputRow:
        return Qt::ItemIsEnabled | Qt::ItemIsDropEnabled;
    default:
        return canHaveRules(index.column()) ? Qt::ItemIsEnabled : Qt::NoItemFlags;
    }
}

bool PdfSetModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (index.row() != RuleRow || role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEnabled)
        || !value.canConvert<QStringList>())
        return false;
    StatementField changed = field(index);
    changed.rules = value.toStringList();
    setField(index, changed);
    return true;
}

bool PdfSetModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                  const QModelIndex &parent) const
{
    if (!AbstractOutputModel::canDropMimeData(data, action, row, column, parent))
        return false;
    const QList<DragItem> items = decodeDragItems(*data);
    return std::all_of(items.begin(), items.end(),
                       [](const DragItem &item) { return item.source == InputSource; });
}

QString PdfSetModel::separator(const QModelIndex &index) const
{
    return index.row() == OutputRow && hasIndex(OutputRow, index.column()) ? field(index).separator
                                                                           : QString();
}

bool PdfSetModel::setMappings(const QModelIndex &index, const QList<int> &positions,
                              const QString &separator)
{
    if (index.row() != OutputRow || !hasIndex(OutputRow, index.column()))
        return false;
    StatementField changed = field(index);
    arrangeMappings(changed, positions);
    changed.separator = separator;
    setField(index, changed);
    return true;
}

bool PdfSetModel::togglePrint(int field)
{
    const QModelIndex cell = index(PrintRow, field);
    if (!cell.isValid())
        return false;
    StatementField changed = this->field(cell);
    changed.toPrint = !changed.toPrint;
    setField(cell, changed);
    return true;
}

void PdfSetModel::setField(const QModelIndex &cell, const StatementField &field)
{
    StatementField &stored = m_fields[size_t(cell.column())];
    const bool isShown = field.toPrint != stored.toPrint || field.mappings != stored.mappings
        || field.rules != stored.rules;
    stored = field;
    if (!isShown)
        return;
    emit dataChanged(cell, cell);
    emit itemChanged(cell);
}

void PdfSetModel::setFields(const StatementFieldList &fields)
{
    beginResetModel();
    m_fields = fields;
    endResetModel();
}

bool PdfSetModel::addDroppedItems(const QModelIndex &index, const QList<DragItem> &items)
{
    StatementField changed = field(index);
    pairMappings(changed);
    for (const DragItem &item : items) {
        changed.mapNums.append(item.number);
        changed.mappings.append(item.text);
    }
    setField(index, changed);
    return true;
}
