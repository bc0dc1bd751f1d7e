// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/WordTable.h>

#include <algorithm>
#include <bit>
#include <cstring>

namespace Tavrin::English
{

WordTable::WordTable(std::size_t expectedWords)
    : m_slots(std::bit_ceil(std::max<std::size_t>(expectedWords, 8) * 2)), m_ends{0}
{
    m_ends.reserve(expectedWords + 1);
    m_pool.reserve(expectedWords * 9);
}

int WordTable::insert(std::string_view word)
{
    const quint32 key = hash(word);
    std::size_t slot = slotOf(word, key);
    if (m_slots[slot].number != absent)
        return m_slots[slot].number;
    if (m_ends.size() * 2 > m_slots.size()) {
        grow();
        slot = slotOf(word, key);
    }
    m_slots[slot] = {key, size()};
    m_pool.append(word);
    m_ends.push_back(static_cast<quint32>(m_pool.size()));
    return m_slots[slot].number;
}

int WordTable::find(std::string_view word) const
{
    return m_slots[slotOf(word, hash(word))].number;
}

std::string_view WordTable::word(int number) const
{
    const auto index = static_cast<std::size_t>(number);
    return std::string_view(m_pool).substr(m_ends[index], m_ends[index + 1] - m_ends[index]);
}

/// Eight bytes at a time, mixed by multiplication.
quint32 WordTable::hash(std::string_view word)
{
    constexpr quint64 factor = 0x9e3779b97f4a7c15;
    quint64 state = word.size() * factor;
    const char *bytes = word.data();
    for (std::size_t left = word.size(); left > 0;) {
        quint64 block = 0;
        const std::size_t taken = std::min<std::size_t>(left, sizeof block);
        std::memcpy(&block, bytes, taken);
        state = (std::rotl(state, 23) ^ block) * factor;
        bytes += taken;
        left -= taken;
    }
    return static_cast<quint32>(state >> 32);
}

/// Where the word is, or the free slot where it belongs.
std::size_t WordTable::slotOf(std::string_view text, quint32 hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hash & mask;
    while (m_slots[slot].number != absent &&
           (m_slots[slot].hash != hash || word(m_slots[slot].number) != text))
        slot = (slot + 1) & mask;
    return slot;
}

void WordTable::grow()
{
    std::vector<Slot> old(m_slots.size() * 2);
    old.swap(m_slots);
    const std::size_t mask = m_slots.size() - 1;
    for (const Slot &moved : old) {
        if (moved.number == absent)
            continue;
        std::size_t slot = moved.hash & mask;
        while (m_slots[slot].number != absent)
            slot = (slot + 1) & mask;
        m_slots[slot] = moved;
    }
}

} // namespace Tavrin::English
