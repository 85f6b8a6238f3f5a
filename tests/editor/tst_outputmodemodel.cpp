// The output items as a table: what each cell shows and allows, what each operation changes and
// announces, and what comes back from the settings file.
#include "editor/outputmodemodel.h"
#include "tests/editor/watchedmodel.h"
#include "tests/settings/workingfolder.h"

#include <QDataStream>
#include <QMimeData>
#include <QStringListModel>
#include <QtTest>
#include <memory>

using Columns = QList<int>;
using DragItems = QList<DragItem>;
Q_DECLARE_METATYPE(DragItem)
Q_DECLARE_METATYPE(OutputItem)
Q_DECLARE_METATYPE(Qt::DropAction)

namespace {

using Model = OutputModeModel;

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
OutputItem fullItem(int seed = 0)
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

OutputItem withField(void (*change)(OutputItem &))
{
    OutputItem item = fullItem();
    change(item);
    return item;
}

} // namespace

class TestOutputModeModel : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtFirst();
    void hasAColumnForEachItemAndSixRows();
    void headers_data();
    void headers();
    void data_data();
    void data();
    void dataOutsideTheTableIsNothing();
    void flags_data();
    void flags();
    void setData_data();
    void setData();
    void setDataWithoutAChangeAnnouncesNothing();
    void aNewItemIsEmpty();
    void appendAndInsert_data();
    void appendAndInsert();
    void remove_data();
    void remove();
    void move_data();
    void move();
    void aMovedItemKeepsItsIndexes();
    void toggleDistinct_data();
    void toggleDistinct();
    void clear();
    void distinctAndMergeColumns();
    void setItemAnnouncesWhatIsShown_data();
    void setItemAnnouncesWhatIsShown();
    void setItemOfAColumnThatIsNotThere();
    void removeCondition_data();
    void removeCondition();
    void setMappings_data();
    void setMappings();
    void setMappingsElsewhereIsRefused();
    void acceptsCopiesOfDraggedItems();
    void dropOntoOutput();
    void dropOntoConditions();
    void theFirstConditionSetsTheCombination_data();
    void theFirstConditionSetsTheCombination();
    void dropsAreRefused_data();
    void dropsAreRefused();
    void badPayloadsAreRefused_data();
    void badPayloadsAreRefused();
    void isTheSameAfterSaveAndLoad();
    void loadReplacesWhatWasThere();
    void loadOfAnUnknownSettingIsEmpty();
    void absentKeys();
    void damagedListsAreSafe();
};

void TestOutputModeModel::isEmptyAtFirst()
{
    Output model;
    QCOMPARE(model.rowCount(), 6);
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.item(0), OutputItem());
}

void TestOutputModeModel::hasAColumnForEachItemAndSixRows()
{
    Output model({"a", "b", "c"});
    QCOMPARE(model.rowCount(), 6);
    QCOMPARE(model.columnCount(), 3);
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    QCOMPARE(model.columnCount(model.index(0, 0)), 0);
}

void TestOutputModeModel::headers_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("text");

    const int display = Qt::DisplayRole;
    QTest::newRow("row 0") << 0 << Qt::Vertical << display << QVariant("Name");
    QTest::newRow("row 1") << 1 << Qt::Vertical << display << QVariant("Output");
    QTest::newRow("row 2") << 2 << Qt::Vertical << display << QVariant("Conditions");
    QTest::newRow("row 3") << 3 << Qt::Vertical << display << QVariant("Rules");
    QTest::newRow("row 4") << 4 << Qt::Vertical << display << QVariant("Distinct");
    QTest::newRow("row 5") << 5 << Qt::Vertical << display << QVariant("Merge");
    QTest::newRow("no row 6") << 6 << Qt::Vertical << display << QVariant();
    QTest::newRow("no row -1") << -1 << Qt::Vertical << display << QVariant();
    QTest::newRow("no tip") << 0 << Qt::Vertical << int(Qt::ToolTipRole) << QVariant();
    QTest::newRow("columns are counted from 1") << 1 << Qt::Horizontal << display << QVariant(2);
}

void TestOutputModeModel::headers()
{
    QFETCH(int, section);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, role);
    QFETCH(QVariant, text);

    Output model({"a", "b"});
    QCOMPARE(model.headerData(section, orientation, role), text);
}

void TestOutputModeModel::data_data()
{
    QTest::addColumn<OutputItem>("item");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");

    const OutputItem full = fullItem();
    const OutputItem empty;
    const int display = Qt::DisplayRole;
    const int edit = Qt::EditRole;
    const int check = Qt::CheckStateRole;
    const int after = Qt::UserRole;
    const QVariant nothing;

    QTest::newRow("Name displays the name") << full << 0 << display << QVariant("name 0");
    QTest::newRow("Name edits the name") << full << 0 << edit << QVariant("name 0");
    QTest::newRow("Name has no check") << full << 0 << check << nothing;
    QTest::newRow("Name has no user role") << full << 0 << after << nothing;

    QTest::newRow("Output displays the mappings with plus signs")
        << full << 1 << display << QVariant("first 0+\n[second] 0+\nthird 0");
    QTest::newRow("Output displays one mapping alone")
        << withField([](OutputItem &item) { item.mappings = QStringList{"a"}; }) << 1 << display
        << QVariant("a");
    QTest::newRow("Output of an empty item displays nothing")
        << empty << 1 << display << QVariant("");
    QTest::newRow("Output edits the list of mappings")
        << full << 1 << edit << QVariant(full.mappings);
    QTest::newRow("Output of an empty item edits an empty list")
        << empty << 1 << edit << QVariant(QStringList());
    QTest::newRow("Output has no check") << full << 1 << check << nothing;

    QTest::newRow("Conditions are displayed with OR between them")
        << full << 2 << display << QVariant("[tested] 0 OR\ntested too 0");
    QTest::newRow("Conditions are displayed with AND between them")
        << withField([](OutputItem &item) { item.condCombination = "AND"; }) << 2 << display
        << QVariant("[tested] 0 AND\ntested too 0");
    QTest::newRow("one condition is displayed alone")
        << withField([](OutputItem &item) { item.conditions = QStringList{"a"}; }) << 2 << display
        << QVariant("a");
    QTest::newRow("Conditions of an empty item display nothing")
        << empty << 2 << display << QVariant("");
    QTest::newRow("Conditions edit the list of conditions")
        << full << 2 << edit << QVariant(full.conditions);
    QTest::newRow("Conditions have no user role") << full << 2 << after << nothing;

    QTest::newRow("Rules display both lists")
        << full << 3 << display << QVariant("left(1)+\ntrim\n----\nright(2)+\nsimplified");
    QTest::newRow("Rules display only those before the merging")
        << withField([](OutputItem &item) { item.afterRules.clear(); }) << 3 << display
        << QVariant("left(1)+\ntrim");
    QTest::newRow("Rules display only those after the merging")
        << withField([](OutputItem &item) { item.rules.clear(); }) << 3 << display
        << QVariant("right(2)+\nsimplified");
    QTest::newRow("Rules of an empty item display nothing")
        << empty << 3 << display << QVariant("");
    QTest::newRow("Rules edit those before the merging")
        << full << 3 << edit << QVariant(full.rules);
    QTest::newRow("Rules have those after the merging in the first user role")
        << full << 3 << after << QVariant(full.afterRules);

    QTest::newRow("Distinct displays nothing") << full << 4 << display << nothing;
    QTest::newRow("Distinct edits nothing") << full << 4 << edit << nothing;
    QTest::newRow("Distinct is checked for YES") << full << 4 << check << QVariant(2);
    QTest::newRow("Distinct is unchecked for NO")
        << withField([](OutputItem &item) { item.distinct = "NO"; }) << 4 << check << QVariant(0);
    QTest::newRow("Distinct of a new item is unchecked") << empty << 4 << check << QVariant(0);
    QTest::newRow("Distinct is unchecked for yes")
        << withField([](OutputItem &item) { item.distinct = "yes"; }) << 4 << check << QVariant(0);

    QTest::newRow("Merge displays STRING") << full << 5 << display << QVariant("STRING");
    QTest::newRow("Merge displays NUMBER")
        << withField([](OutputItem &item) { item.merge = "NUMBER"; }) << 5 << display
        << QVariant("NUMBER");
    QTest::newRow("Merge displays nothing for NO")
        << withField([](OutputItem &item) { item.merge = "NO"; }) << 5 << display << QVariant("");
    QTest::newRow("Merge of an empty item displays nothing")
        << empty << 5 << display << QVariant("");
    QTest::newRow("Merge displays what it does not know")
        << withField([](OutputItem &item) { item.merge = "other"; }) << 5 << display
        << QVariant("other");
    QTest::newRow("Merge edits nothing") << full << 5 << edit << nothing;
    QTest::newRow("Merge has no check") << full << 5 << check << nothing;

    const QList<QPair<int, QString>> tips{
        {0, "Double click to edit 'name 0'"},
        {1, "Double click to edit output items for 'name 0'"},
        {2, "Double click to edit conditions for 'name 0'"},
        {3, "Double click to edit rules for 'name 0'"},
        {4, "Check to delete duplication for 'name 0'"},
        {5, "Double click to edit merge option for 'name 0'"},
    };
    for (const auto &tip : tips) {
        QTest::addRow("tool tip of row %d", tip.first)
            << full << tip.first << int(Qt::ToolTipRole) << QVariant(tip.second);
        QTest::addRow("status tip of row %d", tip.first)
            << full << tip.first << int(Qt::StatusTipRole) << QVariant(tip.second);
    }
    QTest::newRow("tip of an item without a name")
        << empty << 0 << int(Qt::ToolTipRole) << QVariant("Double click to edit ''");
    QTest::newRow("tip of an item whose name looks like a place")
        << withField([](OutputItem &item) { item.name = "%1"; }) << 0 << int(Qt::ToolTipRole)
        << QVariant("Double click to edit '%1'");
    QTest::newRow("no decoration") << full << 0 << int(Qt::DecorationRole) << nothing;
}

void TestOutputModeModel::data()
{
    QFETCH(OutputItem, item);
    QFETCH(int, row);
    QFETCH(int, role);
    QFETCH(QVariant, value);

    Output model({"a", "b", "c"});
    QVERIFY(model.setItem(1, item));
    const QVariant actual = model.index(row, 1).data(role);
    QCOMPARE(actual.isValid(), value.isValid());
    QCOMPARE(actual, value);
}

void TestOutputModeModel::dataOutsideTheTableIsNothing()
{
    Output model({"a", "b"});
    const QModelIndex second = model.index(0, 1);
    QVERIFY(model.removeItem(1));
    QCOMPARE(model.data(second), QVariant());
    QCOMPARE(model.flags(second), Qt::NoItemFlags);
    QCOMPARE(model.setData(second, "x"), false);
    QCOMPARE(model.data(QModelIndex()), QVariant());
    QCOMPARE(model.flags(QModelIndex()), Qt::NoItemFlags);
    QCOMPARE(model.setData(QModelIndex(), "x"), false);
}

void TestOutputModeModel::flags_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<Qt::ItemFlags>("expected");

    const Qt::ItemFlags drop = Qt::ItemIsEnabled | Qt::ItemIsDropEnabled;
    QTest::newRow("Name") << 0
                          << (Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                              | Qt::ItemIsEditable);
    QTest::newRow("Output") << 1 << drop;
    QTest::newRow("Conditions") << 2 << drop;
    QTest::newRow("Rules") << 3 << Qt::ItemFlags(Qt::ItemIsEnabled);
    QTest::newRow("Distinct") << 4 << (Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    QTest::newRow("Merge") << 5 << Qt::ItemFlags(Qt::ItemIsEnabled);
}

void TestOutputModeModel::flags()
{
    QFETCH(int, row);
    QFETCH(Qt::ItemFlags, expected);

    Output model({"a"});
    QCOMPARE(model.flags(model.index(row, 0)), expected);
}

void TestOutputModeModel::setData_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<OutputItem>("changed"); // of the full item, when it is accepted
    QTest::addColumn<QStringList>("log");

    const int edit = Qt::EditRole;
    const QVariant list(QStringList{"upper", "lower"});
    const OutputItem same = fullItem();
    const QStringList none;

    QTest::newRow("the name, which is in all tips")
        << 0 << edit << QVariant("new") << withField([](OutputItem &item) { item.name = "new"; })
        << QStringList{"data (0,1)-(5,1)", "item (0,1)"};
    QTest::newRow("an empty name")
        << 0 << edit << QVariant("") << withField([](OutputItem &item) { item.name = ""; })
        << QStringList{"data (0,1)-(5,1)", "item (0,1)"};
    QTest::newRow("the rules before the merging")
        << 3 << edit << list << withField([](OutputItem &item) {
               item.rules = QStringList{"upper", "lower"};
           })
        << QStringList{"data (3,1)-(3,1)", "item (3,1)"};
    QTest::newRow("the rules after the merging")
        << 3 << int(Qt::UserRole) << list << withField([](OutputItem &item) {
               item.afterRules = QStringList{"upper", "lower"};
           })
        << QStringList{"data (3,1)-(3,1)", "item (3,1)"};
    QTest::newRow("no rules") << 3 << edit << QVariant(QStringList())
                              << withField([](OutputItem &item) { item.rules.clear(); })
                              << QStringList{"data (3,1)-(3,1)", "item (3,1)"};

    QTest::newRow("Output is refused") << 1 << edit << list << same << none;
    QTest::newRow("Conditions are refused") << 2 << edit << list << same << none;
    QTest::newRow("Distinct is refused") << 4 << edit << QVariant("NO") << same << none;
    QTest::newRow("the check is refused: the click toggles it")
        << 4 << int(Qt::CheckStateRole) << QVariant(0) << same << none;
    QTest::newRow("Merge is refused") << 5 << edit << QVariant("NO") << same << none;
    QTest::newRow("a tip is refused")
        << 0 << int(Qt::ToolTipRole) << QVariant("new") << same << none;
    QTest::newRow("the second user role is refused")
        << 3 << int(Qt::UserRole) + 1 << list << same << none;
}

void TestOutputModeModel::setData()
{
    QFETCH(int, row);
    QFETCH(int, role);
    QFETCH(QVariant, value);
    QFETCH(OutputItem, changed);
    QFETCH(QStringList, log);

    Output model({"a", "b", "c"});
    model.setItem(1, fullItem());
    model.takeLog();
    QCOMPARE(model.setData(model.index(row, 1), value, role), !log.isEmpty());
    QCOMPARE(model.takeLog(), log);
    QVERIFY(model.item(1) == changed);
    QCOMPARE(model.item(0).name, QString("a"));
    QCOMPARE(model.item(2).name, QString("c"));
}

void TestOutputModeModel::setDataWithoutAChangeAnnouncesNothing()
{
    Output model({"a"});
    QVERIFY(model.setData(model.index(0, 0), "a"));
    QVERIFY(model.setData(model.index(3, 0), QStringList()));
    QCOMPARE(model.takeLog(), QStringList());
}

void TestOutputModeModel::aNewItemIsEmpty()
{
    Output model;
    const QModelIndex appended = model.appendItem();
    QCOMPARE(appended, model.index(0, 0));
    QVERIFY(model.item(0) == OutputItem());
    const QModelIndex inserted = model.insertItem(0);
    QCOMPARE(inserted, model.index(0, 0));
    QVERIFY(model.item(0) == OutputItem());
}

void TestOutputModeModel::appendAndInsert_data()
{
    QTest::addColumn<int>("column"); // -2 appends
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("inserted");

    QTest::newRow("append") << -2 << QStringList{"a", "b", ""} << 2;
    QTest::newRow("before the first") << 0 << QStringList{"", "a", "b"} << 0;
    QTest::newRow("before the last") << 1 << QStringList{"a", "", "b"} << 1;
    QTest::newRow("at the column count") << 2 << QStringList{"a", "b", ""} << 2;
    QTest::newRow("beyond the column count") << 7 << QStringList{"a", "b", ""} << 2;
    QTest::newRow("before no column") << -1 << QStringList{"a", "b", ""} << 2;
}

void TestOutputModeModel::appendAndInsert()
{
    QFETCH(int, column);
    QFETCH(QStringList, names);
    QFETCH(int, inserted);

    Output model({"a", "b"});
    const QModelIndex cell = column == -2 ? model.appendItem() : model.insertItem(column);
    QCOMPARE(cell, model.index(0, inserted));
    QCOMPARE(model.names(), names);
    QCOMPARE(model.takeLog(), QStringList{QStringLiteral("columns inserted %1-%1").arg(inserted)});
}

void TestOutputModeModel::remove_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("log");

    QTest::newRow("the first") << 0 << QStringList{"b", "c"} << QStringList{"columns removed 0-0"};
    QTest::newRow("the middle one")
        << 1 << QStringList{"a", "c"} << QStringList{"columns removed 1-1"};
    QTest::newRow("the last") << 2 << QStringList{"a", "b"} << QStringList{"columns removed 2-2"};
    QTest::newRow("behind the last") << 3 << QStringList{"a", "b", "c"} << QStringList();
    QTest::newRow("none") << -1 << QStringList{"a", "b", "c"} << QStringList();
}

void TestOutputModeModel::remove()
{
    QFETCH(int, column);
    QFETCH(QStringList, names);
    QFETCH(QStringList, log);

    Output model({"a", "b", "c"});
    QCOMPARE(model.removeItem(column), !log.isEmpty());
    QCOMPARE(model.names(), names);
    QCOMPARE(model.takeLog(), log);
}

void TestOutputModeModel::move_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("left");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("log");

    const QStringList same{"a", "b", "c"};
    QTest::newRow("the second left")
        << 1 << true << QStringList{"b", "a", "c"} << QStringList{"columns 1-1 moved before 0"};
    QTest::newRow("the last left")
        << 2 << true << QStringList{"a", "c", "b"} << QStringList{"columns 2-2 moved before 1"};
    QTest::newRow("the first right")
        << 0 << false << QStringList{"b", "a", "c"} << QStringList{"columns 0-0 moved before 2"};
    QTest::newRow("the second right")
        << 1 << false << QStringList{"a", "c", "b"} << QStringList{"columns 1-1 moved before 3"};
    QTest::newRow("the first left does nothing") << 0 << true << same << QStringList();
    QTest::newRow("the last right does nothing") << 2 << false << same << QStringList();
    QTest::newRow("none left does nothing") << -1 << true << same << QStringList();
    QTest::newRow("none right does nothing") << -1 << false << same << QStringList();
    QTest::newRow("behind the last left does nothing") << 3 << true << same << QStringList();
    QTest::newRow("behind the last right does nothing") << 3 << false << same << QStringList();
}

void TestOutputModeModel::move()
{
    QFETCH(int, column);
    QFETCH(bool, left);
    QFETCH(QStringList, names);
    QFETCH(QStringList, log);

    Output model({"a", "b", "c"});
    const bool moved = left ? model.moveItemLeft(column) : model.moveItemRight(column);
    QCOMPARE(moved, !log.isEmpty());
    QCOMPARE(model.names(), names);
    QCOMPARE(model.takeLog(), log);
}

void TestOutputModeModel::aMovedItemKeepsItsIndexes()
{
    Output model({"a", "b", "c"});
    const QPersistentModelIndex a = model.index(0, 0);
    const QPersistentModelIndex b = model.index(3, 1);
    QVERIFY(model.moveItemRight(0));
    QCOMPARE(a.column(), 1);
    QCOMPARE(b.column(), 0);
    QVERIFY(model.moveItemRight(1));
    QVERIFY(model.moveItemLeft(2));
    QVERIFY(model.moveItemLeft(1));
    QCOMPARE(a.column(), 0);
    QCOMPARE(b.column(), 1);
    QVERIFY(model.removeItem(0));
    QVERIFY(!a.isValid());
    QCOMPARE(b.column(), 0);
    QCOMPARE(b.row(), 3);
}

void TestOutputModeModel::toggleDistinct_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("a new item becomes YES") << ""
                                            << "YES";
    QTest::newRow("NO becomes YES") << "NO"
                                    << "YES";
    QTest::newRow("YES becomes NO") << "YES"
                                    << "NO";
    QTest::newRow("anything else becomes YES") << "yes"
                                               << "YES";
}

void TestOutputModeModel::toggleDistinct()
{
    QFETCH(QString, before);
    QFETCH(QString, after);

    Output model({"a", "b"});
    OutputItem item;
    item.distinct = before;
    model.setItem(1, item);
    model.takeLog();
    QVERIFY(model.toggleDistinct(1));
    QCOMPARE(model.item(1).distinct, after);
    QCOMPARE(model.takeLog(), (QStringList{"data (4,1)-(4,1)", "item (4,1)"}));
    QCOMPARE(model.toggleDistinct(2), false);
    QCOMPARE(model.toggleDistinct(-1), false);
    QCOMPARE(model.takeLog(), QStringList());
}

void TestOutputModeModel::clear()
{
    Output model({"a", "b"});
    model.clear();
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.rowCount(), 6);
    QCOMPARE(model.takeLog(), QStringList{"reset"});
}

void TestOutputModeModel::distinctAndMergeColumns()
{
    Output model({"a", "b", "c", "d", "e"});
    QCOMPARE(model.distinctColumns(), Columns());
    QCOMPARE(model.mergeColumns(), Columns());

    const QStringList distinct{"YES", "NO", "", "YES", "yes"};
    const QStringList merge{"NO", "STRING", "", "NUMBER", "string"};
    for (int column = 0; column < model.columnCount(); ++column) {
        OutputItem item = model.item(column);
        item.distinct = distinct.at(column);
        item.merge = merge.at(column);
        model.setItem(column, item);
    }
    QCOMPARE(model.distinctColumns(), (Columns{0, 3}));
    QCOMPARE(model.mergeColumns(), (Columns{1, 3}));
    model.moveItemLeft(3);
    QCOMPARE(model.distinctColumns(), (Columns{0, 2}));
    QCOMPARE(model.mergeColumns(), (Columns{1, 2}));
}

void TestOutputModeModel::setItemAnnouncesWhatIsShown_data()
{
    QTest::addColumn<OutputItem>("item");
    QTest::addColumn<QStringList>("log");

    const QStringList nothing;
    const QStringList output{"data (1,1)-(1,1)", "item (1,1)"};
    const QStringList conditions{"data (2,1)-(2,1)", "item (2,1)"};
    const QStringList rules{"data (3,1)-(3,1)", "item (3,1)"};
    const QStringList distinct{"data (4,1)-(4,1)", "item (4,1)"};
    const QStringList merge{"data (5,1)-(5,1)", "item (5,1)"};

    QTest::newRow("the same item") << fullItem() << nothing;
    QTest::newRow("another name, which is in all tips")
        << withField([](OutputItem &item) { item.name = "x"; })
        << QStringList{"data (0,1)-(5,1)", "item (0,1)"};
    QTest::newRow("another mapping")
        << withField([](OutputItem &item) { item.appendMapping(1, 9, "x"); }) << output;
    QTest::newRow("one mapping less")
        << withField([](OutputItem &item) { item.removeMapping(1); }) << output;
    QTest::newRow("a separator, which no cell shows")
        << withField([](OutputItem &item) { item.separator = "x"; }) << nothing;
    QTest::newRow("another tested value")
        << withField([](OutputItem &item) { item.appendCondition(1, 9, "x"); }) << conditions;
    QTest::newRow("another combination")
        << withField([](OutputItem &item) { item.condCombination = "AND"; }) << conditions;
    QTest::newRow("another condition text, which no cell shows")
        << withField([](OutputItem &item) { item.condRules[1] = "equalTo(x)"; }) << nothing;
    QTest::newRow("other rules") << withField([](OutputItem &item) { item.rules.append("trim"); })
                                 << rules;
    QTest::newRow("other rules after the merging")
        << withField([](OutputItem &item) { item.afterRules.append("trim"); }) << rules;
    QTest::newRow("a rule that changes the list")
        << withField([](OutputItem &item) { qSwap(item.rules, item.afterRules); }) << rules;
    QTest::newRow("no longer distinct")
        << withField([](OutputItem &item) { item.distinct = "NO"; }) << distinct;
    QTest::newRow("merged otherwise")
        << withField([](OutputItem &item) { item.merge = "NUMBER"; }) << merge;
    QTest::newRow("no longer merged")
        << withField([](OutputItem &item) { item.merge = "NO"; }) << merge;
    QTest::newRow("a merge separator, which no cell shows")
        << withField([](OutputItem &item) { item.mergeSeparator = "x"; }) << nothing;
    QTest::newRow("two properties") << withField([](OutputItem &item) {
        item.rules.clear();
        item.merge = "NUMBER";
    }) << rules + merge;
    QTest::newRow("everything") << OutputItem()
                                << QStringList{"data (0,1)-(5,1)", "item (0,1)", "item (1,1)",
                                               "item (2,1)",       "item (3,1)", "item (4,1)",
                                               "item (5,1)"};
}

void TestOutputModeModel::setItemAnnouncesWhatIsShown()
{
    QFETCH(OutputItem, item);
    QFETCH(QStringList, log);

    Output model({"a", "b"});
    model.setItem(1, fullItem());
    model.takeLog();
    QVERIFY(model.setItem(1, item));
    QVERIFY(model.item(1) == item);
    QCOMPARE(model.takeLog(), log);
}

void TestOutputModeModel::setItemOfAColumnThatIsNotThere()
{
    Output model({"a"});
    QCOMPARE(model.setItem(1, fullItem()), false);
    QCOMPARE(model.setItem(-1, fullItem()), false);
    QCOMPARE(model.names(), QStringList{"a"});
    QCOMPARE(model.takeLog(), QStringList());
    QVERIFY(model.item(1) == OutputItem());
    QVERIFY(model.item(-1) == OutputItem());
}

void TestOutputModeModel::removeCondition_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<OutputItem>("item");
    QTest::addColumn<QStringList>("log");

    const QStringList conditions{"data (2,1)-(2,1)", "item (2,1)"};
    QTest::newRow("the first, from all four lists") << 0 << withField([](OutputItem &item) {
        item.condSources = {1};
        item.condNums = {21};
        item.conditions = QStringList{"tested too 0"};
        item.condRules = QStringList{"contains(b)"};
    }) << conditions;
    QTest::newRow("the second, from all four lists") << 1 << withField([](OutputItem &item) {
        item.condSources = {0};
        item.condNums = {2};
        item.conditions = QStringList{"[tested] 0"};
        item.condRules = QStringList{"equalTo(a)"};
    }) << conditions;
    QTest::newRow("one that is not there") << 2 << fullItem() << QStringList();
    QTest::newRow("none") << -1 << fullItem() << QStringList();
}

void TestOutputModeModel::removeCondition()
{
    QFETCH(int, position);
    QFETCH(OutputItem, item);
    QFETCH(QStringList, log);

    Output model({"a", "b"});
    model.setItem(1, fullItem());
    model.takeLog();
    QVERIFY(model.removeCondition(1, position));
    QVERIFY(model.item(1) == item);
    QCOMPARE(model.takeLog(), log);
    QCOMPARE(model.removeCondition(2, 0), false);
    QCOMPARE(model.removeCondition(-1, 0), false);
}

void TestOutputModeModel::setMappings_data()
{
    QTest::addColumn<Columns>("positions");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<Columns>("sources");
    QTest::addColumn<Columns>("numbers");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("log");

    const QStringList output{"data (1,1)-(1,1)", "item (1,1)"};
    const QString same = fullItem().separator;

    QTest::newRow("nothing changed")
        << Columns{0, 1, 2} << same << Columns{1, 0, 1} << Columns{10, 1, 12}
        << QStringList{"first 0", "[second] 0", "third 0"} << QStringList();
    QTest::newRow("only the separator changed")
        << Columns{0, 1, 2} << " / " << Columns{1, 0, 1} << Columns{10, 1, 12}
        << QStringList{"first 0", "[second] 0", "third 0"} << QStringList();
    QTest::newRow("one removed") << Columns{0, 2} << same << Columns{1, 1} << Columns{10, 12}
                                 << QStringList{"first 0", "third 0"} << output;
    QTest::newRow("the last moved to the front")
        << Columns{2, 0, 1} << same << Columns{1, 1, 0} << Columns{12, 10, 1}
        << QStringList{"third 0", "first 0", "[second] 0"} << output;
    QTest::newRow("one removed, the others turned round, no separator")
        << Columns{1, 0} << "" << Columns{0, 1} << Columns{1, 10}
        << QStringList{"[second] 0", "first 0"} << output;
    QTest::newRow("all removed") << Columns() << "" << Columns() << Columns() << QStringList()
                                 << output;
    QTest::newRow("positions that are not there")
        << Columns{-1, 1, 3} << same << Columns{0} << Columns{1} << QStringList{"[second] 0"}
        << output;
}

void TestOutputModeModel::setMappings()
{
    QFETCH(Columns, positions);
    QFETCH(QString, separator);
    QFETCH(Columns, sources);
    QFETCH(Columns, numbers);
    QFETCH(QStringList, texts);
    QFETCH(QStringList, log);

    Output model({"a", "b"});
    model.setItem(1, fullItem());
    QCOMPARE(model.separator(model.index(1, 1)), fullItem().separator);
    model.takeLog();
    QVERIFY(model.setMappings(model.index(1, 1), positions, separator));
    OutputItem expected = fullItem();
    expected.mapSources = sources;
    expected.mapNums = numbers;
    expected.mappings = texts;
    expected.separator = separator;
    QVERIFY(model.item(1) == expected);
    QCOMPARE(model.separator(model.index(1, 1)), separator);
    QCOMPARE(model.takeLog(), log);
}

void TestOutputModeModel::setMappingsElsewhereIsRefused()
{
    Output model({"a"});
    model.setItem(0, fullItem());
    const QModelIndex gone = model.index(Model::OutputRow, model.appendItem().column());
    model.removeItem(gone.column());
    model.takeLog();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (row == Model::OutputRow)
            continue;
        QCOMPARE(model.setMappings(model.index(row, 0), {0}, "x"), false);
        QCOMPARE(model.separator(model.index(row, 0)), QString());
    }
    QCOMPARE(model.setMappings(QModelIndex(), {0}, "x"), false);
    QCOMPARE(model.setMappings(gone, {0}, "x"), false);
    QCOMPARE(model.separator(gone), QString());
    QVERIFY(model.item(0) == fullItem());
    QCOMPARE(model.takeLog(), QStringList());
}

void TestOutputModeModel::acceptsCopiesOfDraggedItems()
{
    const Output model;
    QCOMPARE(model.mimeTypes(), QStringList{"application/x-qabstractitemmodeldatalist"});
    QCOMPARE(model.supportedDropActions(), Qt::DropActions(Qt::CopyAction));
}

void TestOutputModeModel::dropOntoOutput()
{
    Output model({"a", "b"});
    QVERIFY(model.drop(1, 1, {{1, 4, "수량"}, {0, 1, "판매처명"}}));
    QCOMPARE(model.takeLog(), (QStringList{"data (1,1)-(1,1)", "item (1,1)"}));
    QVERIFY(model.drop(1, 1, {{1, 4, "수량"}}));
    QCOMPARE(model.takeLog(), (QStringList{"data (1,1)-(1,1)", "item (1,1)"}));

    OutputItem expected;
    expected.name = "b";
    expected.mapSources = {1, 0, 1};
    expected.mapNums = {4, 1, 4};
    expected.mappings = QStringList{"수량", "[판매처명]", "수량"};
    QVERIFY(model.item(1) == expected);
    QCOMPARE(model.index(1, 1).data().toString(), QString("수량+\n[판매처명]+\n수량"));
    QCOMPARE(model.index(1, 0).data().toString(), QString());
}

void TestOutputModeModel::dropOntoConditions()
{
    Output model({"a", "b"});
    QVERIFY(model.drop(2, 0, {{1, 4, "수량"}, {0, 1, "판매처명"}}));
    QCOMPARE(model.takeLog(), (QStringList{"data (2,0)-(2,0)", "item (2,0)"}));

    OutputItem expected;
    expected.name = "a";
    expected.condSources = {1, 0};
    expected.condNums = {4, 1};
    expected.conditions = QStringList{"수량", "[판매처명]"};
    expected.condRules = QStringList{"", ""};
    expected.condCombination = "AND";
    QVERIFY(model.item(0) == expected);
    QCOMPARE(model.index(2, 0).data().toString(), QString("수량 AND\n[판매처명]"));
    QCOMPARE(model.index(2, 1).data().toString(), QString());
}

void TestOutputModeModel::theFirstConditionSetsTheCombination_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("none yet") << ""
                              << "AND";
    QTest::newRow("the user's AND stays") << "AND"
                                          << "AND";
    QTest::newRow("the user's OR stays") << "OR"
                                         << "OR";
    QTest::newRow("what is not known stays") << "XOR"
                                             << "XOR";
}

void TestOutputModeModel::theFirstConditionSetsTheCombination()
{
    QFETCH(QString, before);
    QFETCH(QString, after);

    Output model({"a"});
    OutputItem item;
    item.condCombination = before;
    model.setItem(0, item);
    QVERIFY(model.drop(1, 0, {{1, 0, "x"}}));
    QCOMPARE(model.item(0).condCombination, before);
    QVERIFY(model.drop(2, 0, {{1, 0, "x"}}));
    QCOMPARE(model.item(0).condCombination, after);
}

void TestOutputModeModel::dropsAreRefused_data()
{
    QTest::addColumn<int>("row"); // as a view hands it over
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("parentRow");
    QTest::addColumn<int>("parentColumn");
    QTest::addColumn<Qt::DropAction>("action");
    QTest::addColumn<bool>("accepted");

    const Qt::DropAction copy = Qt::CopyAction;
    QTest::newRow("onto Output") << -1 << -1 << 1 << 1 << copy << true;
    QTest::newRow("onto Conditions") << -1 << -1 << 2 << 1 << copy << true;
    QTest::newRow("onto Name") << -1 << -1 << 0 << 1 << copy << false;
    QTest::newRow("onto Rules") << -1 << -1 << 3 << 1 << copy << false;
    QTest::newRow("onto Distinct") << -1 << -1 << 4 << 1 << copy << false;
    QTest::newRow("onto Merge") << -1 << -1 << 5 << 1 << copy << false;
    QTest::newRow("beside the last column") << -1 << -1 << -1 << -1 << copy << false;
    QTest::newRow("onto the lower half of Name") << 1 << 1 << -1 << -1 << copy << false;
    QTest::newRow("onto the upper half of Rules") << 3 << 1 << -1 << -1 << copy << false;
    QTest::newRow("into a cell as if it had children") << 0 << 0 << 1 << 1 << copy << false;
    QTest::newRow("moved") << -1 << -1 << 1 << 1 << Qt::MoveAction << false;
    QTest::newRow("linked") << -1 << -1 << 1 << 1 << Qt::LinkAction << false;
    QTest::newRow("ignored") << -1 << -1 << 1 << 1 << Qt::IgnoreAction << false;
}

void TestOutputModeModel::dropsAreRefused()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, parentRow);
    QFETCH(int, parentColumn);
    QFETCH(Qt::DropAction, action);
    QFETCH(bool, accepted);

    Output model({"a", "b"});
    const QList<OutputItem> before = model.items();
    const QModelIndex parent = model.index(parentRow, parentColumn);
    const std::unique_ptr<QMimeData> data(encodeDragItems({{1, 0, "x"}}));
    QCOMPARE(model.canDropMimeData(data.get(), action, row, column, parent), accepted);
    QCOMPARE(model.dropMimeData(data.get(), action, row, column, parent), accepted);
    QCOMPARE(model.items() != before, accepted);
    QCOMPARE(!model.takeLog().isEmpty(), accepted);
}

void TestOutputModeModel::badPayloadsAreRefused_data()
{
    QTest::addColumn<QString>("mimeType");
    QTest::addColumn<QByteArray>("bytes");

    const std::unique_ptr<QMimeData> good(encodeDragItems({{1, 0, "x"}}));
    const QByteArray bytes = good->data(dragItemsMimeType());
    QStringListModel list(QStringList{"수량", "판매가"});
    const std::unique_ptr<QMimeData> foreign(list.mimeData({list.index(0), list.index(1)}));

    QTest::newRow("another format") << "text/plain" << bytes;
    QTest::newRow("no items") << dragItemsMimeType() << QByteArray();
    QTest::newRow("cut") << dragItemsMimeType() << bytes.left(bytes.size() - 1);
    QTest::newRow("a good item, then garbage") << dragItemsMimeType() << bytes + "garbage";
    QTest::newRow("from another program's view")
        << dragItemsMimeType() << foreign->data(dragItemsMimeType());
}

void TestOutputModeModel::badPayloadsAreRefused()
{
    QFETCH(QString, mimeType);
    QFETCH(QByteArray, bytes);

    Output model({"a"});
    const QList<OutputItem> before = model.items();
    QMimeData data;
    data.setData(mimeType, bytes);
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex cell = model.index(row, 0);
        QCOMPARE(model.canDropMimeData(&data, Qt::CopyAction, -1, -1, cell), false);
        QCOMPARE(model.dropMimeData(&data, Qt::CopyAction, -1, -1, cell), false);
        QCOMPARE(model.dropMimeData(nullptr, Qt::CopyAction, -1, -1, cell), false);
    }
    QVERIFY(model.items() == before);
    QCOMPARE(model.takeLog(), QStringList());
}

void TestOutputModeModel::isTheSameAfterSaveAndLoad()
{
    const WorkingFolder folder;
    Output saved({"a", "b", "c"});
    saved.setItem(0, fullItem(1));
    saved.setItem(2, fullItem(40));
    saved.takeLog();
    saved.save("설정 A");
    QCOMPARE(saved.takeLog(), QStringList());

    Output loaded;
    loaded.load("설정 A");
    QCOMPARE(loaded.takeLog(), QStringList{"reset"});
    QCOMPARE(loaded.names(), (QStringList{"name 1", "b", "name 40"}));
    QVERIFY(loaded.item(0) == fullItem(1));
    QVERIFY(loaded.item(2) == fullItem(40));
}

void TestOutputModeModel::loadReplacesWhatWasThere()
{
    const WorkingFolder folder;
    Output({"a", "b", "c"}).save("A");
    Output shorter({"x", "y"});
    shorter.save("A");

    Output model({"1", "2", "3", "4"});
    model.load("A");
    QCOMPARE(model.names(), (QStringList{"x", "y"}));
}

void TestOutputModeModel::loadOfAnUnknownSettingIsEmpty()
{
    const WorkingFolder folder;
    Output model({"a"});
    model.load("nobody");
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.takeLog(), QStringList{"reset"});
}

void TestOutputModeModel::absentKeys()
{
    const WorkingFolder folder;
    folder.write("quorinConverter.dat", "[SettingInfo]\nA\\output\\1\\name=n\nA\\output\\size=1\n");
    Output model;
    model.load("A");
    OutputItem expected;
    expected.name = "n";
    expected.distinct = "NO";
    QVERIFY(model.item(0) == expected);
    QCOMPARE(model.index(4, 0).data(Qt::CheckStateRole), QVariant(0));
    QCOMPARE(model.mergeColumns(), Columns());
}

void TestOutputModeModel::damagedListsAreSafe()
{
    OutputItem damaged;
    damaged.mapSources = {1};
    damaged.mapNums = {4, 5, 6};
    damaged.mappings = QStringList{"a", "b"};
    damaged.conditions = QStringList{"c", "d"};

    Output model({""});
    model.setItem(0, damaged);
    QCOMPARE(model.index(1, 0).data().toString(), QString("a+\nb"));
    QCOMPARE(model.index(2, 0).data().toString(), QString("c \nd"));

    QVERIFY(model.setMappings(model.index(1, 0), {0, 1}, ""));
    QVERIFY(model.item(0) == damaged);

    QVERIFY(model.setMappings(model.index(1, 0), {1, 0}, ""));
    QCOMPARE(model.item(0).mapSources, (QList<int>{0, 1}));
    QCOMPARE(model.item(0).mapNums, (QList<int>{5, 4}));
    QCOMPARE(model.item(0).mappings, (QStringList{"b", "a"}));

    QVERIFY(model.removeCondition(0, 1));
    QCOMPARE(model.item(0).conditions, QStringList{"c"});
    QCOMPARE(model.item(0).condRules, QStringList());
}

QTEST_GUILESS_MAIN(TestOutputModeModel)
#include "tst_outputmodemodel.moc"
