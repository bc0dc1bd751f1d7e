// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <Tavrin/pdfspec/BodyShape.h>
#include <Tavrin/pdfspec/CaptionFinder.h>
#include <Tavrin/pdfspec/EntryPageInfo.h>
#include <Tavrin/pdfspec/PrintReader.h>
#include <Tavrin/pdfspec/RegionGrower.h>

namespace Tavrin
{

/// Finds the regions that figures and tables take on the pages.
///
/// A region is found by its caption, the line that holds the entry's title, and grown from there
/// over drawings and lines that are no body lines. The next caption or heading ends it, and so
/// does the body. It may run over the end of a page.
class LayoutBreakMeasurer
{
public:
    using EntryPtr = std::shared_ptr<PDFSpecification::Entry>;
    using Callback = std::function<void(const EntryPtr &entry, const EntryPageInfo &region)>;

    explicit LayoutBreakMeasurer(const PrintReader &print);

    /// Reports the regions of the figures and tables whose place is on the page, in the order of
    /// their places. One whose caption isn't found is left out.
    void measure(int page, const Callback &callback);

private:
    struct PageView;

    PageView *view(int page);
    std::optional<EntryPageInfo> search(const PDFSpecification::Entry &entry, int page);
    EntryPageInfo region(const PDFSpecification::Entry &entry, PageView &view,
                         const CaptionFinder::Caption &caption);
    void addNextPage(const PDFSpecification::Entry &entry, const PageView &view,
                     EntryPageInfo &info);
    /// The side on which those tables of the page stand that leave no doubt.
    CaptionSurroundings::Side usualSide(const PDFSpecification::Entry &entry, PageView &view) const;
    CaptionSurroundings around(const PDFSpecification::Entry &entry, const PageView &view,
                               const CaptionFinder::Caption &caption) const;
    CaptionSurroundings surroundings(const PDFSpecification::Entry &entry,
                                     const PageView &view) const;
    std::vector<CaptionSurroundings::Kind> kinds(const PageView &view);
    CaptionSurroundings::Kind bodyKind(const PageView &view, const PageLine &line);
    /// Whether the line begins as the caption of a figure or table of these pages.
    bool isCaption(const PageView &view, const PageLine &line) const;

    const PrintReader &m_print;
    const PDFSpecification &m_specification;
    /// Null until it is asked for.
    std::shared_ptr<const BodyShape> m_body;
    /// The page last looked at, and the one before: regions reach no further than the next page.
    std::shared_ptr<PageView> m_views[2];
};

} // namespace Tavrin
