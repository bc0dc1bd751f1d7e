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

    /// See the operations of the same name of HostPDFPage. The first costs O(1), the others look
    /// at the lines near the point alone.
    Rect characterBounds(qsizetype index) const;
    std::optional<qsizetype> characterIndex(Point point) const;
    std::optional<TextRange> lineAt(Point point) const;
    std::optional<TextRange> wordAt(Point point) const;
    std::vector<TextRange> rangesIn(const Rect &rect) const;

private:
    std::unique_ptr<const LaidOutText> m_text;
};

} // namespace Tavrin
