// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/EntryTable.h>

#include <Tavrin/model/SpecificationEntry.h>

#include <algorithm>

namespace Tavrin
{

EntryTable::const_iterator EntryTable::begin() const
{
    return {m_slots.data(), m_slots.data() + m_slots.size()};
}

EntryTable::const_iterator EntryTable::end() const
{
    const Slot *end = m_slots.data() + m_slots.size();
    return {end, end};
}

EntryTable::EntryPtr EntryTable::value(const QString &label) const
{
    const auto it = m_positions.constFind(label);
    return it == m_positions.constEnd() ? nullptr : m_slots[*it].entry;
}

EntryTable::EntryPtr EntryTable::valueIgnoringCase(const QString &label) const
{
    const auto it = m_foldedPositions.constFind(label.toLower());
    return it == m_foldedPositions.constEnd() ? nullptr : m_slots[it->front()].entry;
}

bool EntryTable::insert(const EntryPtr &entry)
{
    const QString &label = entry->label();
    if (m_positions.contains(label))
        return false;
    m_slots.push_back({label, entry});
    index(m_slots.size() - 1);
    return true;
}

void EntryTable::index(std::size_t position)
{
    const QString &key = m_slots[position].key;
    m_positions.insert(key, position);
    m_foldedPositions[key.toLower()].push_back(position);
}

void EntryTable::remove(const QString &label)
{
    const auto it = m_positions.constFind(label);
    if (it == m_positions.constEnd())
        return;
    const std::size_t position = *it;
    const auto folded = m_foldedPositions.find(label.toLower());
    std::erase(*folded, position);
    if (folded->empty())
        m_foldedPositions.erase(folded);
    m_positions.erase(it);
    m_slots[position] = {};
    if (m_slots.size() > 2 * static_cast<std::size_t>(m_positions.size()))
        compact();
}

void EntryTable::compact()
{
    std::erase_if(m_slots, [](const Slot &slot) { return !slot.entry; });
    m_positions.clear();
    m_foldedPositions.clear();
    for (std::size_t position = 0; position < m_slots.size(); ++position)
        index(position);
}

void EntryTable::clear()
{
    *this = EntryTable();
}

} // namespace Tavrin
