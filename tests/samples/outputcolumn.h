// Writes an output item down as one readable sentence: its name, where its value comes from, when
// it is filled, what is done to it.
#pragma once

#include "settings/companyinfo.h"
#include "settings/outputitem.h"

class OutputColumn
{
public:
    /// `heads` is the combined item list; the input columns are named by their headings.
    OutputColumn(const QStringList &heads, const char *name);

    /// Adds a value of the input row, or of the company.
    OutputColumn &from(const char *heading);
    OutputColumn &from(CompanyInfo::Field field);
    OutputColumn &separatedBy(const char *separator);

    /// Fills the column only where the condition holds for the named input column.
    OutputColumn &onlyIf(const char *heading, const char *condition);
    /// One condition that holds is enough.
    OutputColumn &orIf(const char *heading, const char *condition);

    OutputColumn &rule(const char *rule);
    OutputColumn &rules(const QStringList &rules);
    OutputColumn &afterRule(const char *rule);

    /// One more of the first columns that decide about duplicates.
    OutputColumn &distinct();
    OutputColumn &mergeTexts(const char *separator);
    OutputColumn &sum();

    operator OutputItem() const { return m_item; }

private:
    int columnOf(const QString &heading) const;

    QStringList m_heads;
    OutputItem m_item;
};
