// Conditions: short texts such as contains(ABC) or range(greaterThan(0),unLimit) that test one
// value. The free functions work on texts; the classes hold a text that has been read once, for a
// run that tests a million values with it.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

/// One of the eight text tests. All are case-sensitive and compare code units.
class StringCondition
{
public:
    explicit StringCondition(const QString &condition = QString());

    /// False for an unknown keyword, an empty condition text included.
    bool holds(QStringView value) const;

    enum Test {
        Unknown,
        EqualTo,
        NotEqualTo,
        Contains,
        NotContains,
        StartsWith,
        NotStartsWith,
        EndsWith,
        NotEndsWith
    };
    Test test() const { return m_test; }
    /// What is searched: the argument as it stands, commas and brackets included.
    const QString &searchText() const { return m_searchText; }

private:
    Test m_test;
    QString m_searchText;
};

/// The two bounds of a range condition.
class NumberRange
{
public:
    /// `parts` are the lower and the upper bound; a bound that is missing or unknown bounds
    /// nothing.
    explicit NumberRange(const QStringList &parts = QStringList());

    bool holds(int number) const;

private:
    enum Bound { None, Exclusive, Inclusive };
    Bound m_lowBound;
    Bound m_highBound;
    int m_low;
    int m_high;
};

/// A condition of either family: "range" tests the value as a number, every other keyword as text.
class Condition
{
public:
    explicit Condition(const QString &condition);

    bool holds(QStringView value) const;

private:
    bool m_isRange;
    StringCondition m_string;
    NumberRange m_range;
};

/// How the conditions of one output item combine.
enum class Combination {
    All,    ///< "AND"
    Any,    ///< "OR"
    Nothing ///< any other word: nothing ever holds
};

Combination combinationOf(const QString &word);

/// Combines `count` conditions; no condition at all holds. With "AND" the first one that fails ends
/// the evaluation. `test` tells whether the condition of an index holds.
template <typename Test> bool combinedConditionsHold(int count, Combination combination, Test test)
{
    if (count == 0)
        return true;
    switch (combination) {
    case Combination::All:
        for (int i = 0; i < count; ++i) {
            if (!test(i))
                return false;
        }
        return true;
    case Combination::Any:
        for (int i = 0; i < count; ++i) {
            if (test(i))
                return true;
        }
        return false;
    case Combination::Nothing:
        break;
    }
    return false;
}

bool evaluateStringCondition(const QString &condition, QStringView value);
bool evaluateNumberRange(const QStringList &parts, int number);

/// Condition i is tested against value i; a value that is missing is empty.
bool conditionsHold(const QStringList &conditions, const QStringList &values,
                    const QString &combination);
