// What is dropped onto the table of output items: a drop adds to the item under the mouse and to no
// other, only the cells that can use it accept it, and a payload that is damaged or comes from
// another program changes nothing.
#include "tests/editor/outputmodetest.h"

#include <QStringListModel>
#include <QtTest>

Q_DECLARE_METATYPE(Qt::DropAction)

class TestOutputModeDrops : public QObject
{
    Q_OBJECT

private slots:
    void acceptsCopiesOfDraggedItems();
    void dropOntoOutput();
    void dropOntoConditions();
    void theFirstConditionSetsTheCombination_data();
    void theFirstConditionSetsTheCombination();
    void dropsAreRefused_data();
    void dropsAreRefused();
    void badPayloadsAreRefused_data();
    void badPayloadsAreRefused();
};

void TestOutputModeDrops::acceptsCopiesOfDraggedItems()
{
    const Output model;
    QCOMPARE(model.mimeTypes(), QStringList{"application/x-qabstractitemmodeldatalist"});
    QCOMPARE(model.supportedDropActions(), Qt::DropActions(Qt::CopyAction));
}

void TestOutputModeDrops::dropOntoOutput()
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

void TestOutputModeDrops::dropOntoConditions()
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

void TestOutputModeDrops::theFirstConditionSetsTheCombination_data()
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

void TestOutputModeDrops::theFirstConditionSetsTheCombination()
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

void TestOutputModeDrops::dropsAreRefused_data()
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

void TestOutputModeDrops::dropsAreRefused()
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

void TestOutputModeDrops::badPayloadsAreRefused_data()
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

void TestOutputModeDrops::badPayloadsAreRefused()
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

QTEST_GUILESS_MAIN(TestOutputModeDrops)
#include "tst_outputmodedrops.moc"
