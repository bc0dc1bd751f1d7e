// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <Tavrin/pdfspec/PrintReader.h>

namespace Tavrin
{

/// Takes the texts of entries out of the pages: a section's with the place of each line, or what is
/// printed in a figure or table.
class TextExtractor
{
public:
    explicit TextExtractor(const PrintReader &print);

    /// Nothing without a place. Throws EntryExtractionError.
    std::optional<StyledText> text(const PDFSpecification::Entry &entry,
                                   LineLocations &lineRects) const;
    /// Page by page; nothing for sections and chapters.
    std::optional<StyledText> graphicalText(const PDFSpecification::Entry &entry) const;

private:
    const PrintReader &m_print;
};

} // namespace Tavrin
