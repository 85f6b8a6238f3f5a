#include "engine/table.h"

#include "engine/rowgroups.h"

#include <QHash>
#include <algorithm>

quint32 Table::Part::rowCount() const
{
    if (files.empty())
        return 0;
    return firstRows.back() + quint32(files.back()->rowCount()) - m_skippedRows.back();
}

void Table::Part::add(TextRows rows, int skippedRows)
{
    firstRows.push_back(rowCount());
    m_skippedRows.push_back(quint32(qMin(skippedRows, rows.rowCount())));
    files.push_back(std::make_shared<const TextRows>(std::move(rows)));
}

// Turns a row number of the part into one of the file that holds it.
const TextRows &Table::Part::locate(quint32 &row) const
{
    size_t file = 0;
    if (files.size() > 1) {
        const auto next = std::upper_bound(firstRows.begin(), firstRows.end(), row);
        file = size_t(next - firstRows.begin()) - 1;
    }
    row = row - firstRows[file] + m_skippedRows[file];
    return *files[file];
}

QStringView Table::Part::field(quint32 row, int column) const
{
    const TextRows &rows = locate(row);
    if (droppedColumn >= 0 && column >= droppedColumn)
        ++column;
    return rows.field(int(row), column);
}

int Table::Part::fieldCount(quint32 row) const
{
    const TextRows &rows = locate(row);
    const int stored = rows.fieldCount(int(row));
    return dropsColumnOf(stored) ? stored - 1 : stored;
}

QStringView Table::Row::value(int column) const
{
    if (column < 0)
        return QStringView();
    for (size_t i = 0; i < m_parts.size(); ++i) {
        const quint32 row = reference(i);
        if (row == noRow)
            continue; // a row without a partner has its later columns further to the left
        const int count = m_parts[i].fieldCount(row);
        if (column < count)
            return m_parts[i].field(row, column);
        column -= count;
    }
    return QStringView();
}

int Table::Row::fieldCount() const
{
    int count = 0;
    for (size_t i = 0; i < m_parts.size(); ++i) {
        if (reference(i) != noRow)
            count += m_parts[i].fieldCount(reference(i));
    }
    return count;
}

void Table::clear()
{
    *this = Table();
}

Table::Row Table::row(int row) const
{
    if (isPlain())
        return Row(m_parts, nullptr, quint32(row));
    return Row(m_parts, m_references.data() + size_t(row) * m_parts.size(), 0);
}

QStringView Table::value(int row, int column) const
{
    return row >= 0 && row < m_rowCount ? this->row(row).value(column) : QStringView();
}

QStringList Table::rowTexts(int row) const
{
    QStringList texts;
    if (row < 0 || row >= m_rowCount)
        return texts;
    const Row fields = this->row(row);
    const int count = fields.fieldCount();
    texts.reserve(count);
    for (int column = 0; column < count; ++column)
        texts.append(fields.value(column).toString());
    return texts;
}

void Table::setRows(TextRows rows)
{
    clear();
    m_rowCount = rows.rowCount();
    if (m_rowCount == 0)
        return;
    m_columnCount = rows.fieldCount(0);
    m_parts.emplace_back();
    m_parts.back().add(std::move(rows), 0);
}

void Table::appendDataRows(TextRows rows)
{
    const int added = rows.rowCount() - 1;
    if (isEmpty() || added <= 0)
        return;
    Part &first = m_parts.front();
    const quint32 firstAdded = first.rowCount();
    first.add(std::move(rows), 1);
    if (!isPlain()) {
        for (int i = 0; i < added; ++i) {
            m_references.push_back(firstAdded + quint32(i));
            m_references.insert(m_references.end(), m_parts.size() - 1, noRow);
        }
    }
    m_rowCount += added;
}

void Table::makeReferences()
{
    if (!isPlain())
        return;
    m_references.resize(size_t(m_rowCount));
    for (size_t row = 0; row < m_references.size(); ++row)
        m_references[row] = quint32(row);
}

bool Table::join(TextRows rows, int tableColumn, int fileColumn)
{
    const int fileHeadCount = rows.rowCount() > 0 ? rows.fieldCount(0) : 0;
    if (isEmpty() || tableColumn > m_columnCount || fileColumn > fileHeadCount)
        return false;

    // The file's data rows by key, each group in the file's order.
    RowGroups partners;
    partners.reserveRows(rows.rowCount());
    for (int row = 1; row < rows.rowCount(); ++row) {
        const QStringView key = rows.field(row, fileColumn);
        partners.add(quint32(row), qHash(key),
                     [&](quint32 other) { return rows.field(int(other), fileColumn) == key; });
    }

    const size_t oldWidth = m_parts.size();
    std::vector<quint32> joined;
    joined.reserve((oldWidth + 1) * size_t(qMax(m_rowCount, rows.rowCount())));
    const auto appendJoined = [&](int row, quint32 partner) {
        if (isPlain())
            joined.push_back(quint32(row));
        else
            joined.insert(joined.end(), m_references.begin() + ptrdiff_t(size_t(row) * oldWidth),
                          m_references.begin() + ptrdiff_t(size_t(row + 1) * oldWidth));
        joined.push_back(partner);
    };
    appendJoined(0, 0); // the headings
    for (int row = 1; row < m_rowCount; ++row) {
        const QStringView key = this->row(row).value(tableColumn);
        const quint32 group = partners.find(
            qHash(key), [&](quint32 other) { return rows.field(int(other), fileColumn) == key; });
        if (group == RowGroups::none) {
            appendJoined(row, noRow);
            continue;
        }
        for (quint32 partner = partners.first(group); partner != RowGroups::none;
             partner = partners.next(partner))
            appendJoined(row, partner);
    }

    m_parts.emplace_back();
    m_parts.back().droppedColumn = fileColumn;
    m_parts.back().add(std::move(rows), 0);
    m_references = std::move(joined);
    m_rowCount = int(m_references.size() / m_parts.size());
    m_columnCount = row(0).fieldCount();
    return true;
}

void Table::removeRows(int row, int count)
{
    const int first = qBound(0, row, m_rowCount);
    const int last = qBound(first, row + count, m_rowCount);
    if (first == last)
        return;
    makeReferences();
    const auto begin = m_references.begin();
    const size_t width = m_parts.size();
    m_references.erase(begin + ptrdiff_t(size_t(first) * width),
                       begin + ptrdiff_t(size_t(last) * width));
    m_rowCount -= last - first;
    if (m_rowCount == 0)
        clear();
    else
        m_columnCount = this->row(0).fieldCount();
}
