// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/pdfspec/PrintReader.h>

namespace Tavrin
{

/// Cuts the text of a section or chapter out of the pages: from its heading to the next.
class SectionTextCutter
{
public:
    explicit SectionTextCutter(const PrintReader &print);

    /// Throws EntryExtractionError if the entry's own heading isn't found.
    HeadingPageInfo findHeadings(const PDFSpecification::Entry &entry, int startPage) const;

    /// Appends to `mappings` where each stretch of the text came from. Throws
    /// EntryExtractionError.
    StyledText cut(const PDFSpecification::Entry &entry, int startPage,
                   std::vector<PDFSpecification::SourceRange> &mappings) const;

private:
    PageTextSequence sequence(const HeadingPageInfo &headings) const;
    TextRange headingRange(const PDFSpecification::Entry &entry, const FilteredPage &page,
                           int pageIndex, const QString &heading, TextRange inPage,
                           qsizetype from) const;
    qsizetype start(const PDFSpecification::Entry &entry, const FilteredPage &page,
                    const HeadingPageInfo &headings) const;
    qsizetype end(const PDFSpecification::Entry &entry, const FilteredPage &page,
                  const HeadingPageInfo &headings, qsizetype from) const;

    const PrintReader &m_print;
    const PDFSpecification &m_specification;
};

} // namespace Tavrin
