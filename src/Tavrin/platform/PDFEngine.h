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

/// How a run of glyphs is printed. Many glyphs share one.
struct GlyphStyle {
    TextFont font;
    QRgb color = 0xff000000;

    friend bool operator==(const GlyphStyle &, const GlyphStyle &) = default;
};

/// One printed character where the engine found it, in upright space (see PageGeometry).
///
/// The layout code makes lines of them. Floats, since a page may have tens of thousands.
struct PageGlyph {
    /// In Unicode, as the font maps it.
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
    /// Each once.
    std::vector<GlyphStyle> styles;
    /// In the order in which they are printed.
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
/// children of the root. One that has neither destination nor action is a heading that leads
/// nowhere.
struct PDFOutlineItem {
    int depth = 0;
    /// The title; absent where the file has none.
    std::optional<QString> label;
    /// What "Dest" says, by array or by name.
    std::optional<PDFPlace> destination;
    /// What an action of kind GoTo says, where there is one.
    std::optional<PDFPlace> actionDestination;
};

/// An annotation as the file has it (ISO 32000-1, 12.5).
struct PDFAnnotationRecord {
    /// "Link", "Text", "Widget" and so on, as the file writes it.
    QString type;
    /// In page space.
    Rect bounds;
    /// The note, or what describes it; often empty.
    QString contents;
    /// Where a link leads inside the document, whether by "Dest" or by action.
    std::optional<PDFPlace> destination;
    /// Where it leads outside.
    QUrl url;
};

/// What a page is drawn onto and with.
///
/// The default is a drawing at a pixel a point, on white.
struct PageDrawing {
    /// Pixels per point.
    ///
    /// Twice as many for a display of twice the resolution.
    double scale = 1;
    /// Whether highlights, notes and form fields are drawn, too.
    bool annotations = false;
    /// Below the page's own drawing. Its alpha is not looked at: the image has none.
    QColor background = Qt::white;
    /// By which another thread may call it off; null if none does.
    DrawingCancellation *cancellation = nullptr;
};

/// An open file, as an engine reads it.
///
/// Safe to call from any thread; calls that read the same page text concurrently each do the
/// work, so callers cache. A page that cannot be read gives no value.
///
/// Pages count from 0. Hosts use HostPDFDocument, which caches; this is for who brings another
/// engine.
class TAVRIN_CORE_EXPORT PDFEngineDocument
{
public:
    virtual ~PDFEngineDocument();

    /// Of the pages that are there, whatever the file claims.
    virtual int pageCount() const = 0;
    /// The boxes and the rotation of a page, with what it inherits from the page tree.
    virtual std::optional<PageGeometry> pageGeometry(int page) const = 0;
    /// Interprets the content of the page, which on a full one takes its time.
    virtual std::optional<PageGlyphs> pageGlyphs(int page) const = 0;
    /// The printed page number ("iv", "A-3"), where the file names one (ISO 32000-1, 12.4.2).
    virtual std::optional<QString> pageLabel(int page) const = 0;
    /// In the order of the file; empty for a page without any.
    virtual std::vector<PDFAnnotationRecord> annotations(int page) const = 0;

    /// An area of page space as displayed, area.width × area.height × scale pixels, rounded up.
    /// A null image if there is no such page, it can't be loaded, the drawing was called off, or
    /// the image would exceed 64 million pixels. A page whose content breaks off shows what came
    /// before.
    ///
    /// The area turns with the page: of one that is rotated by 90 degrees the image is as wide as
    /// the area is tall. A whole page that breaks off before anything is drawn gives a null image,
    /// too.
    virtual QImage draw(int page, const Rect &area, const PageDrawing &drawing) const = 0;

    /// The text values of the document information dictionary: "Title", "Author" and so on.
    virtual QHash<QString, QString> attributes() const = 0;
    /// Empty without an outline. Items that a file repeats or loops to come once.
    virtual std::vector<PDFOutlineItem> outline() const = 0;
    /// The objects of the file; valid as long as the document.
    virtual const PDFObjectParser &objects() const = 0;
};

/// The one place that knows which library reads PDFs. Reentrant. Another engine derives from this
/// and PDFEngineDocument and is returned by standard().
class TAVRIN_CORE_EXPORT PDFEngine
{
public:
    virtual ~PDFEngine();

    /// The engine that Tavrin is built with.
    static const PDFEngine &standard();

    /// Opens a file or its bytes. Throws HostPDFError; never returns null.
    virtual std::unique_ptr<PDFEngineDocument> open(const QString &path,
                                                    const QString &password) const = 0;
    /// The same out of memory; the bytes are kept as long as the document. In messages the file is
    /// called "data".
    virtual std::unique_ptr<PDFEngineDocument> open(const QByteArray &data,
                                                    const QString &password) const = 0;
};

} // namespace Tavrin
