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

/// What the layout code knows of a font: its family, its size and two traits.
struct TextFont {
    /// Symbolic traits, a bit set.
    enum Trait : quint32 { Italic = 1, Bold = 2 };

    QString family;
    /// The size as printed, in points: scaling of the page's text included.
    double pointSize = 0;
    quint32 traits = 0;

    bool isBold() const { return (traits & Bold) != 0; }
    bool isItalic() const { return (traits & Italic) != 0; }
    /// Either trait is set.
    bool isStyled() const { return (traits & (Bold | Italic)) != 0; }

    friend bool operator==(const TextFont &, const TextFont &) = default;
};

/// The names of the attributes that a run of text can carry.
enum class TextAttribute { Font, ForegroundColor, Link, Attachment };

/// The attributes of one run. An absent value means that the run does not have the attribute.
struct TextAttributes {
    std::optional<TextFont> font{};
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
class TAVRIN_CORE_EXPORT StyledText
{
public:
    struct Run {
        TextRange range;
        TextAttributes attributes;
        friend bool operator==(const Run &, const Run &) = default;
    };

    StyledText();
    explicit StyledText(const QString &string, const TextAttributes &attributes = {});
    StyledText(const StyledText &);
    StyledText(StyledText &&) noexcept;
    StyledText &operator=(const StyledText &);
    StyledText &operator=(StyledText &&) noexcept;
    ~StyledText();

    const QString &string() const;
    qsizetype length() const;
    bool isEmpty() const { return length() == 0; }

    /// The runs in order; they cover the text without gaps.
    std::vector<Run> runs() const;

    /// The attributes of the character at index; none outside the text.
    const TextAttributes &attributesAt(qsizetype index) const;

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

    void setFont(const TextFont &font, TextRange range);
    void setForegroundColor(QRgb color, TextRange range);
    void setLink(const QString &link, TextRange range);
    void setAttachment(const QVariant &attachment, TextRange range);
    /// Replaces every attribute of the range by the given ones.
    void setAttributes(const TextAttributes &attributes, TextRange range);

    void deleteCharacters(TextRange range);
    /// Replaces the characters of a range; the new ones carry the given attributes alone.
    void replaceCharacters(TextRange range, const StyledText &replacement);
    void append(const StyledText &text);
    void append(const QString &text, const TextAttributes &attributes = {});

    friend TAVRIN_CORE_EXPORT bool operator==(const StyledText &, const StyledText &);

private:
    class Data;
    QSharedDataPointer<Data> d;
};

} // namespace Tavrin
