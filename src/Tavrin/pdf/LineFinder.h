// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

class HostPDFPage;

/// Cuts a page's text into visual lines for the layout code. HostPDFPage::visualLines gives the
/// lines in reading order.
class TAVRIN_CORE_EXPORT LineFinder
{
public:
    /// The lines of a page that hold more than white space, as ranges of its text.
    ///
    /// From the top of the displayed page down by the lower edge of each line, and from left to
    /// right where two stand equally low; so two columns interleave by height. A page whose text
    /// can't be read says so on standard error and gives none, and so does, silently, a text of
    /// fewer than two characters. The very first character of a page is no probe: a line that
    /// holds nothing else is not found. Remembered by a CachingPDFDocument.
    static std::vector<TextRange> lines(const HostPDFPage &page);

private:
    friend class CachingPDFDocument;
    static std::vector<TextRange> find(const HostPDFPage &page);
};

} // namespace Tavrin
