// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/pdfspec/ReadingCache.h>

namespace Tavrin
{

/// What the print of a specification's document says of its structure: measures, lines, headings,
/// regions and bodies, each read once.
///
/// What counts as a heading, a caption or off the margin is the specification's to say; its
/// predicates are asked for each. The classes that look for one thing each work on this one. Any
/// thread, under the specification's reading lock.
class PrintReader
{
public:
    explicit PrintReader(const PDFSpecification &specification);

    const PDFSpecification &specification() const { return m_specification; }
    /// Null while nothing is bound.
    const std::shared_ptr<CachingPDFDocument> &document() const;

    double normalTextSize() const;
    double leftMargin() const;
    /// Only while a document is bound, like all that follows.
    std::shared_ptr<const BodyShape> bodyShape() const;

    std::shared_ptr<const PageLines> pageLines(const HostPDFPage &page) const;
    /// For each of them, whether it can be a heading.
    std::shared_ptr<const std::vector<bool>> headingLines(const HostPDFPage &page) const;
    /// The printed heading of a section or chapter; nothing if it isn't found.
    std::optional<SectionHeading> sectionHeading(const PDFSpecification::Entry &entry) const;
    /// The figures and tables whose place is on the page. What is returned stays until
    /// forgetPages().
    const PDFSpecification::LayoutBreaks &layoutBreaks(int page) const;
    /// Null without such a page.
    std::shared_ptr<const FilteredPage> filteredPage(int page) const;

    /// Forgets what depends on the entries' places and the printed area; the measures of the print
    /// stay.
    void forgetPages() { m_cache.forgetPages(); }

private:
    const PDFSpecification &m_specification;
    mutable ReadingCache m_cache;
};

} // namespace Tavrin
