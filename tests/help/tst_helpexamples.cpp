// The examples of the help, run through the program's own rules and conditions: what the help
// promises is what a conversion writes.
#include "help/maker/helppage.h"
#include "rules/condition.h"
#include "rules/functiontext.h"
#include "rules/rule.h"
#include "tests/help/examplerows.h"

#include <QtTest>

namespace {

const char *const ruleNames[] = {
    "left",    "right",  "cutLeft", "curRight", "cutRight", "breakLine",  "newLine",
    "prepend", "append", "find",    "charType", "trim",     "simplified",
};
const char *const ruleArguments[] = {
    "newLine(LF)",         "newLine(CRLF)",       "newLine(REMOVE)",
    "charType(lowerCase)", "charType(upperCase)", "charType(fullWidth)",
    "charType(halfWidth)", "charType(hirakana)",  "charType(katakana)",
};
const char *const textTests[] = {
    "equalTo",    "notEqualTo",    "contains", "notContains",
    "startsWith", "notStartsWith", "endsWith", "notEndsWith",
};
const char *const bounds[] = {"greaterThan", "notLessThan", "lessThan", "notGreaterThan"};

QList<ExampleRow> rows(const QString &language)
{
    return exampleRows(QStringLiteral(QUORIN_SOURCE_DIR "/help"), language);
}

QByteArray rowName(const ExampleRow &row)
{
    return (row.place + QLatin1Char(' ') + row.rule + row.condition).toUtf8();
}

/// The keywords of a text with brackets, without the words of the user.
QString keywords(const QString &condition)
{
    const QString name = functionName(condition);
    if (name != QLatin1String("range"))
        return name;
    return condition; // a range has no other words
}

} // namespace

class TestHelpExamples : public QObject
{
    Q_OBJECT

private slots:
    void rules_data();
    void rules();
    void conditions_data();
    void conditions();
    void everyKindIsShown_data();
    void everyKindIsShown();
    void bothLanguagesShowTheSame();
};

void TestHelpExamples::rules_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("problem");
    for (const QString &language : helpLanguages()) {
        for (const ExampleRow &row : rows(language)) {
            if (!row.rule.isEmpty())
                QTest::newRow(rowName(row).constData())
                    << row.rule << row.before << row.after << row.problem;
        }
    }
}

void TestHelpExamples::rules()
{
    QFETCH(QString, rule);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, problem);
    QCOMPARE(problem, QString());
    QCOMPARE(applyRule(rule, before), after);
}

void TestHelpExamples::conditions_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("holds");
    QTest::addColumn<QString>("problem");
    for (const QString &language : helpLanguages()) {
        for (const ExampleRow &row : rows(language)) {
            if (!row.condition.isEmpty())
                QTest::newRow(rowName(row).constData())
                    << row.condition << row.value << row.holds << row.problem;
        }
    }
}

void TestHelpExamples::conditions()
{
    QFETCH(QString, condition);
    QFETCH(QString, value);
    QFETCH(QString, holds);
    QFETCH(QString, problem);
    QCOMPARE(problem, QString());
    QCOMPARE(Condition(condition).holds(value) ? QStringLiteral("yes") : QStringLiteral("no"),
             holds);
}

void TestHelpExamples::everyKindIsShown_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QRegularExpression>("kind");
    const auto add = [](const QString &language, const char *what, const QString &pattern) {
        QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(language, QLatin1String(what))))
            << language << QRegularExpression(pattern);
    };
    for (const QString &language : helpLanguages()) {
        for (const char *name : ruleNames)
            add(language, name, QStringLiteral("^rule %1(\\(|$)").arg(QLatin1String(name)));
        for (const char *rule : ruleArguments)
            add(language, rule,
                QLatin1String("^rule ") + QRegularExpression::escape(QLatin1String(rule)));
        for (const char *test : textTests) {
            for (const char *scope : {"fullString", "matchedString"})
                add(language, (QByteArray("find ") + test + ' ' + scope).constData(),
                    QStringLiteral("^rule find\\(%1\\(.*\\),%2,")
                        .arg(QLatin1String(test), QLatin1String(scope)));
            add(language, test, QStringLiteral("^condition %1\\(").arg(QLatin1String(test)));
        }
        for (const char *bound : bounds)
            add(language, bound,
                QStringLiteral("^condition range\\(.*\\b%1\\(").arg(QLatin1String(bound)));
    }
}

void TestHelpExamples::everyKindIsShown()
{
    QFETCH(QString, language);
    QFETCH(QRegularExpression, kind);
    QStringList shown;
    for (const ExampleRow &row : rows(language))
        shown.append(row.rule.isEmpty() ? QLatin1String("condition ") + row.condition
                                        : QLatin1String("rule ") + row.rule);
    QVERIFY2(!shown.filter(kind).isEmpty(), qPrintable(kind.pattern()));
}

// The words in a condition may be of the language, its kind may not.
void TestHelpExamples::bothLanguagesShowTheSame()
{
    const auto shown = [](const QString &language) {
        QStringList texts;
        for (const ExampleRow &row : rows(language))
            texts.append(row.rule.isEmpty() ? keywords(row.condition) + QLatin1Char(' ') + row.holds
                                            : row.rule);
        return texts;
    };
    QCOMPARE(shown(QStringLiteral("ja")), shown(QStringLiteral("ko")));
}

QTEST_APPLESS_MAIN(TestHelpExamples)
#include "tst_helpexamples.moc"
