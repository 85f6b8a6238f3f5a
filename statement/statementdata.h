// The statement records of one run, parallel to its output rows, and what of them is printed.
#pragma once

#include "statement/statementrecord.h"
#include "statement/statementsetting.h"

#include <vector>

using StatementFlags = std::array<bool, StatementFields::Count>;

class StatementData
{
public:
    explicit StatementData(const StatementSetting &setting = StatementSetting());

    bool prints(StatementFields::Field field) const { return m_printed[field]; }
    const StatementFlags &printed() const { return m_printed; }
    const CompanyFlags &printedCompany() const { return m_printedCompany; }

    void clear() { m_records.clear(); }

    /// Appends the record of one output row. The texts of fields that are not printed do not count.
    void addRecord(const StatementTexts &values);

    /// One output row was merged into another: the kept record takes the first product line of the
    /// removed one, which then goes. Cheapest for the last record.
    void mergeRecords(int kept, int removed);

    /// Fills in the missing amounts of every record, if any field that can be computed is printed.
    void computeAmounts();

    int count() const { return int(m_records.size()); }
    const StatementRecord &record(int index) const { return m_records[size_t(index)]; }

private:
    StatementFlags m_printed;
    CompanyFlags m_printedCompany;
    std::vector<StatementRecord> m_records;
};
