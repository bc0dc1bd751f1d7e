// SPDX-License-Identifier: Apache-2.0
#include <support/PDFPageBuilder.h>

#include <QtMath>

#include <support/PDFSource.h>

namespace Tavrin::Testing
{

using PDFSource::number;

namespace
{

QByteArray numbers(std::initializer_list<double> values)
{
    QByteArray source;
    for (const double value : values)
        source += number(value) + ' ';
    return source;
}

QByteArray fillColor(QRgb color)
{
    return numbers({qRed(color) / 255.0, qGreen(color) / 255.0, qBlue(color) / 255.0}) + "rg ";
}

QByteArray corners(const Rect &rect)
{
    return numbers({rect.minX(), rect.minY(), rect.size.width, rect.size.height}) + "re ";
}

} // namespace

void PDFPageBuilder::beginText(double x, double y, const TextStyle &style)
{
    m_fonts.insert(style.font);
    const double sine = qSin(qDegreesToRadians(style.rotation));
    const double cosine = qCos(qDegreesToRadians(style.rotation));
    m_content += "BT /F" + QByteArray::number(int(style.font)) + ' ' + number(style.size) + " Tf " +
                 fillColor(style.color) + number(style.characterSpacing) + " Tc " +
                 number(style.wordSpacing) + " Tw " + numbers({cosine, sine, -sine, cosine, x, y}) +
                 "Tm ";
}

PDFPageBuilder &PDFPageBuilder::text(double x, double y, const QString &text,
                                     const TextStyle &style)
{
    beginText(x, y, style);
    m_content += PDFSource::string(PDFSource::winAnsi(text)) + " Tj ET\n";
    return *this;
}

PDFPageBuilder &PDFPageBuilder::pieces(double x, double y, const std::vector<TextPiece> &pieces,
                                       const TextStyle &style)
{
    beginText(x, y, style);
    m_content += '[';
    for (const TextPiece &piece : pieces) {
        const double thousandths = -1000 * piece.gapAfter / style.size;
        m_content += PDFSource::string(PDFSource::winAnsi(piece.text)) + number(thousandths);
    }
    m_content += "] TJ ET\n";
    return *this;
}

PDFPageBuilder &PDFPageBuilder::column(double x, double y, double lineHeight,
                                       const QStringList &lines, const TextStyle &style)
{
    for (qsizetype index = 0; index < lines.size(); ++index)
        text(x, y - lineHeight * double(index), lines[index], style);
    return *this;
}

PDFPageBuilder &PDFPageBuilder::fill(const Rect &rect, QRgb color)
{
    return operators("q " + fillColor(color) + corners(rect) + "f Q");
}

PDFPageBuilder &PDFPageBuilder::stroke(const Rect &rect, double width)
{
    return operators("q " + number(width) + " w " + corners(rect) + "S Q");
}

PDFPageBuilder &PDFPageBuilder::line(Point from, Point to, double width)
{
    return operators("q " + number(width) + " w " + numbers({from.x, from.y}) + "m " +
                     numbers({to.x, to.y}) + "l S Q");
}

PDFPageBuilder &PDFPageBuilder::operators(const QByteArray &source)
{
    m_content += source + '\n';
    return *this;
}

PDFPageBuilder &PDFPageBuilder::addAnnotation(const Rect &rect, const char *subtype,
                                              const QByteArray &before, const Dest &dest,
                                              const QByteArray &after)
{
    const QByteArray start = "<< /Type /Annot /Subtype " + PDFSource::name(subtype) + " /Rect " +
                             PDFSource::rectangle(rect) + " /Border [0 0 0] ";
    m_annotations.push_back({start + before, dest, after + " >>"});
    return *this;
}

PDFPageBuilder &PDFPageBuilder::annotation(const QByteArray &source)
{
    m_annotations.push_back({source, Dest::raw({}), {}});
    return *this;
}

PDFPageBuilder &PDFPageBuilder::entry(const QByteArray &key, const QByteArray &source)
{
    m_entries[key] = source;
    return *this;
}

} // namespace Tavrin::Testing
