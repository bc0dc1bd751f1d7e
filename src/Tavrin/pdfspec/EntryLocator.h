// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>

#include <Tavrin/pdfspec/PrintReader.h>

namespace Tavrin
{

/// Finds where entries stand on the pages, and which entry stands at a place. What each operation
/// promises is told where PDFSpecification offers it.
class EntryLocator
{
public:
    using Entry = PDFSpecification::Entry;
    using LineRange = StyledTextEditing::LineRange;

    explicit EntryLocator(const PrintReader &print);

    std::optional<EntryPageInfo> rects(const Entry &entry) const;

    std::optional<LineRange> lineRange(const HostPDFSelection &selection, const Entry &entry) const;
    std::optional<LineLocations> lineLocations(LineRange range, const Entry &entry) const;
    std::optional<HostPDFSelection> selection(const Entry &entry,
                                              std::optional<LineRange> range = {}) const;

    std::shared_ptr<Entry> closest(const HostPDFDestination &place) const;
    /// The entry at the beginning of a selection, else the one at its last page.
    std::shared_ptr<Entry> closest(const HostPDFSelection &selection) const;

private:
    std::optional<EntryPageInfo> graphicalRects(const Entry &entry) const;
    std::optional<EntryPageInfo> textualRects(const Entry &entry) const;
    /// Of a section whose text isn't extracted: from its heading to the next.
    std::optional<EntryPageInfo> searchedRects(const Entry &entry) const;
    bool holds(const Entry &entry, const HostPDFDestination &place) const;

    const PrintReader &m_print;
};

} // namespace Tavrin
