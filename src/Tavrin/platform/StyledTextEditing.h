// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/StyledText.h>

/// What the layout code does to cut-out page text before a reader sees it.
namespace Tavrin::StyledTextEditing
{

/// A range of whole lines, from `lower` up to but not including `upper`.
struct LineRange {
    int lower = 0;
    int upper = 0;
    friend bool operator==(const LineRange &, const LineRange &) = default;
};

/// The font that most characters of the range (the whole text by default) are set in; the one
/// met first among equals. Nothing if no character has a font.
TAVRIN_CORE_EXPORT std::optional<TextFont> primaryFont(const StyledText &text,
                                                       std::optional<TextRange> range = {});

/// Sets the range in `font` where it is set in its primary font now. Each run keeps its size in
/// relation to the primary font, its traits, and its family if that is another one. A text
/// without fonts stays as it is.
TAVRIN_CORE_EXPORT void setPrimaryFont(StyledText &text, const TextFont &font,
                                       std::optional<TextRange> range = {});

/// Deletes the characters of a set from both ends.
TAVRIN_CORE_EXPORT void trimCharacters(StyledText &text, bool (*isInSet)(QChar));

/// Deletes every line outside the range; lines end at line feeds. Throws LineTrimmingError, and
/// leaves the text as it is, if the text has no such lines.
TAVRIN_CORE_EXPORT void trimToLines(StyledText &text, LineRange range);

} // namespace Tavrin::StyledTextEditing
