// The input side of a setting: how it grows from sample files, what its cells and headers show,
// what is dragged from it, and what comes back from the settings file.
#include "common/dragpayload.h"
#include "editor/columnlabel.h"
#include "editor/inputmodemodel.h"
#include "tests/editor/watchedmodel.h"
#include "tests/settings/workingfolder.h"

#include <QBuffer>
#include <QMimeData>
#include <QtTest>
#include <climits>
#include <memory>

using Cells = QList<QPair<int, int>>;
using DragItems = QList<DragItem>;
using Rows = QList<QStringList>;
Q_DECLARE_METATYPE(DragItem)

char *toString(const DragItem &item)
{
    const QString text =
        QStringLiteral("%1 %2 %3").arg(item.source).arg(item.number).arg(item.text);
    return qstrdup(text.toUtf8().constData());
}

namespace {

// Each row is written as its texts with "|" between them.
SampleFile sampleOf(const QString &formName, const QStringList &rows)
{
    SampleFile sample;
    sample.formName = formName;
    for (const QString &row : rows)
        sample.records.append(row.split('|'));
    return sample;
}

class Input : public WatchedModel<InputModeModel>
{
public:
    Input() = default;
    explicit Input(const QStringList &firstSample)
    {
        addFirstForm(sampleOf("first", firstSample));
        takeLog();
    }

    bool join(const QString &formName, const QStringList &sample, int targetKey, int key)
    {
        return joinForm(sampleOf(formName, sample), {targetKey, key});
    }
    // All cells as a view shows them.
    QStringList text() const
    {
        QStringList rows;
        for (int row = 0; row < rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < columnCount(); ++column)
                cells.append(index(row, column).data().toString());
            rows.append(cells.join('|'));
        }
        return rows;
    }
    QStringList formTexts() const
    {
        QStringList texts;
        for (const InputForm &form : forms()) {
            texts.append(QStringLiteral("%1: %2 (%3,%4)")
                             .arg(form.name, form.heads.join('|'))
                             .arg(form.targetKey)
                             .arg(form.key));
        }
        return texts;
    }
};

} // namespace

class TestInputModeModel : public QObject
{
    Q_OBJECT

private slots:
    void columnLabels_data();
    void columnLabels();
    void columnLabelsFollowTheirDefinition();

    void samples_data();
    void samples();
    void formNames_data();
    void formNames();

    void isEmptyAtFirst();
    void emptyCellsSayWhereTheyStand();
    void theFirstForm_data();
    void theFirstForm();
    void theFirstFormBeginsAnew();
    void keyPairs_data();
    void keyPairs();
    void keyPairsOfWideFiles();
    void join_data();
    void join();
    void joinsAreRefused_data();
    void joinsAreRefused();
    void aJoinOfASampleWithoutRecordsIsRefused();
    void theItemsOfThreeForms();
    void theFirstItemOfAForm_data();
    void theFirstItemOfAForm();

    void aShortRowIsEmptyAtItsEnd();
    void onlyTheDisplayRoleHasData();
    void cellsOutsideTheTableAreNothing();
    void headers_data();
    void headers();
    void cellsCanBeSelectedAndDragged();
    void drags_data();
    void drags();
    void nothingCanBeDropped();

    void clear();
    void removeRows_data();
    void removeRows();

    void isTheSameAfterSaveAndLoad();
    void examplesThatAreLoaded_data();
    void examplesThatAreLoaded();
    void onlyTwoExamplesAreSaved();
    void anEmptyModelIsSavedAndLoaded();
    void loadReplacesWhatWasThere();
    void damagedSettingsAreSafe();
};

void TestInputModeModel::columnLabels_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("label");

    QTest::newRow("first") << 0 << "A";
    QTest::newRow("second") << 1 << "B";
    QTest::newRow("last of one letter") << 25 << "Z";
    QTest::newRow("first of two letters") << 26 << "AA";
    QTest::newRow("second of two letters") << 27 << "AB";
    QTest::newRow("AZ") << 51 << "AZ";
    QTest::newRow("BA") << 52 << "BA";
    QTest::newRow("last of two letters") << 701 << "ZZ";
    QTest::newRow("first of three letters") << 702 << "AAA";
    QTest::newRow("the last of 10,000") << 9999 << "NTP";
    QTest::newRow("last of three letters") << 18277 << "ZZZ";
    QTest::newRow("first of four letters") << 18278 << "AAAA";
    QTest::newRow("the highest number") << INT_MAX << "FXSHRXX";
    QTest::newRow("no column") << -1 << "";
    QTest::newRow("the lowest number") << INT_MIN << "";
}

void TestInputModeModel::columnLabels()
{
    QFETCH(int, column);
    QFETCH(QString, label);

    QCOMPARE(columnLabel(column), label);
}

// A label is the one before it, counted up with letters.
void TestInputModeModel::columnLabelsFollowTheirDefinition()
{
    QString label = "A";
    for (int column = 0; column < 20000; ++column) {
        QCOMPARE(columnLabel(column), label);
        int i = label.size() - 1;
        while (i >= 0 && label.at(i) == 'Z')
            label[i--] = 'A';
        if (i < 0)
            label.prepend('A');
        else
            label[i] = QChar(label.at(i).unicode() + 1);
    }
}

void TestInputModeModel::samples_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Rows>("records");

    QTest::newRow("only headings") << QByteArray("a,b\n") << Rows{{"a", "b"}};
    QTest::newRow("no line end") << QByteArray("a,b") << Rows{{"a", "b"}};
    QTest::newRow("one record") << QByteArray("a,b\n1,2\n") << Rows{{"a", "b"}, {"1", "2"}};
    QTest::newRow("two records") << QByteArray("a,b\n1,2\n3,4\n")
                                 << Rows{{"a", "b"}, {"1", "2"}, {"3", "4"}};
    QTest::newRow("three records, the third is left out")
        << QByteArray("a,b\n1,2\n3,4\n5,6\n") << Rows{{"a", "b"}, {"1", "2"}, {"3", "4"}};
    QTest::newRow("a line that is no record does not count")
        << QByteArray("a,b\n1,2,3\n1,2\n3,4\n5,6\n") << Rows{{"a", "b"}, {"1", "2"}, {"3", "4"}};
    QTest::newRow("a record of two lines counts once")
        << QByteArray("a,b\n\"1\n1\",2\n3,4\n5,6\n") << Rows{{"a", "b"}, {"1\n1", "2"}, {"3", "4"}};
    QTest::newRow("with a byte-order mark")
        << QByteArray("\xEF\xBB\xBF수량,판매가\n1,2\n") << Rows{{"수량", "판매가"}, {"1", "2"}};
    QTest::newRow("an empty file has one heading without a text") << QByteArray() << Rows{{""}};
}

void TestInputModeModel::samples()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Rows, records);

    QBuffer device(&bytes);
    QVERIFY(device.open(QIODevice::ReadOnly));
    const SampleFile sample = readSampleFile(device, "orders.csv");
    QCOMPARE(sample.formName, QString("orders"));
    QCOMPARE(sample.records, records);
    QCOMPARE(sample.heads(), records.first());
}

void TestInputModeModel::formNames_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");

    QTest::newRow("without directory") << "orders.csv"
                                       << "orders";
    QTest::newRow("with directory") << "/shop/2024.05/orders.csv"
                                    << "orders";
    QTest::newRow("cut before the last dot") << "/shop/orders.2024.05.csv"
                                             << "orders.2024.05";
    QTest::newRow("no dot") << "/shop.v2/orders"
                            << "orders";
    QTest::newRow("nothing before the dot") << "/shop/.csv"
                                            << "";
    QTest::newRow("nothing behind the dot") << "/shop/orders."
                                            << "orders";
    QTest::newRow("blanks stay") << "/shop/주문 내역 .csv"
                                 << "주문 내역 ";
}

void TestInputModeModel::formNames()
{
    QFETCH(QString, path);
    QFETCH(QString, name);

    QBuffer device;
    QVERIFY(device.open(QIODevice::ReadWrite));
    QCOMPARE(readSampleFile(device, path).formName, name);
}

void TestInputModeModel::isEmptyAtFirst()
{
    Input model;
    QVERIFY(model.isEmpty());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.items(), QStringList());
    QCOMPARE(model.formTexts(), QStringList());
}

// A screen reader would say nothing of them.
void TestInputModeModel::emptyCellsSayWhereTheyStand()
{
    Input model;
    model.addFirstForm(sampleOf("orders", {"a|b|c", "1||3"}));
    QCOMPARE(model.index(1, 1).data(Qt::AccessibleTextRole), QVariant("B"));
    QCOMPARE(model.index(1, 2).data(Qt::AccessibleTextRole), QVariant());
}

void TestInputModeModel::theFirstForm_data()
{
    QTest::addColumn<QStringList>("sample");

    QTest::newRow("only headings") << QStringList{"a|b|c"};
    QTest::newRow("one example") << QStringList{"a|b|c", "1|2|3"};
    QTest::newRow("two examples") << QStringList{"a|b|c", "1|2|3", "4|5|6"};
    QTest::newRow("one column") << QStringList{"a", "1"};
    QTest::newRow("headings that repeat or are empty") << QStringList{"a||a|", "1|2|3|4"};
}

void TestInputModeModel::theFirstForm()
{
    QFETCH(QStringList, sample);

    Input model;
    model.addFirstForm(sampleOf("orders", sample));
    QCOMPARE(model.takeLog(), QStringList{"reset"});
    QVERIFY(!model.isEmpty());
    QCOMPARE(model.text(), sample);
    QCOMPARE(model.items(), sample.first().split('|'));
    QCOMPARE(model.formTexts(), QStringList{"orders: " + sample.first() + " (-1,-1)"});
}

void TestInputModeModel::theFirstFormBeginsAnew()
{
    Input model({"a|b", "1|2"});
    model.addFirstForm(sampleOf("other", {"c"}));
    QCOMPARE(model.text(), QStringList{"c"});
    QCOMPARE(model.formTexts(), QStringList{"other: c (-1,-1)"});
}

void TestInputModeModel::keyPairs_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<QString>("heads");
    QTest::addColumn<int>("targetKey");
    QTest::addColumn<int>("key");

    QTest::newRow("the same place") << "no|name"
                                    << "no|paid" << 0 << 0;
    QTest::newRow("different places") << "name|date|no"
                                      << "paid|no" << 2 << 1;
    QTest::newRow("the first item wins over the first heading") << "a|b"
                                                                << "b|a" << 0 << 1;
    QTest::newRow("the first of equal headings") << "x|no"
                                                 << "y|no|no" << 1 << 1;
    QTest::newRow("the first of equal items") << "x|no|no"
                                              << "no" << 1 << 0;
    QTest::newRow("no common text") << "a|b"
                                    << "c|d" << -1 << -1;
    QTest::newRow("case counts") << "No"
                                 << "no" << -1 << -1;
    QTest::newRow("blanks count") << "no"
                                  << "no " << -1 << -1;
    QTest::newRow("empty texts are equal") << "a|"
                                           << "|b" << 1 << 0;
}

void TestInputModeModel::keyPairs()
{
    QFETCH(QString, items);
    QFETCH(QString, heads);
    QFETCH(int, targetKey);
    QFETCH(int, key);

    const Input model({items});
    const InputModeModel::KeyPair keys = model.findKeyPair(heads.split('|'));
    QCOMPARE(keys.targetKey, targetKey);
    QCOMPARE(keys.key, key);
}

void TestInputModeModel::keyPairsOfWideFiles()
{
    QStringList items;
    QStringList heads;
    for (int i = 0; i < 10000; ++i) {
        items.append(QStringLiteral("item %1").arg(i));
        heads.append(QStringLiteral("head %1").arg(i));
    }
    const Input model({items.join('|')});
    QCOMPARE(model.findKeyPair(heads).key, -1);
    heads.append(items.last());
    QCOMPARE(model.findKeyPair(heads).targetKey, 9999);
    QCOMPARE(model.findKeyPair(heads).key, 10000);
    QCOMPARE(Input().findKeyPair(heads).key, -1);
    QCOMPARE(model.findKeyPair(QStringList()).key, -1);
}

void TestInputModeModel::join_data()
{
    QTest::addColumn<QStringList>("first");
    QTest::addColumn<QStringList>("further");
    QTest::addColumn<int>("targetKey");
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("text");

    QTest::newRow("one to one") << QStringList{"no|name", "1|Kim", "2|Lee"}
                                << QStringList{"no|paid", "1|100", "2|200"} << 0 << 0
                                << QStringList{"no|name|paid", "1|Kim|100", "2|Lee|200"};
    QTest::newRow("in the other order")
        << QStringList{"no|name", "1|Kim", "2|Lee"} << QStringList{"no|paid", "2|200", "1|100"} << 0
        << 0 << QStringList{"no|name|paid", "1|Kim|100", "2|Lee|200"};
    QTest::newRow("keys at different places, the file's key column is left out")
        << QStringList{"name|no", "Kim|1"} << QStringList{"paid|date|no", "100|May|1"} << 1 << 2
        << QStringList{"name|no|paid|date", "Kim|1|100|May"};
    QTest::newRow("one to many makes one row for each partner, in the file's order")
        << QStringList{"no|name", "1|Kim", "2|Lee"} << QStringList{"no|thing", "1|cup", "1|tea"}
        << 0 << 0 << QStringList{"no|name|thing", "1|Kim|cup", "1|Kim|tea", "2|Lee|"};
    QTest::newRow("many to many") << QStringList{"no|name", "1|Kim", "1|Lee"}
                                  << QStringList{"no|thing", "1|cup", "1|tea"} << 0 << 0
                                  << QStringList{"no|name|thing", "1|Kim|cup", "1|Kim|tea",
                                                 "1|Lee|cup", "1|Lee|tea"};
    QTest::newRow("an example without a partner stays, shorter")
        << QStringList{"no|name", "1|Kim", "2|Lee"} << QStringList{"no|paid", "2|200"} << 0 << 0
        << QStringList{"no|name|paid", "1|Kim|", "2|Lee|200"};
    QTest::newRow("no partner at all")
        << QStringList{"no|name", "1|Kim"} << QStringList{"no|paid", "7|700"} << 0 << 0
        << QStringList{"no|name|paid", "1|Kim|"};
    QTest::newRow("keys are compared exactly")
        << QStringList{"no|name", "a|Kim"} << QStringList{"no|paid", "A|100"} << 0 << 0
        << QStringList{"no|name|paid", "a|Kim|"};
    QTest::newRow("a sample with only headings")
        << QStringList{"no|name", "1|Kim"} << QStringList{"no|paid"} << 0 << 0
        << QStringList{"no|name|paid", "1|Kim|"};
    QTest::newRow("onto a sample with only headings")
        << QStringList{"no|name"} << QStringList{"no|paid", "1|100"} << 0 << 0
        << QStringList{"no|name|paid"};
    QTest::newRow("a sample with nothing but the key")
        << QStringList{"no|name", "1|Kim"} << QStringList{"no", "1", "1"} << 0 << 0
        << QStringList{"no|name", "1|Kim", "1|Kim"};
    QTest::newRow("equal headings stay beside one another")
        << QStringList{"no|name", "1|Kim"} << QStringList{"no|name", "1|Lee"} << 0 << 0
        << QStringList{"no|name|name", "1|Kim|Lee"};
    // Required: the guard lets a column through that lies one behind the last.
    QTest::newRow("a key one behind the last heading leaves nothing out")
        << QStringList{"no|name", "1|Kim"} << QStringList{"no|paid", "1|100"} << 0 << 2
        << QStringList{"no|name|no|paid", "1|Kim||"};
}

void TestInputModeModel::join()
{
    QFETCH(QStringList, first);
    QFETCH(QStringList, further);
    QFETCH(int, targetKey);
    QFETCH(int, key);
    QFETCH(QStringList, text);

    Input model(first);
    QVERIFY(model.join("further", further, targetKey, key));
    QCOMPARE(model.takeLog(), QStringList{"reset"});
    QCOMPARE(model.text(), text);
    QCOMPARE(
        model.formTexts(),
        (QStringList{
            "first: " + first.first() + " (-1,-1)",
            QStringLiteral("further: %1 (%2,%3)").arg(further.first()).arg(targetKey).arg(key)}));
}

void TestInputModeModel::joinsAreRefused_data()
{
    QTest::addColumn<int>("targetKey");
    QTest::addColumn<int>("key");

    QTest::newRow("no key chosen") << -1 << -1;
    QTest::newRow("no item chosen") << -1 << 0;
    QTest::newRow("no heading chosen") << 0 << -1;
    QTest::newRow("an item beyond the column count") << 3 << 0;
    QTest::newRow("a heading beyond the length of the headings") << 0 << 4;
    QTest::newRow("the highest numbers") << INT_MAX << INT_MAX;
    QTest::newRow("the lowest numbers") << INT_MIN << INT_MIN;
}

void TestInputModeModel::joinsAreRefused()
{
    QFETCH(int, targetKey);
    QFETCH(int, key);

    Input model({"no|name", "1|Kim"});
    QCOMPARE(model.join("further", {"no|paid|date", "1|100|May"}, targetKey, key), false);
    QCOMPARE(model.takeLog(), QStringList());
    QCOMPARE(model.text(), (QStringList{"no|name", "1|Kim"}));
    QCOMPARE(model.formTexts(), QStringList{"first: no|name (-1,-1)"});
}

void TestInputModeModel::aJoinOfASampleWithoutRecordsIsRefused()
{
    Input model({"no|name", "1|Kim"});
    QCOMPARE(model.joinForm(SampleFile(), {0, 0}), false);
    Input empty;
    QCOMPARE(empty.join("further", {"no|paid"}, 0, 0), false);
    QCOMPARE(empty.formTexts(), QStringList());
}

void TestInputModeModel::theItemsOfThreeForms()
{
    Input model({"no|name|date", "1|Kim|May"});
    QVERIFY(model.join("items", {"thing|no|count", "cup|1|2"}, 0, 1));
    QVERIFY(model.join("goods", {"thing|price", "cup|30"}, 3, 0));
    QCOMPARE(model.text(), (QStringList{"no|name|date|thing|count|price", "1|Kim|May|cup|2|30"}));
    QCOMPARE(model.formTexts(),
             (QStringList{"first: no|name|date (-1,-1)", "items: thing|no|count (0,1)",
                          "goods: thing|price (3,0)"}));
}

void TestInputModeModel::theFirstItemOfAForm_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<int>("column"); // -1: none

    QTest::newRow("the first form begins at the first column") << 0 << 0;
    QTest::newRow("the second form follows it") << 1 << 3;
    QTest::newRow("the third form follows without the second one's key") << 2 << 5;
    QTest::newRow("a form of nothing but its key has no item") << 3 << -1;
    QTest::newRow("no such form") << 4 << -1;
    QTest::newRow("no form") << -1 << -1;
}

void TestInputModeModel::theFirstItemOfAForm()
{
    QFETCH(int, form);
    QFETCH(int, column);

    Input model({"no|name|date", "1|Kim|May"});
    QVERIFY(model.join("items", {"thing|no|count", "cup|1|2"}, 0, 1));
    QVERIFY(model.join("goods", {"thing|price", "cup|30"}, 3, 0));
    QVERIFY(model.join("names", {"name", "Kim"}, 1, 0));
    QCOMPARE(model.columnCount(), 6);
    QCOMPARE(model.firstItemOfForm(form), column < 0 ? QModelIndex() : model.index(0, column));
}

void TestInputModeModel::aShortRowIsEmptyAtItsEnd()
{
    Input model({"a|b|c", "1", "1|2|3|4"});
    QCOMPARE(model.columnCount(), 3);
    QCOMPARE(model.index(1, 0).data(), QVariant("1"));
    QCOMPARE(model.index(1, 2).data().toString(), QString());
    QCOMPARE(model.text(), (QStringList{"a|b|c", "1||", "1|2|3"}));
}

void TestInputModeModel::onlyTheDisplayRoleHasData()
{
    Input model({"a", "1"});
    for (int role = 0; role <= Qt::UserRole; ++role) {
        const QVariant expected = role == Qt::DisplayRole ? QVariant("1") : QVariant();
        QCOMPARE(model.index(1, 0).data(role), expected);
    }
}

void TestInputModeModel::cellsOutsideTheTableAreNothing()
{
    Input model({"a|b", "1|2"});
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    QCOMPARE(model.columnCount(model.index(0, 0)), 0);
    const QModelIndex last = model.index(1, 1);
    model.addFirstForm(sampleOf("x", {"a"}));
    QCOMPARE(model.data(last), QVariant());
    QCOMPARE(model.flags(last), Qt::NoItemFlags);
    QCOMPARE(model.data(QModelIndex()), QVariant());
    QCOMPARE(model.flags(QModelIndex()), Qt::NoItemFlags);
}

void TestInputModeModel::headers_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("text");

    const int display = Qt::DisplayRole;
    QTest::newRow("the item row") << 0 << Qt::Vertical << display << QVariant("Item");
    QTest::newRow("the first example") << 1 << Qt::Vertical << display << QVariant("Ex 1");
    QTest::newRow("the second example") << 2 << Qt::Vertical << display << QVariant("Ex 2");
    QTest::newRow("no further row") << 3 << Qt::Vertical << display << QVariant();
    QTest::newRow("the first column") << 0 << Qt::Horizontal << display << QVariant("A");
    QTest::newRow("column 25") << 25 << Qt::Horizontal << display << QVariant("Z");
    QTest::newRow("column 26") << 26 << Qt::Horizontal << display << QVariant("AA");
    QTest::newRow("column 27") << 27 << Qt::Horizontal << display << QVariant("AB");
    QTest::newRow("no further column") << 28 << Qt::Horizontal << display << QVariant();
    QTest::newRow("no column -1") << -1 << Qt::Horizontal << display << QVariant();
    QTest::newRow("no tip") << 0 << Qt::Horizontal << int(Qt::ToolTipRole) << QVariant();
}

void TestInputModeModel::headers()
{
    QFETCH(int, section);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, role);
    QFETCH(QVariant, text);

    const QString row = QString("x|").repeated(27) + "x";
    const Input model({row, row, row});
    QCOMPARE(model.headerData(section, orientation, role), text);
}

void TestInputModeModel::cellsCanBeSelectedAndDragged()
{
    const Input model({"a", "1"});
    const Qt::ItemFlags expected =
        Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    QCOMPARE(model.flags(model.index(0, 0)), expected);
    QCOMPARE(model.flags(model.index(1, 0)), expected);
}

void TestInputModeModel::drags_data()
{
    QTest::addColumn<Cells>("cells");
    QTest::addColumn<DragItems>("items");

    QTest::newRow("an item") << Cells{{0, 0}} << DragItems{{1, 0, "no"}};
    QTest::newRow("an example drags the item of its column")
        << Cells{{1, 1}} << DragItems{{1, 1, "name"}};
    QTest::newRow("an example that the row is too short for")
        << Cells{{2, 2}} << DragItems{{1, 2, "date"}};
    QTest::newRow("several, in the order of the drag")
        << Cells{{0, 2}, {1, 0}} << DragItems{{1, 2, "date"}, {1, 0, "no"}};
    QTest::newRow("two cells of one column are two items")
        << Cells{{0, 1}, {1, 1}} << DragItems{{1, 1, "name"}, {1, 1, "name"}};
}

void TestInputModeModel::drags()
{
    QFETCH(Cells, cells);
    QFETCH(DragItems, items);

    const Input model({"no|name|date", "1|Kim|May", "2"});
    QModelIndexList indexes;
    for (const auto &cell : cells)
        indexes.append(model.index(cell.first, cell.second));
    const std::unique_ptr<QMimeData> data(model.mimeData(indexes));
    QVERIFY(data);
    QCOMPARE(data->formats(), model.mimeTypes());
    QCOMPARE(model.mimeTypes(), QStringList{"application/x-qabstractitemmodeldatalist"});
    QCOMPARE(decodeDragItems(*data), items);
}

void TestInputModeModel::nothingCanBeDropped()
{
    Input model({"no|name", "1|Kim"});
    QCOMPARE(model.supportedDragActions(), Qt::DropActions(Qt::CopyAction));
    QCOMPARE(model.supportedDropActions(), Qt::DropActions(Qt::IgnoreAction));
    QCOMPARE(model.mimeData({}), nullptr);
    const std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0)}));
    for (const QModelIndex &parent : {QModelIndex(), model.index(0, 1)})
        QCOMPARE(model.canDropMimeData(data.get(), Qt::CopyAction, -1, -1, parent), false);
}

void TestInputModeModel::clear()
{
    Input model({"a|b", "1|2"});
    model.clear();
    QCOMPARE(model.takeLog(), QStringList{"reset"});
    QVERIFY(model.isEmpty());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.formTexts(), QStringList());
    QCOMPARE(model.firstItemOfForm(0), QModelIndex());
}

void TestInputModeModel::removeRows_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("text");
    QTest::addColumn<QStringList>("log");

    const QStringList all{"a|b", "1|2", "3|"};
    QTest::newRow("the first example")
        << 1 << 1 << QStringList{"a|b", "3|"} << QStringList{"rows removed 1-1"};
    QTest::newRow("the last example")
        << 2 << 1 << QStringList{"a|b", "1|2"} << QStringList{"rows removed 2-2"};
    QTest::newRow("both examples")
        << 1 << 2 << QStringList{"a|b"} << QStringList{"rows removed 1-2"};
    QTest::newRow("the item row: the next one takes its place")
        << 0 << 1 << QStringList{"1|2", "3|"} << QStringList{"reset"};
    QTest::newRow("up to a shorter row") << 0 << 2 << QStringList{"3"} << QStringList{"reset"};
    QTest::newRow("all rows") << 0 << 3 << QStringList() << QStringList{"reset"};
    QTest::newRow("more than there are") << 1 << 3 << all << QStringList();
    QTest::newRow("behind the last") << 3 << 1 << all << QStringList();
    QTest::newRow("none") << 1 << 0 << all << QStringList();
    QTest::newRow("fewer than none") << 1 << -1 << all << QStringList();
    QTest::newRow("before the first") << -1 << 1 << all << QStringList();
    QTest::newRow("the highest numbers") << INT_MAX << INT_MAX << all << QStringList();
    QTest::newRow("as many as can be counted") << 1 << INT_MAX << all << QStringList();
}

void TestInputModeModel::removeRows()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(QStringList, text);
    QFETCH(QStringList, log);

    Input model({"a|b", "1|2", "3"});
    QCOMPARE(model.removeRows(row, count, model.index(0, 0)), false);
    QCOMPARE(model.removeRows(row, count), !log.isEmpty());
    QCOMPARE(model.takeLog(), log);
    QCOMPARE(model.text(), text);
}

void TestInputModeModel::isTheSameAfterSaveAndLoad()
{
    const WorkingFolder folder;
    Input saved({"주문번호|이름|날짜", "1|Kim, \"A\"|", "2|Lee|;=\\n"});
    QVERIFY(saved.join("items", {"thing|no|count", "cup|1|2", "tea|2|3"}, 0, 1));
    saved.takeLog();
    saved.save("설정 A");
    QCOMPARE(saved.takeLog(), QStringList());

    Input loaded;
    loaded.load("설정 A");
    QCOMPARE(loaded.takeLog(), QStringList{"reset"});
    QCOMPARE(loaded.text(), saved.text());
    QCOMPARE(loaded.formTexts(), saved.formTexts());
    QCOMPARE(loaded.forms(), saved.forms());
    QCOMPARE(loaded.firstItemOfForm(1), loaded.index(0, 3));

    InputSetting expected;
    expected.heads = QStringList{"주문번호", "이름", "날짜", "thing", "count"};
    expected.ex1 = QStringList{"1", "Kim, \"A\"", "", "cup", "2"};
    expected.ex2 = QStringList{"2", "Lee", ";=\\n", "tea", "3"};
    expected.files = {{"first", {"주문번호", "이름", "날짜"}, -1, -1},
                      {"items", {"thing", "no", "count"}, 0, 1}};
    QVERIFY(loadInputSetting("설정 A") == expected);
}

void TestInputModeModel::examplesThatAreLoaded_data()
{
    QTest::addColumn<QStringList>("ex1");
    QTest::addColumn<QStringList>("ex2");
    QTest::addColumn<QStringList>("text");

    QTest::newRow("both") << QStringList{"1", "2"} << QStringList{"3", "4"}
                          << QStringList{"a|b", "1|2", "3|4"};
    QTest::newRow("none") << QStringList() << QStringList() << QStringList{"a|b"};
    QTest::newRow("only the first")
        << QStringList{"1", "2"} << QStringList() << QStringList{"a|b", "1|2"};
    QTest::newRow("only the second, which becomes row 1")
        << QStringList() << QStringList{"3", "4"} << QStringList{"a|b", "3|4"};
    QTest::newRow("a shorter one")
        << QStringList{"1"} << QStringList{"3", "4"} << QStringList{"a|b", "1|", "3|4"};
    QTest::newRow("an empty text is not an empty list")
        << QStringList{"", ""} << QStringList() << QStringList{"a|b", "|"};
}

void TestInputModeModel::examplesThatAreLoaded()
{
    QFETCH(QStringList, ex1);
    QFETCH(QStringList, ex2);
    QFETCH(QStringList, text);

    const WorkingFolder folder;
    InputSetting stored;
    stored.heads = QStringList{"a", "b"};
    stored.ex1 = ex1;
    stored.ex2 = ex2;
    saveInputSetting("A", stored);
    Input model;
    model.load("A");
    QCOMPARE(model.text(), text);
}

void TestInputModeModel::onlyTwoExamplesAreSaved()
{
    const WorkingFolder folder;
    Input model({"no|name", "1|Kim", "1|Lee"});
    QVERIFY(model.join("items", {"no|thing", "1|cup", "1|tea"}, 0, 0));
    QCOMPARE(model.rowCount(), 5);
    QCOMPARE(model.headerData(4, Qt::Vertical), QVariant("Ex 4"));
    model.save("A");
    Input loaded;
    loaded.load("A");
    QCOMPARE(loaded.text(), (QStringList{"no|name|thing", "1|Kim|cup", "1|Kim|tea"}));
}

void TestInputModeModel::anEmptyModelIsSavedAndLoaded()
{
    const WorkingFolder folder;
    Input().save("A");
    InputSetting stored = loadInputSetting("A");
    QVERIFY(stored == InputSetting());

    for (const char *name : {"A", "nobody"}) {
        Input model({"a|b", "1|2"});
        model.load(name);
        QVERIFY(model.isEmpty());
        QCOMPARE(model.columnCount(), 0);
        QCOMPARE(model.formTexts(), QStringList());
        model.addFirstForm(sampleOf("x", {"a", "1"}));
        QCOMPARE(model.text(), (QStringList{"a", "1"}));
    }
}

void TestInputModeModel::loadReplacesWhatWasThere()
{
    const WorkingFolder folder;
    Input({"x"}).save("A");
    Input model({"a|b", "1|2", "3|4"});
    QVERIFY(model.join("items", {"a|c", "1|5"}, 0, 0));
    model.load("A");
    QCOMPARE(model.text(), QStringList{"x"});
    QCOMPARE(model.formTexts(), QStringList{"first: x (-1,-1)"});
    model.save("A");
    QCOMPARE(loadInputSetting("A").ex1, QStringList());
}

void TestInputModeModel::damagedSettingsAreSafe()
{
    const WorkingFolder folder;
    folder.write("quorinConverter.dat",
                 "[SettingInfo]\n"
                 "A\\input\\ex1=1, 2, 3, 4\n"
                 "A\\input\\files\\1\\heads=a, b\n"
                 "A\\input\\files\\2\\heads=c, d\n"
                 "A\\input\\files\\2\\key=-2000000000\n"
                 "A\\input\\files\\3\\heads=e\n"
                 "A\\input\\files\\3\\key=2000000000\n"
                 "A\\input\\files\\size=3\n");
    Input model;
    model.load("A");
    QVERIFY(model.isEmpty());
    QCOMPARE(model.rowCount(), 2);
    for (int form = -1; form < 5; ++form)
        QCOMPARE(model.firstItemOfForm(form), QModelIndex());
    QCOMPARE(model.findKeyPair({"1"}).key, -1);
    QVERIFY(model.join("x", {"a|b", "1|2"}, 0, 0));
    QCOMPARE(model.text().first(), QString("b"));
}

QTEST_GUILESS_MAIN(TestInputModeModel)
#include "tst_inputmodemodel.moc"
