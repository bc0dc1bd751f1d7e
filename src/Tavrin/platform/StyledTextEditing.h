// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/StyledText.h>

/// What the layout code does to cut-out page text before a reader sees it.
namespace Tavrin::StyledTextEditing
{

/// A range of whole lines, from `lower` up to but not including `upper`. Lines count from 0.
struct LineRange {
    int lower = 0;
    int upper = 0;
    friend bool operator==(const LineRange &, const LineRange &) = default;
};

/// The font that most characters of the range (the whole text by default) are set in; the one
/// met first among equals. Nothing if no character has a font.
///
/// Fonts that differ in size or traits count as different ones.
TAVRIN_CORE_EXPORT std::optional<TextFont> primaryFont(const StyledText &text,
                                                       std::optional<TextRange> range = {});

/// Sets the range in `font` where it is set in its primary font now. Each run keeps its size in
/// relation to the primary font, its traits, and its family if that is another one. A text
/// without fonts stays as it is.
///
/// So a heading of 12 points among text of 10 becomes one of 13.2 among 11. A primary font without
/// a size leaves the text as it is, too.
TAVRIN_CORE_EXPORT void setPrimaryFont(StyledText &text, const TextFont &font,
                                       std::optional<TextRange> range = {});

/// Deletes the characters of a set from both ends.
///
/// CharacterSet has such sets. A text of nothing else becomes empty.
TAVRIN_CORE_EXPORT void trimCharacters(StyledText &text, bool (*isInSet)(QChar));

/// Deletes every line outside the range; lines end at line feeds. Throws LineTrimmingError, and
/// leaves the text as it is, if the text has no such lines. A kept line keeps the line feed behind
/// it.
TAVRIN_CORE_EXPORT void trimToLines(StyledText &text, LineRange range);

} // namespace Tavrin::StyledTextEditing
