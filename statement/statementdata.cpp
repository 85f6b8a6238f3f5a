#include "statement/statementdata.h"

using namespace StatementFields;

StatementData::StatementData(const StatementSetting &setting)
    : m_printedCompany(setting.printCompany)
{
    for (size_t i = 0; i < m_printed.size(); ++i)
        m_printed[i] = setting.fields[i].toPrint;
}

void StatementData::addRecord(const StatementTexts &values)
{
    StatementRecord record;
    for (int i = 0; i < StatementFields::Count; ++i) {
        if (m_printed[size_t(i)])
            record.setField(StatementFields::Field(i), values[size_t(i)]);
    }
    m_records.push_back(std::move(record));
}

void StatementData::mergeRecords(int kept, int removed)
{
    m_records[size_t(kept)].appendFirstLineOf(m_records[size_t(removed)]);
    m_records.erase(m_records.begin() + removed);
}

void StatementData::computeAmounts()
{
    if (!prints(Subtotal) && !prints(Sum) && !prints(TotalSum) && !prints(Payment))
        return;
    for (StatementRecord &record : m_records)
        record.computeAmounts();
}
