// The lists inside an output item, its mappings and conditions: the parallel ones stay in step when
// entries are removed or put in another order, even when a damaged file has brought them in
// different lengths. And the whole table is the same after it was saved and loaded.
#include "tests/editor/outputmodetest.h"
#include "tests/settings/workingfolder.h"

#include <QtTest>

namespace {

using Model = OutputModeModel;

} // namespace

class TestOutputModeLists : public QObject
{
    Q_OBJECT

private slots:
    void removeCondition_data();
    void removeCondition();
    void setMappings_data();
    void setMappings();
    void setMappingsElsewhereIsRefused();
    void damagedListsAreSafe();

    void isTheSameAfterSaveAndLoad();
    void loadReplacesWhatWasThere();
    void loadOfAnUnknownSettingIsEmpty();
    void absentKeys();
};

// --- conditions and mappings ------------------------------------------------------------------

void TestOutputModeLists::removeCondition_data()
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

void TestOutputModeLists::removeCondition()
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

void TestOutputModeLists::setMappings_data()
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

void TestOutputModeLists::setMappings()
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

void TestOutputModeLists::setMappingsElsewhereIsRefused()
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

void TestOutputModeLists::damagedListsAreSafe()
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

// --- the settings file ------------------------------------------------------------------------

void TestOutputModeLists::isTheSameAfterSaveAndLoad()
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

void TestOutputModeLists::loadReplacesWhatWasThere()
{
    const WorkingFolder folder;
    Output({"a", "b", "c"}).save("A");
    Output shorter({"x", "y"});
    shorter.save("A");

    Output model({"1", "2", "3", "4"});
    model.load("A");
    QCOMPARE(model.names(), (QStringList{"x", "y"}));
}

void TestOutputModeLists::loadOfAnUnknownSettingIsEmpty()
{
    const WorkingFolder folder;
    Output model({"a"});
    model.load("nobody");
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.takeLog(), QStringList{"reset"});
}

void TestOutputModeLists::absentKeys()
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

QTEST_GUILESS_MAIN(TestOutputModeLists)
#include "tst_outputmodelists.moc"
