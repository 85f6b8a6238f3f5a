// Rules: each keyword on its edge cases, lists of rules, and random rules against the plain
// version.
#include "rules/rule.h"
#include "rules/workingtext.h"
#include "tests/rules/charkindoracle.h"
#include "tests/rules/ruleoracle.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

void row(const char *name, const char *rule, const char *value, const char *result)
{
    QTest::newRow(name) << rule << value << result;
}

} // namespace

class TestRule : public QObject
{
    Q_OBJECT

private slots:
    void cutsLengths_data();
    void cutsLengths() { applies(); }
    void breaksLines_data();
    void breaksLines() { applies(); }
    void changesLineBreaks_data();
    void changesLineBreaks() { applies(); }
    void inserts_data();
    void inserts() { applies(); }
    void findsInTheFullString_data();
    void findsInTheFullString() { applies(); }
    void findsTheMatchedString_data();
    void findsTheMatchedString() { applies(); }
    void changesLetterCase_data();
    void changesLetterCase() { applies(); }
    void removesBlanks_data();
    void removesBlanks() { applies(); }
    void leavesUnknownRulesAlone_data();
    void leavesUnknownRulesAlone() { applies(); }
    void appliesListsInOrder_data();
    void appliesListsInOrder();
    void leavesItsArgumentsAlone();
    void returnsATextOfItsOwn();
    void isReadOnceAndAppliedOften();
    void endsOnHugeValues();
    void agreesWithThePlainVersionOnRandomRules();
    void agreesWithThePlainVersionOnRandomLists();

private:
    static void addColumns()
    {
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("result");
    }
    void applies();
};

void TestRule::applies()
{
    QFETCH(QString, rule);
    QFETCH(QString, value);
    QTEST(applyRule(rule, value), "result");
}

void TestRule::cutsLengths_data()
{
    addColumns();
    row("left keeps the first units", "left(2)", "abcd", "ab");
    row("left(0) empties the value", "left(0)", "abcd", "");
    row("left of one unit less", "left(3)", "abcd", "abc");
    row("left of the whole length", "left(4)", "abcd", "abcd");
    row("left beyond the end", "left(5)", "abcd", "abcd");
    row("left of a negative number", "left(-1)", "abcd", "abcd");
    row("left of the largest number", "left(2147483647)", "abcd", "abcd");
    row("left of a number beyond 32 bits reads as 0", "left(2147483648)", "abcd", "");
    row("left of no number reads as 0", "left(x)", "abcd", "");
    row("left of nothing reads as 0", "left()", "abcd", "");
    row("bare left reads as 0", "left", "abcd", "");
    row("left without its last bracket", "left(2", "abcd", "ab");
    row("left of two numbers reads as 0", "left(1,2)", "abcd", "");
    row("left of a number with blanks", "left( 2 )", "abcd", "ab");
    row("left of an empty value", "left(2)", "", "");
    QTest::newRow("left may part a surrogate pair: units are counted")
        << "left(1)"
        << "\U0001F600" << QString(QChar(0xD83D));

    row("right keeps the last units", "right(2)", "abcd", "cd");
    row("right(0) empties the value", "right(0)", "abcd", "");
    row("right of the whole length", "right(4)", "abcd", "abcd");
    row("right beyond the start", "right(5)", "abcd", "abcd");
    row("right(-1) keeps the value", "right(-1)", "abcd", "abcd");
    row("right of the smallest number", "right(-2147483648)", "abcd", "abcd");
    row("right of no number reads as 0", "right(x)", "abcd", "");

    row("cutLeft drops the first units", "cutLeft(1)", "abcd", "bcd");
    row("cutLeft(0)", "cutLeft(0)", "abcd", "abcd");
    row("cutLeft of the whole length", "cutLeft(4)", "abcd", "");
    row("cutLeft beyond the end", "cutLeft(10)", "abcd", "");
    row("cutLeft of the largest number", "cutLeft(2147483647)", "abcd", "");
    row("cutLeft of a negative number", "cutLeft(-1)", "abcd", "abcd");
    row("cutLeft of no number", "cutLeft(x)", "abcd", "abcd");

    row("cutRight drops the last units", "cutRight(1)", "abcd", "abc");
    row("cutRight(0) leaves the value", "cutRight(0)", "abcd", "abcd");
    row("cutRight of the whole length", "cutRight(4)", "abcd", "");
    row("cutRight beyond the start", "cutRight(10)", "abcd", "");
    row("cutRight of the largest number", "cutRight(2147483647)", "abcd", "");
    row("cutRight of a negative number", "cutRight(-2)", "abcd", "abcd");
    row("cutRight of the smallest number", "cutRight(-2147483648)", "abcd", "abcd");
    row("cutRight of an empty value", "cutRight(1)", "", "");
    row("curRight is not a rule", "curRight(2)", "abcd", "abcd");
}

void TestRule::breaksLines_data()
{
    addColumns();
    row("the last piece may be one unit longer", "breakLine(2)", "abcde", "ab\ncde");
    row("n + 1 units stay whole", "breakLine(2)", "abc", "abc");
    row("n + 2 units are broken", "breakLine(2)", "abcd", "ab\ncd");
    row("seven units by three", "breakLine(3)", "abcdefg", "abc\ndefg");
    row("eight units by three", "breakLine(3)", "abcdefgh", "abc\ndef\ngh");
    row("four units by three stay whole", "breakLine(3)", "abcd", "abcd");
    row("one unit each, the last two together", "breakLine(1)", "abcd", "a\nb\ncd");
    row("a line break counts as a unit", "breakLine(2)", "a\nbcd", "a\n\nbcd");
    row("wide characters count as one", "breakLine(2)", "가나다라마", "가나\n다라마");

    row("n units stay whole", "breakLine(3)", "abc", "abc");
    row("fewer units stay whole", "breakLine(10)", "abc", "abc");
    row("an empty value", "breakLine(1)", "", "");
    row("a single unit", "breakLine(1)", "a", "a");
    row("two units", "breakLine(1)", "ab", "ab");
    row("breakLine(0) does nothing", "breakLine(0)", "abcd", "abcd");
    row("a negative number does nothing", "breakLine(-1)", "abcd", "abcd");
    row("the smallest number does nothing", "breakLine(-2147483648)", "abcd", "abcd");
    row("the largest number does nothing", "breakLine(2147483647)", "abcd", "abcd");
    row("no number does nothing", "breakLine(x)", "abcd", "abcd");
    row("bare breakLine does nothing", "breakLine", "abcd", "abcd");
}

void TestRule::changesLineBreaks_data()
{
    addColumns();
    row("LF: pairs become LF", "newLine(LF)", "a\r\nb\r\n", "a\nb\n");
    row("LF: only the CR next to the LF goes", "newLine(LF)", "a\r\r\nb", "a\r\nb");
    row("LF: a CR alone stays", "newLine(LF)", "a\rb", "a\rb");
    row("LF: an LF alone stays", "newLine(LF)", "a\nb", "a\nb");
    row("LF: LF CR is no pair", "newLine(LF)", "a\n\rb", "a\n\rb");
    row("LF: a CR at the end stays", "newLine(LF)", "a\r", "a\r");
    row("CRLF: LF becomes a pair", "newLine(CRLF)", "a\nb\n", "a\r\nb\r\n");
    row("required: CRLF doubles the CR of a pair", "newLine(CRLF)", "a\r\nb", "a\r\r\nb");
    row("CRLF: a CR alone stays", "newLine(CRLF)", "a\rb", "a\rb");
    row("CRLF: LF LF", "newLine(CRLF)", "\n\n", "\r\n\r\n");
    row("REMOVE joins the lines", "newLine(REMOVE)", "a\r\nb\nc\rd", "abcd");
    row("REMOVE of nothing but breaks", "newLine(REMOVE)", "\r\n\n\r", "");
    row("REMOVE: other line ends stay", "newLine(REMOVE)", "a\u2028b\u0085c\vd",
        "a\u2028b\u0085c\vd");

    row("LF: no line break", "newLine(LF)", "ab", "ab");
    row("CRLF: no line break", "newLine(CRLF)", "ab", "ab");
    row("REMOVE: no line break", "newLine(REMOVE)", "ab", "ab");
    row("an empty value", "newLine(CRLF)", "", "");
    row("CR is no way", "newLine(CR)", "a\r\nb", "a\r\nb");
    row("lower case is no way", "newLine(lf)", "a\r\nb", "a\r\nb");
    row("a blank makes it no way", "newLine( LF)", "a\r\nb", "a\r\nb");
    row("nothing is no way", "newLine()", "a\r\nb", "a\r\nb");
    row("bare newLine", "newLine", "a\r\nb", "a\r\nb");
}

void TestRule::inserts_data()
{
    addColumns();
    row("prepend", "prepend(x)", "ab", "xab");
    row("append", "append(x)", "ab", "abx");
    row("append to the last bracket", "append(a)b)", "x", "xa)b");
    row("prepend an opening bracket", "prepend(()", "x", "(x");
    row("append brackets", "append((a)(b))", "x", "x(a)(b)");
    row("append a comma", "append(a,b)", "x", "xa,b");
    row("append blanks", "append(  )", "x", "x  ");
    row("append a line break", "append(\n)", "x", "x\n");
    row("append to an empty value", "append(x)", "", "x");
    row("prepend to an empty value", "prepend(x)", "", "x");
    row("a rule as the argument", "append(left(1))", "x", "xleft(1)");
    row("what stands behind the bracket is dropped", "append(a)b", "x", "xa");
    row("no closing bracket", "append(a", "x", "xa");
    row("a bare word is its own argument", "append", "x", "xappend");

    row("append nothing", "append()", "ab", "ab");
    row("prepend nothing", "prepend()", "ab", "ab");
    row("nothing to nothing", "append()", "", "");
    row("Append is not a rule", "Append(x)", "ab", "ab");
    row("insert is not a rule", "insert(x)", "ab", "ab");
}

void TestRule::findsInTheFullString_data()
{
    addColumns();
    row("print keeps a match", "find(equalTo(a),fullString,print)", "a", "a");
    row("print empties the rest", "find(equalTo(a),fullString,print)", "b", "");
    row("delete empties a match", "find(contains(a),fullString,delete)", "xax", "");
    row("delete keeps the rest", "find(contains(a),fullString,delete)", "xbx", "xbx");
    row("replace a match", "find(contains(x),fullString,replace(y))", "xax", "y");
    row("replace keeps the rest", "find(contains(x),fullString,replace(y))", "a", "a");
    row("replace by nothing", "find(contains(x),fullString,replace())", "xax", "");
    row("bare replace is its own argument", "find(contains(x),fullString,replace)", "xax",
        "replace");
    row("replace by brackets", "find(contains(x),fullString,replace(a(b)))", "x", "a(b)");
    row("notContains, print", "find(notContains(a),fullString,print)", "xyz", "xyz");
    row("notContains, print, not matched", "find(notContains(a),fullString,print)", "abc", "");
    row("an empty value that is asked for", "find(equalTo(),fullString,replace(none))", "", "none");
    row("required: an unknown test is never matched, so print empties",
        "find(matches(a),fullString,print)", "a", "");
    row("a missing test is never matched", "find(,fullString,print)", "a", "");
    row("a range is no text test", "find(range(unLimit),fullString,print)", "5", "");
    row("a fourth part says nothing", "find(equalTo(a),fullString,delete,print)", "a", "");

    row("an unknown test, delete", "find(matches(a),fullString,delete)", "a", "a");
    row("an unknown test, replace", "find(matches(a),fullString,replace(b))", "a", "a");
    row("an unknown action", "find(equalTo(a),fullString,remove)", "b", "b");
    row("print with brackets is another action", "find(equalTo(a),fullString,print())", "b", "b");
    row("a missing action", "find(equalTo(a),fullString)", "b", "b");
    row("an empty action", "find(equalTo(a),fullString,)", "b", "b");
    row("a blank before the action", "find(equalTo(a),fullString, print)", "b", "b");
    row("an unknown scope", "find(equalTo(a),wholeString,print)", "b", "b");
    row("a blank before the scope", "find(equalTo(a), fullString,print)", "b", "b");
    row("a missing scope", "find(equalTo(a))", "b", "b");
    row("no argument", "find()", "b", "b");
    row("bare find", "find", "b", "b");
    row("a comma in the search text splits it", "find(contains(a,b),fullString,print)", "x", "x");
    row("a comma in the search text splits it, delete", "find(contains(a,b),fullString,delete)",
        "a,b", "a,b");
    row("Find is not a rule", "Find(equalTo(a),fullString,print)", "b", "b");
}

void TestRule::findsTheMatchedString_data()
{
    addColumns();
    row("contains, print", "find(contains(a),matchedString,print)", "xax", "a");
    row("startsWith, print", "find(startsWith(xa),matchedString,print)", "xax", "xa");
    row("required: notContains, print gives what is absent",
        "find(notContains(a),matchedString,print)", "xyz", "a");
    row("notEqualTo, print", "find(notEqualTo(a),matchedString,print)", "xyz", "a");
    row("contains nothing, print", "find(contains(),matchedString,print)", "xyz", "");

    row("contains, delete", "find(contains(x),matchedString,delete)", "xaxbx", "ab");
    row("contains, delete, from the left", "find(contains(aa),matchedString,delete)", "aaab", "ab");
    row("contains, delete, once through", "find(contains(ab),matchedString,delete)", "aabb", "ab");
    row("startsWith, delete", "find(startsWith(ab),matchedString,delete)", "abab", "ab");
    row("endsWith, delete", "find(endsWith(ab),matchedString,delete)", "abxab", "abx");
    row("startsWith everything, delete", "find(startsWith(ab),matchedString,delete)", "ab", "");
    row("equalTo, delete", "find(equalTo(ab),matchedString,delete)", "ab", "");
    row("notEqualTo, delete", "find(notEqualTo(a),matchedString,delete)", "xyz", "");
    row("notContains, delete", "find(notContains(a),matchedString,delete)", "xyz", "");
    row("required: notStartsWith, delete empties", "find(notStartsWith(a),matchedString,delete)",
        "xax", "");
    row("required: notEndsWith, delete empties", "find(notEndsWith(a),matchedString,delete)", "xax",
        "");

    row("contains, replace", "find(contains(x),matchedString,replace(y))", "xax", "yay");
    row("contains, replace by something longer", "find(contains(x),matchedString,replace(xx))",
        "xax", "xxaxx");
    row("contains, replace, not overlapping", "find(contains(aa),matchedString,replace(b))",
        "aaaaa", "bba");
    row("contains, replace everything", "find(contains(xax),matchedString,replace(y))", "xax", "y");
    row("contains, replace by nothing", "find(contains(x),matchedString,replace())", "xax", "a");
    row("contains nothing, replace: between all units", "find(contains(),matchedString,replace(-))",
        "ab", "-a-b-");
    row("startsWith, replace", "find(startsWith(x),matchedString,replace(y))", "xax", "yax");
    row("startsWith nothing, replace", "find(startsWith(),matchedString,replace(y))", "ab", "yab");
    row("endsWith, replace", "find(endsWith(x),matchedString,replace(y))", "xax", "xay");
    row("endsWith nothing, replace", "find(endsWith(),matchedString,replace(y))", "ab", "aby");
    row("equalTo, replace", "find(equalTo(ab),matchedString,replace(y))", "ab", "y");
    row("notEqualTo, replace", "find(notEqualTo(b),matchedString,replace(y))", "abc", "y");
    row("notContains, replace", "find(notContains(x),matchedString,replace(y))", "abc", "y");
    row("required: notStartsWith, replace works like contains",
        "find(notStartsWith(a),matchedString,replace(y))", "xaxa", "xyxy");
    row("required: notEndsWith, replace works like contains",
        "find(notEndsWith(x),matchedString,replace(y))", "xaxa", "yaya");
    row("notStartsWith, replace what is absent", "find(notStartsWith(q),matchedString,replace(y))",
        "xax", "xax");

    row("print without a match keeps the value", "find(contains(q),matchedString,print)", "xax",
        "xax");
    row("delete without a match", "find(startsWith(a),matchedString,delete)", "xa", "xa");
    row("delete in another case", "find(contains(X),matchedString,delete)", "xa", "xa");
    row("replace without a match", "find(endsWith(a),matchedString,replace(y))", "ax", "ax");
    row("notStartsWith without a match", "find(notStartsWith(x),matchedString,replace(y))", "xax",
        "xax");
    row("notEndsWith without a match", "find(notEndsWith(x),matchedString,delete)", "xax", "xax");
    row("an unknown test, print", "find(matches(a),matchedString,print)", "a", "a");
    row("an unknown test, delete", "find(matches(a),matchedString,delete)", "a", "a");
    row("an unknown test, replace", "find(matches(a),matchedString,replace(b))", "a", "a");
    row("an unknown action", "find(contains(a),matchedString,remove)", "a", "a");
    row("replaces is not an action", "find(contains(a),matchedString,replaces(b))", "a", "a");
    row("a missing action", "find(contains(a),matchedString)", "a", "a");
    row("MatchedString is not a scope", "find(contains(a),MatchedString,print)", "xa", "xa");
    row("the editor's odd keyword is not a test", "find(startWith(a),matchedString,delete)", "ab",
        "ab");
}

void TestRule::changesLetterCase_data()
{
    addColumns();
    row("lowerCase", "charType(lowerCase)", "aBC1", "abc1");
    row("upperCase", "charType(upperCase)", "aBc1", "ABC1");
    row("lowerCase of accents", "charType(lowerCase)", "ÉÀ", "éà");
    row("upperCase of wide letters", "charType(upperCase)", "ａｂ", "ＡＢ");
    row("upperCase of Greek and Cyrillic", "charType(upperCase)", "αж", "ΑЖ");
    row("upperCase may grow", "charType(upperCase)", "ß", "SS");
    row("lowerCase beyond the first plane", "charType(lowerCase)", "\U00010400", "\U00010428");

    row("plain letters beside Korean", "charType(upperCase)", "a가b", "A가B");
    row("letters beside Chinese characters", "charType(lowerCase)", "Ａ表A", "ａ表a");
    row("Korean has no case", "charType(upperCase)", "가나", "가나");
    row("an empty value", "charType(upperCase)", "", "");
    row("UpperCase is no kind", "charType(UpperCase)", "ab", "ab");
    row("upper is no kind", "charType(upper)", "ab", "ab");
    row("a blank makes it no kind", "charType( upperCase)", "ab", "ab");
    row("the usual spelling is no kind", "charType(hiragana)", "ア", "ア");
    row("no kind", "charType()", "ab", "ab");
    row("bare charType", "charType", "ab", "ab");
    row("a kind is not a rule", "upperCase", "ab", "ab");
}

void TestRule::removesBlanks_data()
{
    addColumns();
    row("trim both ends", "trim", "  a b  ", "a b");
    row("trim with brackets", "trim()", " a ", "a");
    row("trim with an argument", "trim(5)", " a ", "a");
    row("trim tabs and line breaks", "trim", "\t\r\na\n\v\f", "a");
    row("trim wide and other blanks", "trim", "\u3000\u00A0a\u2003\u2028", "a");
    row("trim blanks only", "trim", " \t ", "");
    row("simplified keeps single blanks", "simplified", "  a   b  ", "a b");
    row("simplified with brackets", "simplified()", " a  b ", "a b");
    row("simplified makes line breaks blanks", "simplified", "a\r\nb\tc", "a b c");
    row("simplified makes wide blanks narrow", "simplified", "a\u3000\u3000b", "a b");
    row("simplified of blanks only", "simplified", " \n ", "");

    row("trim leaves inner blanks", "trim", "a  b", "a  b");
    row("trim of an empty value", "trim", "", "");
    row("simplified of a single word", "simplified", "ab", "ab");
    row("a blank of no width stays", "trim", "\u200Ba\uFEFF", "\u200Ba\uFEFF");
    row("Trim is not a rule", "Trim", " a ", " a ");
    row("trimmed is not a rule", "trimmed", " a ", " a ");
    row("a blank before trim", " trim", " a ", " a ");
}

void TestRule::leavesUnknownRulesAlone_data()
{
    addColumns();
    const QString rules = QStringLiteral(
        "| |(|)|()|)(|,|(3)|left (3)| left(3)|LEFT(3)|lef(3)|leftt(3)|curRight(3)|cutright(3)|"
        "range(unLimit,unLimit)|contains(a)|replace(b)|print|delete|unLimit|AND|find |3");
    for (const QString &rule : rules.split(QLatin1Char('|')))
        QTest::addRow("<%s>", qPrintable(rule)) << rule << " a B "
                                                << " a B ";
    row("a line break", "\n", "ab", "ab");
    row("a line break behind the keyword", "append\n(x)", "ab", "ab");
    row("wide letters", "ｌｅｆｔ(1)", "ab", "ab");
    row("wide brackets", "left（1）", "ab", "ab");
    QTest::newRow("a zero unit") << QString(QLatin1String("left") + QChar(0) + QLatin1String("(1)"))
                                 << "ab"
                                 << "ab";
}

void TestRule::appliesListsInOrder_data()
{
    QTest::addColumn<QStringList>("rules");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("result");

    const auto list = [](const char *name, const char *rules, const char *value,
                         const char *result) {
        QTest::newRow(name) << QString::fromUtf8(rules).split(QLatin1Char(';')) << value << result;
    };
    QTest::newRow("no rules") << QStringList() << " a "
                              << " a ";
    list("trim before left", "trim;left(3)", " abcd", "abc");
    list("left before trim", "left(3);trim", " abcd", "ab");
    list("CRLF twice doubles the CR", "newLine(CRLF);newLine(CRLF)", "a\nb", "a\r\r\nb");
    list("LF behind that leaves one CR", "newLine(CRLF);newLine(CRLF);newLine(LF)", "a\nb",
         "a\r\nb");
    list("an empty value is filled", "left(0);append(x);prepend(y)", "abc", "yx");
    list("found text, then cut", "find(contains(bcd),matchedString,print);cutLeft(1)", "abcde",
         "cd");
    list("replaced by a text, then appended to",
         "find(contains(a),fullString,replace(long));append(er);append(.)", "a", "longer.");
    list("unknown rules between others", "append(b);curRight(1);;append(c)", "a", "abc");
    list("line breaks made and removed", "breakLine(2);newLine(REMOVE)", "abcdef", "abcdef");
    list("append, cut, append", "append(12);cutRight(1);append(3);cutLeft(1)", "a", "13");
    list("rules that do nothing", "left(-1);cutLeft(0);breakLine(0);x;find", "abc", "abc");
}

void TestRule::appliesListsInOrder()
{
    QFETCH(QStringList, rules);
    QFETCH(QString, value);
    QTEST(applyRules(rules, value), "result");
}

void TestRule::leavesItsArgumentsAlone()
{
    const QString value = QStringLiteral(" abc ");
    const QString rule = QStringLiteral("find(contains(b),matchedString,replace(xyz))");
    QCOMPARE(applyRule(rule, value), QStringLiteral(" axyzc "));
    QCOMPARE(value, QStringLiteral(" abc "));
    QCOMPARE(rule, QStringLiteral("find(contains(b),matchedString,replace(xyz))"));
}

// The result outlives the rule texts, also where it is a part of one.
void TestRule::returnsATextOfItsOwn()
{
    const char *const rules[] = {
        "find(equalTo(a),fullString,replace(a replacement of some length))",
        "find(contains(),matchedString,print)", "append(an appended text of some length)",
        "find(notContains(a searched text of some length),"
        "matchedString,print)"};
    const char *const results[] = {"a replacement of some length", "",
                                   "aan appended text of some length",
                                   "a searched text of some length"};
    for (int i = 0; i < 4; ++i) {
        QString rule = QLatin1String(rules[i]);
        const QString result = applyRule(rule, QStringLiteral("a"));
        rule.fill(QLatin1Char('#'));
        QCOMPARE(result, QLatin1String(results[i]));
    }
    QCOMPARE(applyRule(QStringLiteral("append(an appended text of some length)"), QString()),
             QStringLiteral("an appended text of some length"));
}

void TestRule::isReadOnceAndAppliedOften()
{
    const RuleList rules({QStringLiteral("find(contains(-),matchedString,delete)"),
                          QStringLiteral("append(!)"), QStringLiteral("left(4)")});
    QVERIFY(!rules.isEmpty());
    QVERIFY(RuleList().isEmpty());
    WorkingText value;
    for (const char *number : {"010-1234", "02-1", "", "-", "010-1234"}) {
        const QString text = QLatin1String(number);
        value.set(text);
        rules.apply(value);
        QCOMPARE(value.toString(),
                 QString(QString(text).remove(QLatin1Char('-')) + QLatin1Char('!')).left(4));
    }
}

void TestRule::endsOnHugeValues()
{
    const QString value = QStringLiteral("ab\r\n").repeated(50000);
    QCOMPARE(applyRule(QStringLiteral("newLine(LF)"), value).size(), 150000);
    QCOMPARE(applyRule(QStringLiteral("newLine(CRLF)"), value).size(), 250000);
    QCOMPARE(applyRule(QStringLiteral("newLine(REMOVE)"), value).size(), 100000);
    QCOMPARE(applyRule(QStringLiteral("breakLine(1)"), value).size(), 200000 + 199998);
    QCOMPARE(
        applyRule(QStringLiteral("find(contains(a),matchedString,replace(xyz))"), value).size(),
        300000);
    QCOMPARE(applyRule(QStringLiteral("find(contains(b\r),matchedString,delete)"), value).size(),
             100000);
}

namespace {

QString pick(QRandomGenerator &random, const QStringList &texts)
{
    return texts.at(random.bounded(texts.size()));
}

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

QString randomText(QRandomGenerator &random, const QString &alphabet, int maximumLength)
{
    QString text;
    const int length = random.bounded(maximumLength + 1);
    for (int i = 0; i < length; ++i)
        text.append(alphabet.at(random.bounded(alphabet.size())));
    return text;
}

QString randomFind(QRandomGenerator &random)
{
    static const QStringList tests = words(
        "equalTo notEqualTo contains notContains startsWith notStartsWith endsWith "
        "notEndsWith equalTo notEqualTo contains notContains startsWith notStartsWith endsWith "
        "notEndsWith matches range");
    static const QStringList scopes = words("fullString fullString fullString matchedString "
                                            "matchedString matchedString matchedstring  )");
    static const QStringList actions = words("print delete replace print delete replace() Print ");
    QString action = pick(random, actions);
    if (action == QStringLiteral("replace") && random.bounded(10))
        action +=
            QLatin1Char('(') + randomText(random, QStringLiteral("aby()"), 3) + QLatin1Char(')');
    const QString searched = randomText(random, QStringLiteral("aabb()"), 2)
        + (random.bounded(30) ? QString() : QStringLiteral(","));
    return QStringLiteral("find(%1(%2),%3,%4)")
        .arg(pick(random, tests), searched, pick(random, scopes), action);
}

QString randomRule(QRandomGenerator &random)
{
    static const QStringList numberRules =
        words("left right cutLeft cutRight breakLine breakLine curRight");
    static const QStringList numbers =
        words("0 1 2 3 4 5 8 -1 -2 2147483647 -2147483648 2147483648 99999999999999999999 +2 02 "
              "x 1,2 (2) 1.5 ");
    static const QStringList ways = words("LF CRLF REMOVE LF CRLF REMOVE CR lf ");
    static const QStringList kinds =
        words("lowerCase upperCase fullWidth halfWidth hirakana katakana hiragana ");
    static const QStringList bare = words(
        "trim simplified trim() simplified(x) left right find append prepend newLine charType "
        "breakLine Trim ( ) ()");
    switch (random.bounded(16)) {
    case 0:
    case 1:
    case 2:
    case 3:
        return pick(random, numberRules) + QLatin1Char('(') + pick(random, numbers)
            + (random.bounded(12) ? QStringLiteral(")") : QString());
    case 4:
        return QStringLiteral("newLine(%1)").arg(pick(random, ways));
    case 5:
        return (random.bounded(2) ? QStringLiteral("prepend(") : QStringLiteral("append("))
            + randomText(random, QStringLiteral("ab()\n, "), 4) + QLatin1Char(')');
    case 6:
        return QStringLiteral("charType(%1)").arg(pick(random, kinds));
    case 7:
        return pick(random, bare);
    case 8:
        return randomText(random, QStringLiteral("left1(),"), 9);
    default:
        return randomFind(random);
    }
}

QString randomValue(QRandomGenerator &random)
{
    static const QString plain = QStringLiteral("aaabbb()y,");
    static const QString breaks = QStringLiteral("ab\r\n\r\n \t\u3000");
    static const QString wide = QStringLiteral("aBｱｶﾞﾟアガｰ가１1%表\u00A0") + QChar(0xD800);
    switch (random.bounded(4)) {
    case 0:
        return randomText(random, breaks, 9);
    case 1:
        return randomText(random, wide, 6);
    default:
        return randomText(random, plain, 7);
    }
}

QString applyPlainly(const QString &rule, const QString &value)
{
    return RuleOracle::applyRule(rule, value, [](const QString &kind, const QString &text) {
        const bool isKind =
            words("lowerCase upperCase fullWidth halfWidth hirakana katakana").contains(kind);
        return isKind ? CharKindOracle::charType(kind, text) : text;
    });
}

} // namespace

void TestRule::agreesWithThePlainVersionOnRandomRules()
{
    QRandomGenerator random(32001);
    for (int i = 0; i < 150000; ++i) {
        const QString rule = randomRule(random);
        const QString value = randomValue(random);
        const QString got = applyRule(rule, value);
        const QString expected = applyPlainly(rule, value);
        if (got != expected)
            QCOMPARE(QStringList({rule, value, got}), QStringList({rule, value, expected}));
    }
}

void TestRule::agreesWithThePlainVersionOnRandomLists()
{
    QRandomGenerator random(32002);
    for (int i = 0; i < 30000; ++i) {
        const QString value = randomValue(random);
        QStringList rules;
        QString expected = value;
        for (int count = random.bounded(6); count > 0; --count) {
            rules.append(randomRule(random));
            expected = applyPlainly(rules.last(), expected);
        }
        const QString got = applyRules(rules, value);
        if (got != expected)
            QCOMPARE(rules + QStringList({value, got}), rules + QStringList({value, expected}));
    }
}

QTEST_APPLESS_MAIN(TestRule)
#include "tst_rule.moc"
