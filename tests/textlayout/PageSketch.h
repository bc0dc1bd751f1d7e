// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <Tavrin/pdf/PageText.h>

namespace Tavrin
{

/// Prints glyphs onto a page the way an engine would report them: most letters half their size
/// wide, a few narrower or wider; cells from 0.2 sizes below the baseline to 0.8 above it.
class PageSketch
{
public:
    struct Look {
        double size = 10;
        /// Unit vector of the baseline.
        Point direction{1, 0};
        /// Added behind each letter, in sizes.
        double tracking = 0;
        /// How wide a blank is, in sizes, and whether the file has a glyph for it.
        double blankWidth = 0.3;
        bool blankGlyphs = false;
        /// Every letter is half its size wide.
        bool fixedWidth = false;
        quint32 style = 0;
    };

    PageSketch();

    /// Prints from a place on the baseline; the place behind the last letter.
    Point print(const QString &text, Point place, const Look &look);
    Point print(const QString &text, Point place) { return print(text, place, Look{}); }

    /// The last `count` glyphs become parts of one ligature that is one letter wide.
    void ligate(size_t count, bool followersHaveNoWidth);

    PageText text() const { return PageText(glyphs, geometry); }
    QStringList lines() const { return text().string().split(u'\n'); }

    PageGlyphs glyphs;
    PageGeometry geometry;
};

} // namespace Tavrin
