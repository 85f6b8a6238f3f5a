// Conditions: the eight text tests, the number range, and how several of them combine.
#include "rules/condition.h"
#include "tests/rules/ruleoracle.h"

#include <QRandomGenerator>
#include <QtTest>
#include <limits>

namespace {

void row(const char *name, const char *condition, const char *value, bool holds)
{
    QTest::newRow(name) << condition << value << holds;
}

} // namespace

class TestCondition : public QObject
{
    Q_OBJECT

private slots:
    void testsText_data();
    void testsText();
    void testsNumbers_data();
    void testsNumbers();
    void testsNumberRanges_data();
    void testsNumberRanges();
    void combines_data();
    void combines();
    void stopsAtTheFirstFailureWithAnd();
    void readsATextOnceAndTestsOften();
    void takesNullTextsForEmptyOnes();
    void agreesWithThePlainVersion();
    void agreesWithThePlainVersionOnCombinations();
};

void TestCondition::testsText_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("holds");

    row("equalTo the same", "equalTo(abc)", "abc", true);
    row("equalTo something longer", "equalTo(abc)", "abcd", false);
    row("equalTo in another case", "equalTo(abc)", "Abc", false);
    row("notEqualTo something else", "notEqualTo(abc)", "abd", true);
    row("notEqualTo the same", "notEqualTo(abc)", "abc", false);
    row("notEqualTo in another case", "notEqualTo(abc)", "ABC", true);
    row("contains in the middle", "contains(b)", "abc", true);
    row("contains at the start", "contains(a)", "abc", true);
    row("contains at the end", "contains(c)", "abc", true);
    row("contains the whole value", "contains(abc)", "abc", true);
    row("contains more than the value", "contains(abcd)", "abc", false);
    row("contains in another case", "contains(B)", "abc", false);
    row("contains only in pieces", "contains(ac)", "abc", false);
    row("notContains something absent", "notContains(x)", "abc", true);
    row("notContains something there", "notContains(b)", "abc", false);
    row("notContains in another case", "notContains(B)", "abc", true);
    row("startsWith the start", "startsWith(ab)", "abc", true);
    row("startsWith the middle", "startsWith(b)", "abc", false);
    row("startsWith more than the value", "startsWith(abcd)", "abc", false);
    row("startsWith in another case", "startsWith(AB)", "abc", false);
    row("notStartsWith the middle", "notStartsWith(b)", "abc", true);
    row("notStartsWith the start", "notStartsWith(a)", "abc", false);
    row("notStartsWith more than the value", "notStartsWith(abcd)", "abc", true);
    row("endsWith the end", "endsWith(bc)", "abc", true);
    row("endsWith the middle", "endsWith(b)", "abc", false);
    row("endsWith more than the value", "endsWith(xabc)", "abc", false);
    row("endsWith in another case", "endsWith(C)", "abc", false);
    row("notEndsWith the middle", "notEndsWith(b)", "abc", true);
    row("notEndsWith the end", "notEndsWith(c)", "abc", false);

    row("a comma is allowed in a condition", "contains(a,b)", "xa,by", true);
    row("the parts around a comma are not enough", "contains(a,b)", "ab", false);
    row("the argument runs to the last bracket", "equalTo(x)y)", "x)y", true);
    row("not only to the first bracket", "equalTo(x)y)", "x", false);
    row("brackets in the argument", "contains((a))", "x(a)y", true);
    row("a blank in the argument counts", "equalTo( a)", "a", false);
    row("a blank in the value counts", "equalTo(a)", "a ", false);
    row("the argument may be a line break", "contains(\n)", "a\nb", true);
    row("what stands behind the bracket is dropped", "equalTo(a)b", "a", true);

    row("equalTo nothing: an empty value", "equalTo()", "", true);
    row("equalTo nothing: any other value", "equalTo()", "a", false);
    row("notEqualTo nothing: an empty value", "notEqualTo()", "", false);
    row("notEqualTo nothing: any other value", "notEqualTo()", "a", true);
    row("contains nothing: any value", "contains()", "a", true);
    row("startsWith nothing: any value", "startsWith()", "a", true);
    row("endsWith nothing: any value", "endsWith()", "a", true);
    row("notContains nothing: no value", "notContains()", "a", false);
    row("notStartsWith nothing: no value", "notStartsWith()", "a", false);
    row("notEndsWith nothing: no value", "notEndsWith()", "a", false);
    row("nothing occurs in an empty value, too", "contains()", "", true);
    row("an empty value starts with nothing", "startsWith()", "", true);
    row("an empty value ends with nothing", "endsWith()", "", true);
    row("something in an empty value", "contains(a)", "", false);
    row("something not in an empty value", "notContains(a)", "", true);

    row("an empty condition", "", "a", false);
    row("an empty condition, an empty value", "", "", false);
    row("a capital letter is another keyword", "Contains(a)", "a", false);
    row("an unknown keyword", "matches(a)", "a", false);
    row("an unknown keyword is not negated", "notMatches(a)", "b", false);
    row("a keyword with a blank before it", " equalTo(a)", "a", false);
    row("a keyword with a blank behind it", "equalTo (a)", "a", false);
    row("the keyword without its s", "startWith(a)", "a", false);
    row("a range is no text test", "range(unLimit,unLimit)", "1", false);
    row("a bare keyword searches itself", "contains", "it contains", true);
    row("a bare keyword finds nothing else", "contains", "a", false);

    QTest::newRow("full width is another character")
        << QStringLiteral("equalTo(Ａ)") << "A" << false;
    QTest::newRow("hiragana is not katakana")
        << QStringLiteral("contains(あ)") << QStringLiteral("ア") << false;
    QTest::newRow("Korean") << QStringLiteral("endsWith(동)") << QStringLiteral("서초동") << true;
    QTest::newRow("composed and decomposed differ")
        << QStringLiteral("equalTo(\u00E9)") << QStringLiteral("e\u0301") << false;
    QTest::newRow("half a surrogate pair is a code unit")
        << QString(QStringLiteral("endsWith(") + QChar(0xDE00) + QLatin1Char(')'))
        << QStringLiteral("\U0001F600") << true;
}

void TestCondition::testsText()
{
    QFETCH(QString, condition);
    QFETCH(QString, value);
    QTEST(evaluateStringCondition(condition, value), "holds");
    QTEST(StringCondition(condition).holds(value), "holds");
    if (!condition.startsWith(QLatin1String("range"))) // which asks for a number here
        QTEST(Condition(condition).holds(value), "holds");
}

void TestCondition::testsNumbers_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("holds");

    const auto range = [](const char *condition, const char *value, bool holds) {
        QTest::addRow("%s of <%s>", condition, value)
            << QString::fromUtf8(condition) << QString::fromUtf8(value) << holds;
    };
    range("range(unLimit,unLimit)", "5", true);
    range("range(unLimit,unLimit)", "abc", true);
    range("range(unLimit,unLimit)", "", true);

    range("range(greaterThan(0),unLimit)", "1", true);
    range("range(greaterThan(0),unLimit)", "0", false);
    range("range(greaterThan(0),unLimit)", "-1", false);
    range("range(greaterThan(0),unLimit)", "abc", false);
    range("range(greaterThan(0),unLimit)", "", false);
    range("range(greaterThan(0),unLimit)", "12.5", false);
    range("range(greaterThan(0),unLimit)", "1,000", false);
    range("range(greaterThan(0),unLimit)", "¥100", false);
    range("range(greaterThan(0),unLimit)", "+1", true);
    range("range(greaterThan(0),unLimit)", " 1 ", true);
    range("range(greaterThan(0),unLimit)", "007", true);

    range("range(unLimit,lessThan(3))", "2", true);
    range("range(unLimit,lessThan(3))", "3", false);
    range("range(unLimit,lessThan(3))", "abc", true);
    range("range(unLimit,notGreaterThan(3))", "3", true);
    range("range(unLimit,notGreaterThan(3))", "4", false);

    range("range(notLessThan(5),notGreaterThan(5))", "4", false);
    range("range(notLessThan(5),notGreaterThan(5))", "5", true);
    range("range(notLessThan(5),notGreaterThan(5))", "6", false);
    range("range(greaterThan(5),lessThan(6))", "5", false);
    range("range(greaterThan(5),lessThan(6))", "6", false);
    range("range(greaterThan(1000),notGreaterThan(5000))", "1000", false);
    range("range(greaterThan(1000),notGreaterThan(5000))", "1001", true);
    range("range(greaterThan(1000),notGreaterThan(5000))", "5000", true);
    range("range(greaterThan(1000),notGreaterThan(5000))", "5001", false);
    range("range(greaterThan(6),lessThan(5))", "5", false);
    range("range(greaterThan(6),lessThan(5))", "7", false);

    range("range(greaterThan(-10),lessThan(-5))", "-7", true);
    range("range(greaterThan(-10),lessThan(-5))", "-10", false);
    range("range(greaterThan( 10 ),unLimit)", "11", true);
    range("range(greaterThan( 10 ),unLimit)", "10", false);

    range("range(greaterThan(2147483647),unLimit)", "2147483647", false);
    range("range(notLessThan(2147483647),unLimit)", "2147483647", true);
    range("range(notLessThan(2147483647),unLimit)", "2147483648", false); // reads as 0
    range("range(unLimit,notGreaterThan(-2147483648))", "-2147483648", true);
    range("range(unLimit,notGreaterThan(-2147483648))", "-2147483649", false); // reads as 0
    range("range(greaterThan(2147483648),unLimit)", "1", true);                // reads as 0
    range("range(greaterThan(x),unLimit)", "1", true);                         // reads as 0
    range("range(greaterThan(x),unLimit)", "0", false);
    range("range(greaterThan(),unLimit)", "1", true);
    range("range(greaterThan(),unLimit)", "0", false);
    range("range(greaterThan,unLimit)", "0", false); // a bound without a number is 0
    range("range(unLimit,lessThan)", "-1", true);
    range("range(unLimit,lessThan)", "0", false);

    // Missing and unknown bounds bound nothing.
    range("range(greaterThan(10))", "11", true);
    range("range(greaterThan(10))", "10", false);
    range("range(,lessThan(3))", "-100", true);
    range("range(,lessThan(3))", "3", false);
    range("range(,)", "x", true);
    range("range()", "x", true);
    range("range", "x", true);
    range("range(", "x", true);
    range("range(greaterThan(10),)", "11", true);
    range("range(unlimit,unlimit)", "0", true);
    range("range(unLimit(5),unLimit(5))", "100", true);
    range("range(GreaterThan(10),unLimit)", "0", true);
    range("range( greaterThan(10),unLimit)", "0", true);
    range("range(lessThan(10),unLimit)", "100", true);
    range("range(unLimit,greaterThan(10))", "0", true);
    range("range(unLimit,unLimit,greaterThan(10))", "0", true);
    range("range(greaterThan(1,000),unLimit)", "1", false); // the bounds are greaterThan(1 and 000)
    range("range(greaterThan(1,000),unLimit)", "2", true);
    range("Range(unLimit,unLimit)", "1", false);
    range("ranges(unLimit,unLimit)", "1", false);
}

void TestCondition::testsNumbers()
{
    QFETCH(QString, condition);
    QFETCH(QString, value);
    QTEST(Condition(condition).holds(value), "holds");
    QTEST(conditionsHold({condition}, {value}, QStringLiteral("AND")), "holds");
}

void TestCondition::testsNumberRanges_data()
{
    QTest::addColumn<QStringList>("parts");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("holds");

    const int smallest = std::numeric_limits<int>::min();
    const int largest = std::numeric_limits<int>::max();
    const QStringList upFromTen = {QStringLiteral("greaterThan(10)"), QStringLiteral("unLimit")};
    const QStringList fromTenToTwenty = {QStringLiteral("notLessThan(10)"),
                                         QStringLiteral("lessThan(20)")};
    QTest::newRow("no parts at all") << QStringList() << 3 << true;
    QTest::newRow("above the bound") << upFromTen << 11 << true;
    QTest::newRow("on the bound") << upFromTen << 10 << false;
    QTest::newRow("the smallest number") << upFromTen << smallest << false;
    QTest::newRow("the largest number") << upFromTen << largest << true;
    QTest::newRow("on the inclusive bound") << fromTenToTwenty << 10 << true;
    QTest::newRow("below the inclusive bound") << fromTenToTwenty << 9 << false;
    QTest::newRow("below the upper bound") << fromTenToTwenty << 19 << true;
    QTest::newRow("on the upper bound") << fromTenToTwenty << 20 << false;
    QTest::newRow("one part only") << QStringList(QStringLiteral("greaterThan(10)")) << 10 << false;
    QTest::newRow("a third part says nothing")
        << (fromTenToTwenty + QStringList(QStringLiteral("lessThan(0)"))) << 10 << true;
}

void TestCondition::testsNumberRanges()
{
    QFETCH(QStringList, parts);
    QFETCH(int, number);
    QTEST(evaluateNumberRange(parts, number), "holds");
}

void TestCondition::combines_data()
{
    QTest::addColumn<QStringList>("conditions");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("combination");
    QTest::addColumn<bool>("holds");

    const QString isA = QStringLiteral("equalTo(a)");
    const QString isB = QStringLiteral("equalTo(b)");
    const QString many = QStringLiteral("range(greaterThan(1),unLimit)");
    const QStringList both = {isA, isB};
    const QStringList ab = {QStringLiteral("a"), QStringLiteral("b")};
    const QStringList ax = {QStringLiteral("a"), QStringLiteral("x")};
    const QStringList xb = {QStringLiteral("x"), QStringLiteral("b")};
    const QStringList xx = {QStringLiteral("x"), QStringLiteral("x")};
    const QString empty;

    QTest::newRow("AND: all hold") << both << ab << "AND" << true;
    QTest::newRow("AND: the first fails") << both << xb << "AND" << false;
    QTest::newRow("AND: the last fails") << both << ax << "AND" << false;
    QTest::newRow("AND: none holds") << both << xx << "AND" << false;
    QTest::newRow("OR: all hold") << both << ab << "OR" << true;
    QTest::newRow("OR: only the first holds") << both << ax << "OR" << true;
    QTest::newRow("OR: only the last holds") << both << xb << "OR" << true;
    QTest::newRow("OR: none holds") << both << xx << "OR" << false;
    QTest::newRow("one condition with AND") << QStringList(isA) << ab << "AND" << true;
    QTest::newRow("one condition with OR") << QStringList(isA) << ab << "OR" << true;
    QTest::newRow("text and number")
        << QStringList({isA, many}) << QStringList({QStringLiteral("a"), QStringLiteral("2")})
        << "AND" << true;
    QTest::newRow("text and a number too small")
        << QStringList({isA, many}) << QStringList({QStringLiteral("a"), QStringLiteral("1")})
        << "AND" << false;

    QTest::newRow("no condition passes with AND") << QStringList() << ab << "AND" << true;
    QTest::newRow("no condition passes with OR") << QStringList() << ab << "OR" << true;
    QTest::newRow("no condition passes with any word") << QStringList() << ab << "" << true;

    QTest::newRow("an empty combination word never holds") << both << ab << "" << false;
    QTest::newRow("lower case is no combination word") << both << ab << "and" << false;
    QTest::newRow("lower case or") << both << ab << "or" << false;
    QTest::newRow("another word never holds") << both << ab << "XOR" << false;
    QTest::newRow("a blank makes another word") << both << ab << "AND " << false;

    QTest::newRow("required: an empty condition fails with AND")
        << QStringList({isA, empty}) << ab << "AND" << false;
    QTest::newRow("required: an empty condition alone fails with OR")
        << QStringList(empty) << ab << "OR" << false;
    QTest::newRow("an empty condition does not spoil OR")
        << QStringList({empty, isB}) << ab << "OR" << true;
    QTest::newRow("a missing value is empty")
        << both << QStringList(QStringLiteral("a")) << "AND" << false;
    QTest::newRow("a missing value can be asked for")
        << QStringList({isA, QStringLiteral("equalTo()")}) << QStringList(QStringLiteral("a"))
        << "AND" << true;
    QTest::newRow("values that nobody asks for") << QStringList(isA) << ax << "AND" << true;
}

void TestCondition::combines()
{
    QFETCH(QStringList, conditions);
    QFETCH(QStringList, values);
    QFETCH(QString, combination);
    QTEST(conditionsHold(conditions, values, combination), "holds");
    QTEST(RuleOracle::conditionsHold(conditions, values, combination), "holds");
}

void TestCondition::stopsAtTheFirstFailureWithAnd()
{
    QVector<int> tested;
    const auto onlyTheFirstHolds = [&tested](int i) {
        tested.append(i);
        return i == 0;
    };
    QCOMPARE(combinedConditionsHold(4, Combination::All, onlyTheFirstHolds), false);
    QCOMPARE(tested, QVector<int>({0, 1}));

    tested.clear();
    QCOMPARE(combinedConditionsHold(4, Combination::Nothing, onlyTheFirstHolds), false);
    QCOMPARE(combinedConditionsHold(0, Combination::All, onlyTheFirstHolds), true);
}

void TestCondition::readsATextOnceAndTestsOften()
{
    QString text = QStringLiteral("contains(a)");
    const Condition condition(text);
    text = QStringLiteral("contains(b)"); // the condition keeps what it has read
    for (int i = 0; i < 3; ++i) {
        QVERIFY(condition.holds(QStringLiteral("xax")));
        QVERIFY(!condition.holds(QStringLiteral("xbx")));
    }
    const Condition copy = condition;
    QVERIFY(copy.holds(QStringLiteral("a")));
}

void TestCondition::takesNullTextsForEmptyOnes()
{
    for (const char *keyword : {"equalTo()", "contains()", "startsWith()", "endsWith()"}) {
        const QString condition = QLatin1String(keyword);
        QVERIFY2(evaluateStringCondition(condition, QStringView()), keyword);
        QVERIFY2(evaluateStringCondition(condition, QString()), keyword);
        QVERIFY2(evaluateStringCondition(condition, QStringLiteral("")), keyword);
        QVERIFY2(evaluateStringCondition(condition, QStringView(u"abc").mid(3)), keyword);
        const QString negated =
            QStringLiteral("not") + condition.at(0).toUpper() + condition.mid(1);
        QVERIFY2(!evaluateStringCondition(negated, QStringView()), keyword);
        QVERIFY2(!evaluateStringCondition(negated, QStringLiteral("")), keyword);
    }
    QVERIFY(Condition(QStringLiteral("range(unLimit,lessThan(1))")).holds(QStringView()));
    QVERIFY(!Condition(QStringLiteral("range(greaterThan(0),unLimit)")).holds(QStringView()));
}

namespace {

QString pick(QRandomGenerator &random, const QStringList &texts)
{
    return texts.at(random.bounded(texts.size()));
}

QString randomText(QRandomGenerator &random, const QString &alphabet, int maximumLength)
{
    QString text;
    const int length = random.bounded(maximumLength + 1);
    for (int i = 0; i < length; ++i)
        text.append(alphabet.at(random.bounded(alphabet.size())));
    return text;
}

const QStringList stringKeywords = QStringLiteral("equalTo notEqualTo contains notContains "
                                                  "startsWith notStartsWith endsWith notEndsWith "
                                                  "Contains equals")
                                       .split(QLatin1Char(' '));

const QStringList numbers = QStringLiteral("0;1;-1;2;5;05; 2 ;2147483647;-2147483648;2147483648;"
                                           "99999999999;;x;1.5;(2);+1")
                                .split(QLatin1Char(';'));

QString randomBound(QRandomGenerator &random)
{
    static const QStringList words =
        QStringLiteral("unLimit greaterThan notLessThan lessThan notGreaterThan other")
            .split(QLatin1Char(' '));
    QString bound = pick(random, words);
    if (bound != QStringLiteral("unLimit") || random.bounded(8) == 0)
        bound += QLatin1Char('(') + pick(random, numbers) + QLatin1Char(')');
    return random.bounded(10) == 0 ? QString() : bound;
}

QString randomCondition(QRandomGenerator &random)
{
    switch (random.bounded(8)) {
    case 0:
        return randomText(random, QStringLiteral("ab(),"), 8);
    case 1:
    case 2:
    case 3:
        return QStringLiteral("range(%1%2%3)")
            .arg(randomBound(random), random.bounded(10) ? QStringLiteral(",") : QString(),
                 randomBound(random));
    default:
        return pick(random, stringKeywords) + QLatin1Char('(')
            + randomText(random, QStringLiteral("abab(),"), 3) + QLatin1Char(')');
    }
}

QString randomValue(QRandomGenerator &random)
{
    return random.bounded(3) == 0 ? pick(random, numbers)
                                  : randomText(random, QStringLiteral("ababab(),"), 5);
}

} // namespace

void TestCondition::agreesWithThePlainVersion()
{
    QRandomGenerator random(31001);
    for (int i = 0; i < 100000; ++i) {
        const QString text = randomCondition(random);
        const QString value = randomValue(random);
        const QList<bool> got = {evaluateStringCondition(text, value),
                                 Condition(text).holds(value)};
        const QList<bool> expected = {RuleOracle::stringCondition(text, value),
                                      RuleOracle::condition(text, value)};
        if (got != expected)
            QFAIL(qPrintable(QStringLiteral("%1 of <%2>: got %3 %4, expected %5 %6")
                                 .arg(text, value)
                                 .arg(got.at(0))
                                 .arg(got.at(1))
                                 .arg(expected.at(0))
                                 .arg(expected.at(1))));
    }
}

void TestCondition::agreesWithThePlainVersionOnCombinations()
{
    QRandomGenerator random(31002);
    const QStringList words = {QStringLiteral("AND"), QStringLiteral("AND"), QStringLiteral("OR"),
                               QStringLiteral("or"), QString()};
    for (int i = 0; i < 30000; ++i) {
        QStringList conditions;
        QStringList values;
        for (int j = random.bounded(4); j > 0; --j)
            conditions.append(randomCondition(random));
        for (int j = random.bounded(5); j > 0; --j)
            values.append(randomValue(random));
        const QString word = pick(random, words);
        if (conditionsHold(conditions, values, word)
            != RuleOracle::conditionsHold(conditions, values, word))
            QFAIL(qPrintable(
                QStringLiteral("%1 of <%2> with %3")
                    .arg(conditions.join(QLatin1Char(' ')), values.join(QLatin1Char('|')), word)));
    }
}

QTEST_APPLESS_MAIN(TestCondition)
#include "tst_condition.moc"
