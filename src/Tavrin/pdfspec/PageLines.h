// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <vector>

#include <Tavrin/pdf/HostPDFPage.h>

namespace Tavrin
{

/// One line of a page as the layout code looks at it.
struct PageLine {
    TextRange range;
    /// What encloses the line, in upright space.
    Rect bounds;
    /// The cell of its first character, in page space.
    Rect start;
    /// The font that most of it is set in.
    TextFont font;
};

/// The lines of a page from top to bottom, with text and places; white lines left out.
class PageLines
{
public:
    explicit PageLines(const HostPDFPage &page);

    const std::vector<PageLine> &lines() const { return m_lines; }
    bool isEmpty() const { return m_lines.empty(); }
    std::size_t size() const { return m_lines.size(); }
    const PageLine &operator[](std::size_t index) const { return m_lines[index]; }
    auto begin() const { return m_lines.begin(); }
    auto end() const { return m_lines.end(); }

    const StyledText &text() const { return m_text; }
    QString string(const PageLine &line) const;
    StyledText styled(const PageLine &line) const;

    /// The next line below this one in its own column: lines of other columns stand between in the
    /// order by height. Nothing if none is near in that order.
    std::optional<std::size_t> next(std::size_t index) const;

    /// From the left of the leftmost line to the right of the rightmost.
    double width() const;

private:
    StyledText m_text;
    std::vector<PageLine> m_lines;
};

} // namespace Tavrin
