// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <Tavrin/pdfspec/PrintReader.h>

namespace Tavrin
{

/// Finds the printed heading of a section or chapter near its place.
///
/// A heading is a line, or several that follow closely, which holds the title and which the
/// specification takes for a heading. It stands below the place, as a rule; some producers put the
/// place at the heading's baseline, and some leave it behind on the page before. Of several the one
/// with the entry's number counts, then the nearest.
class SectionHeadingFinder
{
public:
    explicit SectionHeadingFinder(const PrintReader &print);

    std::optional<SectionHeading> find(const PDFSpecification::Entry &entry) const;

    /// Where, in its page's text, the first line below a place begins; the end of the text if
    /// there is none.
    qsizetype firstPositionBelow(const HostPDFDestination &place) const;

private:
    struct Hit;

    std::optional<Hit> bestHit(const PDFSpecification::Entry &entry, const HostPDFPage &page,
                               const PageLines &lines, double top) const;
    /// The hit that begins with a line which can be a heading.
    std::optional<Hit> hitAt(const PDFSpecification::Entry &entry, const PageLines &lines,
                             std::size_t first) const;
    SectionHeading heading(const HostPDFPage &page, const PageLines &lines, const Hit &hit) const;

    const PrintReader &m_print;
    const PDFSpecification &m_specification;
};

} // namespace Tavrin
