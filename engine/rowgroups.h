// Groups of rows with equal keys, found through a hash table. Knows rows by number and keys by hash;
// whoever uses it compares the keys. Joining and the removal of duplicates are built on it.
#pragma once

#include <QtGlobal>
#include <vector>

class RowGroups
{
public:
    static constexpr quint32 none = 0xFFFFFFFF;

    int groupCount() const { return int(m_groups.size()); }
    /// The first row of a group.
    quint32 first(quint32 group) const { return m_groups[group].first; }
    /// The next row with the same key, in the order of adding; `none` behind the last.
    quint32 next(quint32 row) const { return row < m_next.size() ? m_next[row] : none; }

    /// The group of a key, or `none`. `equalsRow(row)` compares the key with that of a row added
    /// before.
    template <typename EqualsRow> quint32 find(uint hash, EqualsRow equalsRow) const;

    /// Adds a row to the group of its key. Rows must be added in rising order.
    template <typename EqualsRow> void add(quint32 row, uint hash, EqualsRow equalsRow);

    /// Room for the next-row links of this many rows.
    void reserveRows(int count) { m_next.reserve(size_t(count)); }

private:
    struct Group {
        quint32 first;
        quint32 last;
        uint hash;
    };

    size_t slotOf(uint hash) const { return (hash * 0x9E3779B1u) >> m_shift; }
    void grow();

    std::vector<Group> m_groups;
    std::vector<quint32> m_next;  // by row
    std::vector<quint32> m_slots; // group numbers, open addressing; the size is a power of two
    int m_shift = 32;
};

template <typename EqualsRow> quint32 RowGroups::find(uint hash, EqualsRow equalsRow) const
{
    if (m_slots.empty())
        return none;
    const size_t mask = m_slots.size() - 1;
    for (size_t slot = slotOf(hash); m_slots[slot] != none; slot = (slot + 1) & mask) {
        const Group &group = m_groups[m_slots[slot]];
        if (group.hash == hash && equalsRow(group.first))
            return m_slots[slot];
    }
    return none;
}

template <typename EqualsRow> void RowGroups::add(quint32 row, uint hash, EqualsRow equalsRow)
{
    const quint32 group = find(hash, equalsRow);
    if (group != none) {
        quint32 &last = m_groups[group].last;
        if (m_next.size() <= last)
            m_next.resize(size_t(last) + 1, none);
        m_next[last] = row;
        last = row;
        return;
    }
    if ((m_groups.size() + 1) * 3 > m_slots.size() * 2)
        grow();
    const size_t mask = m_slots.size() - 1;
    size_t slot = slotOf(hash);
    while (m_slots[slot] != none)
        slot = (slot + 1) & mask;
    m_slots[slot] = quint32(m_groups.size());
    m_groups.push_back({row, row, hash});
}
