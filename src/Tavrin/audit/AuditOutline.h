// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

/// The place of an entry, unless it has none on a page.
const HostPDFDestination *placeOf(const SpecificationEntry &entry);

/// Document order, as far as it is known: entries with a place come by place, the others behind
/// them by kind and number. Equals go by label. A strict weak order.
bool isBeforeInDocument(const SpecificationEntry &a, const SpecificationEntry &b);

/// The entries of a specification in document order, each with the entry that it lies below.
///
/// A section lies below the nearest one in front of it that its number continues; one without a
/// number lies below nothing. A figure or table lies below the section around its place, unless
/// its number names another chapter, to whose pages it has then moved from; without a place its
/// number alone decides.
class AuditOutline
{
public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;
    using Position = std::size_t;

    explicit AuditOutline(const Specification &specification);

    const std::vector<EntryPtr> &entries() const { return m_entries; }
    /// Where an entry stands; a part of one where the whole does.
    std::optional<Position> position(const SpecificationEntry &entry) const;
    /// What the entry lies directly below; nothing for the uppermost.
    std::optional<Position> parent(Position position) const { return m_parents[position]; }

private:
    using Index = std::vector<int>;

    std::optional<Position> longestPrefix(const Index &index) const;
    std::optional<Position> around(const SpecificationEntry &entry,
                                   std::optional<Position> section) const;
    Position root(Position position) const;

    std::vector<EntryPtr> m_entries;
    std::vector<std::optional<Position>> m_parents;
    QHash<const SpecificationEntry *, Position> m_positions;
    /// The last section or chapter with a number, of those that were looked at.
    std::map<Index, Position> m_numbered;
};

} // namespace Tavrin
