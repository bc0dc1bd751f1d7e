// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QString>

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/pdf/HostPDFAnnotation.h>
#include <Tavrin/pdf/HostPDFSelection.h>
#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/platform/PageGeometry.h>
#include <Tavrin/platform/StyledText.h>

namespace Tavrin
{

class HostPDFDocument;
class PageText;

/// A page of an open document.
///
/// Its text is read from the file once, on first use, and kept; everything said about characters
/// and lines comes from that one reading. Places are in page space, ranges in UTF-16 units of
/// string(). After the document is gone, a page answers with no values. Any thread.
///
/// The first reading of a page's text interprets its content, which on a full page takes its time;
/// do it away from the main thread. What follows is a look into memory. HostPDFDocument::page makes
/// pages, the same object each time.
class TAVRIN_CORE_EXPORT HostPDFPage : public std::enable_shared_from_this<HostPDFPage>
{
public:
    ~HostPDFPage();
    HostPDFPage(const HostPDFPage &) = delete;
    HostPDFPage &operator=(const HostPDFPage &) = delete;

    /// Null once the document is gone.
    std::shared_ptr<HostPDFDocument> document() const;
    /// From 0.
    int index() const { return m_index; }
    /// The printed page number where the file names one, else the index counted from 1.
    QString label() const;

    /// One of the page's boxes, in page space.
    Rect bounds(PDFBox box) const;
    /// Clockwise, for display: 0, 90, 180 or 270 degrees.
    int rotation() const;
    /// The boxes, the rotation, and the way between page space and the page as one sees it.
    const PageGeometry &geometry() const { return m_geometry; }

    /// The page's text: one visual line after another, each ended by a line feed but the last,
    /// in reading order; blanks where the print has a gap. Nothing if the page can't be read.
    ///
    /// Columns follow one another. A word that is parted at a line's end stays parted.
    std::optional<QString> string() const;
    /// The same text with font and colour; every printed character carries a font.
    std::optional<StyledText> attributedString() const;

    /// The cell of a character. A blank that is a gap in the print spans the gap. Null for a
    /// line end and outside the text.
    ///
    /// In page space. The cell is as tall as the font, not as the glyph.
    Rect characterBounds(qsizetype index) const;
    /// The character whose cell holds the point, a printed one before a blank; nothing if none.
    std::optional<qsizetype> characterIndex(Point point) const;

    /// The visual lines, in the order of string(). Ranges hold no line feed.
    std::vector<TextRange> visualLines() const;

    /// The visual line through a point; absent where nothing is printed.
    std::optional<HostPDFSelection> selectionForLine(Point point) const;
    /// The word through a point; absent where nothing is printed.
    std::optional<HostPDFSelection> selectionForWord(Point point) const;
    /// A range, cut to the text.
    ///
    /// Empty where nothing of the range is left.
    HostPDFSelection selection(TextRange range) const;
    /// The characters whose cell has its centre inside the rectangle.
    ///
    /// The rectangle is in page space.
    HostPDFSelection selection(const Rect &rect) const;

    /// Read from the file at each call, in its order.
    std::vector<HostPDFAnnotation> annotations() const;

    /// An area of the page as displayed; see PDFEngineDocument::draw.
    ///
    /// The area is in page space; geometry().cropBox is all of the page. Null once the document is
    /// gone. As a page can take seconds, draw on a thread of its own, with a DrawingCancellation.
    QImage draw(const Rect &area, const PageDrawing &drawing = {}) const;

    /// The text with its boxes; null if the page can't be read.
    ///
    /// For the library's own layout code: hosts take string(), visualLines() and the selections.
    std::shared_ptr<const PageText> text() const;

private:
    friend class HostPDFDocument;
    HostPDFPage(const std::shared_ptr<HostPDFDocument> &document, int index,
                const PageGeometry &geometry);

    std::weak_ptr<HostPDFDocument> m_document;
    int m_index;
    PageGeometry m_geometry;
    mutable std::once_flag m_textOnce;
    mutable std::shared_ptr<const PageText> m_text;
};

} // namespace Tavrin
