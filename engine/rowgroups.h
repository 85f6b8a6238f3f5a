// Groups of rows with equal keys. Joining and the removal of duplicates are built on it. Exports
// keep the lines of an order together and the orders sorted; as long as that is so, neighbours are
// compared and nothing else is needed. The first key out of order makes a hash table of all keys.
//
// Rows are known by number only. Whoever uses the groups gives a key object for the row at hand:
//     int compareWith(quint32 row)   the key against that of a row added before: < 0, 0 or > 0
//     uint hash()                    the hash of the key
//     uint hashOf(quint32 row)       the hash of the key of a row added before
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

    /// Adds a row to the group of its key; true when that is a new one. Rows come in rising order.
    template <typename Key> bool add(quint32 row, Key &&key);

    /// The group of a key, or `none`.
    template <typename Key> quint32 find(Key &&key);

private:
    struct Group {
        quint32 first;
        quint32 last;
    };

    bool isIndexed() const { return !m_slots.empty(); }
    size_t slotOf(uint hash) const { return (hash * 0x9E3779B1u) >> m_shift; }
    template <typename Key> void index(Key &key);
    template <typename Key> quint32 findIndexed(uint hash, Key &key) const;
    void appendTo(quint32 group, quint32 row);
    void addGroup(quint32 row);
    void addToIndex(uint hash);
    void rebuildSlots(size_t size);

    std::vector<Group> m_groups;
    std::vector<quint32> m_next; // by row
    quint32 m_lastGroup = none;  // added to last
    quint32 m_foundGroup = 0;    // found last
    int m_direction = 0;         // while sorted: 1 rising, -1 falling, 0 not yet known
    // The hash table, once there is one: open addressing, the size is a power of two.
    std::vector<quint32> m_slots; // group numbers
    std::vector<uint> m_hashes;   // by group
    int m_shift = 32;
};

template <typename Key> bool RowGroups::add(quint32 row, Key &&key)
{
    if (m_lastGroup != none) {
        const int order = key.compareWith(m_groups[m_lastGroup].last);
        if (order == 0) {
            appendTo(m_lastGroup, row);
            return false;
        }
        const int direction = order > 0 ? 1 : -1;
        if (m_direction == 0)
            m_direction = direction;
        if (!isIndexed() && direction != m_direction)
            index(key);
    }
    if (isIndexed()) {
        const uint hash = key.hash();
        const quint32 group = findIndexed(hash, key);
        if (group != none) {
            appendTo(group, row);
            return false;
        }
        addToIndex(hash);
    }
    addGroup(row);
    return true;
}

template <typename Key> quint32 RowGroups::find(Key &&key)
{
    if (m_groups.empty())
        return none;
    // Mostly the same key as before or the one behind it.
    const quint32 before = m_foundGroup;
    for (quint32 guess = before; guess < m_groups.size() && guess - before < 2; ++guess) {
        if (key.compareWith(m_groups[guess].first) == 0)
            return m_foundGroup = guess;
    }
    if (!isIndexed())
        index(key);
    const quint32 group = findIndexed(key.hash(), key);
    if (group != none)
        m_foundGroup = group;
    return group;
}

template <typename Key> void RowGroups::index(Key &key)
{
    m_hashes.reserve(m_groups.size());
    for (const Group &group : m_groups)
        m_hashes.push_back(key.hashOf(group.first));
    size_t size = 1024;
    while (size < m_groups.size() * 2)
        size *= 2;
    rebuildSlots(size);
}

template <typename Key> quint32 RowGroups::findIndexed(uint hash, Key &key) const
{
    const size_t mask = m_slots.size() - 1;
    for (size_t slot = slotOf(hash); m_slots[slot] != none; slot = (slot + 1) & mask) {
        const quint32 group = m_slots[slot];
        if (m_hashes[group] == hash && key.compareWith(m_groups[group].first) == 0)
            return group;
    }
    return none;
}
