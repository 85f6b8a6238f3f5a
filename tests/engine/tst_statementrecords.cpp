// The statement records of a run: what stands in the record of a row, and what is left when rows
// are merged. First by name, then on random settings against a plain loop that keeps a list of
// records beside the list of rows and removes from both.
#include "engine/outputrows.h"
#include "engine/statementrecords.h"
#include "tests/engine/outputoracle.h"
#include "tests/engine/randomitems.h"
#include "tests/engine/recordtext.h"
#include "tests/engine/tabletext.h"
#include "tests/engine/testitems.h"

#include <QtTest>

namespace {

using namespace StatementFields;
using Rows = QList<QStringList>;

// A printed field that takes these columns of the input row.
StatementField from(const QList<int> &columns, const QString &separator = QString(),
                    const QStringList &rules = {})
{
    StatementField field;
    field.toPrint = true;
    for (const int column : columns) {
        field.mapNums.append(column);
        field.mappings.append("column");
    }
    field.separator = separator;
    field.rules = rules;
    return field;
}

StatementField unprinted(StatementField field)
{
    field.toPrint = false;
    return field;
}

struct PlacedField {
    Field place;
    StatementField field;
};

StatementSetting settingOf(const QList<PlacedField> &fields)
{
    StatementSetting setting;
    setting.generate = true;
    for (const PlacedField &placed : fields)
        setting.fields[placed.place] = placed.field;
    return setting;
}

StatementData recordsOf(const StatementSetting &setting, const Table &table,
                        const QList<OutputItem> &items)
{
    OutputRows rows(table, items, CompanyInfo());
    for (int row = 1; row < table.rowCount(); ++row)
        rows.appendNext();
    rows.removeDuplicatesAndMerge();
    return buildStatementRecords(setting, table, rows);
}

StatementTexts textsOf(const StatementSetting &setting, const QStringList &inputRow)
{
    StatementTexts texts;
    for (int i = 0; i < Count; ++i) {
        const StatementField &field = setting.fields[size_t(i)];
        if (!field.toPrint)
            continue;
        QStringList values;
        for (const int column : field.mapNums)
            values.append(inputRow.value(column));
        QString value = values.join(field.separator);
        for (const QString &rule : field.rules)
            value = applyRule(rule, value);
        texts[size_t(i)] = value;
    }
    return texts;
}

StatementData oracleRecords(const StatementSetting &setting, const Table &table,
                            const QList<OutputItem> &items)
{
    Rows rows;
    StatementData data(setting);
    for (int row = 1; row < table.rowCount(); ++row) {
        const QStringList inputRow = table.rowTexts(row);
        rows.append(OutputOracle::buildOutputRow(items, inputRow, CompanyInfo()));
        data.addRecord(textsOf(setting, inputRow));
    }
    int n = 0;
    for (const OutputItem &item : items) {
        if (item.distinct == "YES")
            ++n;
    }
    for (int i = 0; n > 0 && i < rows.size(); ++i) {
        for (int j = i + 1; j < rows.size();) {
            if (rows.at(i).mid(0, n) == rows.at(j).mid(0, n)) {
                rows.removeAt(j);
                data.mergeRecords(i, j);
            } else {
                ++j;
            }
        }
    }
    data.computeAmounts();
    return data;
}

} // namespace

Q_DECLARE_METATYPE(OutputItem)
Q_DECLARE_METATYPE(StatementSetting)

class TestStatementRecords : public QObject
{
    Q_OBJECT

private slots:
    void recordOfARow_data();
    void recordOfARow();
    void everyField();
    void unprintedFields();
    void joinedRows();
    void companyIsNoSource();
    void takesThePrintFlags();

    void mergedRows_data();
    void mergedRows();
    void withoutDataRows();
    void rowsBeforeTheRemoval();

    void randomSettingsAsTheOracle_data();
    void randomSettingsAsTheOracle();
    void manyRows_data();
    void manyRows();
};

// --- one record -------------------------------------------------------------------------------

void TestStatementRecords::recordOfARow_data()
{
    QTest::addColumn<StatementSetting>("setting");
    QTest::addColumn<QString>("record");

    // The input row is: "Kim", "Min", "1,500", "", " 7 "
    const auto row = [](const char *name, const QList<PlacedField> &fields, const QString &record) {
        QTest::newRow(name) << settingOf(fields) << record;
    };
    row("no field", {}, "");
    row("one column", {{Name, from({0})}}, "name|Kim|");
    row("several columns with a separator", {{Name, from({1, 0}, ", ")}}, "name|Min, Kim|");
    row("several columns without a separator", {{Name, from({0, 1})}}, "name|KimMin|");
    row("the same column twice", {{Name, from({0, 0}, "/")}}, "name|Kim/Kim|");
    row("empty values keep their separators", {{Name, from({3, 0, 3}, "-")}}, "name|-Kim-|");
    row("separator is a line break", {{Address, from({0, 1}, "\n")}}, "address|Kim\\nMin|");
    row("one column with a separator", {{Name, from({0}, "-")}}, "name|Kim|");
    row("no column with a separator", {{Name, from({}, "-")}}, "");
    row("column beyond the row", {{Name, from({5})}}, "");
    row("column far beyond the row", {{Name, from({std::numeric_limits<int>::max()})}}, "");
    row("negative column", {{Name, from({-1})}}, "");
    row("most negative column", {{Name, from({std::numeric_limits<int>::min()})}}, "");
    row("column beyond the row counts as a value", {{Name, from({0, 99, -5, 1}, "-")}},
        "name|Kim---Min|");
    row("blanks of a text stay", {{Name, from({4})}}, "name| 7 |");

    row("rules in their order", {{Name, from({0}, "", {"append(!)", "prepend(>)", "left(3)"})}},
        "name|>Ki|");
    row("rules work on the joined value", {{Name, from({0, 1}, " ", {"right(5)"})}}, "name|m Min|");
    row("rules without a column", {{Name, from({}, "", {"append(x)"})}}, "name|x|");
    row("unknown rules", {{Name, from({0}, "", {"curRight(1)", "", "LEFT(1)"})}}, "name|Kim|");
    row("rules of a product text", {{ProductName, from({0}, "", {"charType(upperCase)"})}},
        "productName|KIM|");
    // Only a file that was edited by hand has these; it means what it says.
    row("rules of a number come before it is read", {{Quantity, from({2}, "", {"cutLeft(2)"})}},
        "quantity|500|");
    row("rules of an amount come before it is read", {{Tax, from({2}, "", {"cutLeft(2)"})}},
        "tax|500|");
    row("rules of an amount in their order", {{Tax, from({4}, "", {"trim", "append(00)"})}},
        "tax|700|");
    row("rules make an amount out of nothing", {{Tax, from({3}, "", {"append(9)"})}}, "tax|9|");

    row("amount with a thousands separator reads as 0", {{Tax, from({2})}}, "");
    row("amount of letters reads as 0", {{Tax, from({0})}}, "");
    row("number of letters reads as 0 and is one line", {{Quantity, from({0})}}, "quantity|0|");
    row("number of an empty text is one line", {{Quantity, from({3})}}, "quantity|0|");
    row("empty product text is one line", {{ProductName, from({3})}}, "productName||");
    row("product column beyond the row is one line",
        {{ProductName, from({9})}, {UnitPrice, from({9})}}, "productName|| unitPrice|0|");
    row("product field without a column is one line", {{Option, from({})}}, "option||");
    row("amount of several columns", {{Tax, from({3, 4, 3})}}, "tax|7|");
    row("amount of several columns that make no number", {{Tax, from({4, 4}, ",")}}, "");

    StatementField fewShown = from({0, 1}, " ");
    fewShown.mappings = QStringList{"column"};
    row("fewer shown texts than columns", {{Name, fewShown}}, "name|Kim Min|");
    StatementField noneShown = from({0});
    noneShown.mappings.clear();
    row("no shown texts", {{Name, noneShown}}, "name|Kim|");
    StatementField manyShown = from({0});
    manyShown.mappings += QStringList{"column", "column"};
    row("more shown texts than columns", {{Name, manyShown}}, "name|Kim|");
}

void TestStatementRecords::recordOfARow()
{
    QFETCH(StatementSetting, setting);
    QFETCH(QString, record);
    const Table table = tableOf({{"Kim", "Min", "1,500", "", " 7 "}});
    QCOMPARE(recordLines(recordsOf(setting, table, {columns({0})})), QStringList(record));
    QCOMPARE(recordLines(oracleRecords(setting, table, {columns({0})})), QStringList(record));
}

void TestStatementRecords::everyField()
{
    QStringList heading;
    QStringList row;
    StatementSetting setting;
    for (int i = 0; i < Count; ++i) {
        heading.append(key(i));
        row.append(QString::number(100 + i));
        setting.fields[size_t(i)] = from({i});
    }
    Table table;
    table.setRows(TextRows(Rows{heading, row}));
    QCOMPARE(recordLines(recordsOf(setting, table, {})),
             QStringList("name|100| address|101| postCode|102| orderNumber|103| orderDate|104| "
                         "productName|105| productNumber|106| option|107| "
                         "quantity|108| unitPrice|109| subtotal|110| "
                         "sum|111| tax|112| shippingCharge|113| codCharge|114| "
                         "totalSum|115| coupon|116| point|117| payment|118|"));
}

void TestStatementRecords::unprintedFields()
{
    StatementSetting setting;
    for (int i = 0; i < Count; ++i)
        setting.fields[size_t(i)] = unprinted(from({0}, "-", {"append(1)"}));
    const Table table = tableOf({{"5"}});
    const StatementData data = recordsOf(setting, table, {columns({0})});
    QCOMPARE(data.count(), 1);
    QVERIFY(data.record(0) == StatementRecord());

    // Each alone among the others that are not.
    for (int i = 0; i < Count; ++i) {
        setting.fields[size_t(i)].toPrint = true;
        const QString line = recordLine(recordsOf(setting, table, {columns({0})}).record(0));
        QVERIFY2(line.contains("|51|"), qPrintable(key(i)));
        QCOMPARE(recordLines(oracleRecords(setting, table, {columns({0})})), QStringList(line));
        setting.fields[size_t(i)].toPrint = false;
    }
}

// An order without a partner has a shorter row; what its statement takes from there is empty.
void TestStatementRecords::joinedRows()
{
    Table table;
    table.setRows(TextRows(rowsOf("no,name 1,Kim 2,Lee 3,Park")));
    QVERIFY(table.join(TextRows(rowsOf("no,item,price 1,pen,100 3,cup,200 3,cap,300")), 0, 0));
    const StatementSetting setting = settingOf({{Name, from({1})},
                                                {ProductName, from({2, 0}, "/")},
                                                {UnitPrice, from({3})},
                                                {ShippingCharge, from({3})}});
    QCOMPARE(recordLines(recordsOf(setting, table, {distinct(columns({0}))})),
             (QStringList{
                 "name|Kim| productName|pen/1| unitPrice|100| shippingCharge|100|",
                 "name|Lee| productName|/2| unitPrice|0|",
                 "name|Park| productName|cup/3|cap/3| productNumber|| option|| quantity|0| "
                 "unitPrice|200|300| subtotal|0| shippingCharge|200|",
             }));
}

// A number that means a company field in an output item means a column here.
void TestStatementRecords::companyIsNoSource()
{
    const Table table = tableOf({{"Kim", "Min"}});
    OutputItem item;
    item.appendMapping(CompanySource, CompanyInfo::StoreName, "[store]");
    CompanyInfo company;
    company.fields[CompanyInfo::StoreName] = "the store";
    OutputRows rows(table, {item}, company);
    rows.appendNext();
    const StatementData data =
        buildStatementRecords(settingOf({{Name, from({CompanyInfo::StoreName})}}), table, rows);
    QCOMPARE(recordLines(data), QStringList("name|Min|"));
}

void TestStatementRecords::takesThePrintFlags()
{
    StatementSetting setting = settingOf({{Name, from({0})}, {Payment, from({})}});
    setting.printCompany[CompanyInfo::Fax] = false;
    const StatementData data = recordsOf(setting, tableOf({}), {columns({0})});
    for (int i = 0; i < Count; ++i)
        QCOMPARE(data.prints(Field(i)), i == Name || i == Payment);
    QCOMPARE(data.printedCompany(), setting.printCompany);
}

// --- merged rows ------------------------------------------------------------------------------

void TestStatementRecords::mergedRows_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QList<OutputItem>>("items");
    QTest::addColumn<StatementSetting>("setting");
    QTest::addColumn<QStringList>("records");

    const auto row = [](const char *name, const QString &rows, const QList<OutputItem> &items,
                        const QList<PlacedField> &fields, const QStringList &records) {
        QTest::newRow(name) << rows << items << settingOf(fields) << records;
    };
    const OutputItem a = columns({0});
    const OutputItem b = columns({1});
    const QList<OutputItem> distinctA = {distinct(a)};
    const PlacedField number = {OrderNumber, from({0})};
    const PlacedField product = {ProductName, from({1})};
    const PlacedField quantity = {Quantity, from({2})};
    const PlacedField price = {UnitPrice, from({3})};
    const PlacedField subtotal = {Subtotal, from({4})};

    row("no distinct item: a record for every row", "1,pen 1,cup 1,pen", {a, b}, {number, product},
        {"orderNumber|1| productName|pen|", "orderNumber|1| productName|cup|",
         "orderNumber|1| productName|pen|"});
    row("no output item: a record for every row", "1,pen 1,cup", {}, {product},
        {"productName|pen|", "productName|cup|"});
    row("a product line for every merged row", "1,pen,2,100,200 1,cup,3,200,600 1,cap,1,50,50",
        distinctA, {number, product, quantity, price, subtotal},
        {"orderNumber|1| productName|pen|cup|cap| productNumber||| option||| quantity|2|3|1| "
         "unitPrice|100|200|50| subtotal|200|600|50| sum|850| totalSum|850| payment|850|"});
    row("rows that lie apart, in their order", "1,pen 2,cup 1,cap 3,mug 2,ink 1,pad", distinctA,
        {number, product},
        {"orderNumber|1| productName|pen|cap|pad| productNumber||| option||| quantity|0|0| "
         "unitPrice|0|0| subtotal|0|0|",
         "orderNumber|2| productName|cup|ink| productNumber|| option|| quantity|0| unitPrice|0| "
         "subtotal|0|",
         "orderNumber|3| productName|mug|"});
    row("the rest of a merged record is lost", "1,Kim,10,20 1,Lee,30,40", distinctA,
        {{Name, from({1})}, {Tax, from({2})}, {Point, from({3})}},
        {"name|Kim| productName|| productNumber|| option|| quantity|0| unitPrice|0| subtotal|0| "
         "tax|10| point|20|"});
    row("an amount that the first row lacks is not taken from the next", "1,x,0 1,y,500", distinctA,
        {{ShippingCharge, from({2})}},
        {"productName|| productNumber|| option|| quantity|0| unitPrice|0| subtotal|0|"});
    row("required: lines without product names count one less", "1,pen,2 1,cup,3 1,cap,4",
        distinctA, {number, quantity},
        {"orderNumber|1| productName||| productNumber||| option||| quantity|2|3|4| unitPrice|0|0| "
         "subtotal|0|0|"});
    row("equal rows are two lines", "1,pen,2 1,pen,2", distinctA, {product, quantity},
        {"productName|pen|pen| productNumber|| option|| quantity|2|2| unitPrice|0| subtotal|0|"});

    row("missing subtotals are computed for every line", "1,pen,2,100,0 1,cup,3,200,5 1,cap,4,1,x",
        distinctA, {product, quantity, price, subtotal},
        {"productName|pen|cup|cap| productNumber||| option||| quantity|2|3|4| unitPrice|100|200|1| "
         "subtotal|200|5|4| sum|209| totalSum|209| payment|209|"});
    row("amounts are computed after merging", "1,pen,2,100 1,cup,3,200", distinctA,
        {quantity, price, {Subtotal, from({})}, {Payment, from({})}},
        {"productName|| productNumber|| option|| quantity|2|3| unitPrice|100|200| "
         "subtotal|200|600| sum|800| totalSum|800| payment|800|"});
    row("amounts of the first row win", "1,9,7,5 1,8,6,4", distinctA,
        {{Sum, from({1})}, {TotalSum, from({2})}, {Payment, from({3})}},
        {"productName|| productNumber|| option|| quantity|0| unitPrice|0| subtotal|0| sum|9| "
         "totalSum|7| payment|5|"});
    row("total and payment of what is given", "1,100,10,20,3 1,0,0,0,0", distinctA,
        {{Sum, from({1})}, {Tax, from({2})}, {CodCharge, from({3})}, {Coupon, from({4})}},
        {"productName|| productNumber|| option|| quantity|0| unitPrice|0| subtotal|0| sum|100| "
         "tax|10| codCharge|20| totalSum|130| coupon|3| payment|127|"});
    row("nothing is computed when nothing of it is printed", "1,pen,2,100 1,cup,3,200", distinctA,
        {quantity, price, {Tax, from({2})}, {Coupon, from({2})}},
        {"productName|| productNumber|| option|| quantity|2|3| unitPrice|100|200| subtotal|0| "
         "tax|2| coupon|2|"});
    // Of subtotals that are not printed there are only those of the merged rows.
    row("required: sum without printed subtotals", "1,pen,2,100 1,cup,3,200 2,cap,5,5", distinctA,
        {quantity, price, {Sum, from({})}},
        {"productName|| productNumber|| option|| quantity|2|3| unitPrice|100|200| subtotal|200| "
         "sum|200| totalSum|200| payment|200|",
         "quantity|5| unitPrice|5|"});
    row("sums wrap around", "1,x,2147483647,2 1,x,1,2147483647", distinctA,
        {quantity, price, {Subtotal, from({})}},
        {"productName|| productNumber|| option|| quantity|2147483647|1| unitPrice|2|2147483647| "
         "subtotal|-2|2147483647| sum|2147483645| totalSum|2147483645| payment|2147483645|"});

    const PlacedField name = {Name, from({0})};
    row("the input row is read, not the output row", "Kim,pen Lee,cup",
        {withRules(a, {"left(1)"}), withRules(b, {"charType(upperCase)"})}, {name, product},
        {"name|Kim| productName|pen|", "name|Lee| productName|cup|"});
    row("output rules merge rows and touch no record", "Kim,pen Kang,cup",
        {distinct(withRules(a, {"left(1)"}))}, {name, product},
        {"name|Kim| productName|pen|cup| productNumber|| option|| quantity|0| unitPrice|0| "
         "subtotal|0|"});
    row("after-merge rules touch no record", "Kim,pen Kim,cup",
        {withAfterRules(distinct(a), {"left(0)"}), withAfterRules(b, {"left(0)"})}, {name, product},
        {"name|Kim| productName|pen|cup| productNumber|| option|| quantity|0| unitPrice|0| "
         "subtotal|0|"});
    row("merged output values stand in no record", "1,pen,2 1,cup,3",
        {distinct(a), merged(b, "STRING", "/"), merged(columns({2}), "NUMBER")},
        {product, quantity},
        {"productName|pen|cup| productNumber|| option|| quantity|2|3| unitPrice|0| subtotal|0|"});
    row("failing conditions of the output touch no record", "Kim,pen",
        {underConditions(a, "AND", {{1, "equalTo(cup)"}})}, {name, product},
        {"name|Kim| productName|pen|"});
    row("rows with different statements can be duplicates", "1,Kim 1,Lee", distinctA,
        {{Name, from({1})}},
        {"name|Kim| productName|| productNumber|| option|| quantity|0| unitPrice|0| subtotal|0|"});
    row("rows with equal statements need not be", "1,Kim 2,Kim", distinctA, {{Name, from({1})}},
        {"name|Kim|", "name|Kim|"});
    row("two distinct items", "1,pen 1,cup 1,pen", {distinct(a), distinct(b)}, {product},
        {"productName|pen|pen| productNumber|| option|| quantity|0| unitPrice|0| subtotal|0|",
         "productName|cup|"});
    row("required: two marked items compare the first two columns", "1,pen,x 1,pen,y 2,pen,x",
        {a, distinct(b), distinct(columns({2}))}, {{Option, from({2})}},
        {"productName|| productNumber|| option|x|y| quantity|0| unitPrice|0| subtotal|0|",
         "option|x|"});
}

void TestStatementRecords::mergedRows()
{
    QFETCH(QString, rows);
    QFETCH(QList<OutputItem>, items);
    QFETCH(StatementSetting, setting);
    QFETCH(QStringList, records);
    const Table table = tableOf(rowsOf(rows));
    QCOMPARE(recordLines(recordsOf(setting, table, items)), records);
    QCOMPARE(recordLines(oracleRecords(setting, table, items)), records);
}

void TestStatementRecords::withoutDataRows()
{
    const StatementSetting setting = settingOf({{Name, from({0})}, {Payment, from({1})}});
    QCOMPARE(recordsOf(setting, tableOf({}), {columns({0})}).count(), 0);
    QCOMPARE(recordsOf(setting, tableOf({}), {distinct(columns({0}))}).count(), 0);
    QCOMPARE(recordsOf(setting, tableOf({}), {}).count(), 0);
}

void TestStatementRecords::rowsBeforeTheRemoval()
{
    const Table table = tableOf(rowsOf("1,pen 1,cup 2,cap"));
    const StatementSetting setting = settingOf({{ProductName, from({1})}});
    OutputRows rows(table, {distinct(columns({0}))}, CompanyInfo());
    QCOMPARE(buildStatementRecords(setting, table, rows).count(), 0);
    for (int i = 0; i < 3; ++i)
        rows.appendNext();
    QCOMPARE(recordLines(buildStatementRecords(setting, table, rows)),
             (QStringList{"productName|pen|", "productName|cup|", "productName|cap|"}));
    rows.removeDuplicatesAndMerge();
    QCOMPARE(buildStatementRecords(setting, table, rows).count(), 2);
    QCOMPARE(buildStatementRecords(setting, table, rows).count(), 2); // as often as wanted
}

// --- random settings --------------------------------------------------------------------------

namespace {

const QStringList someAmounts = {"",      "0",    "1",  "2",  "3",    "10", "100",       "1500",
                                 "-1",    "-200", "+5", " 7", "3.5",  "x",  "1,000",     "007",
                                 "￥100", "５",   "-0", "1 ", "0x10", "--", "2147483647"};

StatementSetting randomSetting(QRandomGenerator &random)
{
    StatementSetting setting;
    const int printed = random.bounded(1, 11); // of ten, so that few and nearly all are met
    for (StatementField &field : setting.fields) {
        field.toPrint = random.bounded(10) < printed;
        for (int mapped = anyOf(QList<int>{0, 1, 1, 1, 2, 3}, random); mapped > 0; --mapped) {
            field.mapNums.append(random.bounded(10) == 0 ? random.bounded(-3, 12)
                                                         : random.bounded(5));
            if (random.bounded(15) != 0)
                field.mappings.append("column");
        }
        field.separator = anyOf(QStringList{"", "", " ", "-", "\n"}, random);
        if (random.bounded(3) == 0)
            field.rules = someOf(someRules, 3, random);
    }
    return setting;
}

// Items that mostly make keys which some rows share.
QList<OutputItem> randomKeyItems(QRandomGenerator &random)
{
    QList<OutputItem> items;
    for (int i = 0; i < 3; ++i) {
        OutputItem item = columns({i});
        item.distinct = anyOf(QStringList{"YES", "YES", "NO"}, random);
        if (random.bounded(4) == 0)
            item.rules = someOf(someRules, 2, random);
        items.append(item);
    }
    return items;
}

// Three columns that decide, two with amounts; rows in rising, falling or no order. A joined table
// has rows without a partner, which are shorter.
Table randomOrders(QRandomGenerator &random)
{
    Rows rows;
    const int keys = random.bounded(1, 12);
    const int others = random.bounded(1, 4);
    for (int count = random.bounded(40); count > 0; --count) {
        rows.append({QString::number(random.bounded(keys)), QString::number(random.bounded(others)),
                     "x", anyOf(someAmounts, random), anyOf(someAmounts, random)});
    }
    const auto byKeys = [](const QStringList &one, const QStringList &other) {
        return one.mid(0, 3) < other.mid(0, 3);
    };
    switch (random.bounded(3)) {
    case 0:
        std::stable_sort(rows.begin(), rows.end(), byKeys);
        break;
    case 1:
        std::stable_sort(rows.rbegin(), rows.rend(), byKeys);
        break;
    }
    if (random.bounded(2) == 0)
        return tableOf(rows);

    for (QStringList &row : rows)
        row = row.mid(0, 2);
    Table table;
    rows.prepend({"no", "other"});
    table.setRows(TextRows(rows));
    Rows items = {{"no", "item", "amount", "amount"}};
    for (int count = random.bounded(8); count > 0; --count) {
        items.append({QString::number(random.bounded(keys)), "x", anyOf(someAmounts, random),
                      anyOf(someAmounts, random)});
    }
    table.join(TextRows(items), 0, 0);
    return table;
}

} // namespace

void TestStatementRecords::randomSettingsAsTheOracle_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 4; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void TestStatementRecords::randomSettingsAsTheOracle()
{
    QFETCH(int, seed);
    QRandomGenerator random{quint32(seed)};
    int longestRecord = 0;
    for (int round = 0; round < 300; ++round) {
        QList<OutputItem> items = randomKeyItems(random);
        Table table = randomOrders(random);
        if (random.bounded(3) == 0) { // anything at all
            for (OutputItem &item : items)
                item = randomItem(random);
            table = randomTable(random);
        }
        const StatementSetting setting = randomSetting(random);
        const StatementData built = recordsOf(setting, table, items);
        const StatementData expected = oracleRecords(setting, table, items);
        QCOMPARE(recordLines(built), recordLines(expected));
        for (int i = 0; i < built.count(); ++i) {
            QVERIFY(built.record(i) == expected.record(i));
            longestRecord = qMax(longestRecord, built.record(i).option.size());
        }
    }
    QVERIFY(longestRecord > 10); // long merges were among them
}

// --- many rows --------------------------------------------------------------------------------

void TestStatementRecords::manyRows_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("orders");
    QTest::addColumn<bool>("sorted");

    // Whoever moved all records for each merged row would still be at it tomorrow.
    QTest::newRow("all into one") << 20000 << 1 << true;
    QTest::newRow("two rows each, side by side") << 20000 << 10000 << true;
    QTest::newRow("two rows each, far apart") << 20000 << 10000 << false;
    QTest::newRow("a hundred orders") << 20000 << 100 << false;
    QTest::newRow("none is merged") << 20000 << 20000 << true;
    QTest::newRow("very many rows") << 100000 << 50000 << false;
}

void TestStatementRecords::manyRows()
{
    QFETCH(int, rows);
    QFETCH(int, orders);
    QFETCH(bool, sorted);
    const int lines = rows / orders;
    Rows dataRows;
    for (int row = 0; row < rows; ++row) {
        const int order = sorted ? row / lines : row % orders;
        const int line = sorted ? row % lines : row / orders;
        dataRows.append({QString::number(order), QString::number(line)});
    }
    const StatementData data = recordsOf(
        settingOf(
            {{OrderNumber, from({0})}, {ProductName, from({0, 1}, "-")}, {Subtotal, from({1})}}),
        tableOf(dataRows), {distinct(columns({0}))});

    QCOMPARE(data.count(), orders);
    for (int order = 0; order < orders; ++order) {
        const StatementRecord &record = data.record(order);
        QStringList names;
        QVector<qint32> subtotals;
        qint32 sum = 0;
        for (int line = 0; line < lines; ++line) {
            names.append(QString::number(order) + '-' + QString::number(line));
            subtotals.append(line);
            sum += line;
        }
        QCOMPARE(record.orderNumber, QString::number(order));
        QCOMPARE(record.productName, names);
        QCOMPARE(record.subtotal, subtotals);
        QCOMPARE(record.quantity.size(), lines - 1);
        QCOMPARE(record.payment, sum);
    }
}

QTEST_GUILESS_MAIN(TestStatementRecords)

#include "tst_statementrecords.moc"
