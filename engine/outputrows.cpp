#include "engine/outputrows.h"

#include "rules/functiontext.h"

#include <QHash>

OutputRows::OutputRows(const Table &table, const QList<OutputItem> &items,
                       const CompanyInfo &company)
    : m_table(table), m_builder(items, company)
{
    for (const OutputItem &item : items) {
        m_mergeItems.push_back({item.mergesTexts(), item.mergesNumbers(), item.mergeSeparator,
                                RuleList(item.afterRules)});
        if (item.isDistinct())
            ++m_distinctCount;
    }
    m_key = std::vector<WorkingText>(size_t(m_distinctCount));
    m_otherKey = std::vector<WorkingText>(size_t(m_distinctCount));
    if (m_distinctCount > 0)
        m_groups.reserveRows(table.rowCount());
}

void OutputRows::appendNext()
{
    ++m_appended;
    if (m_distinctCount > 0)
        addToGroup(quint32(m_appended));
}

// Required: the key is the first N columns, not the N columns that are marked.
void OutputRows::buildKey(quint32 inputRow, std::vector<WorkingText> &values) const
{
    const Table::Row row = m_table.row(int(inputRow));
    for (int item = 0; item < m_distinctCount; ++item)
        m_builder.buildValue(item, row, values[size_t(item)]);
}

void OutputRows::addToGroup(quint32 inputRow)
{
    buildKey(inputRow, m_key);
    uint hash = 0;
    for (const WorkingText &value : m_key)
        hash = hash * 31 + qHash(value.view());
    m_groups.add(inputRow, hash, [this](quint32 other) {
        buildKey(other, m_otherKey);
        for (size_t i = 0; i < m_key.size(); ++i) {
            if (m_key[i].view() != m_otherKey[i].view())
                return false;
        }
        return true;
    });
}

void OutputRows::removeDuplicatesAndMerge()
{
    m_merged = m_distinctCount > 0;
}

int OutputRows::count() const
{
    return m_merged ? m_groups.groupCount() : m_appended;
}

quint32 OutputRows::firstInputRow(int row) const
{
    return m_merged ? m_groups.first(quint32(row)) : quint32(row) + 1;
}

quint32 OutputRows::nextInputRow(quint32 inputRow) const
{
    return m_merged ? m_groups.next(inputRow) : RowGroups::none;
}

QStringView OutputRows::value(int row, int item)
{
    const quint32 inputRow = firstInputRow(row);
    m_builder.buildValue(item, m_table.row(int(inputRow)), m_value);
    if (!m_merged)
        return m_value.view();
    const MergeItem &merge = m_mergeItems[size_t(item)];
    if (nextInputRow(inputRow) != RowGroups::none) {
        if (merge.mergesTexts)
            mergeTexts(inputRow, item);
        else if (merge.mergesNumbers)
            mergeNumbers(inputRow, item);
    }
    merge.afterRules.apply(m_value);
    return m_value.view();
}

QStringList OutputRows::row(int row)
{
    QStringList texts;
    for (int item = 0; item < itemCount(); ++item)
        texts.append(value(row, item).toString());
    return texts;
}

// The separator stands before every folded value, also before an empty one.
void OutputRows::mergeTexts(quint32 inputRow, int item)
{
    const QString &separator = m_mergeItems[size_t(item)].separator;
    m_value.rebuild([&](QString &merged) {
        merged.append(m_value.view().data(), int(m_value.view().size()));
        for (quint32 folded = nextInputRow(inputRow); folded != RowGroups::none;
             folded = nextInputRow(folded)) {
            m_builder.buildValue(item, m_table.row(int(folded)), m_folded);
            merged.append(separator);
            merged.append(m_folded.view().data(), int(m_folded.view().size()));
        }
    });
}

// 32-bit sums wrap around.
void OutputRows::mergeNumbers(quint32 inputRow, int item)
{
    quint32 sum = quint32(toInteger(m_value.view()));
    for (quint32 folded = nextInputRow(inputRow); folded != RowGroups::none;
         folded = nextInputRow(folded)) {
        m_builder.buildValue(item, m_table.row(int(folded)), m_folded);
        sum += quint32(toInteger(m_folded.view()));
    }
    m_value.rebuild([sum](QString &text) { text.append(QString::number(qint32(sum))); });
}
