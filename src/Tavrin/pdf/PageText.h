// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/platform/PageTextLine.h>

namespace Tavrin
{

struct LaidOutText;

/// The text of one page with the place of each character. Immutable, so any thread may read it.
///
/// Made of nothing but glyph boxes, so that it can be had without a file.
class TAVRIN_CORE_EXPORT PageText
{
public:
    /// Groups glyphs into visual lines and flattens those into text. Linear in the number of
    /// glyphs but for sorting.
    PageText(const PageGlyphs &glyphs, const PageGeometry &geometry);
    ~PageText();
    PageText(const PageText &) = delete;
    PageText &operator=(const PageText &) = delete;

    const QString &string() const;
    const StyledText &styledText() const;
    const std::vector<PageTextLine> &lines() const;
    /// Where something other than text is printed, in upright space.
    const std::vector<Rect> &drawings() const;

    /// The cell of a character, in page space; null for a line feed and beyond the text. O(1).
    Rect characterBounds(qsizetype index) const;
    /// The character whose cell holds a point of page space, a printed one before a blank; nothing
    /// if none does. Looks at what is near the point alone, as the next three do.
    std::optional<qsizetype> characterIndex(Point point) const;
    /// The visual line at a point of page space, without its line feed; also between its
    /// characters. Nothing where there is no line.
    std::optional<TextRange> lineAt(Point point) const;
    /// The word around a point of page space; nothing between words.
    std::optional<TextRange> wordAt(Point point) const;
    /// The characters whose cells have their centre in a rectangle of page space, as stretches in
    /// the order of the text.
    std::vector<TextRange> rangesIn(const Rect &rect) const;

private:
    std::unique_ptr<const LaidOutText> m_text;
};

} // namespace Tavrin
