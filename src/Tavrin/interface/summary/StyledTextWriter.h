// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFont>
#include <QPalette>
#include <QTextCharFormat>
#include <QTextCursor>

#include <Tavrin/platform/StyledText.h>

namespace Tavrin
{

/// Writes styled text into a text document, so that it can be read on the screen.
///
/// Text of the small system size takes the size of the surroundings, and other sizes follow in
/// proportion; of families only a typewriter's is kept. Colours that can't be told from the
/// background are those of the surroundings.
class StyledTextWriter
{
public:
    StyledTextWriter(const QFont &font, const QPalette &palette);

    /// Links become anchors whose target is the link, to the letter.
    void insert(QTextCursor &cursor, const StyledText &text) const;

private:
    QTextCharFormat format(const TextAttributes &attributes) const;
    void applyFont(QTextCharFormat &format, const TextFont &font) const;
    /// Black is what print has where it means no colour.
    bool isColor(QRgb color) const;

    QFont m_font;
    QPalette m_palette;
};

} // namespace Tavrin
