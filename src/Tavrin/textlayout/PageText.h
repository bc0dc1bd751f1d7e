// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/textlayout/BoxTree.h>

namespace Tavrin
{

/// A visual line: one run of text on one baseline, not broken by a column gap.
struct PageTextLine {
    /// In PageText::string(); without the line feed behind it.
    TextRange range;
    /// In page space.
    Rect bounds;
};

/// The text of one page with the place of each character. Immutable, so any thread may read it.
///
/// Made of nothing but glyph boxes, so that it can be tested without a file.
class TAVRIN_CORE_EXPORT PageText
{
public:
    /// Groups glyphs into visual lines and flattens those into text. Linear in the number of
    /// glyphs but for sorting.
    static PageText build(const PageGlyphs &glyphs, const PageGeometry &geometry);

    const QString &string() const { return m_string; }
    const StyledText &styledText() const { return m_styledText; }
    const std::vector<PageTextLine> &lines() const { return m_lines; }
    /// Where something other than text is printed, in upright space.
    const std::vector<Rect> &drawings() const { return m_drawings; }

    /// See the operations of the same name of HostPDFPage. The first costs O(1), the others look
    /// at the lines near the point alone.
    Rect characterBounds(qsizetype index) const;
    std::optional<qsizetype> characterIndex(Point point) const;
    std::optional<TextRange> lineAt(Point point) const;
    std::optional<TextRange> wordAt(Point point) const;
    std::vector<TextRange> rangesIn(const Rect &rect) const;

private:
    friend class PageTextBuilder;

    static constexpr size_t unitsPerBox = 32;

    /// In upright space.
    CellBox area(const Rect &page) const;
    /// The last line that begins at or before an index.
    size_t lineOf(qsizetype index) const;
    /// Calls back for units whose box touches the area, looking at no more than so many stretches.
    template <class Callback>
    void forEachUnit(const CellBox &area, int stretches, Callback callback) const;

    QString m_string;
    StyledText m_styledText;
    std::vector<PageTextLine> m_lines;
    std::vector<Rect> m_drawings;
    PageGeometry m_geometry;
    /// In upright space, one for each unit of the text; empty for a line feed.
    std::vector<CellBox> m_boxes;
    /// Around each stretch of `unitsPerBox` units, and around each line.
    BoxTree m_unitTree;
    BoxTree m_lineTree;
};

} // namespace Tavrin
