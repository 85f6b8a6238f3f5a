#include "rules/condition.h"

#include "rules/functiontext.h"
#include "rules/unitscan.h"

namespace {

const struct {
    const char *keyword;
    StringCondition::Test test;
} stringTests[] = {
    {"equalTo", StringCondition::EqualTo},       {"notEqualTo", StringCondition::NotEqualTo},
    {"contains", StringCondition::Contains},     {"notContains", StringCondition::NotContains},
    {"startsWith", StringCondition::StartsWith}, {"notStartsWith", StringCondition::NotStartsWith},
    {"endsWith", StringCondition::EndsWith},     {"notEndsWith", StringCondition::NotEndsWith},
};

StringCondition::Test testOf(const QString &keyword)
{
    for (const auto &entry : stringTests) {
        if (keyword == QLatin1String(entry.keyword))
            return entry.test;
    }
    return StringCondition::Unknown;
}

// The library tells null texts from empty ones here; for a value there is no difference.
bool startsWith(QStringView text, QStringView start)
{
    return text.size() >= start.size() && text.left(start.size()) == start;
}

bool endsWith(QStringView text, QStringView end)
{
    return text.size() >= end.size() && text.right(end.size()) == end;
}

bool contains(QStringView text, QStringView part)
{
    return part.isEmpty() || UnitScan::indexOf(text, part, 0) >= 0;
}

} // namespace

StringCondition::StringCondition(const QString &condition)
    : m_test(testOf(functionName(condition))), m_searchText(functionArgs(condition))
{
}

bool StringCondition::holds(QStringView value) const
{
    switch (m_test) {
    case EqualTo:
        return value == m_searchText;
    case NotEqualTo:
        return value != m_searchText;
    case Contains:
        return contains(value, m_searchText);
    case NotContains:
        return !contains(value, m_searchText);
    case StartsWith:
        return startsWith(value, m_searchText);
    case NotStartsWith:
        return !startsWith(value, m_searchText);
    case EndsWith:
        return endsWith(value, m_searchText);
    case NotEndsWith:
        return !endsWith(value, m_searchText);
    case Unknown:
        break;
    }
    return false;
}

NumberRange::NumberRange(const QStringList &parts)
    : m_lowBound(None), m_highBound(None), m_low(functionIntArg(parts.value(0))),
      m_high(functionIntArg(parts.value(1)))
{
    const QString low = functionName(parts.value(0));
    if (low == QLatin1String("greaterThan"))
        m_lowBound = Exclusive;
    else if (low == QLatin1String("notLessThan"))
        m_lowBound = Inclusive;

    const QString high = functionName(parts.value(1));
    if (high == QLatin1String("lessThan"))
        m_highBound = Exclusive;
    else if (high == QLatin1String("notGreaterThan"))
        m_highBound = Inclusive;
}

bool NumberRange::holds(int number) const
{
    if (m_lowBound == Exclusive && number <= m_low)
        return false;
    if (m_lowBound == Inclusive && number < m_low)
        return false;
    if (m_highBound == Exclusive && number >= m_high)
        return false;
    if (m_highBound == Inclusive && number > m_high)
        return false;
    return true;
}

Condition::Condition(const QString &condition)
    : m_isRange(functionName(condition) == QLatin1String("range"))
{
    if (m_isRange)
        m_range = NumberRange(functionArgs(condition).split(QLatin1Char(',')));
    else
        m_string = StringCondition(condition);
}

bool Condition::holds(QStringView value) const
{
    return m_isRange ? m_range.holds(toInteger(value)) : m_string.holds(value);
}

Combination combinationOf(const QString &word)
{
    if (word == QLatin1String("AND"))
        return Combination::All;
    if (word == QLatin1String("OR"))
        return Combination::Any;
    return Combination::Nothing;
}

bool evaluateStringCondition(const QString &condition, QStringView value)
{
    return StringCondition(condition).holds(value);
}

bool evaluateNumberRange(const QStringList &parts, int number)
{
    return NumberRange(parts).holds(number);
}

bool conditionsHold(const QStringList &conditions, const QStringList &values,
                    const QString &combination)
{
    return combinedConditionsHold(conditions.size(), combinationOf(combination), [&](int i) {
        return Condition(conditions.at(i)).holds(values.value(i));
    });
}
