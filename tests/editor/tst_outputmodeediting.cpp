// What the user changes in the table of output items: the text of a cell, whole columns, the check
// and the whole item. Every change is announced exactly where a cell shows it, so that the views
// stay right and are not drawn anew for nothing; what is refused changes and announces nothing.
#include "tests/editor/outputmodetest.h"

#include <QtTest>

class TestOutputModeEditing : public QObject
{
    Q_OBJECT

private slots:
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
    void clear();

    void toggleDistinct_data();
    void toggleDistinct();
    void distinctAndMergeColumns();

    void setItemAnnouncesWhatIsShown_data();
    void setItemAnnouncesWhatIsShown();
    void setItemOfAColumnThatIsNotThere();
};

// --- cells ------------------------------------------------------------------------------------

void TestOutputModeEditing::setData_data()
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

void TestOutputModeEditing::setData()
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

void TestOutputModeEditing::setDataWithoutAChangeAnnouncesNothing()
{
    Output model({"a"});
    QVERIFY(model.setData(model.index(0, 0), "a"));
    QVERIFY(model.setData(model.index(3, 0), QStringList()));
    QCOMPARE(model.takeLog(), QStringList());
}

// --- columns ----------------------------------------------------------------------------------

void TestOutputModeEditing::aNewItemIsEmpty()
{
    Output model;
    const QModelIndex appended = model.appendItem();
    QCOMPARE(appended, model.index(0, 0));
    QVERIFY(model.item(0) == OutputItem());
    const QModelIndex inserted = model.insertItem(0);
    QCOMPARE(inserted, model.index(0, 0));
    QVERIFY(model.item(0) == OutputItem());
}

void TestOutputModeEditing::appendAndInsert_data()
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

void TestOutputModeEditing::appendAndInsert()
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

void TestOutputModeEditing::remove_data()
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

void TestOutputModeEditing::remove()
{
    QFETCH(int, column);
    QFETCH(QStringList, names);
    QFETCH(QStringList, log);

    Output model({"a", "b", "c"});
    QCOMPARE(model.removeItem(column), !log.isEmpty());
    QCOMPARE(model.names(), names);
    QCOMPARE(model.takeLog(), log);
}

void TestOutputModeEditing::move_data()
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

void TestOutputModeEditing::move()
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

void TestOutputModeEditing::aMovedItemKeepsItsIndexes()
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

void TestOutputModeEditing::clear()
{
    Output model({"a", "b"});
    model.clear();
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.rowCount(), 6);
    QCOMPARE(model.takeLog(), QStringList{"reset"});
}

// --- distinct and merge -----------------------------------------------------------------------

void TestOutputModeEditing::toggleDistinct_data()
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

void TestOutputModeEditing::toggleDistinct()
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

void TestOutputModeEditing::distinctAndMergeColumns()
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

// --- whole items ------------------------------------------------------------------------------

void TestOutputModeEditing::setItemAnnouncesWhatIsShown_data()
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

void TestOutputModeEditing::setItemAnnouncesWhatIsShown()
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

void TestOutputModeEditing::setItemOfAColumnThatIsNotThere()
{
    Output model({"a"});
    QCOMPARE(model.setItem(1, fullItem()), false);
    QCOMPARE(model.setItem(-1, fullItem()), false);
    QCOMPARE(model.names(), QStringList{"a"});
    QCOMPARE(model.takeLog(), QStringList());
    QVERIFY(model.item(1) == OutputItem());
    QVERIFY(model.item(-1) == OutputItem());
}

QTEST_GUILESS_MAIN(TestOutputModeEditing)
#include "tst_outputmodeediting.moc"
