// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/RTFWriter.h>

#include <Tavrin/platform/TextAttachment.h>

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// The links of a text, in a colour that says so where the text has none of its own.
constexpr QRgb linkColor = qRgb(0x0b, 0x57, 0xd0);

QRgb opaque(QRgb color)
{
    return color | 0xff000000U;
}

/// One UTF-16 unit outside ASCII. The number is signed, and "?" stands for readers of old that
/// know no Unicode.
void appendUnit(QByteArray &bytes, QChar unit)
{
    bytes += "\\u" + QByteArray::number(static_cast<qint16>(unit.unicode())) + '?';
}

void appendCharacter(QByteArray &bytes, QChar character)
{
    switch (character.unicode()) {
    case u'\\':
    case u'{':
    case u'}':
        bytes += '\\';
        bytes += character.toLatin1();
        return;
    case u'\n':
    case u'\u2029':
        bytes += "\\par\n";
        return;
    case u'\u2028':
        bytes += "\\line\n";
        return;
    case u'\t':
        bytes += "\\tab ";
        return;
    case u'\u00a0':
        bytes += "\\~";
        return;
    default:
        break;
    }
    if (character.unicode() < 0x20 || character.unicode() == 0x7f)
        return;
    if (character.unicode() < 0x7f)
        bytes += character.toLatin1();
    else
        appendUnit(bytes, character);
}

/// Text as it stands in a document. Half of a surrogate pair becomes U+FFFD.
QByteArray escaped(QStringView text)
{
    QByteArray bytes;
    bytes.reserve(text.size() + text.size() / 8);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        const bool isPair =
            character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair) {
            appendUnit(bytes, character);
            appendUnit(bytes, text[++i]);
        } else {
            appendCharacter(bytes, character.isSurrogate() ? QChar(QChar::ReplacementCharacter)
                                                           : character);
        }
    }
    return bytes;
}

/// A name within a table, where a semicolon ends it.
QByteArray escapedName(QString name)
{
    return escaped(name.remove(u';').remove(u'\n'));
}

/// The target of a link inside the quotes of a field's instruction, where a backslash is doubled
/// once more than in text.
QByteArray escapedTarget(QString target)
{
    target.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("%22"));
    target.replace(u'\n', QStringLiteral("%0A"));
    return escaped(target);
}

QByteArray twips(double points)
{
    constexpr double perPoint = 20;
    return QByteArray::number(qRound(points * perPoint));
}

} // namespace

RTFWriter::RTFWriter(QIODevice &device) : m_device(device) {}

QByteArray RTFWriter::document(const StyledText &text, TextRange range)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    RTFWriter(buffer).write(text, range);
    return bytes;
}

bool RTFWriter::write(const StyledText &text, TextRange range)
{
    const StyledText part = text.attributedSubstring(range);
    const auto runs = part.runs();
    gather({});
    for (const StyledText::Run &run : runs)
        gather(run.attributes);
    writeHeader();
    for (const StyledText::Run &run : runs) {
        writeRun(run, QStringView(part.string()).mid(run.range.location, run.range.length));
        if (!m_isSound)
            return false;
    }
    put("}\n");
    return m_isSound;
}

void RTFWriter::gather(const TextAttributes &attributes)
{
    const QString family = attributes.font ? attributes.font->family : QString();
    if (!m_fonts.contains(family)) {
        const auto number = m_fonts.size();
        m_fonts.insert(family, int(number));
        m_fontTable += "{\\f" + QByteArray::number(number) + "\\fnil" +
                       (family.isEmpty() ? "\\fcharset0{\\*\\falt Arial} Helvetica"
                                         : "\\fcharset0 " + escapedName(family)) +
                       ";}";
    }
    const auto addColor = [this](QRgb color) {
        if (m_colors.contains(opaque(color)))
            return;
        // Number 0 is the reader's own colour of text.
        m_colors.insert(opaque(color), int(m_colors.size()) + 1);
        m_colorTable += "\\red" + QByteArray::number(qRed(color)) + "\\green" +
                        QByteArray::number(qGreen(color)) + "\\blue" +
                        QByteArray::number(qBlue(color)) + ';';
    };
    if (attributes.foregroundColor)
        addColor(*attributes.foregroundColor);
    else if (attributes.link)
        addColor(linkColor);
}

void RTFWriter::writeHeader()
{
    put("{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\n{\\fonttbl" + m_fontTable + "}\n{\\colortbl;" +
        m_colorTable + "}\n\\margl1080\\margr1080\\margt1080\\margb1080\n");
}

QByteArray RTFWriter::formatting(const TextAttributes &attributes) const
{
    const TextFont font = attributes.font.value_or(TextFont());
    QByteArray words = "\\f" + QByteArray::number(m_fonts.value(font.family));
    if (std::isfinite(font.pointSize) && font.pointSize > 0) {
        constexpr double largest = 1638;
        words += "\\fs" + QByteArray::number(qRound(2 * std::min(font.pointSize, largest)));
    }
    if (font.isBold())
        words += "\\b";
    if (font.isItalic())
        words += "\\i";
    if (attributes.foregroundColor || attributes.link) {
        const QRgb color = opaque(attributes.foregroundColor.value_or(linkColor));
        words += "\\cf" + QByteArray::number(m_colors.value(color));
    }
    return words + ' ';
}

void RTFWriter::writeRun(const StyledText::Run &run, QStringView text)
{
    const QByteArray format = formatting(run.attributes);
    if (run.attributes.attachment.canConvert<TextAttachment>()) {
        const auto attachment = run.attributes.attachment.value<TextAttachment>();
        put('{' + format);
        for (const QChar character : text) {
            if (character == TextAttachment::objectReplacement)
                writeAttachment(attachment);
            else
                put(escaped(QStringView(&character, 1)));
        }
        put("}\n");
        return;
    }
    if (run.attributes.link) {
        put("{\\field{\\*\\fldinst HYPERLINK \"" + escapedTarget(*run.attributes.link) +
            "\"}{\\fldrslt" + format + escaped(text) + "}}");
        return;
    }
    put('{' + format + escaped(text) + '}');
}

void RTFWriter::writeAttachment(const TextAttachment &attachment)
{
    if (attachment.type != QLatin1String("image/png") || attachment.data.isEmpty())
        return;
    QBuffer buffer;
    buffer.setData(attachment.data);
    const QSize pixels = QImageReader(&buffer, "PNG").size();
    if (!pixels.isValid())
        return;
    put("{\\pict\\pngblip\\picw" + QByteArray::number(pixels.width()) + "\\pich" +
        QByteArray::number(pixels.height()) + "\\picwgoal" + twips(attachment.size.width) +
        "\\pichgoal" + twips(attachment.size.height) + '\n');
    // In lines, since some readers have a limit for one.
    constexpr qsizetype bytesPerLine = 64;
    const QByteArray digits = attachment.data.toHex();
    QByteArray lines;
    lines.reserve(digits.size() + digits.size() / (2 * bytesPerLine) + 1);
    for (qsizetype from = 0; from < digits.size(); from += 2 * bytesPerLine) {
        lines +=
            QByteArrayView(digits).sliced(from, std::min(2 * bytesPerLine, digits.size() - from));
        lines += '\n';
    }
    put(lines + '}');
}

void RTFWriter::put(const QByteArray &bytes)
{
    m_isSound = m_isSound && m_device.write(bytes) == bytes.size();
}

} // namespace Tavrin
