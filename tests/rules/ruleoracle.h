// The rule language once more, written as plainly as possible: text in, text out, one library call
// for each step, nothing read ahead and nothing remembered. The product's rules work on views and
// read each text once; this is what their results are compared with. charType is left out, see
// charkindoracle.h.
#pragma once

#include <QString>
#include <QStringList>

namespace RuleOracle {

inline QString name(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (c == QLatin1Char('('))
            break;
        result.append(c);
    }
    return result;
}

inline QString args(const QString &text)
{
    int open = -1;
    int close = -1;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('(') && open < 0)
            open = i;
        if (text.at(i) == QLatin1Char(')'))
            close = i;
    }
    return text.mid(open + 1, close - open - 1);
}

inline int intArg(const QString &text)
{
    return args(text).toInt();
}

inline bool stringCondition(const QString &condition, const QString &value)
{
    const QString keyword = name(condition);
    // The library tells null texts from empty ones in these tests; nobody else does.
    const QString v = value.isEmpty() ? QStringLiteral("") : value;
    const QString s = args(condition).isEmpty() ? QStringLiteral("") : args(condition);
    if (keyword == QStringLiteral("equalTo"))
        return v == s;
    if (keyword == QStringLiteral("notEqualTo"))
        return v != s;
    if (keyword == QStringLiteral("contains"))
        return v.contains(s);
    if (keyword == QStringLiteral("notContains"))
        return !v.contains(s);
    if (keyword == QStringLiteral("startsWith"))
        return v.startsWith(s);
    if (keyword == QStringLiteral("notStartsWith"))
        return !v.startsWith(s);
    if (keyword == QStringLiteral("endsWith"))
        return v.endsWith(s);
    if (keyword == QStringLiteral("notEndsWith"))
        return !v.endsWith(s);
    return false;
}

inline bool numberRange(const QStringList &parts, int number)
{
    const QString low = parts.size() > 0 ? parts.at(0) : QString();
    if (low != QStringLiteral("unLimit")) {
        if (name(low) == QStringLiteral("greaterThan") && !(number > intArg(low)))
            return false;
        if (name(low) == QStringLiteral("notLessThan") && number < intArg(low))
            return false;
    }
    const QString high = parts.size() > 1 ? parts.at(1) : QString();
    if (high != QStringLiteral("unLimit")) {
        if (name(high) == QStringLiteral("lessThan") && !(number < intArg(high)))
            return false;
        if (name(high) == QStringLiteral("notGreaterThan") && number > intArg(high))
            return false;
    }
    return true;
}

inline bool condition(const QString &text, const QString &value)
{
    if (name(text) == QStringLiteral("range"))
        return numberRange(args(text).split(QLatin1Char(',')), value.toInt());
    return stringCondition(text, value);
}

inline bool conditionsHold(const QStringList &conditions, const QStringList &values,
                           const QString &combination)
{
    if (conditions.isEmpty())
        return true;
    bool result = false;
    for (int i = 0; i < conditions.size(); ++i) {
        const bool holds =
            condition(conditions.at(i), i < values.size() ? values.at(i) : QString());
        if (combination == QStringLiteral("AND")) {
            if (!holds)
                return false;
            result = true;
        } else if (combination == QStringLiteral("OR")) {
            result = result || holds;
        }
    }
    return result;
}

inline QString breakLine(int n, const QString &value)
{
    if (n <= 0)
        return value;
    QString result;
    qint64 position = 0;
    qint64 mark = n;
    while (mark < value.size() - 1) {
        result += value.mid(int(position), n) + QLatin1Char('\n');
        position += n;
        mark += n;
    }
    return result + value.mid(int(position));
}

inline QString newLine(const QString &way, const QString &value)
{
    QString result = value;
    if (way == QStringLiteral("LF"))
        result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    else if (way == QStringLiteral("CRLF"))
        result.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    else if (way == QStringLiteral("REMOVE"))
        result.remove(QLatin1Char('\r')).remove(QLatin1Char('\n'));
    return result;
}

inline QString findInFullString(bool matched, const QString &action, const QString &value)
{
    if (action == QStringLiteral("print"))
        return matched ? value : QString();
    if (action == QStringLiteral("delete"))
        return matched ? QString() : value;
    if (name(action) == QStringLiteral("replace"))
        return matched ? args(action) : value;
    return value;
}

inline QString findInMatch(const QString &condition, const QString &action, const QString &value)
{
    const QString keyword = name(condition);
    const QString s = args(condition);
    QString result = value;
    if (action == QStringLiteral("print"))
        return s;
    if (action == QStringLiteral("delete")) {
        if (keyword == QStringLiteral("contains"))
            return result.remove(s);
        if (keyword == QStringLiteral("startsWith"))
            return value.mid(s.size());
        if (keyword == QStringLiteral("endsWith"))
            return value.left(value.size() - s.size());
        return QString();
    }
    if (name(action) == QStringLiteral("replace")) {
        const QString r = args(action);
        if (keyword == QStringLiteral("contains") || keyword == QStringLiteral("notStartsWith")
            || keyword == QStringLiteral("notEndsWith"))
            return result.replace(s, r);
        if (keyword == QStringLiteral("startsWith"))
            return r + value.mid(s.size());
        if (keyword == QStringLiteral("endsWith"))
            return value.left(value.size() - s.size()) + r;
        return r;
    }
    return value;
}

inline QString find(const QString &argument, const QString &value)
{
    QStringList parts = argument.split(QLatin1Char(','));
    while (parts.size() < 3)
        parts.append(QString());
    const bool matched = stringCondition(parts.at(0), value);
    if (parts.at(1) == QStringLiteral("fullString"))
        return findInFullString(matched, parts.at(2), value);
    if (parts.at(1) == QStringLiteral("matchedString") && matched)
        return findInMatch(parts.at(0), parts.at(2), value);
    return value;
}

/// One rule; a charType rule is handed to `charType`, a function of its argument and the value.
template <typename CharType>
QString applyRule(const QString &rule, const QString &value, CharType charType)
{
    const QString keyword = name(rule);
    const int n = intArg(rule);
    if (keyword == QStringLiteral("left"))
        return n < 0 ? value : value.left(n);
    if (keyword == QStringLiteral("right"))
        return n < 0 ? value : value.right(n);
    if (keyword == QStringLiteral("cutLeft"))
        return n < 0 ? value : value.mid(n);
    if (keyword == QStringLiteral("cutRight")) {
        QString result = value;
        result.chop(n);
        return result;
    }
    if (keyword == QStringLiteral("breakLine"))
        return breakLine(n, value);
    if (keyword == QStringLiteral("newLine"))
        return newLine(args(rule), value);
    if (keyword == QStringLiteral("prepend"))
        return args(rule) + value;
    if (keyword == QStringLiteral("append"))
        return value + args(rule);
    if (keyword == QStringLiteral("find"))
        return find(args(rule), value);
    if (keyword == QStringLiteral("charType"))
        return charType(args(rule), value);
    if (keyword == QStringLiteral("trim"))
        return value.trimmed();
    if (keyword == QStringLiteral("simplified"))
        return value.simplified();
    return value;
}

} // namespace RuleOracle
