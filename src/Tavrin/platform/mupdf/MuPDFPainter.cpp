// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFPainter.h>

#include <Tavrin/platform/mupdf/MuPDFGlyphReader.h>
#include <Tavrin/platform/mupdf/MuPDFPageTree.h>

#include <algorithm>
#include <cmath>

namespace Tavrin::MuPDFPainter
{

namespace
{

constexpr double mostPixels = 64e6;

/// How far a drawing has come.
enum class Outcome { Nothing, BrokenOff, Whole };

/// The engine draws straight into the image's memory: both hold blue, green, red and an unused
/// byte a pixel.
Outcome draw(const MuPDFSession &session, int index, fz_matrix matrix, const PageDrawing &drawing,
             QImage &image)
{
    const int width = image.width();
    const int height = image.height();
    unsigned char *bytes = image.bits();
    const auto stride = static_cast<int>(image.bytesPerLine());
    const bool withAnnotations = drawing.annotations;
    bool isLoaded = false;
    bool isWhole = false;
    fz_cookie progress{};
    const DrawingCancellation::Watch watch(drawing.cancellation, progress.abort);
    session.run([=, &isLoaded, &isWhole, &progress](fz_context *context, pdf_document *document) {
        pdf_page *page = nullptr;
        fz_pixmap *pixmap = nullptr;
        fz_device *device = nullptr;
        fz_var(page);
        fz_var(pixmap);
        fz_var(device);
        fz_try(context)
        {
            page = MuPDFPageTree::loadPage(context, document, index);
            isLoaded = true;
            // With an alpha channel a pixel has four bytes; the background is opaque already.
            pixmap = fz_new_pixmap_with_data(context, fz_device_bgr(context), width, height,
                                             nullptr, 1, stride, bytes);
            const fz_matrix all = runMatrix(context, page, matrix);
            device = fz_new_draw_device(context, fz_identity, pixmap);
            pdf_run_page_contents(context, page, device, all, &progress);
            if (withAnnotations) {
                pdf_run_page_annots(context, page, device, all, &progress);
                pdf_run_page_widgets(context, page, device, all, &progress);
            }
            fz_close_device(context, device);
            isWhole = progress.errors == 0;
        }
        fz_always(context)
        {
            fz_drop_device(context, device);
            fz_drop_pixmap(context, pixmap);
            if (page)
                fz_drop_page(context, &page->super);
        }
        fz_catch(context) {}
    });
    if (!isLoaded || (drawing.cancellation && drawing.cancellation->isCancelled()))
        return Outcome::Nothing;
    return isWhole ? Outcome::Whole : Outcome::BrokenOff;
}

bool isBlank(const QImage &image, QRgb background)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const auto differs = [background](QRgb pixel) {
            return (pixel | 0xff000000) != (background | 0xff000000);
        };
        if (std::any_of(line, line + image.width(), differs))
            return false;
    }
    return true;
}

} // namespace

QImage paint(const MuPDFSession &session, int page, const PageGeometry &geometry, const Rect &area,
             const PageDrawing &drawing)
{
    const Rect upright = geometry.toUpright(area);
    const double width = std::ceil(upright.size.width * drawing.scale - 1e-6);
    const double height = std::ceil(upright.size.height * drawing.scale - 1e-6);
    if (area.isNull() || !(width >= 1) || !(height >= 1) || width * height > mostPixels)
        return {};
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
    image.fill(drawing.background);
    // The page's upper left corner is the engine's origin; the area's is the image's.
    const double top = geometry.uprightSize().height - upright.maxY();
    const fz_matrix toArea =
        fz_translate(static_cast<float>(-upright.minX()), static_cast<float>(-top));
    const auto scale = static_cast<float>(drawing.scale);
    const fz_matrix matrix =
        fz_concat(fz_concat(deviceMatrix(geometry), toArea), fz_scale(scale, scale));
    const Outcome outcome = draw(session, page, matrix, drawing, image);
    // A page that breaks off before anything is drawn is no empty page.
    const bool isWholePage = upright.size.width >= geometry.uprightSize().width - 1 &&
                             upright.size.height >= geometry.uprightSize().height - 1;
    const bool isLost =
        outcome == Outcome::BrokenOff && isWholePage && isBlank(image, drawing.background.rgb());
    return outcome == Outcome::Nothing || isLost ? QImage() : image;
}

} // namespace Tavrin::MuPDFPainter
