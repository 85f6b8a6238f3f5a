#include "tests/samples/outputcolumn.h"

namespace {

// What the company fields are called where the user drags them from.
const char *const companyLabels[CompanyInfo::FieldCount] = {
    "회사명", "판매처명", "판매사이트", "우편번호", "주소", "전화번호", "팩스번호", "전자우편"};

} // namespace

OutputColumn::OutputColumn(const QStringList &heads, const char *name) : m_heads(heads)
{
    m_item.name = QString::fromUtf8(name);
    m_item.distinct = QStringLiteral("NO");
    m_item.merge = QStringLiteral("NO");
}

OutputColumn &OutputColumn::from(const char *heading)
{
    const QString text = QString::fromUtf8(heading);
    m_item.appendMapping(InputSource, columnOf(text), text);
    return *this;
}

OutputColumn &OutputColumn::from(CompanyInfo::Field field)
{
    const QString label = QString::fromUtf8(companyLabels[field]);
    m_item.appendMapping(CompanySource, field, QLatin1Char('[') + label + QLatin1Char(']'));
    return *this;
}

OutputColumn &OutputColumn::separatedBy(const char *separator)
{
    m_item.separator = QString::fromUtf8(separator);
    return *this;
}

OutputColumn &OutputColumn::onlyIf(const char *heading, const char *condition)
{
    const QString text = QString::fromUtf8(heading);
    m_item.appendCondition(InputSource, columnOf(text), text);
    m_item.condRules.last() = QString::fromUtf8(condition);
    return *this;
}

OutputColumn &OutputColumn::orIf(const char *heading, const char *condition)
{
    m_item.condCombination = QStringLiteral("OR");
    return onlyIf(heading, condition);
}

OutputColumn &OutputColumn::rule(const char *rule)
{
    m_item.rules.append(QString::fromUtf8(rule));
    return *this;
}

OutputColumn &OutputColumn::rules(const QStringList &rules)
{
    m_item.rules.append(rules);
    return *this;
}

OutputColumn &OutputColumn::afterRule(const char *rule)
{
    m_item.afterRules.append(QString::fromUtf8(rule));
    return *this;
}

OutputColumn &OutputColumn::distinct()
{
    m_item.distinct = QStringLiteral("YES");
    return *this;
}

OutputColumn &OutputColumn::mergeTexts(const char *separator)
{
    m_item.merge = QStringLiteral("STRING");
    m_item.mergeSeparator = QString::fromUtf8(separator);
    return *this;
}

OutputColumn &OutputColumn::sum()
{
    m_item.merge = QStringLiteral("NUMBER");
    return *this;
}

int OutputColumn::columnOf(const QString &heading) const
{
    const int column = m_heads.indexOf(heading);
    if (column < 0)
        qFatal("No sample has a column \"%s\".", qUtf8Printable(heading));
    return column;
}
