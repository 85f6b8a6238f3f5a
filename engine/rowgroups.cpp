#include "engine/rowgroups.h"

void RowGroups::appendTo(quint32 group, quint32 row)
{
    quint32 &last = m_groups[group].last;
    if (m_next.size() <= last)
        m_next.resize(size_t(last) + 1, none);
    m_next[last] = row;
    last = row;
    m_lastGroup = group;
}

void RowGroups::addGroup(quint32 row)
{
    m_lastGroup = quint32(m_groups.size());
    m_groups.push_back({row, row});
}

// Indexes the group that is about to be added.
void RowGroups::addToIndex(uint hash)
{
    m_hashes.push_back(hash);
    if (m_hashes.size() * 3 > m_slots.size() * 2) {
        rebuildSlots(m_slots.size() * 2);
        return;
    }
    const size_t mask = m_slots.size() - 1;
    size_t slot = slotOf(hash);
    while (m_slots[slot] != none)
        slot = (slot + 1) & mask;
    m_slots[slot] = quint32(m_hashes.size() - 1);
}

void RowGroups::rebuildSlots(size_t size)
{
    m_slots.assign(size, none);
    m_shift = 32;
    for (size_t i = size; i > 1; i /= 2)
        --m_shift;
    const size_t mask = size - 1;
    for (size_t group = 0; group < m_hashes.size(); ++group) {
        size_t slot = slotOf(m_hashes[group]);
        while (m_slots[slot] != none)
            slot = (slot + 1) & mask;
        m_slots[slot] = quint32(group);
    }
}
