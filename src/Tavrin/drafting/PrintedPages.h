// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include <Tavrin/drafting/PrintedLine.h>
#include <Tavrin/pdf/CachingPDFDocument.h>

namespace Tavrin
{

/// The lines of a document's pages, each page read once when it is first asked for.
///
/// For one thread. Keeps what it has read: about 200 bytes a line.
class PrintedPages
{
public:
    static constexpr qsizetype longestLine = 400;

    explicit PrintedPages(std::shared_ptr<CachingPDFDocument> document);
    /// Lines given outright, for pages of one size: what the layout rules are tried on.
    PrintedPages(std::vector<std::vector<PrintedLine>> lines, Size size);

    int pageCount() const { return static_cast<int>(m_pages.size()); }

    /// In reading order. A number set apart from its title to the right is one line with it.
    /// Text that runs sideways is left out. Empty for a page without text or outside the document.
    const std::vector<PrintedLine> &lines(int page) const;

    /// Width and height of the upright page; zero for a page that can't be read.
    Size size(int page) const;

    /// Way between page space and upright space; the page must exist.
    PageGeometry geometry(int page) const;

    /// The size that most characters of the document are set in, from a sample of pages.
    double bodySize() const;

    /// At most so many page indexes, spread evenly, of both parities.
    std::vector<int> sample(int count) const;

private:
    struct Page {
        bool isRead = false;
        std::vector<PrintedLine> lines;
    };

    std::vector<PrintedLine> read(int page) const;

    std::shared_ptr<CachingPDFDocument> m_document;
    mutable std::vector<Page> m_pages;
    mutable double m_bodySize = 0;
    Size m_fixedSize;
};

} // namespace Tavrin
