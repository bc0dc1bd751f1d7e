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
class TAVRIN_CORE_EXPORT HostPDFSelection
{
public:
    /// An empty selection.
    HostPDFSelection() = default;
    HostPDFSelection(const std::shared_ptr<HostPDFPage> &page, std::vector<TextRange> ranges);

    bool isEmpty() const { return m_parts.empty(); }

    /// The pages with selected text, in document order.
    std::vector<std::shared_ptr<HostPDFPage>> pages() const;
    /// What encloses the selected characters of a page, in page space; null if there are none.
    Rect bounds(const HostPDFPage &page) const;
    qsizetype numberOfTextRanges(const HostPDFPage &page) const;
    /// Not-found outside the count.
    TextRange range(qsizetype index, const HostPDFPage &page) const;

    /// The selected text; ranges of one page that are not on one line, and pages, are parted by
    /// line feeds.
    QString string() const;
    StyledText attributedString() const;

    /// Unites this selection with another of the same document.
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
