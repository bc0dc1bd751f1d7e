// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <Tavrin/pdfspec/LinkRecord.h>
#include <Tavrin/pdfspec/PrintReader.h>

namespace Tavrin
{

/// Makes the body of a page out of all that is printed on it.
///
/// Left out are lines outside the printed area, and lines in the regions of figures and tables.
/// The words under each link to a named destination carry a spec URL.
class PageFilter
{
public:
    explicit PageFilter(const PrintReader &print);

    std::shared_ptr<FilteredPage> filter(const HostPDFPage &page) const;

private:
    StyledText linkedText(const HostPDFPage &page) const;
    void link(const HostPDFPage &page, const LinkRecord &record, StyledText &text) const;
    QString url(const LinkRecord &record) const;
    std::vector<Rect> regions(int page) const;

    const PrintReader &m_print;
    const PDFSpecification &m_specification;
};

} // namespace Tavrin
