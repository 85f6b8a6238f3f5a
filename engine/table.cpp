#include "engine/table.h"

#include "engine/rowgroups.h"
#include "engine/textkey.h"

#include <algorithm>
#include <new>

namespace {

// A key to be found among those of a file.
struct FileKey {
    const TextRows &rows;
    int column;
    QStringView text;

    int compareWith(quint32 row) const { return compareTexts(text, rows.field(int(row), column)); }
    uint hash() const { return textHash(text); }
    uint hashOf(quint32 row) const { return textHash(rows.field(int(row), column)); }
};

} // namespace

quint32 Table::Part::rowCount() const
{
    if (files.empty())
        return 0;
    const File &last = files.back();
    return last.firstRow + quint32(last.rows->rowCount()) - last.skippedRows;
}

void Table::Part::add(TextRows rows, quint32 skippedRows)
{
    files.push_back({std::make_shared<const TextRows>(std::move(rows)), rowCount(), skippedRows});
}

TextRows::Fields Table::Part::fields(quint32 row) const
{
    auto file = files.begin();
    if (files.size() > 1) {
        file = std::upper_bound(files.begin(), files.end(), row,
                                [](quint32 row, const File &file) { return row < file.firstRow; })
            - 1;
    }
    return file->rows->fields(int(row - file->firstRow + file->skippedRows));
}

Table::Row::Row(const Table &table, int row, int columnLimit)
    : m_table(table), m_row(row), m_columnLimit(size_t(columnLimit)),
      m_fields(size_t(qMax(1, table.columnCount()))), m_partEnds(table.m_parts.size())
{
}

inline quint32 Table::reference(int row, size_t part) const
{
    return isPlain() ? quint32(row) : m_references[size_t(row) * m_parts.size() + part];
}

void Table::Row::moveTo(int row)
{
    // The fields of the first parts are kept as long as these refer to the same file rows as
    // before.
    size_t same = 0;
    if (!m_table.isPlain()) {
        const size_t width = m_table.m_parts.size();
        const quint32 *before = m_table.m_references.data() + size_t(m_row) * width;
        const quint32 *now = m_table.m_references.data() + size_t(row) * width;
        while (same < m_partCount && before[same] == now[same])
            ++same;
    }
    m_row = row;
    m_partCount = same;
    m_fieldCount = same > 0 ? m_partEnds[same - 1] : 0;
}

// A row without a partner has the columns of later files further to the left.
bool Table::Row::findFields(int column) const
{
    while (m_partCount < m_table.m_parts.size() && m_fieldCount < m_columnLimit) {
        findFieldsOfPart(m_partCount);
        m_partEnds[m_partCount++] = m_fieldCount;
        if (size_t(column) < m_fieldCount)
            return true;
    }
    return false;
}

void Table::Row::findFieldsOfPart(size_t part) const
{
    const quint32 fileRow = m_table.reference(m_row, part);
    if (fileRow == noRow)
        return;
    TextRows::Fields fields = m_table.m_parts[part].fields(fileRow);
    const int droppedColumn = m_table.m_parts[part].droppedColumn;
    QStringView field;
    for (int column = 0; m_fieldCount < m_columnLimit && fields.next(&field); ++column) {
        if (column == droppedColumn)
            continue;
        if (m_fieldCount == m_fields.size())
            m_fields.resize(m_fieldCount * 2);
        m_fields[m_fieldCount++] = field;
    }
}

int Table::Row::fieldCount() const
{
    findFields(-1);
    return int(m_fieldCount);
}

void Table::clear()
{
    *this = Table();
}

QStringView Table::field(int row, int column) const
{
    if (column < 0)
        return QStringView();
    for (size_t i = 0; i < m_parts.size(); ++i) {
        const quint32 fileRow = reference(row, i);
        if (fileRow == noRow)
            continue;
        TextRows::Fields fields = m_parts[i].fields(fileRow);
        QStringView field;
        for (int fileColumn = 0; fields.next(&field); ++fileColumn) {
            if (fileColumn != m_parts[i].droppedColumn && column-- == 0)
                return field;
        }
    }
    return QStringView();
}

QString Table::value(int row, int column) const
{
    return row >= 0 && row < m_rowCount ? field(row, column).toString() : QString();
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

void Table::appendReferences(std::vector<quint32> &references, int row) const
{
    if (isPlain()) {
        references.push_back(quint32(row));
        return;
    }
    const auto begin = m_references.begin() + ptrdiff_t(size_t(row) * m_parts.size());
    references.insert(references.end(), begin, begin + ptrdiff_t(m_parts.size()));
}

bool Table::join(TextRows rows, int tableColumn, int fileColumn)
{
    if (isEmpty() || rows.rowCount() == 0 || tableColumn > m_columnCount
        || fileColumn > rows.fieldCount(0))
        return false;

    // The file's data rows by key, each group in the file's order.
    RowGroups partners;
    for (quint32 row = 1; row < quint32(rows.rowCount()); ++row)
        partners.add(row, FileKey{rows, fileColumn, rows.field(int(row), fileColumn)});

    std::vector<quint32> joined;
    joined.reserve((m_parts.size() + 1) * size_t(qMax(m_rowCount, rows.rowCount())));
    appendReferences(joined, 0);
    joined.push_back(0); // the headings
    for (int row = 1; row < m_rowCount; ++row) {
        const quint32 group = partners.find(FileKey{rows, fileColumn, field(row, tableColumn)});
        quint32 partner = group == RowGroups::none ? noRow : partners.first(group);
        do {
            if (joined.size() > greatestRowCount * (m_parts.size() + 1))
                throw std::bad_alloc();
            appendReferences(joined, row);
            joined.push_back(partner);
            partner = partner == noRow ? RowGroups::none : partners.next(partner);
        } while (partner != RowGroups::none);
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
    const int last = first + qBound(0, count, m_rowCount - first);
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
