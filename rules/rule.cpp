#include "rules/rule.h"

#include "rules/functiontext.h"
#include "rules/unitscan.h"
#include "rules/workingtext.h"

struct Rule::Keyword {
    const char *text;
    Kind kind;
};

// "curRight" is deliberately not here: stored settings hold it, and it has never done anything.
const Rule::Keyword Rule::keywords[] = {
    {"left", Kind::Left},         {"right", Kind::Right},         {"cutLeft", Kind::CutLeft},
    {"cutRight", Kind::CutRight}, {"breakLine", Kind::BreakLine}, {"newLine", Kind::NewLine},
    {"prepend", Kind::Prepend},   {"append", Kind::Append},       {"find", Kind::Find},
    {"charType", Kind::CharType}, {"trim", Kind::Trim},           {"simplified", Kind::Simplified},
};

Rule::Rule(const QString &rule) : m_number(functionIntArg(rule)), m_argument(functionArgs(rule))
{
    const QString name = functionName(rule);
    for (const Keyword &keyword : keywords) {
        if (name == QLatin1String(keyword.text)) {
            m_kind = keyword.kind;
            break;
        }
    }
    if (m_kind == Kind::Find)
        readFind();
    else if (m_kind == Kind::CharType)
        m_charType = charTypeConversion(m_argument);
}

// The argument is split at every comma, so neither the search text nor the replacement can hold
// one.
void Rule::readFind()
{
    const QStringList parts = m_argument.split(QLatin1Char(','));
    m_findCondition = StringCondition(parts.value(0));

    const QString scope = parts.value(1);
    if (scope == QLatin1String("fullString"))
        m_findScope = FindScope::FullString;
    else if (scope == QLatin1String("matchedString"))
        m_findScope = FindScope::MatchedString;

    const QString action = parts.value(2);
    if (action == QLatin1String("print")) {
        m_findAction = FindAction::Print;
    } else if (action == QLatin1String("delete")) {
        m_findAction = FindAction::Delete;
    } else if (functionName(action) == QLatin1String("replace")) {
        m_findAction = FindAction::Replace;
        m_findReplacement = functionArgs(action);
    }
}

void Rule::apply(WorkingText &value) const
{
    const QStringView text = value.view();
    const int length = int(text.size());
    switch (m_kind) {
    case Kind::Nothing:
        return;
    case Kind::Left:
        if (m_number >= 0 && m_number < length)
            value.set(text.left(m_number));
        return;
    case Kind::Right:
        if (m_number >= 0 && m_number < length)
            value.set(text.right(m_number));
        return;
    case Kind::CutLeft:
        if (m_number > 0)
            value.set(text.mid(qMin(m_number, length)));
        return;
    case Kind::CutRight:
        if (m_number > 0)
            value.set(text.left(length - qMin(m_number, length)));
        return;
    case Kind::BreakLine:
        applyBreakLine(value);
        return;
    case Kind::NewLine:
        applyNewLine(value);
        return;
    case Kind::Prepend:
        value.rebuild([&](TextBuffer &out) {
            out.append(m_argument);
            out.append(text);
        });
        return;
    case Kind::Append:
        value.append(m_argument);
        return;
    case Kind::Find:
        applyFind(value);
        return;
    case Kind::CharType:
        if (m_charType)
            m_charType(value);
        return;
    case Kind::Trim:
        value.set(text.trimmed());
        return;
    case Kind::Simplified:
        value.rebuild([&](TextBuffer &out) { out.append(text.toString().simplified()); });
        return;
    }
}

// The last piece may be one unit longer than the others: a single left-over unit gets no line of
// its own.
void Rule::applyBreakLine(WorkingText &value) const
{
    const QStringView text = value.view();
    const qint64 last = text.size() - 1;
    if (m_number <= 0 || m_number >= last)
        return;
    value.rebuild([&](TextBuffer &out) {
        qint64 position = 0;
        for (qint64 mark = m_number; mark < last; mark += m_number) {
            out.append(text.mid(position, m_number));
            out.append(QLatin1Char('\n'));
            position = mark;
        }
        out.append(text.mid(position));
    });
}

void Rule::applyNewLine(WorkingText &value) const
{
    const QStringView text = value.view();
    const QChar lineFeed = QLatin1Char('\n');
    const QChar carriageReturn = QLatin1Char('\r');
    if (m_argument == QLatin1String("LF")) {
        if (text.indexOf(carriageReturn) < 0)
            return;
        value.rebuild([&](TextBuffer &out) {
            for (int i = 0; i < text.size(); ++i) {
                const bool beginsPair = text.at(i) == carriageReturn && i + 1 < text.size()
                    && text.at(i + 1) == lineFeed;
                if (!beginsPair)
                    out.append(text.at(i));
            }
        });
    } else if (m_argument == QLatin1String("CRLF")) {
        // A pair that is already there becomes CR CR LF, as it always has.
        if (text.indexOf(lineFeed) < 0)
            return;
        value.rebuild([&](TextBuffer &out) {
            for (const QChar c : text) {
                if (c == lineFeed)
                    out.append(carriageReturn);
                out.append(c);
            }
        });
    } else if (m_argument == QLatin1String("REMOVE")) {
        if (text.indexOf(lineFeed) < 0 && text.indexOf(carriageReturn) < 0)
            return;
        value.rebuild([&](TextBuffer &out) {
            for (const QChar c : text) {
                if (c != lineFeed && c != carriageReturn)
                    out.append(c);
            }
        });
    }
}

void Rule::applyFind(WorkingText &value) const
{
    if (m_findScope == FindScope::Nothing || m_findAction == FindAction::Nothing)
        return;
    const bool matched = m_findCondition.holds(value.view());
    if (m_findScope == FindScope::MatchedString) {
        if (matched)
            applyFindToMatch(value);
        return;
    }
    switch (m_findAction) {
    case FindAction::Print:
        if (!matched)
            value.clear();
        return;
    case FindAction::Delete:
        if (matched)
            value.clear();
        return;
    case FindAction::Replace:
        if (matched)
            value.set(m_findReplacement);
        return;
    case FindAction::Nothing:
        return;
    }
}

void Rule::applyFindToMatch(WorkingText &value) const
{
    using Test = StringCondition::Test;
    const Test test = m_findCondition.test();
    if (m_findAction == FindAction::Print) {
        value.set(m_findCondition.searchText());
        return;
    }
    const bool deletes = m_findAction == FindAction::Delete;
    switch (test) {
    case Test::Contains:
    case Test::StartsWith:
    case Test::EndsWith:
        replaceMatch(value, deletes ? QString() : m_findReplacement);
        return;
    case Test::NotStartsWith:
    case Test::NotEndsWith:
        // Required: these two replace wherever the text occurs, but delete the whole value.
        if (deletes)
            value.clear();
        else
            replaceMatch(value, m_findReplacement);
        return;
    case Test::EqualTo:
    case Test::NotEqualTo:
    case Test::NotContains:
        if (deletes)
            value.clear();
        else
            value.set(m_findReplacement);
        return;
    case Test::Unknown:
        return;
    }
}

void Rule::replaceMatch(WorkingText &value, const QString &replacement) const
{
    const QStringView text = value.view();
    const QString &search = m_findCondition.searchText();
    switch (m_findCondition.test()) {
    case StringCondition::StartsWith:
        value.rebuild([&](TextBuffer &out) {
            out.append(replacement);
            out.append(text.mid(search.size()));
        });
        return;
    case StringCondition::EndsWith:
        value.rebuild([&](TextBuffer &out) {
            out.append(text.left(text.size() - search.size()));
            out.append(replacement);
        });
        return;
    default:
        break;
    }
    if (search.isEmpty()) { // the library's idea of replacing nothing
        value.rebuild(
            [&](TextBuffer &out) { out.append(text.toString().replace(search, replacement)); });
        return;
    }
    value.rebuild([&](TextBuffer &out) {
        qsizetype position = 0;
        qsizetype found;
        while ((found = UnitScan::indexOf(text, search, position)) >= 0) {
            out.append(text.mid(position, found - position));
            out.append(replacement);
            position = found + search.size();
        }
        out.append(text.mid(position));
    });
}

RuleList::RuleList(const QStringList &rules)
{
    m_rules.reserve(size_t(rules.size()));
    for (const QString &rule : rules)
        m_rules.emplace_back(rule);
}

void RuleList::apply(WorkingText &value) const
{
    for (const Rule &rule : m_rules)
        rule.apply(value);
}

QString applyRule(const QString &rule, const QString &value)
{
    return applyRules(QStringList(rule), value);
}

QString applyRules(const QStringList &rules, const QString &value)
{
    const RuleList list(rules); // the result may be a view of a text that a rule holds
    WorkingText text;
    text.set(value);
    list.apply(text);
    return text.toString();
}
