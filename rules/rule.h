// Rules: short texts such as left(10) or find(contains(a),matchedString,delete) that rewrite one
// value. Lengths and positions count UTF-16 code units. Nothing is ever reported: a rule that is
// not understood leaves the value as it is.
#pragma once

#include "rules/chartype.h"
#include "rules/condition.h"

#include <QString>
#include <QStringList>
#include <vector>

class WorkingText;

/// One rule text, read once and applied often.
class Rule
{
public:
    explicit Rule(const QString &rule);

    /// The value may become a view of a text that this rule holds.
    void apply(WorkingText &value) const;

private:
    enum class Kind {
        Nothing,
        Left,
        Right,
        CutLeft,
        CutRight,
        BreakLine,
        NewLine,
        Prepend,
        Append,
        Find,
        CharType,
        Trim,
        Simplified
    };
    struct Keyword;
    static const Keyword keywords[];

    enum class FindAction { Nothing, Print, Delete, Replace };
    enum class FindScope { Nothing, FullString, MatchedString };

    void readFind();
    void applyBreakLine(WorkingText &value) const;
    void applyNewLine(WorkingText &value) const;
    void applyFind(WorkingText &value) const;
    void applyFindToMatch(WorkingText &value) const;
    void replaceMatch(WorkingText &value, const QString &replacement) const;

    Kind m_kind = Kind::Nothing;
    int m_number = 0;   // of a length rule
    QString m_argument; // what stands in the brackets
    CharTypeConversion m_charType = nullptr;
    StringCondition m_findCondition;
    FindScope m_findScope = FindScope::Nothing;
    FindAction m_findAction = FindAction::Nothing;
    QString m_findReplacement;
};

/// An ordered list of rules, each applied to the result of the one before.
class RuleList
{
public:
    explicit RuleList(const QStringList &rules = QStringList());

    bool isEmpty() const { return m_rules.empty(); }
    /// The value may become a view of a text that this list holds.
    void apply(WorkingText &value) const;

private:
    std::vector<Rule> m_rules;
};

QString applyRule(const QString &rule, const QString &value);
QString applyRules(const QStringList &rules, const QString &value);
