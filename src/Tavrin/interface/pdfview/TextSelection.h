// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <tuple>
#include <vector>

#include <Tavrin/pdf/HostPDFPage.h>
#include <Tavrin/pdf/PageText.h>

namespace Tavrin
{

/// A place between two characters of a document's text.
struct TextPosition {
    int page = 0;
    /// UTF-16 units of the page's text before it.
    qsizetype offset = 0;

    friend bool operator==(const TextPosition &, const TextPosition &) = default;
    friend bool operator<(const TextPosition &a, const TextPosition &b)
    {
        return std::tie(a.page, a.offset) < std::tie(b.page, b.offset);
    }
};

/// What a selection grows by.
enum class TextUnit { Character, Word, Line };

/// Where a step of the keyboard leads.
enum class TextStep { Previous, Next, Up, Down, LineStart, LineEnd, DocumentStart, DocumentEnd };

/// A selection in the making: one end that stays and one that moves. A value.
///
/// It asks for the text of pages between the two ends, and gives nothing where one is missing.
class TextSelection
{
public:
    /// The text of a page, null where it isn't known.
    using TextOf = std::function<std::shared_ptr<const PageText>(int page)>;

    explicit TextSelection(TextPosition anchor = {}, TextUnit unit = TextUnit::Character)
        : m_anchor(anchor), m_focus(anchor), m_unit(unit)
    {
    }

    TextPosition anchor() const { return m_anchor; }
    TextPosition focus() const { return m_focus; }
    void moveTo(TextPosition focus) { m_focus = focus; }
    /// One step with the moving end, by characters or words; at the edge of a page on to the next.
    void step(TextStep step, TextUnit unit, int pageCount, const TextOf &textOf);

    /// What is selected on a page: whole words or lines where the unit is that. Empty where
    /// nothing is or the text isn't known.
    TextRange rangeOn(int page, const TextOf &textOf) const;
    int firstPage() const { return std::min(m_anchor.page, m_focus.page); }
    int lastPage() const { return std::max(m_anchor.page, m_focus.page); }

    /// The position nearest to a point of page space, within the nearest line: on the nearer side
    /// of the nearest character, or before it where one selects by words or lines. Linear in the
    /// number of lines.
    static qsizetype nearestOffset(const PageText &text, const PageGeometry &geometry, Point point,
                                   TextUnit unit = TextUnit::Character);
    /// The character, word or line that begins at or around an offset.
    static TextRange unitAt(const PageText &text, qsizetype offset, TextUnit unit);
    /// One box a line around the characters of a range, in page space.
    static std::vector<Rect> boxes(const PageText &text, TextRange range);

private:
    TextPosition m_anchor;
    TextPosition m_focus;
    TextUnit m_unit;
};

} // namespace Tavrin
