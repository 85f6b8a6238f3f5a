// Taking texts of the form keyword(argument) apart, and reading numbers.
#include "rules/functiontext.h"
#include "tests/rules/ruleoracle.h"

#include <QRandomGenerator>
#include <QtTest>
#include <limits>

namespace {

void row(const char *title, const char *text, const char *name, const char *args)
{
    QTest::newRow(title) << text << name << args;
}

} // namespace

class TestFunctionText : public QObject
{
    Q_OBJECT

private slots:
    void takesApart_data();
    void takesApart();
    void readsIntegers_data();
    void readsIntegers();
    void readsIntegerArguments_data();
    void readsIntegerArguments();
    void readsIntegersFromPartsOfTexts();
    void agreesWithTheLibraryOnRandomNumbers();
    void agreesWithThePlainVersionOnRandomTexts();
};

void TestFunctionText::takesApart_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("args");

    row("keyword and argument", "left(3)", "left", "3");
    row("an empty argument", "trim()", "trim", "");
    row("brackets in the argument", "contains(a(b)c)", "contains", "a(b)c");
    row("the argument runs to the last bracket", "equalTo(x)y)", "equalTo", "x)y");
    row("what stands behind the last bracket is dropped", "a(b)c", "a", "b");
    row("the name ends at the first bracket", "a((b", "a", "(b");
    row("commas are part of the argument", "find(a,b,c)", "find", "a,b,c");
    row("blanks stay", " left ( 3 ) ", " left ", " 3 ");
    row("no name", "(x)", "", "x");
    row("nested functions", "range(lessThan(3),unLimit)", "range", "lessThan(3),unLimit");
    row("line breaks are text like any other", "append(\n)", "append", "\n");
    QTest::newRow("wide brackets are no brackets")
        << QStringLiteral("left（3）") << QStringLiteral("left（3）")
        << QStringLiteral("left（3）");

    // What a substring call makes of missing positions.
    row("the empty text", "", "", "");
    row("a bare word is its own name", "trim", "trim", "trim");
    row("no closing bracket: to the end", "left(3", "left", "3");
    row("only an opening bracket", "(", "", "");
    row("no opening bracket: from the start", "ab)c", "ab)c", "ab");
    row("only a closing bracket", ")", ")", "");
    row("closing before opening: to the end", "a)b(c", "a)b", "c");
}

void TestFunctionText::takesApart()
{
    QFETCH(QString, text);
    QTEST(functionName(text), "name");
    QTEST(functionArgs(text), "args");
}

void TestFunctionText::readsIntegers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");

    QTest::newRow("a digit") << "7" << 7;
    QTest::newRow("leading zeros are not octal") << "010" << 10;
    QTest::newRow("many leading zeros") << "00000000000000000012" << 12;
    QTest::newRow("nine digits") << "999999999" << 999999999;
    QTest::newRow("ten digits") << "1000000000" << 1000000000;
    QTest::newRow("a minus sign") << "-5" << -5;
    QTest::newRow("a plus sign") << "+5" << 5;
    QTest::newRow("the largest number") << "2147483647" << std::numeric_limits<int>::max();
    QTest::newRow("the smallest number") << "-2147483648" << std::numeric_limits<int>::min();
    QTest::newRow("blanks around the digits are allowed") << "  12  " << 12;
    QTest::newRow("a tab and a line feed around the digits") << "\t12\n" << 12;

    QTest::newRow("the empty text is 0") << "" << 0;
    QTest::newRow("blanks alone are 0") << "   " << 0;
    QTest::newRow("a fraction is 0") << "12.5" << 0;
    QTest::newRow("a whole fraction is 0") << "12.0" << 0;
    QTest::newRow("a group separator is 0") << "1,000" << 0;
    QTest::newRow("a currency sign is 0") << QStringLiteral("¥100") << 0;
    QTest::newRow("letters are 0") << "abc" << 0;
    QTest::newRow("digits and letters are 0") << "12abc" << 0;
    QTest::newRow("a blank inside is 0") << "1 2" << 0;
    QTest::newRow("a hexadecimal number is 0") << "0x10" << 0;
    QTest::newRow("an exponent is 0") << "1e3" << 0;
    QTest::newRow("a sign alone is 0") << "-" << 0;
    QTest::newRow("two signs are 0") << "--1" << 0;
    QTest::newRow("a sign behind is 0") << "1-" << 0;
    QTest::newRow("a blank behind the sign is 0") << "- 1" << 0;
    QTest::newRow("one more than the largest number is 0") << "2147483648" << 0;
    QTest::newRow("one less than the smallest number is 0") << "-2147483649" << 0;
    QTest::newRow("a number beyond 64 bits is 0") << "99999999999999999999" << 0;
    QTest::newRow("brackets are 0") << "(3)" << 0;
}

void TestFunctionText::readsIntegers()
{
    QFETCH(QString, text);
    QTEST(toInteger(text), "number");
}

void TestFunctionText::readsIntegerArguments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");

    QTest::newRow("the argument") << "left(12)" << 12;
    QTest::newRow("a negative argument") << "left(-1)" << -1;
    QTest::newRow("an argument with blanks") << "left( 12 )" << 12;
    QTest::newRow("no closing bracket") << "left(12" << 12;

    QTest::newRow("a bare word is 0") << "left" << 0;
    QTest::newRow("an empty argument is 0") << "left()" << 0;
    QTest::newRow("not a number is 0") << "left(x)" << 0;
    QTest::newRow("two numbers are 0") << "left(1,2)" << 0;
    QTest::newRow("a number in brackets is 0") << "left((3))" << 0;
}

void TestFunctionText::readsIntegerArguments()
{
    QFETCH(QString, text);
    QTEST(functionIntArg(text), "number");
}

void TestFunctionText::readsIntegersFromPartsOfTexts()
{
    const QString row = QStringLiteral("10,-20,3000000000,4");
    QCOMPARE(toInteger(QStringView(row).mid(0, 2)), 10);
    QCOMPARE(toInteger(QStringView(row).mid(3, 3)), -20);
    QCOMPARE(toInteger(QStringView(row).mid(7, 9)), 300000000);
    QCOMPARE(toInteger(QStringView(row).mid(7, 10)), 0);
    QCOMPARE(toInteger(QStringView(row).mid(18)), 4);
    QCOMPARE(toInteger(QStringView()), 0);
}

void TestFunctionText::agreesWithTheLibraryOnRandomNumbers()
{
    QRandomGenerator random(20210821);
    const QString alphabet = QStringLiteral("0123456789012345678901234567890123456789 +-.,e\u00A0");
    for (int i = 0; i < 100000; ++i) {
        QString text;
        const int length = random.bounded(13);
        for (int j = 0; j < length; ++j)
            text.append(alphabet.at(random.bounded(j == 0 ? alphabet.size() : 42)));
        if (toInteger(text) != text.toInt())
            QCOMPARE(QStringLiteral("%1 = %2").arg(text).arg(toInteger(text)),
                     QStringLiteral("%1 = %2").arg(text).arg(text.toInt()));
    }
}

void TestFunctionText::agreesWithThePlainVersionOnRandomTexts()
{
    QRandomGenerator random(20210822);
    const QString alphabet = QStringLiteral("a1(), (");
    for (int i = 0; i < 100000; ++i) {
        QString text;
        const int length = random.bounded(9);
        for (int j = 0; j < length; ++j)
            text.append(alphabet.at(random.bounded(alphabet.size())));
        const QStringList got = {text, functionName(text), functionArgs(text),
                                 QString::number(functionIntArg(text))};
        const QStringList expected = {text, RuleOracle::name(text), RuleOracle::args(text),
                                      QString::number(RuleOracle::intArg(text))};
        if (got != expected)
            QCOMPARE(got, expected);
    }
}

QTEST_APPLESS_MAIN(TestFunctionText)
#include "tst_functiontext.moc"
