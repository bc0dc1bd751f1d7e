// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <QImage>
#include <QRegularExpression>

#include <Tavrin/platform/RTFWriter.h>
#include <Tavrin/platform/StyledText.h>
#include <Tavrin/platform/TextAttachment.h>

namespace
{

QByteArray rtf(const StyledText &text)
{
    return RTFWriter::document(text, {0, text.length()});
}

/// Reads the text of a document, as a reader of the format does that knows the controls of text
/// alone: groups of destinations, and the characters behind a \u, are skipped.
class PlainReader
{
public:
    explicit PlainReader(const QByteArray &document) : m_document(document) { group(false); }

    QString text;
    /// Every group is closed, and nothing stands behind the last.
    bool isWhole() const { return m_isWhole && m_at == m_document.trimmed().size(); }

private:
    void group(bool isSkipped)
    {
        ++m_at;
        while (m_at < m_document.size()) {
            const char c = m_document[m_at];
            if (c == '{') {
                group(isSkipped || isDestination());
            } else if (c == '}') {
                ++m_at;
                return;
            } else if (c == '\\') {
                control(isSkipped);
            } else {
                if (!isSkipped && c != '\n')
                    text += QLatin1Char(c);
                EXPECT_LT(static_cast<unsigned char>(c), 0x7f) << "ASCII alone";
                ++m_at;
            }
        }
        m_isWhole = false;
    }

    bool isDestination() const
    {
        const QByteArray begin = m_document.mid(m_at + 1, 9);
        return begin.startsWith("\\*") || begin.startsWith("\\fonttbl") ||
               begin.startsWith("\\colortbl") || begin.startsWith("\\pict");
    }

    void control(bool isSkipped)
    {
        static const QRegularExpression word(u"\\G\\\\([a-z]+)(-?\\d+)? ?"_s);
        const auto match = word.match(QString::fromLatin1(m_document), m_at);
        QString value = QString(QLatin1Char(m_document[m_at + 1]));
        qsizetype length = 2;
        if (match.hasMatch()) {
            const QString name = match.captured(1);
            length = match.capturedLength();
            value = name == u"par"_s ? u"\n"_s : name == u"tab"_s ? u"\t"_s : QString();
            if (name == u"u"_s) {
                value = QChar(static_cast<char16_t>(match.captured(2).toInt()));
                ++length;
            }
        } else if (value == u"~"_s) {
            value = QChar(QChar::Nbsp);
        }
        if (!isSkipped)
            text += value;
        m_at += length;
    }

    QByteArray m_document;
    qsizetype m_at = 0;
    bool m_isWhole = true;
};

} // namespace

TEST(RTFWriter, KeepsAnyText)
{
    const QString texts[] = {
        QString(),
        u"back\\slash {braces} and\ttabs\nlines"_s,
        u"§ ü “quoted” – ≤ 漢字 \u00a0 é"_s,
        u"beyond the plane: 𝒜 😀"_s,
        u"\\u8217? \\par } {\\*\\x"_s,
    };
    for (const QString &text : texts) {
        const PlainReader reader(rtf(StyledText(text)));
        EXPECT_EQ(reader.text, text);
        EXPECT_TRUE(reader.isWhole()) << text.toStdString();
    }
    const QString broken = u"a"_s + QChar(0xd83d) + u"b\u0001c"_s;
    EXPECT_EQ(PlainReader(rtf(StyledText(broken))).text, u"a\ufffdbc"_s);
}

TEST(RTFWriter, WritesARangeAlone)
{
    const StyledText text(u"one two three"_s);
    EXPECT_EQ(PlainReader(RTFWriter::document(text, {4, 3})).text, u"two"_s);
    EXPECT_EQ(PlainReader(RTFWriter::document(text, {8, 100})).text, u"three"_s);
}

TEST(RTFWriter, WritesFontsColoursAndLinks)
{
    StyledText text(u"plain"_s);
    text.append(u"both"_s,
                {.font = TextFont{u"Some; {Face}"_s, 10.5, TextFont::Bold | TextFont::Italic},
                 .foregroundColor = qRgb(1, 2, 3)});
    text.append(u"again"_s, {.foregroundColor = qRgba(1, 2, 3, 0)});
    text.append(u"link"_s, {.link = u"spec://a\\b\"}/*/*"_s});
    const QByteArray document = rtf(text);
    const PlainReader reader(document);
    EXPECT_EQ(reader.text, u"plainbothagainlink"_s);
    EXPECT_TRUE(reader.isWhole()) << document.constData();
    EXPECT_THAT(document, Holds("\\f1\\fs21\\b\\i\\cf1 both"));
    EXPECT_TRUE(document.contains("\\cf1 again"));
    EXPECT_EQ(document.count("\\red1\\green2\\blue3;"), 1);
    EXPECT_TRUE(document.contains("Some \\{Face\\};"));
    EXPECT_THAT(document, Holds("HYPERLINK \"spec://a\\\\\\\\b%22\\}/*/*\""));
}

TEST(RTFWriter, EmbedsPicturesAtTheirSize)
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::green);
    StyledText text(u"before"_s);
    text.append(TextAttachment::png(image, 2).text());
    text.append(TextAttachment::png(image, 2).text());
    text.append(u"behind"_s);
    const QByteArray document = rtf(text);
    EXPECT_EQ(PlainReader(document).text, u"beforebehind"_s);
    EXPECT_EQ(document.count("\\pict\\pngblip\\picw40\\pich20\\picwgoal400\\pichgoal200"), 2);
    const qsizetype from = document.indexOf('\n', document.indexOf("\\pichgoal"));
    const QByteArray digits = document.mid(from, document.indexOf('}', from) - from);
    EXPECT_EQ(QImage::fromData(QByteArray::fromHex(digits), "PNG").pixelColor(3, 3),
              QColor(Qt::green));

    TextAttachment broken{"no picture", u"image/png"_s, {10, 10}};
    EXPECT_FALSE(rtf(broken.text()).contains("\\pict"));
    broken.type = u"image/tiff"_s;
    EXPECT_FALSE(rtf(broken.text()).contains("\\pict"));
}
