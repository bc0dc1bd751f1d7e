// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QHash>
#include <QSharedDataPointer>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// What the layout code knows of a font: its family, its size and two traits. A value, not a font
/// that could draw: see QFont for that.
struct TextFont {
    /// Symbolic traits, a bit set.
    enum Trait : quint32 { Italic = 1, Bold = 2 };

    /// As the file or the host names it; empty for the font of the surroundings.
    QString family;
    /// The size as printed, in points: scaling of the page's text included.
    double pointSize = 0;
    /// Any of Trait together.
    quint32 traits = 0;

    bool isBold() const { return (traits & Bold) != 0; }
    bool isItalic() const { return (traits & Italic) != 0; }
    /// Either trait is set.
    bool isStyled() const { return (traits & (Bold | Italic)) != 0; }

    friend bool operator==(const TextFont &, const TextFont &) = default;
};

/// The names of the attributes that a run of text can carry.
///
/// Whoever goes through all attributes names them by it.
enum class TextAttribute { Font, ForegroundColor, Link, Attachment };

/// The attributes of one run. An absent value means that the run does not have the attribute. By
/// default none.
struct TextAttributes {
    /// Page text has one everywhere but at line ends.
    std::optional<TextFont> font{};
    /// The colour of the print.
    std::optional<QRgb> foregroundColor{};
    /// A spec URL, a label or a URL of the host.
    std::optional<QString> link{};
    /// What is shown in place of the text: a TextAttachment, or what a host understands.
    QVariant attachment{};

    friend bool operator==(const TextAttributes &, const TextAttributes &) = default;
};

/// Text with attributes over ranges.
///
/// An implicitly shared value: a copy costs a reference count, and a const object is the
/// immutable form. Adjacent runs with equal attributes are merged, so two texts with the same
/// characters and attributes are equal however they were put together. All ranges are in UTF-16
/// units of string(); one that reaches beyond the text is cut to it. Reentrant, like QString.
///
/// In the text of an entry, links are spec URLs as far as they lead to entries.
///
///     StyledText text(QStringLiteral("See "));
///     text.append(QStringLiteral("4.2"), {.link = QStringLiteral("spec://4.2/manual/1")});
class TAVRIN_CORE_EXPORT StyledText
{
public:
    /// A stretch over which the attributes are the same.
    struct Run {
        TextRange range;
        TextAttributes attributes;
        friend bool operator==(const Run &, const Run &) = default;
    };

    /// An empty text.
    StyledText();
    /// A text of one run.
    explicit StyledText(const QString &string, const TextAttributes &attributes = {});
    StyledText(const StyledText &);
    StyledText(StyledText &&) noexcept;
    StyledText &operator=(const StyledText &);
    StyledText &operator=(StyledText &&) noexcept;
    ~StyledText();

    /// The characters alone. Valid until the text changes.
    const QString &string() const;
    qsizetype length() const;
    bool isEmpty() const { return length() == 0; }

    /// The runs in order; they cover the text without gaps.
    std::vector<Run> runs() const;

    /// The attributes of the character at index; none outside the text. Valid until the text
    /// changes.
    const TextAttributes &attributesAt(qsizetype index) const;

    /// The part of the text, with its attributes.
    StyledText attributedSubstring(TextRange range) const;

    /// Calls back for each longest stretch of the range over which the font is the same, with a
    /// null pointer where there is none. The callback sets the flag to end the enumeration.
    void enumerateFonts(TextRange range,
                        const std::function<void(const TextFont *font, TextRange range, bool &stop)>
                            &callback) const;

    /// The same for links.
    void enumerateLinks(TextRange range,
                        const std::function<void(const QString *link, TextRange range, bool &stop)>
                            &callback) const;

    /// Gives the range a font, and leaves its other attributes.
    void setFont(const TextFont &font, TextRange range);
    /// Gives the range a colour, and leaves its other attributes.
    void setForegroundColor(QRgb color, TextRange range);
    /// Gives the range a link, and leaves its other attributes.
    void setLink(const QString &link, TextRange range);
    /// Gives the range an attachment, and leaves its other attributes. TextAttachment::text() makes
    /// the character that goes with one.
    void setAttachment(const QVariant &attachment, TextRange range);
    /// Replaces every attribute of the range by the given ones.
    void setAttributes(const TextAttributes &attributes, TextRange range);

    /// Takes them out, with their attributes.
    void deleteCharacters(TextRange range);
    /// Replaces the characters of a range; the new ones carry the given attributes alone. An empty
    /// range inserts.
    void replaceCharacters(TextRange range, const StyledText &replacement);
    /// Puts a text behind this one; a text may be appended to itself.
    void append(const StyledText &text);
    /// Puts characters behind the text. They carry the given attributes, not those of the character
    /// before.
    void append(const QString &text, const TextAttributes &attributes = {});

    friend TAVRIN_CORE_EXPORT bool operator==(const StyledText &, const StyledText &);

private:
    class Data;
    QSharedDataPointer<Data> d;
};

} // namespace Tavrin
