// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <deque>

#include <Tavrin/enhance/PDFXMLEnhancer.h>

namespace Tavrin
{

/// Finds figures and tables by their captions, chapter by chapter: in the regions of consecutive
/// lines off the left margin, and a little above and below.
class CaptionPairing
{
public:
    /// Adds to the mapping, which must have the chapters already.
    CaptionPairing(const PDFXMLEnhancer &specification, const HostPDFDocument &document,
                   PDFXMLEnhancer::LabelLinkMapping &mapping);

    /// What is not found in its chapter is counted on standard error.
    void pair();

    /// A page's text with its blanks collapsed, and where each character of that stands.
    struct FlatPage;

private:
    using Entries = std::deque<Specification::EntryPtr>;

    std::optional<int> pageOf(const Specification::EntryPtr &chapter) const;
    Entries outstanding(SpecificationEntryType type, const SpecificationEntry &chapter) const;
    void pairWithoutChapters();
    void scanPages(int first, int last, std::vector<Entries> &outstanding);
    std::vector<Rect> regions(const HostPDFPage &page, const FlatPage &flat) const;
    void pairRegion(const HostPDFPage &page, const FlatPage &flat, const Rect &region,
                    Entries &outstanding);
    std::optional<Rect> caption(const FlatPage &flat, const Rect &region,
                                const SpecificationEntry &entry) const;
    void report(const std::vector<Entries> &outstanding, const SpecificationEntry &chapter) const;

    const PDFXMLEnhancer &m_specification;
    const HostPDFDocument &m_document;
    PDFXMLEnhancer::LabelLinkMapping &m_mapping;
    std::vector<Specification::EntryPtr> m_chapters;
    std::vector<Specification::EntryPtr> m_graphical;
};

} // namespace Tavrin
