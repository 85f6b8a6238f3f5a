// What the table of output items shows: its size, its headers, the value of each cell in each role,
// and what a view lets the user do with each cell. A cell outside of the table shows and allows
// nothing.
#include "tests/editor/outputmodetest.h"

#include <QtTest>

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
    QTest::newRow("a cell that shows a text is read out as it stands")
        << full << 1 << int(Qt::AccessibleTextRole) << nothing;
    QTest::newRow("a check box says what it is for")
        << full << 4 << int(Qt::AccessibleTextRole)
        << QVariant("Check to delete duplication for 'name 0'");
    QTest::newRow("an empty cell says what it is for")
        << empty << 3 << int(Qt::AccessibleTextRole)
        << QVariant("Double click to edit rules for ''");
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

QTEST_GUILESS_MAIN(TestOutputModeModel)
#include "tst_outputmodemodel.moc"
