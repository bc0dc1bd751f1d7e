// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <vector>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/pdfspec/PageLines.h>

namespace Tavrin
{

/// Finds the caption of a figure or table among the lines of a page.
///
/// Only the specification's own predicate accepts a line. Of those that it accepts, one that
/// begins with the kind and the number ("Figure 3-7") is preferred to one that merely holds the
/// title: labels inside figures, and sentences that speak of them, do so too.
class CaptionFinder
{
public:
    struct Caption {
        /// Indexes of its lines.
        std::vector<std::size_t> lines;
        /// In upright space.
        Rect bounds;
        /// Whether it begins as captions do.
        bool isCertain = false;
    };

    CaptionFinder(const PDFSpecification &specification, const HostPDFPage &page,
                  const PageLines &lines);

    /// The caption at or below a height in upright space.
    std::optional<Caption> find(const PDFSpecification::Entry &entry, double top) const;

private:
    /// The lines from the first to that in which the title ends; none if it isn't there.
    std::vector<std::size_t> titleLines(const PDFSpecification::Entry &entry,
                                        std::size_t first) const;
    /// The caption that begins with these lines.
    Caption caption(std::vector<std::size_t> lines) const;
    /// The line under this one in its column, if no further off than that.
    std::optional<std::size_t> following(std::size_t index, double distance) const;

    const PDFSpecification &m_specification;
    const HostPDFPage &m_page;
    const PageLines &m_lines;
};

/// Whether a line begins with a word for a figure or a table.
bool mayBeCaption(const QString &line);

/// Whether a line begins as the caption of a figure or table does: with its kind, and with the
/// number if the entry has one.
bool beginsLikeCaption(const QString &line, const SpecificationEntry &entry);

} // namespace Tavrin
