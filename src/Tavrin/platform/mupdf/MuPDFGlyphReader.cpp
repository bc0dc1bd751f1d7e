// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFGlyphReader.h>

#include <Tavrin/platform/mupdf/MuPDFFontStyle.h>
#include <Tavrin/platform/mupdf/MuPDFPageTree.h>
#include <Tavrin/platform/mupdf/MuPDFTextDevice.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace Tavrin
{

namespace
{

/// Sizes come out of matrix products; what differs behind the second decimal is one size.
double roundedSize(float size)
{
    return std::round(static_cast<double>(size) * 100) / 100;
}

char32_t printable(int character)
{
    if (character < 0 || character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF))
        return 0xFFFD;
    return character < 0x20 || character == 0x7F ? U' ' : static_cast<char32_t>(character);
}

/// The characters of the page; null, and nothing to drop, if it can't be loaded.
fz_stext_page *structuredText(const MuPDFSession &session, int index, fz_rect box, fz_matrix matrix,
                              DrawnBoxes *drawn)
{
    fz_stext_page *text = nullptr;
    session.run([=, &text](fz_context *context, pdf_document *document) {
        pdf_page *page = MuPDFPageTree::loadPage(context, document, index);
        fz_device *device = nullptr;
        fz_cookie cookie{};
        fz_var(device);
        fz_try(context)
        {
            text = fz_new_stext_page(context, box);
            device = newBoundedTextDevice(context, text, drawn, &cookie);
            pdf_run_page_contents(context, page, device, runMatrix(context, page, matrix), &cookie);
            fz_close_device(context, device);
        }
        fz_always(context)
        {
            fz_drop_device(context, device);
            fz_drop_page(context, &page->super);
        }
        fz_catch(context) {}
    });
    return text;
}

} // namespace

fz_matrix deviceMatrix(const PageGeometry &geometry)
{
    const auto x0 = static_cast<float>(geometry.cropBox.minX());
    const auto y0 = static_cast<float>(geometry.cropBox.minY());
    const auto x1 = static_cast<float>(geometry.cropBox.maxX());
    const auto y1 = static_cast<float>(geometry.cropBox.maxY());
    switch (geometry.rotation) {
    case 90:
        return fz_make_matrix(0, 1, 1, 0, -y0, -x0);
    case 180:
        return fz_make_matrix(-1, 0, 0, 1, x1, -y0);
    case 270:
        return fz_make_matrix(0, -1, -1, 0, y1, x1);
    default:
        return fz_make_matrix(1, 0, 0, -1, -x0, y1);
    }
}

fz_matrix runMatrix(fz_context *context, pdf_page *page, fz_matrix matrix)
{
    fz_rect box;
    fz_matrix own;
    pdf_page_transform(context, page, &box, &own);
    return fz_concat(fz_invert_matrix(own), matrix);
}

MuPDFGlyphReader::MuPDFGlyphReader(const MuPDFSession &session, const PageGeometry &geometry)
    : m_session(session),
      m_geometry(geometry),
      m_width(static_cast<float>(geometry.uprightSize().width)),
      m_height(static_cast<float>(geometry.uprightSize().height))
{
}

std::optional<PageGlyphs> MuPDFGlyphReader::read(int page)
{
    const fz_rect box = fz_make_rect(0, 0, m_width, m_height);
    const auto drawn = std::make_unique<DrawnBoxes>();
    fz_stext_page *text =
        structuredText(m_session, page, box, deviceMatrix(m_geometry), drawn.get());
    if (!text)
        return std::nullopt;
    add(*text);
    add(*drawn, box);
    fz_drop_stext_page(m_session.context(), text);
    return std::move(m_glyphs);
}

void MuPDFGlyphReader::add(const fz_stext_page &text)
{
    for (const fz_stext_block *block = text.first_block; block; block = block->next) {
        if (block->type != FZ_STEXT_BLOCK_TEXT)
            continue;
        for (const fz_stext_line *line = block->u.t.first_line; line; line = line->next) {
            for (const fz_stext_char *c = line->first_char; c; c = c->next)
                add(*c, line->dir);
        }
    }
}

void MuPDFGlyphReader::add(const DrawnBoxes &drawn, fz_rect page)
{
    for (int i = 0; i < drawn.count; ++i) {
        const fz_rect box = fz_intersect_rect(drawn.boxes[i], page);
        if (fz_is_valid_rect(box) && std::isfinite(box.x0 + box.x1 + box.y0 + box.y1)) {
            m_glyphs.drawings.push_back(
                Rect::fromCorners({box.x0, m_height - box.y1}, {box.x1, m_height - box.y0}));
        }
    }
}

void MuPDFGlyphReader::add(const fz_stext_char &character, fz_point direction)
{
    const fz_rect box = fz_rect_from_quad(character.quad);
    const bool isOutside = box.x1 < 0 || box.x0 > m_width || box.y1 < 0 || box.y0 > m_height;
    const bool isFinite = std::isfinite(box.x0 + box.x1 + box.y0 + box.y1) &&
                          std::isfinite(character.origin.x + character.origin.y);
    if (isOutside || !isFinite)
        return;
    PageGlyph glyph;
    glyph.character = printable(character.c);
    glyph.left = box.x0;
    glyph.bottom = m_height - box.y1;
    glyph.right = box.x1;
    glyph.top = m_height - box.y0;
    glyph.originX = character.origin.x;
    glyph.originY = m_height - character.origin.y;
    glyph.directionX = direction.x;
    glyph.directionY = -direction.y;
    glyph.size = character.size;
    glyph.style = style(character);
    m_glyphs.glyphs.push_back(glyph);
}

quint32 MuPDFGlyphReader::style(const fz_stext_char &character)
{
    const Seen seen{character.font, character.size, character.color};
    if (seen == m_lastSeen)
        return m_lastStyle;
    m_lastSeen = seen;
    const auto known = m_styles.constFind(seen);
    if (known != m_styles.constEnd())
        return m_lastStyle = *known;
    m_lastStyle = static_cast<quint32>(m_glyphs.styles.size());
    m_styles.insert(seen, m_lastStyle);
    GlyphStyle style{fontStyle(m_session.context(), character.font),
                     0xff000000U | static_cast<QRgb>(character.color)};
    style.font.pointSize = roundedSize(character.size);
    m_glyphs.styles.push_back(std::move(style));
    return m_lastStyle;
}

} // namespace Tavrin
