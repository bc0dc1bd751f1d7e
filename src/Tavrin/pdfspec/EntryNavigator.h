// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

/// Walks the entries of a bound specification in the order of their places. Cheap to make: looks
/// at a page's list when it is asked.
class EntryNavigator
{
public:
    using EntryPtr = std::shared_ptr<PDFSpecification::Entry>;

    explicit EntryNavigator(const PDFSpecification &specification);

    /// Whether the entry is one of those that the specification has sorted by place.
    bool isListed(const PDFSpecification::Entry &entry) const;

    /// The entry behind or before this one. Says on standard error if that has no place.
    EntryPtr next(const PDFSpecification::Entry &entry) const;
    EntryPtr previous(const PDFSpecification::Entry &entry) const;
    /// The next section or chapter behind it, silently null at the end.
    EntryPtr nextTextual(const PDFSpecification::Entry &entry) const;

    /// The last entry that begins before the place.
    EntryPtr lastBefore(const HostPDFDestination &place) const;
    /// The first entry of the page whose y is within 1 of the place's.
    EntryPtr at(const HostPDFDestination &place) const;
    /// The entry that a link to the place means: one that begins there or shortly below, since
    /// producers leave some room above a heading; else the one that the place lies in.
    EntryPtr meantBy(const HostPDFDestination &place) const;

private:
    /// Where an entry stands: its page, and its position in that page's list. An entry that is in
    /// no list stands behind its page.
    struct Position {
        std::size_t page = 0;
        std::ptrdiff_t index = 0;
    };
    std::optional<std::size_t> pageOf(const HostPDFDestination &place) const;
    std::optional<Position> position(const PDFSpecification::Entry &entry) const;
    EntryPtr step(const PDFSpecification::Entry &entry, int direction) const;
    /// The entry one further on; moves the position.
    EntryPtr advance(Position &position, int direction) const;

    const PDFSpecification &m_specification;
};

} // namespace Tavrin
