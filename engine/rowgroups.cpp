#include "engine/rowgroups.h"

void RowGroups::grow()
{
    const size_t size = m_slots.empty() ? 1024 : m_slots.size() * 2;
    m_slots.assign(size, none);
    m_shift = 32;
    for (size_t i = size; i > 1; i /= 2)
        --m_shift;
    const size_t mask = size - 1;
    for (size_t group = 0; group < m_groups.size(); ++group) {
        size_t slot = slotOf(m_groups[group].hash);
        while (m_slots[slot] != none)
            slot = (slot + 1) & mask;
        m_slots[slot] = quint32(group);
    }
}
