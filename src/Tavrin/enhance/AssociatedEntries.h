// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <vector>

#include <Tavrin/model/Specification.h>

namespace Tavrin
{

/// Which sections and chapters stand above and below others in the numbering. An index of all
/// numbers, so that asking costs what is found.
class AssociatedEntries
{
public:
    explicit AssociatedEntries(const EntryTable &entries);

    /// The sections and chapters whose number begins with the whole given one, or the reverse, in
    /// the order of the table. Those with the same number are not among them. No number at all is
    /// the beginning of each.
    std::vector<Specification::EntryPtr> of(const std::vector<int> &index) const;

private:
    std::vector<Specification::EntryPtr> m_entries;
    /// By number, positions in the table.
    std::map<std::vector<int>, std::vector<std::size_t>> m_positions;
};

} // namespace Tavrin
