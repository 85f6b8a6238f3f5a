// Output rows: how an item's value comes about, and what the removal of duplicates leaves. First by
// name, then on random settings against the plain loops of the oracle.
#include "engine/outputrowbuilder.h"
#include "engine/outputrows.h"
#include "tests/engine/outputoracle.h"
#include "tests/engine/randomitems.h"
#include "tests/engine/tabletext.h"
#include "tests/engine/testitems.h"

#include <QtTest>

namespace {

using Rows = QList<QStringList>;

CompanyInfo testCompany()
{
    CompanyInfo company;
    company.fields = {"Quorin", "the store", "www.example.com", "123-4567",
                      "Seoul",  "02-1234",   "02-9999",         "a@example.com"};
    return company;
}

QStringList outputLines(const Table &table, const QList<OutputItem> &items,
                        const CompanyInfo &company = testCompany())
{
    OutputRows rows(table, items, company);
    for (int row = 1; row < table.rowCount(); ++row)
        rows.appendNext();
    rows.removeDuplicatesAndMerge();
    QStringList lines;
    for (int row = 0; row < rows.count(); ++row)
        lines.append(rowLine(rows.row(row)));
    return lines;
}

QStringList oracleLines(const Table &table, const QList<OutputItem> &items,
                        const CompanyInfo &company = testCompany(),
                        QList<QList<int>> *groups = nullptr)
{
    Rows rows;
    for (int row = 1; row < table.rowCount(); ++row)
        rows.append(OutputOracle::buildOutputRow(items, table.rowTexts(row), company));
    QList<QList<int>> unused;
    OutputOracle::removeDuplicatesAndMerge(rows, items, groups ? groups : &unused);
    return tableLines(rows);
}

} // namespace

Q_DECLARE_METATYPE(OutputItem)

class TestOutputRows : public QObject
{
    Q_OBJECT

private slots:
    void buildsValue_data();
    void buildsValue();
    void buildsOneValueForEachItem();
    void columnsBeyondTheRowAreEmpty();
    void companyIsTheSameInEveryRow();

    void removesDuplicates_data();
    void removesDuplicates();
    void rowsBeforeTheRemoval();
    void tellsWhichInputRowsMakeUpARow();
    void valuesCanBeReadInAnyOrder();

    void randomSettingsAsTheOracle_data();
    void randomSettingsAsTheOracle();
    void manyRows();
};

// --- one value --------------------------------------------------------------------------------

void TestOutputRows::buildsValue_data()
{
    QTest::addColumn<OutputItem>("item");
    QTest::addColumn<QString>("value");

    // The input row is: "Kim", "Min", "7", "", " x "
    const auto row = [](const char *name, const OutputItem &item, const QString &value) {
        QTest::newRow(name) << item << value;
    };
    row("no source", columns({}), "");
    row("no source with a separator", columns({}, "-"), "");
    row("one column", columns({0}), "Kim");
    row("one column with a separator", columns({0}, "-"), "Kim");
    row("two columns with a blank between", columns({0, 1}, " "), "Kim Min");
    row("two columns run together", columns({0, 1}), "KimMin");
    row("columns in the order of the setting", columns({2, 0}, "-"), "7-Kim");
    row("the same column twice", columns({0, 0}, "/"), "Kim/Kim");
    row("empty value keeps its separators", columns({0, 3, 1}, "-"), "Kim--Min");
    row("empty value first", columns({3, 1}, "-"), "-Min");
    row("empty value last", columns({0, 3}, "-"), "Kim-");
    row("only empty values", columns({3, 3, 3}, "-"), "--");
    row("separator of several letters", columns({0, 1}, ", "), "Kim, Min");
    row("separator is a line break", columns({0, 1}, "\n"), "Kim\nMin");
    row("blanks of a value stay", columns({4}), " x ");
    row("column beyond the row", columns({5}), "");
    row("column far beyond the row", columns({std::numeric_limits<int>::max()}), "");
    row("negative column", columns({-1}), "");
    row("column beyond the row counts as a value", columns({0, 99, 1}, "-"), "Kim--Min");

    OutputItem company = columns({});
    company.appendMapping(CompanySource, CompanyInfo::Tel, "[tel]");
    row("company field", company, "02-1234");
    company.appendMapping(InputSource, 0, "column");
    company.appendMapping(CompanySource, CompanyInfo::Name, "[name]");
    company.separator = "/";
    row("company fields and columns", company, "02-1234/Kim/Quorin");
    company.appendMapping(CompanySource, 8, "[none]");
    row("company field that is none counts as a value", company, "02-1234/Kim/Quorin/");
    company.appendMapping(CompanySource, -1, "[none]");
    row("negative company field counts as a value", company, "02-1234/Kim/Quorin//");
    company.appendMapping(2, 0, "unknown");
    company.appendMapping(-1, 0, "unknown");
    row("unknown kind of source adds nothing, no separator either", company,
        "02-1234/Kim/Quorin//");
    OutputItem unknownFirst = columns({}, "-");
    unknownFirst.appendMapping(2, 0, "unknown");
    unknownFirst.appendMapping(InputSource, 0, "column");
    row("unknown kind of source first", unknownFirst, "Kim");

    OutputItem shortSources = columns({0, 1}, "-");
    shortSources.mapSources = {1};
    row("missing kind of source reads as 0, the company", shortSources, "Kim-the store");
    OutputItem longSources = columns({0}, "-");
    longSources.mapSources = {1, 1, 1};
    row("the numbers decide how many values there are", longSources, "Kim");
    OutputItem noMappings = columns({0});
    noMappings.mappings.clear();
    row("the shown texts do not matter", noMappings, "Kim");

    row("rules in their order", withRules(columns({0}), {"append(!)", "prepend(>)", "left(3)"}),
        ">Ki");
    row("rules work on the joined value", withRules(columns({0, 1}, " "), {"right(5)"}), "m Min");
    row("rule of an empty value", withRules(columns({3}), {"append(x)"}), "x");
    row("rule without a source", withRules(columns({}), {"append(x)"}), "x");
    row("unknown rule", withRules(columns({0}), {"curRight(1)", "", "LEFT(1)"}), "Kim");

    const OutputItem kim = columns({0});
    row("AND: all hold", underConditions(kim, "AND", {{0, "equalTo(Kim)"}, {2, "equalTo(7)"}}),
        "Kim");
    row("AND: the second of three fails",
        underConditions(kim, "AND", {{0, "equalTo(Kim)"}, {1, "equalTo(Kim)"}, {2, "equalTo(7)"}}),
        "");
    row("AND: the last fails",
        underConditions(kim, "AND", {{0, "equalTo(Kim)"}, {2, "equalTo(8)"}}), "");
    row("OR: the second of three fails",
        underConditions(kim, "OR", {{0, "equalTo(Kim)"}, {1, "equalTo(Kim)"}, {2, "equalTo(7)"}}),
        "Kim");
    row("OR: only the last holds",
        underConditions(kim, "OR", {{0, "equalTo(x)"}, {1, "equalTo(x)"}, {2, "equalTo(7)"}}),
        "Kim");
    row("OR: none holds", underConditions(kim, "OR", {{0, "equalTo(x)"}, {1, "equalTo(x)"}}), "");
    row("empty combination", underConditions(kim, "", {{0, "equalTo(Kim)"}}), "");
    row("combination in lower case", underConditions(kim, "and", {{0, "equalTo(Kim)"}}), "");
    row("or in lower case", underConditions(kim, "or", {{0, "equalTo(Kim)"}}), "");
    row("unknown combination", underConditions(kim, "XOR", {{0, "equalTo(Kim)"}}), "");
    row("unknown combination without conditions", underConditions(kim, "XOR", {}), "Kim");
    row("unknown condition", underConditions(kim, "AND", {{0, "Contains(K)"}}), "");
    row("unknown condition under OR",
        underConditions(kim, "OR", {{0, "Contains(K)"}, {0, "contains(K)"}}), "Kim");
    row("empty condition", underConditions(kim, "AND", {{0, ""}}), "");
    row("range tests a number",
        underConditions(kim, "AND", {{2, "range(greaterThan(6),lessThan(8))"}}), "Kim");
    row("range of a text that is no number reads 0",
        underConditions(kim, "AND", {{0, "range(unLimit,lessThan(1))"}}), "Kim");
    row("range of an empty value reads 0",
        underConditions(kim, "AND", {{3, "range(greaterThan(0),unLimit)"}}), "");
    row("conditions see the value as it stands, not trimmed",
        underConditions(kim, "AND", {{4, "equalTo(x)"}}), "");
    row("tested column beyond the row is empty",
        underConditions(kim, "AND", {{99, "equalTo()"}, {-1, "equalTo()"}}), "Kim");
    row("rules do not apply to what fails",
        underConditions(withRules(kim, {"append(!)"}), "AND", {{0, "equalTo(x)"}}), "");

    OutputItem companyTested = kim;
    companyTested.appendCondition(CompanySource, CompanyInfo::Address, "[address]");
    companyTested.condRules = QStringList("startsWith(Se)");
    row("company field tested", companyTested, "Kim");
    companyTested.condNums = {8};
    row("company field that is none is tested as empty", companyTested, "");
    companyTested.condRules = QStringList("equalTo()");
    row("empty company field", companyTested, "Kim");
    companyTested.condSources = {2};
    companyTested.condNums = {0};
    row("unknown kind of tested source is empty", companyTested, "Kim");
    companyTested.condSources.clear();
    row("missing kind of tested source reads as 0, the company", companyTested, "");

    OutputItem onlyRules = kim;
    onlyRules.condRules = QStringList("equalTo(x)");
    onlyRules.condNums = {0};
    onlyRules.condSources = {1};
    row("condition texts without shown conditions are no conditions", onlyRules, "Kim");
    OutputItem onlyShown = kim;
    onlyShown.conditions = QStringList("column");
    onlyShown.condCombination = "AND";
    row("shown conditions without numbers fail", onlyShown, "");
    onlyShown.condCombination = "OR";
    row("shown conditions without numbers fail under OR", onlyShown, "");
    OutputItem fewRules = underConditions(kim, "AND", {{0, "equalTo(Kim)"}, {1, "equalTo(Min)"}});
    fewRules.condRules.removeLast();
    row("missing condition text is an unknown condition", fewRules, "");
    OutputItem manyRules = underConditions(kim, "AND", {{0, "equalTo(Kim)"}});
    manyRules.condRules.append("equalTo(x)");
    manyRules.conditions.append("one more");
    row("the numbers decide how many conditions there are", manyRules, "Kim");
}

void TestOutputRows::buildsValue()
{
    QFETCH(OutputItem, item);
    QFETCH(QString, value);
    const QStringList inputRow = {"Kim", "Min", "7", "", " x "};
    const Table table = tableOf({inputRow});
    const OutputRowBuilder builder({item}, testCompany());
    QCOMPARE(builder.buildOutputRow(table.row(1)), QStringList(value));
    QCOMPARE(OutputOracle::buildOutputRow({item}, inputRow, testCompany()), QStringList(value));
    QCOMPARE(outputLines(table, {item}), QStringList(rowLine({value})));
}

void TestOutputRows::buildsOneValueForEachItem()
{
    const Table table = tableOf({{"1", "2", "3"}});
    const QList<OutputItem> items = {columns({2}),
                                     underConditions(columns({0}), "AND", {{0, "equalTo(x)"}}),
                                     columns({}), columns({1, 0}, "+"), columns({2})};
    const OutputRowBuilder builder(items, testCompany());
    QCOMPARE(builder.itemCount(), 5);
    QCOMPARE(builder.buildOutputRow(table.row(1)), (QStringList{"3", "", "", "2+1", "3"}));
    const OutputRowBuilder none({}, testCompany());
    QCOMPARE(none.buildOutputRow(table.row(1)), QStringList());
}

void TestOutputRows::columnsBeyondTheRowAreEmpty()
{
    Table table;
    table.setRows(TextRows(rowsOf("no,name 1,Kim 2,Lee")));
    QVERIFY(table.join(TextRows(rowsOf("no,item 2,pen")), 0, 0));
    QCOMPARE(outputLines(table, {columns({2}), columns({1, 2}, "-")}),
             (QStringList{"||Kim-|", "|pen|Lee-pen|"}));
}

void TestOutputRows::companyIsTheSameInEveryRow()
{
    OutputItem item;
    item.appendMapping(CompanySource, CompanyInfo::StoreName, "[store]");
    QCOMPARE(outputLines(tableOf({{"1"}, {"2"}, {"3"}}), {item}),
             (QStringList{"|the store|", "|the store|", "|the store|"}));
}

// --- duplicates -------------------------------------------------------------------------------

void TestOutputRows::removesDuplicates_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QList<OutputItem>>("items");
    QTest::addColumn<QStringList>("lines");

    const auto row = [](const char *name, const QString &rows, const QList<OutputItem> &items,
                        const QStringList &lines) {
        QTest::newRow(name) << rows << items << lines;
    };
    const OutputItem a = columns({0});
    const OutputItem b = columns({1});
    const OutputItem c = columns({2});

    row("no distinct item keeps every row", "1,x 1,x 1,x", {a, b}, {"|1|x|", "|1|x|", "|1|x|"});
    row("no distinct item merges nothing", "1,2 1,3", {a, merged(b, "NUMBER")}, {"|1|2|", "|1|3|"});
    row("required: no distinct item, no after-merge rules", "1 2",
        {withAfterRules(a, {"append(!)"})}, {"|1|", "|2|"});
    row("one distinct item keeps the first of equal rows", "1,x 1,y 2,z 1,w", {distinct(a), b},
        {"|1|x|", "|2|z|"});
    row("rows keep their order", "3 1 2 1 3", {distinct(a)}, {"|3|", "|1|", "|2|"});
    row("rows that lie apart are duplicates", "1,x 2,y 1,z 2,w",
        {distinct(a), merged(b, "STRING", "+")}, {"|1|x+z|", "|2|y+w|"});
    row("case makes a difference", "a A a", {distinct(a)}, {"|a|", "|A|"});
    row("empty values are equal", ",1 ,2", {distinct(a), merged(b, "NUMBER")}, {"||3|"});
    row("two distinct items compare both columns", "1,x,p 1,y,q 1,x,r",
        {distinct(a), distinct(b), merged(c, "STRING", "/")}, {"|1|x|p/r|", "|1|y|q|"});
    row("values are not run together when compared", "1,23,x 12,3,y", {distinct(a), distinct(b), c},
        {"|1|23|x|", "|12|3|y|"});
    row("required: N marked items compare the first N columns", "1,x,p 1,y,q 2,x,p",
        {a, b, distinct(c)}, {"|1|x|p|", "|2|x|p|"});
    row("required: two marked items compare the first two columns", "1,x,p 1,y,p 1,x,q",
        {a, distinct(b), distinct(c)}, {"|1|x|p|", "|1|y|p|"});
    row("distinct in lower case is not marked", "1 1", {[&] {
            OutputItem item = a;
            item.distinct = "yes";
            return item;
        }()},
        {"|1|", "|1|"});
    row("the built values are compared, rules and all", "1a,x 1b,y 2a,z",
        {distinct(withRules(a, {"left(1)"})), merged(b, "STRING", "/")}, {"|1|x/y|", "|2|z|"});
    row("a failing condition makes an empty key", "1,x 2,y 3,z",
        {distinct(underConditions(a, "AND", {{1, "equalTo(z)"}})), merged(b, "STRING", "/")},
        {"||x/y|", "|3|z|"});
    row("after-merge rules do not change what is compared", "1,x 2,y 1,z",
        {withAfterRules(distinct(a), {"left(0)"}), merged(b, "STRING", "/")}, {"||x/z|", "||y|"});

    row("texts are merged with their separator", "1,x,a 1,x,b 1,x,c",
        {distinct(a), b, merged(c, "STRING", "/")}, {"|1|x|a/b/c|"});
    row("the separator stands before every folded value, an empty one too", "1,, 1,,y 1,,",
        {distinct(a), merged(c, "STRING", "/")}, {"|1|/y/|"});
    row("required: an empty separator runs the texts together", "1,x 1,y",
        {distinct(a), merged(b, "STRING")}, {"|1|xy|"});
    row("separator is a line break", "1,x 1,y", {distinct(a), merged(b, "STRING", "\n")},
        {"|1|x\\ny|"});
    row("equal texts are merged all the same", "1,x 1,x", {distinct(a), merged(b, "STRING", "/")},
        {"|1|x/x|"});
    row("rules work on each text before merging", "1,xx 1,yy",
        {distinct(a), merged(withRules(b, {"left(1)"}), "STRING", "/")}, {"|1|x/y|"});
    row("after-merge rules work on the merged text", "1,xx 1,yy",
        {distinct(a), merged(withAfterRules(b, {"left(4)", "append(!)"}), "STRING", "/")},
        {"|1|xx/y!|"});
    row("two merged items", "1,x,2 1,y,3",
        {distinct(a), merged(b, "STRING", "/"), merged(c, "NUMBER")}, {"|1|x/y|5|"});
    row("the key itself can be merged", "1 1 1", {merged(distinct(a), "STRING", "-")}, {"|1-1-1|"});
    row("the key itself can be summed", "4 4 5", {merged(distinct(a), "NUMBER")}, {"|8|", "|5|"});

    row("numbers are added", "1,2 1,3 1,4", {distinct(a), merged(b, "NUMBER")}, {"|1|9|"});
    row("a number alone stays as it is written", "1,007 2,x 3,+5",
        {distinct(a), merged(b, "NUMBER")}, {"|1|007|", "|2|x|", "|3|+5|"});
    row("a sum has no leading zeros", "1,007 1,-002", {distinct(a), merged(b, "NUMBER")},
        {"|1|5|"});
    row("negative sum", "1,2 1,-5", {distinct(a), merged(b, "NUMBER")}, {"|1|-3|"});
    row("sums wrap around", "1,2147483647 1,1 2,-2147483648 2,-1",
        {distinct(a), merged(b, "NUMBER")}, {"|1|-2147483648|", "|2|2147483647|"});
    row("what is no 32-bit number counts as 0", "1,2147483648 1,5 1,3.5 1,x 1, 1,0x10",
        {distinct(a), merged(b, "NUMBER")}, {"|1|5|"});
    row("numbers of rules", "1,₩5 1,₩6",
        {distinct(a), merged(withRules(b, {"cutLeft(1)"}), "NUMBER")}, {"|1|11|"});

    row("anything else than STRING and NUMBER keeps the first value", "1,x,2 1,y,3",
        {distinct(a), merged(b, "string", "/"), merged(c, "SUM")}, {"|1|x|2|"});
    row("after-merge rules apply without any duplicate", "1,x 2,y",
        {distinct(a), withAfterRules(b, {"append(!)"})}, {"|1|x!|", "|2|y!|"});
    row("after-merge rules apply to every item", "1,x 1,y",
        {distinct(withAfterRules(a, {"prepend(#)"})), withAfterRules(b, {"append(!)"})},
        {"|#1|x!|"});
    row("no rows", "", {distinct(a)}, {"||"});
}

void TestOutputRows::removesDuplicates()
{
    QFETCH(QString, rows);
    QFETCH(QList<OutputItem>, items);
    QFETCH(QStringList, lines);
    const Table table = tableOf(rowsOf(rows));
    QCOMPARE(outputLines(table, items), lines);
    QCOMPARE(oracleLines(table, items), lines);
}

void TestOutputRows::rowsBeforeTheRemoval()
{
    const Table table = tableOf(rowsOf("1,x 1,y 2,z"));
    OutputRows rows(table, {distinct(columns({0})), merged(columns({1}), "STRING", "/")},
                    testCompany());
    QCOMPARE(rows.count(), 0);
    for (int i = 0; i < 3; ++i)
        rows.appendNext();
    QCOMPARE(rows.count(), 3);
    QCOMPARE(rows.row(1), (QStringList{"1", "y"}));
    rows.removeDuplicatesAndMerge();
    QCOMPARE(rows.count(), 2);
    QCOMPARE(rows.row(0), (QStringList{"1", "x/y"}));

    OutputRows none(tableOf({}), {distinct(columns({0}))}, testCompany());
    none.removeDuplicatesAndMerge();
    QCOMPARE(none.count(), 0);
}

void TestOutputRows::tellsWhichInputRowsMakeUpARow()
{
    const Table table = tableOf(rowsOf("1,x 2,y 1,z 3,v 1,w 2,u"));
    const auto inputRows = [&table](const QList<OutputItem> &items) {
        OutputRows rows(table, items, testCompany());
        for (int row = 1; row < table.rowCount(); ++row)
            rows.appendNext();
        rows.removeDuplicatesAndMerge();
        QStringList lines;
        for (int row = 0; row < rows.count(); ++row) {
            QString line;
            for (quint32 input = rows.firstInputRow(row); input != RowGroups::none;
                 input = rows.nextInputRow(input))
                line += QString::number(input) + ' ';
            lines.append(line.trimmed());
        }
        return lines;
    };
    QCOMPARE(inputRows({distinct(columns({0}))}), (QStringList{"1 3 5", "2 6", "4"}));
    QCOMPARE(inputRows({columns({0})}), (QStringList{"1", "2", "3", "4", "5", "6"}));
}

void TestOutputRows::valuesCanBeReadInAnyOrder()
{
    const Table table = tableOf(rowsOf("1,x,2 2,y,3 1,z,4"));
    OutputRows rows(table,
                    {distinct(columns({0})), merged(columns({1}), "STRING", "/"),
                     merged(columns({2}), "NUMBER")},
                    testCompany());
    for (int i = 0; i < 3; ++i)
        rows.appendNext();
    rows.removeDuplicatesAndMerge();
    for (const int row : {1, 0, 0, 1, 1, 0})
        QCOMPARE(rowLine(rows.row(row)), QString(row == 0 ? "|1|x/z|6|" : "|2|y|3|"));
}

// --- random settings --------------------------------------------------------------------------

void TestOutputRows::randomSettingsAsTheOracle_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 4; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void TestOutputRows::randomSettingsAsTheOracle()
{
    QFETCH(int, seed);
    QRandomGenerator random{quint32(seed)};
    for (int round = 0; round < 1000; ++round) {
        const Table table = randomTable(random);
        QList<OutputItem> items;
        for (int i = random.bounded(5); i >= 0; --i)
            items.append(randomItem(random));
        QList<QList<int>> groups;
        QCOMPARE(outputLines(table, items), oracleLines(table, items, testCompany(), &groups));

        OutputRows rows(table, items, testCompany());
        for (int row = 1; row < table.rowCount(); ++row)
            rows.appendNext();
        rows.removeDuplicatesAndMerge();
        QList<QList<int>> builtGroups;
        for (int row = 0; row < rows.count(); ++row) {
            builtGroups.append(QList<int>());
            for (quint32 input = rows.firstInputRow(row); input != RowGroups::none;
                 input = rows.nextInputRow(input))
                builtGroups.last().append(int(input) - 1);
        }
        QCOMPARE(builtGroups, groups);
    }
}

// Enough keys that the hash table grows several times, the duplicates far apart.
void TestOutputRows::manyRows()
{
    const int keys = 20000;
    Rows rows;
    for (int round = 0; round < 3; ++round) {
        for (int key = 0; key < keys; ++key)
            rows.append({QString::number(key), QString::number(round), "x"});
    }
    QStringList expected;
    for (int key = 0; key < keys; ++key)
        expected.append(rowLine({QString::number(key), "3", "x/x/x"}));
    QCOMPARE(outputLines(tableOf(rows),
                         {distinct(columns({0})), merged(columns({1}), "NUMBER"),
                          merged(columns({2}), "STRING", "/")}),
             expected);
}

QTEST_GUILESS_MAIN(TestOutputRows)

#include "tst_outputrows.moc"
