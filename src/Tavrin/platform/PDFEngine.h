// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/DrawingCancellation.h>
#include <Tavrin/platform/PDFObjectParser.h>
#include <Tavrin/platform/PageGeometry.h>
#include <Tavrin/platform/StyledText.h>

namespace Tavrin
{

/// How a run of glyphs is printed.
struct GlyphStyle {
    TextFont font;
    QRgb color = 0xff000000;

    friend bool operator==(const GlyphStyle &, const GlyphStyle &) = default;
};

/// One printed character where the engine found it, in upright space (see PageGeometry).
struct PageGlyph {
    char32_t character = 0;
    /// The glyph's cell: its advance wide, from the font's descender to its ascender.
    float left = 0;
    float bottom = 0;
    float right = 0;
    float top = 0;
    /// The origin on the baseline, and the unit vector along the baseline.
    float originX = 0;
    float originY = 0;
    float directionX = 1;
    float directionY = 0;
    /// The printed size along the vertical of the glyph, in points.
    float size = 0;
    /// Index into PageGlyphs::styles.
    quint32 style = 0;
};

/// Everything printed on a page, in the order of its content stream. Blanks are here if the
/// file holds glyphs for them; none is invented.
struct PageGlyphs {
    std::vector<GlyphStyle> styles;
    std::vector<PageGlyph> glyphs;
    /// Boxes around images, and around drawing that hangs together, in upright space and cut to
    /// the page. An engine that knows none leaves figures to be found by their text alone.
    std::vector<Rect> drawings = {};
};

/// A place in a document: page index from 0, and a point in page space.
struct PDFPlace {
    int page = 0;
    Point point;

    friend bool operator==(const PDFPlace &, const PDFPlace &) = default;
};

/// One item of the outline. Items stand in document order, depth first; `depth` is 0 for the
/// children of the root.
struct PDFOutlineItem {
    int depth = 0;
    std::optional<QString> label;
    /// What "Dest" says, by array or by name.
    std::optional<PDFPlace> destination;
    /// What an action of kind GoTo says, where there is one.
    std::optional<PDFPlace> actionDestination;
};

struct PDFAnnotationRecord {
    /// "Link", "Text", "Widget" and so on, as the file writes it.
    QString type;
    /// In page space.
    Rect bounds;
    QString contents;
    /// Where a link leads inside the document, whether by "Dest" or by action.
    std::optional<PDFPlace> destination;
    /// Where it leads outside.
    QUrl url;
};

/// What a page is drawn onto and with.
struct PageDrawing {
    /// Pixels per point.
    double scale = 1;
    bool annotations = false;
    QColor background = Qt::white;
    /// By which another thread may call it off; null if none does.
    DrawingCancellation *cancellation = nullptr;
};

/// An open file, as an engine reads it.
///
/// Safe to call from any thread; calls that read the same page text concurrently each do the
/// work, so callers cache. A page that cannot be read gives no value.
class TAVRIN_CORE_EXPORT PDFEngineDocument
{
public:
    virtual ~PDFEngineDocument();

    virtual int pageCount() const = 0;
    virtual std::optional<PageGeometry> pageGeometry(int page) const = 0;
    virtual std::optional<PageGlyphs> pageGlyphs(int page) const = 0;
    /// The printed page number ("iv", "A-3"), where the file names one (ISO 32000-1, 12.4.2).
    virtual std::optional<QString> pageLabel(int page) const = 0;
    virtual std::vector<PDFAnnotationRecord> annotations(int page) const = 0;

    /// An area of page space as displayed, area.width × area.height × scale pixels, rounded up.
    /// A null image if there is no such page, it can't be loaded, the drawing was called off, or
    /// the image would exceed 64 million pixels. A page whose content breaks off shows what came
    /// before.
    virtual QImage draw(int page, const Rect &area, const PageDrawing &drawing) const = 0;

    /// The text values of the document information dictionary: "Title", "Author" and so on.
    virtual QHash<QString, QString> attributes() const = 0;
    /// Empty without an outline. Items that a file repeats or loops to come once.
    virtual std::vector<PDFOutlineItem> outline() const = 0;
    virtual const PDFObjectParser &objects() const = 0;
};

/// The one place that knows which library reads PDFs. Reentrant.
class TAVRIN_CORE_EXPORT PDFEngine
{
public:
    virtual ~PDFEngine();

    /// The engine that Tavrin is built with.
    static const PDFEngine &standard();

    /// Opens a file or its bytes. Throws HostPDFError; never returns null.
    virtual std::unique_ptr<PDFEngineDocument> open(const QString &path,
                                                    const QString &password) const = 0;
    virtual std::unique_ptr<PDFEngineDocument> open(const QByteArray &data,
                                                    const QString &password) const = 0;
};

} // namespace Tavrin
