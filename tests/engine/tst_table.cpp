// The input table: its operations by name, then random joins against the plain nested loops over
// string lists that define what a join is.
#include "engine/table.h"
#include "tests/engine/tabletext.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

using Rows = QList<QStringList>;

// The table as a list of string lists, each operation as it is told.
struct PlainTable {
    Rows rows;

    static QString value(const QStringList &row, int column) { return row.value(column); }

    static QStringList without(QStringList row, int column)
    {
        if (column >= 0 && column < row.size())
            row.removeAt(column);
        return row;
    }

    void appendDataRows(const Rows &more)
    {
        if (!rows.isEmpty())
            rows += more.mid(1);
    }

    bool join(const Rows &file, int tableColumn, int fileColumn)
    {
        if (rows.isEmpty() || tableColumn > rows.first().size()
            || fileColumn > file.value(0).size())
            return false;
        rows[0] += without(file.value(0), fileColumn);
        for (int r = 1; r < rows.size(); ++r) {
            int matches = 0;
            for (const QStringList &fileRow : file.mid(1)) {
                if (value(rows.at(r), tableColumn) == value(fileRow, fileColumn)) {
                    ++matches;
                    rows.insert(r + matches, rows.at(r) + without(fileRow, fileColumn));
                }
            }
            if (matches > 0) {
                rows.removeAt(r);
                r += matches - 1;
            }
        }
        return true;
    }

    void removeRows(int row, int count)
    {
        for (int i = 0; i < count; ++i) {
            if (row >= 0 && row < rows.size())
                rows.removeAt(row);
        }
    }
};

Rows randomRows(QRandomGenerator &random, int maximumRows, bool ragged)
{
    static const QStringList texts = {"",  "",  "a", "b", "A",  "aa", "한", "\n",
                                      " ", "1", "0", ",", "a ", "é",  "|",  "\\"};
    const int keyCount = 2 + random.bounded(texts.size() - 1);
    const int columns = 1 + random.bounded(4);
    Rows rows;
    const int count = 1 + random.bounded(maximumRows);
    for (int row = 0; row < count; ++row) {
        const int length = ragged && random.bounded(3) == 0 ? random.bounded(6) : columns;
        QStringList fields;
        for (int column = 0; column < length; ++column)
            fields.append(row == 0 ? QStringLiteral("h%1").arg(random.bounded(100))
                                   : texts.at(random.bounded(keyCount)));
        rows.append(fields);
    }
    return rows;
}

QStringList comparable(const Table &table)
{
    QStringList lines = tableLines(table);
    lines.prepend(
        QStringLiteral("%1 rows, %2 columns").arg(table.rowCount()).arg(table.columnCount()));
    return lines;
}

QStringList comparable(const PlainTable &table)
{
    QStringList lines = tableLines(table.rows);
    lines.prepend(QStringLiteral("%1 rows, %2 columns")
                      .arg(table.rows.size())
                      .arg(table.rows.value(0).size()));
    return lines;
}

} // namespace

class TestTable : public QObject
{
    Q_OBJECT

private slots:
    void newTableIsEmpty();
    void setRowsReplacesEverything();
    void rowsOfAnyTextsAndLengths();
    void appendsDataRows();
    void removesRows_data();
    void removesRows();
    void joins_data();
    void joins();
    void joinAfterAnUnjoinedRow();
    void appendsBehindJoinedRows();
    void joinTellsWhetherItJoined_data();
    void joinTellsWhetherItJoined();
    void valuesBeyondTheTableAreEmpty();
    void cursorMovesOverJoinedRows();
    void copyIsIndependent();
    void randomOperationsAsThePlainLoops_data();
    void randomOperationsAsThePlainLoops();
    void greatJoin();
};

void TestTable::newTableIsEmpty()
{
    Table table;
    QVERIFY(table.isEmpty());
    QCOMPARE(comparable(table), QStringList("0 rows, 0 columns"));
    QCOMPARE(table.rowTexts(0), QStringList());

    table.appendDataRows(TextRows(rowsOf("a,b 1,2")));
    QVERIFY(table.isEmpty());
    QVERIFY(!table.join(TextRows(rowsOf("a,b 1,2")), 0, 0));
    QVERIFY(table.isEmpty());
    table.removeRows(0, 5);
    QVERIFY(table.isEmpty());

    table.setRows(TextRows());
    QVERIFY(table.isEmpty());
    table.setRows(TextRows(rowsOf("a,b")));
    QVERIFY(!table.isEmpty()); // a heading row alone is something
    table.clear();
    QVERIFY(table.isEmpty());
    QCOMPARE(comparable(table), QStringList("0 rows, 0 columns"));
}

void TestTable::setRowsReplacesEverything()
{
    Table table;
    table.setRows(TextRows(rowsOf("a,b 1,2 3,4")));
    table.join(TextRows(rowsOf("a,c 1,x")), 0, 0);
    table.setRows(TextRows(rowsOf("d 5")));
    QCOMPARE(comparable(table), (QStringList{"2 rows, 1 columns", "|d|", "|5|"}));
}

void TestTable::rowsOfAnyTextsAndLengths()
{
    const Rows rows = {{"a,b", "", "\n"},
                       {},
                       {""},
                       {QString(QChar(0)), QString(QChar(0xFFFF)), "😀", "더"},
                       {",", ",,", "\"x\""}};
    Table table;
    table.setRows(TextRows(rows));
    QCOMPARE(table.columnCount(), 3);
    for (int row = 0; row < rows.size(); ++row)
        QCOMPARE(table.rowTexts(row), rows.at(row));
    table.setRows(TextRows(Rows{{}, {"1"}}));
    QCOMPARE(comparable(table), (QStringList{"2 rows, 0 columns", "|", "|1|"}));
}

void TestTable::appendsDataRows()
{
    Table table;
    table.setRows(TextRows(rowsOf("a,b 1,2")));
    table.appendDataRows(TextRows(rowsOf("x,y 3,4 5,6")));
    table.appendDataRows(TextRows(rowsOf("a,b")));
    table.appendDataRows(TextRows());
    table.appendDataRows(TextRows(rowsOf("a,b 7,8")));
    QCOMPARE(comparable(table),
             (QStringList{"5 rows, 2 columns", "|a|b|", "|1|2|", "|3|4|", "|5|6|", "|7|8|"}));
}

void TestTable::removesRows_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("left");

    QTest::newRow("first data row") << 1 << 1 << "0 2 3";
    QTest::newRow("several") << 1 << 2 << "0 3";
    QTest::newRow("last row") << 3 << 1 << "0 1 2";
    QTest::newRow("heading row: the next row takes its place") << 0 << 1 << "1 2 3";
    QTest::newRow("none") << 1 << 0 << "0 1 2 3";
    QTest::newRow("negative count") << 1 << -1 << "0 1 2 3";
    QTest::newRow("beyond the end") << 2 << 100 << "0 1";
    QTest::newRow("greatest count") << 2 << std::numeric_limits<int>::max() << "0 1";
    QTest::newRow("behind the last row") << 4 << 1 << "0 1 2 3";
    QTest::newRow("all") << 0 << 4 << "";
}

void TestTable::removesRows()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(QString, left);
    for (const bool joined : {false, true}) {
        Table table;
        table.setRows(TextRows(rowsOf("0 1 2 3")));
        if (joined)
            QVERIFY(table.join(TextRows(rowsOf("x")), 0, 0));
        table.removeRows(row, count);
        QCOMPARE(tableLines(table), left.isEmpty() ? QStringList() : tableLines(rowsOf(left)));
        QCOMPARE(table.isEmpty(), left.isEmpty());
        QCOMPARE(table.columnCount(), left.isEmpty() ? 0 : 1);
    }
}

void TestTable::joins_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("tableColumn");
    QTest::addColumn<int>("fileColumn");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("one partner") << "no,name 1,Kim 2,Lee"
                                 << "no,item 2,pen 1,cup" << 0 << 0
                                 << QStringList{"|no|name|item|", "|1|Kim|cup|", "|2|Lee|pen|"};
    QTest::newRow("two partners make two rows in the file's order")
        << "no,name 1,Kim 2,Lee"
        << "no,item 1,pen 2,cup 1,ink" << 0 << 0
        << QStringList{"|no|name|item|", "|1|Kim|pen|", "|1|Kim|ink|", "|2|Lee|cup|"};
    QTest::newRow("no partner leaves a shorter row")
        << "no,name 1,Kim 2,Lee"
        << "no,item 2,pen" << 0 << 0 << QStringList{"|no|name|item|", "|1|Kim|", "|2|Lee|pen|"};
    QTest::newRow("file row without a partner is dropped")
        << "no,name 1,Kim"
        << "no,item 1,pen 9,cup" << 0 << 0 << QStringList{"|no|name|item|", "|1|Kim|pen|"};
    QTest::newRow("equal keys on both sides multiply")
        << "no,name 1,Kim 1,Lee"
        << "no,item 1,pen 1,cup" << 0 << 0
        << QStringList{"|no|name|item|", "|1|Kim|pen|", "|1|Kim|cup|", "|1|Lee|pen|",
                       "|1|Lee|cup|"};
    QTest::newRow("keys are compared with their case")
        << "no,name a,Kim"
        << "no,item A,pen" << 0 << 0 << QStringList{"|no|name|item|", "|a|Kim|"};
    QTest::newRow("keys are compared as texts")
        << "no,name 1,Kim"
        << "no,item 01,pen" << 0 << 0 << QStringList{"|no|name|item|", "|1|Kim|"};
    QTest::newRow("empty keys are equal keys")
        << "no,name ,Kim"
        << "no,item ,pen" << 0 << 0 << QStringList{"|no|name|item|", "||Kim|pen|"};
    QTest::newRow("columns at different places: the file column goes")
        << "a,b,no x,y,1"
        << "no,item 1,pen" << 2 << 0 << QStringList{"|a|b|no|item|", "|x|y|1|pen|"};
    QTest::newRow("last column of the file")
        << "no,name 1,Kim"
        << "item,no pen,1" << 0 << 1 << QStringList{"|no|name|item|", "|1|Kim|pen|"};
    QTest::newRow("file with the key alone")
        << "no,name 1,Kim 2,Lee"
        << "no 1 1" << 0 << 0 << QStringList{"|no|name|", "|1|Kim|", "|1|Kim|", "|2|Lee|"};
    QTest::newRow("no data rows in the file")
        << "no,name 1,Kim"
        << "no,item" << 0 << 0 << QStringList{"|no|name|item|", "|1|Kim|"};
    QTest::newRow("no data rows in the table")
        << "no,name"
        << "no,item 1,pen" << 0 << 0 << QStringList{"|no|name|item|"};
    QTest::newRow("column behind the last reads as empty on both sides: all rows are partners")
        << "a 1 2"
        << "b x y" << 1 << 1 << QStringList{"|a|b|", "|1|x|", "|1|y|", "|2|x|", "|2|y|"};
    QTest::newRow("negative columns read as empty and nothing is dropped")
        << "a 1"
        << "b,c x,y" << -1 << -1 << QStringList{"|a|b|c|", "|1|x|y|"};
    QTest::newRow("empty column of the table finds the file's empty keys")
        << "a 1"
        << "b,c x,y ,z" << -5 << 0 << QStringList{"|a|c|", "|1|z|"};
}

void TestTable::joins()
{
    QFETCH(QString, rows);
    QFETCH(QString, file);
    QFETCH(int, tableColumn);
    QFETCH(int, fileColumn);
    QFETCH(QStringList, lines);
    Table table;
    table.setRows(TextRows(rowsOf(rows)));
    QVERIFY(table.join(TextRows(rowsOf(file)), tableColumn, fileColumn));
    QCOMPARE(tableLines(table), lines);
    QCOMPARE(table.columnCount(), table.rowTexts(0).size());

    PlainTable plain{rowsOf(rows)};
    QVERIFY(plain.join(rowsOf(file), tableColumn, fileColumn));
    QCOMPARE(tableLines(plain.rows), lines);
}

// A row that found no partner is short; the columns of a later file follow directly, further to the
// left than their headings.
void TestTable::joinAfterAnUnjoinedRow()
{
    Table table;
    table.setRows(TextRows(rowsOf("no,name 1,Kim 2,Lee")));
    QVERIFY(table.join(TextRows(rowsOf("no,item 2,pen")), 0, 0));
    QVERIFY(table.join(TextRows(rowsOf("no,paid 1,100 2,200")), 0, 0));
    QCOMPARE(tableLines(table),
             (QStringList{"|no|name|item|paid|", "|1|Kim|100|", "|2|Lee|pen|200|"}));
    // Column 2 of the first row is now the payment: it is what a third join compares.
    QVERIFY(table.join(TextRows(rowsOf("key,note 100,found pen,found-too")), 2, 0));
    QCOMPARE(tableLines(table),
             (QStringList{"|no|name|item|paid|note|", "|1|Kim|100|found|",
                          "|2|Lee|pen|200|found-too|"}));
}

void TestTable::appendsBehindJoinedRows()
{
    Table table;
    table.setRows(TextRows(rowsOf("no,name 1,Kim")));
    QVERIFY(table.join(TextRows(rowsOf("no,item 1,pen")), 0, 0));
    table.appendDataRows(TextRows(rowsOf("no,name 1,Lee 2,Han")));
    QCOMPARE(tableLines(table),
             (QStringList{"|no|name|item|", "|1|Kim|pen|", "|1|Lee|", "|2|Han|"}));
    QVERIFY(table.join(TextRows(rowsOf("no,paid 2,200 1,100")), 0, 0));
    QCOMPARE(tableLines(table),
             (QStringList{"|no|name|item|paid|", "|1|Kim|pen|100|", "|1|Lee|100|", "|2|Han|200|"}));
}

void TestTable::joinTellsWhetherItJoined_data()
{
    QTest::addColumn<int>("tableColumn");
    QTest::addColumn<int>("fileColumn");
    QTest::addColumn<bool>("joins");

    const int greatest = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    QTest::newRow("last columns") << 1 << 2 << true;
    QTest::newRow("columns behind the last ones are let through") << 2 << 3 << true;
    QTest::newRow("table column too far") << 3 << 0 << false;
    QTest::newRow("file column too far") << 0 << 4 << false;
    QTest::newRow("greatest table column") << greatest << 0 << false;
    QTest::newRow("greatest file column") << 0 << greatest << false;
    QTest::newRow("negative columns are let through") << -1 << -1 << true;
    QTest::newRow("least columns are let through") << least << least << true;
}

void TestTable::joinTellsWhetherItJoined()
{
    QFETCH(int, tableColumn);
    QFETCH(int, fileColumn);
    QFETCH(bool, joins);
    Table table;
    table.setRows(TextRows(rowsOf("a,b 1,2")));
    const QStringList before = comparable(table);
    QCOMPARE(table.join(TextRows(rowsOf("c,d,e x,y,z")), tableColumn, fileColumn), joins);
    if (!joins)
        QCOMPARE(comparable(table), before);
    else
        QVERIFY(comparable(table) != before); // the headings at least
}

void TestTable::valuesBeyondTheTableAreEmpty()
{
    Table table;
    table.setRows(TextRows(rowsOf("no,name 1,Kim 2,Lee")));
    QVERIFY(table.join(TextRows(rowsOf("no,item 2,pen")), 0, 0));
    const int greatest = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    for (const int column : {2, 3, 100, -1, greatest, least})
        QVERIFY(table.value(1, column).isEmpty());
    for (const int row : {3, -1, greatest, least}) {
        QVERIFY(table.value(row, 0).isEmpty());
        QCOMPARE(table.rowTexts(row), QStringList());
    }
    QCOMPARE(table.row(1).fieldCount(), 2);
    QVERIFY(table.row(1).value(2).isEmpty());
    QVERIFY(table.row(1).value(-1).isEmpty());
    QCOMPARE(table.row(2).fieldCount(), 3);
    QCOMPARE(table.row(2).value(2).toString(), QString("pen"));
}

// Reading in any order, with one cursor, gives what reading row by row gives.
void TestTable::cursorMovesOverJoinedRows()
{
    Table table;
    table.setRows(TextRows(rowsOf("no,name 1,Kim 2,Lee 3,Han")));
    QVERIFY(table.join(TextRows(rowsOf("no,item 1,pen 1,cup 3,ink")), 0, 0));
    QVERIFY(table.join(TextRows(rowsOf("no,paid 1,100 2,200 1,150")), 0, 0));
    QRandomGenerator random(1);
    Table::Row cursor = table.row(0);
    for (int i = 0; i < 2000; ++i) {
        const int row = random.bounded(table.rowCount());
        cursor.moveTo(row);
        if (random.bounded(2) == 0)
            QCOMPARE(cursor.fieldCount(), table.rowTexts(row).size());
        const int column = random.bounded(-2, 7);
        QCOMPARE(cursor.value(column).toString(), table.rowTexts(row).value(column));
    }
}

void TestTable::copyIsIndependent()
{
    Table table;
    table.setRows(TextRows(rowsOf("no,name 1,Kim")));
    const Table copy = table;
    table.join(TextRows(rowsOf("no,item 1,pen")), 0, 0);
    table.removeRows(1, 1);
    QCOMPARE(tableLines(copy), (QStringList{"|no|name|", "|1|Kim|"}));
    table = copy;
    QCOMPARE(tableLines(table), (QStringList{"|no|name|", "|1|Kim|"}));
}

void TestTable::randomOperationsAsThePlainLoops_data()
{
    QTest::addColumn<bool>("ragged");
    QTest::addColumn<int>("seed");

    QTest::newRow("rows as long as the heading row") << false << 1;
    QTest::newRow("rows of any length") << true << 2;
}

void TestTable::randomOperationsAsThePlainLoops()
{
    QFETCH(bool, ragged);
    QFETCH(int, seed);
    QRandomGenerator random{quint32(seed)};
    for (int round = 0; round < 3000; ++round) {
        Table table;
        PlainTable plain;
        plain.rows = randomRows(random, 5, ragged);
        table.setRows(TextRows(plain.rows));
        QStringList history = {"set " + tableLines(plain.rows).join(' ')};
        const int operations = 1 + random.bounded(5);
        for (int i = 0; i < operations && plain.rows.size() < 200; ++i) {
            const Rows rows = randomRows(random, 5, ragged);
            const int tableColumn = random.bounded(-2, plain.rows.value(0).size() + 3);
            const int fileColumn = random.bounded(-2, rows.first().size() + 3);
            const int kind = random.bounded(6);
            if (kind == 0) {
                history += "append " + tableLines(rows).join(' ');
                plain.appendDataRows(rows);
                table.appendDataRows(TextRows(rows));
            } else if (kind == 1) {
                const int row = random.bounded(plain.rows.size() + 2);
                const int count = random.bounded(3);
                history += QStringLiteral("remove %1 from %2").arg(count).arg(row);
                plain.removeRows(row, count);
                table.removeRows(row, count);
            } else {
                history += QStringLiteral("join %1 %2 %3")
                               .arg(tableLines(rows).join(' '))
                               .arg(tableColumn)
                               .arg(fileColumn);
                QCOMPARE(table.join(TextRows(rows), tableColumn, fileColumn),
                         plain.join(rows, tableColumn, fileColumn));
            }
            if (comparable(table) != comparable(plain))
                qWarning("%s", qPrintable(history.join('\n')));
            QCOMPARE(comparable(table), comparable(plain));
            QCOMPARE(table.isEmpty(), plain.rows.isEmpty());
        }
    }
}

// The joined rows must come in the order of the table even where a hash table grows several times.
void TestTable::greatJoin()
{
    const int orders = 30000;
    Rows left = {{"no", "name"}};
    Rows right = {{"item", "no"}};
    QStringList expected = {"|no|name|item|"};
    for (int order = 0; order < orders; ++order) {
        const QString number = QString::number(order);
        left.append({number, "n" + number});
        for (int item = 0; item < order % 3; ++item) {
            right.append({"i" + QString::number(item), number});
            expected.append(rowLine({number, "n" + number, "i" + QString::number(item)}));
        }
        if (order % 3 == 0)
            expected.append(rowLine({number, "n" + number}));
    }
    Table table;
    table.setRows(TextRows(left));
    QVERIFY(table.join(TextRows(right), 0, 1));
    QCOMPARE(tableLines(table), expected);
}

QTEST_GUILESS_MAIN(TestTable)

#include "tst_table.moc"
