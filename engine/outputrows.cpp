#include "engine/outputrows.h"

#include "engine/textkey.h"
#include "rules/functiontext.h"

#include <algorithm>

namespace {

int countDistinct(const QList<OutputItem> &items)
{
    return int(std::count_if(items.begin(), items.end(),
                             [](const OutputItem &item) { return item.isDistinct(); }));
}

} // namespace

OutputRows::OutputRows(const Table &table, const QList<OutputItem> &items,
                       const CompanyInfo &company)
    : m_builder(items, company), m_distinctCount(countDistinct(items)),
      m_inputRow(table, 0, m_builder.columnLimit(m_builder.itemCount())),
      m_tableRowCount(table.rowCount()), m_values(size_t(items.size())),
      m_key(table, m_builder, m_distinctCount)
{
    for (int i = 0; i < items.size(); ++i) {
        const OutputItem &item = items.at(i);
        m_mergeItems.push_back(
            {item.mergesNumbers(), item.mergeSeparator, RuleList(item.afterRules), 0});
        if (item.merges())
            m_mergingItems.push_back(i);
    }
}

void OutputRows::appendNext()
{
    Q_ASSERT(m_appended + 1 < m_tableRowCount);
    ++m_appended;
    if (m_distinctCount > 0) {
        m_key.moveTo(quint32(m_appended));
        m_groups.add(quint32(m_appended), m_key);
    }
}

// Required: the key is the first N columns, not the N columns that are marked.
const std::vector<WorkingText> &OutputRows::KeyBuilder::build(quint32 row, Key &key)
{
    if (key.inputRow != row) {
        key.inputRow = row;
        m_cursor.moveTo(int(row));
        for (size_t item = 0; item < key.values.size(); ++item)
            m_builder.buildValue(int(item), m_cursor, key.values[item]);
    }
    return key.values;
}

void OutputRows::KeyBuilder::moveTo(quint32 row)
{
    // The row before is the one to be compared with first.
    std::swap(m_current, m_other);
    build(row, m_current);
}

int OutputRows::KeyBuilder::compareWith(quint32 row)
{
    const std::vector<WorkingText> &other = build(row, m_other);
    for (size_t i = 0; i < other.size(); ++i) {
        const int order = compareTexts(m_current.values[i].view(), other[i].view());
        if (order != 0)
            return order;
    }
    return 0;
}

uint OutputRows::KeyBuilder::hashOf(const std::vector<WorkingText> &values)
{
    uint hash = 0;
    for (const WorkingText &value : values)
        hash = hash * 31 + textHash(value.view());
    return hash;
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

const std::vector<WorkingText> &OutputRows::buildRow(int row)
{
    const quint32 inputRow = firstInputRow(row);
    m_inputRow.moveTo(int(inputRow));
    for (int item = 0; item < itemCount(); ++item)
        m_builder.buildValue(item, m_inputRow, m_values[size_t(item)]);
    if (m_merged) {
        if (nextInputRow(inputRow) != RowGroups::none)
            foldRows(inputRow);
        for (size_t item = 0; item < m_values.size(); ++item)
            m_mergeItems[item].afterRules.apply(m_values[item]);
    }
    return m_values;
}

QStringList OutputRows::row(int row)
{
    QStringList texts;
    for (const WorkingText &value : buildRow(row))
        texts.append(value.toString());
    return texts;
}

// Folds the values of all later rows of a group into m_values. A separator stands before every
// folded text, also before an empty one; sums are 32-bit and wrap around.
void OutputRows::foldRows(quint32 firstInputRow)
{
    for (const int item : m_mergingItems) {
        if (m_mergeItems[size_t(item)].mergesNumbers)
            m_mergeItems[size_t(item)].sum = quint32(toInteger(m_values[size_t(item)].view()));
    }
    for (quint32 folded = nextInputRow(firstInputRow); folded != RowGroups::none;
         folded = nextInputRow(folded)) {
        m_inputRow.moveTo(int(folded));
        for (const int item : m_mergingItems) {
            MergeItem &merge = m_mergeItems[size_t(item)];
            m_builder.buildValue(item, m_inputRow, m_folded);
            if (merge.mergesNumbers) {
                merge.sum += quint32(toInteger(m_folded.view()));
            } else {
                m_values[size_t(item)].append(merge.separator);
                m_values[size_t(item)].append(m_folded.view());
            }
        }
    }
    for (const int item : m_mergingItems) {
        const MergeItem &merge = m_mergeItems[size_t(item)];
        if (!merge.mergesNumbers)
            continue;
        m_values[size_t(item)].rebuild(
            [&](TextBuffer &out) { out.append(QString::number(qint32(merge.sum))); });
    }
}
