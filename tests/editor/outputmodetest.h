// What the tests of the table of output items have in common: a watched model that is filled with a
// column for each name, and an output item in which every field is set.
#pragma once

#include "common/dragpayload.h"
#include "editor/outputmodemodel.h"
#include "tests/editor/watchedmodel.h"

#include <QMetaType>
#include <QMimeData>
#include <memory>

using Columns = QList<int>;
using DragItems = QList<DragItem>;
Q_DECLARE_METATYPE(OutputItem)

// A model with a column for each name.
class Output : public WatchedModel<OutputModeModel>
{
public:
    explicit Output(const QStringList &names = QStringList())
    {
        connect(this, &AbstractOutputModel::itemChanged, this, [this](const QModelIndex &cell) {
            addToLog(QStringLiteral("item (%1,%2)").arg(cell.row()).arg(cell.column()));
        });
        for (const QString &name : names)
            setData(appendItem(), name);
        takeLog();
    }

    QStringList names() const
    {
        QStringList names;
        for (int column = 0; column < columnCount(); ++column)
            names.append(item(column).name);
        return names;
    }
    bool drop(int row, int column, const DragItems &items)
    {
        const std::unique_ptr<QMimeData> data(encodeDragItems(items));
        return dropMimeData(data.get(), Qt::CopyAction, -1, -1, index(row, column));
    }
    QList<OutputItem> items() const
    {
        QList<OutputItem> items;
        for (int column = 0; column < columnCount(); ++column)
            items.append(item(column));
        return items;
    }
};

// Every field differs from every other, so that no two can be taken for one another.
inline OutputItem fullItem(int seed = 0)
{
    const auto text = [seed](const char *field) {
        return QStringLiteral("%1 %2").arg(QLatin1String(field)).arg(seed);
    };
    OutputItem item;
    item.name = text("name");
    item.mapSources = {1, 0, 1};
    item.mapNums = {seed + 10, seed + 1, seed + 12};
    item.mappings = QStringList{text("first"), text("[second]"), text("third")};
    item.separator = text("separator");
    item.condSources = {0, 1};
    item.condNums = {seed + 2, seed + 21};
    item.conditions = QStringList{text("[tested]"), text("tested too")};
    item.condRules = QStringList{"equalTo(a)", "contains(b)"};
    item.condCombination = "OR";
    item.rules = QStringList{"left(1)", "trim"};
    item.afterRules = QStringList{"right(2)", "simplified"};
    item.distinct = "YES";
    item.merge = "STRING";
    item.mergeSeparator = text("merge separator");
    return item;
}

inline OutputItem withField(void (*change)(OutputItem &))
{
    OutputItem item = fullItem();
    change(item);
    return item;
}
