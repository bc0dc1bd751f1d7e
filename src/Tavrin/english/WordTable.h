// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <string>
#include <string_view>
#include <vector>

namespace Tavrin::English
{

/// Numbers words from 0 in the order of their insertion. Open addressing over one pool of bytes:
/// a hundred thousand words cost two megabytes and a look-up one cache miss or two.
class WordTable
{
public:
    static constexpr int absent = -1;

    explicit WordTable(std::size_t expectedWords);

    /// The word's number, given to it now if it is new.
    int insert(std::string_view word);

    /// The word's number, or `absent`.
    int find(std::string_view word) const;

    std::string_view word(int number) const;
    int size() const { return static_cast<int>(m_ends.size()) - 1; }

private:
    struct Slot {
        quint32 hash = 0;
        int number = absent;
    };

    static quint32 hash(std::string_view word);
    std::size_t slotOf(std::string_view word, quint32 hash) const;
    void grow();

    std::vector<Slot> m_slots;
    /// Where each word ends in the pool; the first element is 0.
    std::vector<quint32> m_ends;
    std::string m_pool;
};

} // namespace Tavrin::English
