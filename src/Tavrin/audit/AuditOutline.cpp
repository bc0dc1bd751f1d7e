// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditOutline.h>

#include <algorithm>
#include <compare>

namespace Tavrin
{

const HostPDFDestination *placeOf(const SpecificationEntry &entry)
{
    const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
    const bool hasPlace = pdfEntry && pdfEntry->destination() && pdfEntry->destination()->page();
    return hasPlace ? &*pdfEntry->destination() : nullptr;
}

bool isBeforeInDocument(const SpecificationEntry &a, const SpecificationEntry &b)
{
    const HostPDFDestination *placeA = placeOf(a);
    const HostPDFDestination *placeB = placeOf(b);
    if (!placeA != !placeB)
        return placeA;
    if (placeA) {
        const auto order = placeA->compare(*placeB);
        if (std::is_neq(order))
            return std::is_lt(order);
    }
    if (entryPrecedes(a, b) || entryPrecedes(b, a))
        return entryPrecedes(a, b);
    return a.label() < b.label();
}

AuditOutline::AuditOutline(const Specification &specification)
{
    for (const EntryPtr &entry : specification.entries())
        m_entries.push_back(entry);
    std::stable_sort(m_entries.begin(), m_entries.end(), [](const EntryPtr &a, const EntryPtr &b) {
        return isBeforeInDocument(*a, *b);
    });
    m_parents.resize(m_entries.size());
    // Sections first: a figure may stand in front of the heading of its chapter.
    for (Position position = 0; position < m_entries.size(); ++position) {
        const SpecificationEntry &entry = *m_entries[position];
        m_positions.insert(&entry, position);
        if (!isTextual(entry.type()))
            continue;
        m_parents[position] = longestPrefix(entry.index());
        if (!entry.index().empty())
            m_numbered.insert_or_assign(entry.index(), position);
    }
    std::optional<Position> section;
    for (Position position = 0; position < m_entries.size(); ++position) {
        if (isTextual(m_entries[position]->type()))
            section = position;
        else
            m_parents[position] = around(*m_entries[position], section);
    }
}

std::optional<AuditOutline::Position> AuditOutline::position(const SpecificationEntry &entry) const
{
    const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
    const auto whole = pdfEntry ? pdfEntry->parentEntry() : nullptr;
    const auto it = m_positions.constFind(whole ? whole.get() : &entry);
    return it == m_positions.constEnd() ? std::nullopt : std::optional(*it);
}

std::optional<AuditOutline::Position> AuditOutline::longestPrefix(const Index &index) const
{
    for (auto length = std::ssize(index) - 1; length > 0; --length) {
        const auto it = m_numbered.find(Index(index.begin(), index.begin() + length));
        if (it != m_numbered.end())
            return it->second;
    }
    return std::nullopt;
}

std::optional<AuditOutline::Position> AuditOutline::around(const SpecificationEntry &entry,
                                                           std::optional<Position> section) const
{
    const auto numbered = longestPrefix(entry.index());
    if (!placeOf(entry) || !section)
        return numbered;
    return numbered && root(*numbered) != root(*section) ? numbered : section;
}

AuditOutline::Position AuditOutline::root(Position position) const
{
    while (m_parents[position])
        position = *m_parents[position];
    return position;
}

} // namespace Tavrin
