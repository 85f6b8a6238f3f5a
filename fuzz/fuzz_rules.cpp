// Any texts as rules and conditions. The first byte is the length of the rule texts in bytes, the
// second chooses how the value behind them is read: as UTF-8, as UTF-16 code units (surrogates
// without a partner, too) or as bytes. Rule texts are separated by a line feed. Results are
// compared with those of the plain versions of the tests.
#include "fuzz/check.h"
#include "rules/charkind.h"
#include "rules/condition.h"
#include "rules/functiontext.h"
#include "rules/rule.h"
#include "tests/rules/charkindoracle.h"
#include "tests/rules/ruleoracle.h"

#include <cstring>

namespace {

// A few rules that multiply a value would fill any memory; that is the user's wish, not a fault.
const int maximumLength = 20000;

QString readValue(unsigned char way, const QByteArray &bytes)
{
    if (way % 3 == 0)
        return QString::fromUtf8(bytes);
    if (way % 3 == 1)
        return QString::fromLatin1(bytes);
    QString value(bytes.size() / 2, Qt::Uninitialized);
    std::memcpy(value.data(), bytes.constData(), size_t(value.size()) * sizeof(QChar));
    return value;
}

QString plainlyApplied(const QString &rule, const QString &value)
{
    return RuleOracle::applyRule(rule, value, [](const QString &kind, const QString &text) {
        return CharKindOracle::charType(kind, text);
    });
}

bool isKnownRule(const QString &name)
{
    static const QStringList names = {
        QStringLiteral("left"),     QStringLiteral("right"),     QStringLiteral("cutLeft"),
        QStringLiteral("cutRight"), QStringLiteral("breakLine"), QStringLiteral("newLine"),
        QStringLiteral("prepend"),  QStringLiteral("append"),    QStringLiteral("find"),
        QStringLiteral("charType"), QStringLiteral("trim"),      QStringLiteral("simplified")};
    return names.contains(name);
}

void checkRules(const QStringList &rules, const QString &value)
{
    QString expected = value;
    QStringList applied;
    for (const QString &rule : rules) {
        const QString before = expected;
        expected = plainlyApplied(rule, before);
        const QString after = applyRule(rule, before);
        check(after == expected, "one rule",
              QStringLiteral("rule %1\nvalue %2\ngot %3\nexpected %4")
                  .arg(rule, before, after, expected));
        check(isKnownRule(functionName(rule)) || after == before, "an unknown rule does nothing",
              rule);
        applied.append(rule);
        if (expected.size() > maximumLength)
            break;
    }
    check(applyRules(applied, value) == expected, "a list of rules",
          applied.join(QLatin1Char('\n')));
    check(applyRules(QStringList(), value) == value, "no rule does nothing");
}

void checkConditions(const QStringList &conditions, const QString &value)
{
    QStringList values;
    for (int i = 0; i < conditions.size(); ++i) {
        values.append(value.mid(i));
        const QString &text = conditions.at(i);
        check(evaluateStringCondition(text, value) == RuleOracle::stringCondition(text, value),
              "a text condition", text);
        check(Condition(text).holds(value) == RuleOracle::condition(text, value), "a condition",
              text);
    }
    values.removeLast(); // the last condition has no value
    for (const char *word : {"AND", "OR", "and", ""}) {
        const QString combination = QLatin1String(word);
        check(conditionsHold(conditions, values, combination)
                  == RuleOracle::conditionsHold(conditions, values, combination),
              "conditions", combination);
    }
}

void checkCharKinds(const QString &units)
{
    const struct {
        const char *name;
        QString (*convert)(const QString &);
    } conversions[] = {{"fullWidth", toFullWidth},
                       {"halfWidth", toHalfWidth},
                       {"katakana", toKatakana},
                       {"hirakana", toHiragana}};
    for (const auto &conversion : conversions) {
        const QString name = QLatin1String(conversion.name);
        check(conversion.convert(units) == CharKindOracle::convertBytes(name, units),
              "a conversion of bytes", name);
        const QString rule = QStringLiteral("charType(%1)").arg(name);
        check(applyRule(rule, units) == CharKindOracle::charType(name, units),
              "a conversion of text", name);
    }
    for (int position = 0; position < units.size(); ++position) {
        const uint next = position + 1 < units.size() ? units.at(position + 1).unicode() : 0;
        check(charKind(units, position) == CharKindOracle::kind(units.at(position).unicode(), next),
              "the kind of a character");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size < 2)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 2), int(size - 2));
    const QStringList texts = QString::fromUtf8(bytes.left(data[0])).split(QLatin1Char('\n'));
    const QString value = readValue(data[1], bytes.mid(data[0]));

    checkRules(texts, value);
    checkConditions(texts, value);
    checkCharKinds(value);
    return 0;
}
