// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>

#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/platform/mupdf/MuPDFSession.h>

namespace Tavrin
{

struct DrawnBoxes;

/// Reads what a page prints as glyphs in upright space, through the engine's structured text.
class MuPDFGlyphReader
{
public:
    /// The session is locked by the caller.
    MuPDFGlyphReader(const MuPDFSession &session, const PageGeometry &geometry);

    /// Nothing if the page can't be read. A content stream that breaks off gives what came before.
    std::optional<PageGlyphs> read(int page);

private:
    /// A style as the engine tells it, to recognise it by.
    struct Seen {
        const fz_font *font = nullptr;
        float size = 0;
        int color = 0;
        friend bool operator==(const Seen &, const Seen &) = default;
        friend size_t qHash(const Seen &seen, size_t seed)
        {
            return qHashMulti(seed, seen.font, seen.size, seen.color);
        }
    };

    void add(const fz_stext_page &text);
    void add(const DrawnBoxes &drawn, fz_rect page);
    void add(const fz_stext_char &character, fz_point direction);
    quint32 style(const fz_stext_char &character);

    const MuPDFSession &m_session;
    PageGeometry m_geometry;
    float m_width;
    float m_height;
    PageGlyphs m_glyphs;
    QHash<Seen, quint32> m_styles;
    Seen m_lastSeen;
    quint32 m_lastStyle = 0;
};

/// From page space to the engine's: upright, in points, origin at the upper left, y down.
fz_matrix deviceMatrix(const PageGeometry &geometry);

/// What to run a page with so that it ends up under `matrix`: the engine puts its own idea of the
/// page's frame in front. An engine call, only for use inside a call group.
fz_matrix runMatrix(fz_context *context, pdf_page *page, fz_matrix matrix);

} // namespace Tavrin
