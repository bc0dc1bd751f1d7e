// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>
#include <QStringList>

#include <map>
#include <set>
#include <utility>
#include <vector>

#include <Tavrin/platform/Geometry.h>
#include <support/Dest.h>
#include <support/PDFSource.h>

namespace Tavrin::Testing
{

/// Fonts that every reader of PDF brings along (ISO 32000-1, 9.6.2.2).
enum class Font {
    Helvetica,
    HelveticaBold,
    HelveticaOblique,
    HelveticaBoldOblique,
    Times,
    TimesBold,
    TimesItalic,
    TimesBoldItalic,
    Courier,
    CourierBold,
    CourierOblique,
    CourierBoldOblique,
    Symbol,
};

struct TextStyle {
    Font font = Font::Helvetica;
    /// In points, and so are the spacings.
    double size = 10;
    QRgb color = qRgb(0, 0, 0);
    double characterSpacing = 0;
    double wordSpacing = 0;
    /// Counter-clockwise, in degrees, about the start of the text.
    double rotation = 0;
};

/// A stretch of text and the gap after it, in points.
struct TextPiece {
    QString text;
    double gapAfter = 0;
};

/// One page of a document in the making: draws in page space, in the order of the calls.
/// Text is limited to WinAnsiEncoding, and starts at its baseline.
class PDFPageBuilder
{
public:
    PDFPageBuilder &cropBox(const Rect &box) { return entry("CropBox", PDFSource::rectangle(box)); }
    PDFPageBuilder &rotate(int degrees) { return entry("Rotate", QByteArray::number(degrees)); }

    PDFPageBuilder &text(double x, double y, const QString &text, const TextStyle &style = {});
    /// One showing of text with gaps that carry no space character.
    PDFPageBuilder &pieces(double x, double y, const std::vector<TextPiece> &pieces,
                           const TextStyle &style = {});
    /// Lines below each other, the first with its baseline at y.
    PDFPageBuilder &column(double x, double y, double lineHeight, const QStringList &lines,
                           const TextStyle &style = {});

    PDFPageBuilder &fill(const Rect &rect, QRgb color = qRgb(0, 0, 0));
    PDFPageBuilder &stroke(const Rect &rect, double width = 1);
    PDFPageBuilder &line(Point from, Point to, double width = 1);
    /// Any content operators.
    PDFPageBuilder &operators(const QByteArray &source);

    /// A link with its destination in "Dest", or in a GoTo action.
    PDFPageBuilder &link(const Rect &rect, const Dest &dest)
    {
        return addAnnotation(rect, "Link", "/Dest ", dest, {});
    }
    PDFPageBuilder &actionLink(const Rect &rect, const Dest &dest)
    {
        return addAnnotation(rect, "Link", "/A << /S /GoTo /D ", dest, " >>");
    }
    PDFPageBuilder &uriLink(const Rect &rect, const QByteArray &uri)
    {
        return addAnnotation(rect, "Link", "/A << /S /URI /URI ", Dest::raw(PDFSource::string(uri)),
                             " >>");
    }
    PDFPageBuilder &note(const Rect &rect, const QString &contents)
    {
        return addAnnotation(rect, "Text", "/Contents ", Dest::raw(PDFSource::textString(contents)),
                             {});
    }
    /// Any annotation, by the source of its dictionary.
    PDFPageBuilder &annotation(const QByteArray &source);

    /// Sets an entry of the page's dictionary, in place of what is written there otherwise.
    PDFPageBuilder &entry(const QByteArray &key, const QByteArray &source);

private:
    friend class PDFWriter;

    struct Annotation {
        QByteArray before;
        Dest dest = Dest::raw({});
        QByteArray after;
    };

    PDFPageBuilder &addAnnotation(const Rect &rect, const char *subtype, const QByteArray &before,
                                  const Dest &dest, const QByteArray &after);
    void beginText(double x, double y, const TextStyle &style);

    std::map<QByteArray, QByteArray> m_entries;
    std::set<Font> m_fonts;
    std::vector<Annotation> m_annotations;
    QByteArray m_content;
};

} // namespace Tavrin::Testing
