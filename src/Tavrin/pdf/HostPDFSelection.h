// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/Geometry.h>
#include <Tavrin/platform/StyledText.h>
#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

class HostPDFPage;

/// Some of a document's text: on each of its pages one range or several, in ascending order,
/// neither touching nor overlapping. A value that holds its pages.
///
/// HostPDFPage::selection makes one. PDFSpecification::entry tells which entry it lies in, and
/// PDFSpecification::lineRange which of its lines.
class TAVRIN_CORE_EXPORT HostPDFSelection
{
public:
    /// An empty selection.
    HostPDFSelection() = default;
    /// Of one page. The ranges may come in any order and overlap; empty ones are dropped. They are
    /// not cut to the text: HostPDFPage::selection does that.
    HostPDFSelection(const std::shared_ptr<HostPDFPage> &page, std::vector<TextRange> ranges);

    bool isEmpty() const { return m_parts.empty(); }

    /// The pages with selected text, in document order.
    std::vector<std::shared_ptr<HostPDFPage>> pages() const;
    /// What encloses the selected characters of a page, in page space; null if there are none.
    ///
    /// Of text over several lines that is one box around all of them.
    Rect bounds(const HostPDFPage &page) const;
    /// How many stretches of the page's text are selected; 0 for a page without any.
    qsizetype numberOfTextRanges(const HostPDFPage &page) const;
    /// Not-found outside the count.
    ///
    /// In UTF-16 units of HostPDFPage::string; the index counts from 0.
    TextRange range(qsizetype index, const HostPDFPage &page) const;

    /// The selected text; ranges of one page that are not on one line, and pages, are parted by
    /// line feeds.
    ///
    /// Ranges on one line are parted by a blank.
    QString string() const;
    /// The same with fonts and colours. The separators carry no attributes.
    StyledText attributedString() const;

    /// Unites this selection with another of the same document.
    ///
    /// What both have is selected once.
    void addSelection(const HostPDFSelection &other);

    friend bool operator==(const HostPDFSelection &, const HostPDFSelection &) = default;

private:
    struct Part {
        std::shared_ptr<HostPDFPage> page;
        std::vector<TextRange> ranges;
        friend bool operator==(const Part &, const Part &) = default;
    };
    const Part *part(const HostPDFPage &page) const;

    std::vector<Part> m_parts;
};

} // namespace Tavrin
