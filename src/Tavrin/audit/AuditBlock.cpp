// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditBlock.h>

#include <Tavrin/audit/AuditOutline.h>
#include <Tavrin/platform/DecimalForm.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <Tavrin/platform/SystemColor.h>
#include <Tavrin/platform/SystemFont.h>
#include <Tavrin/platform/TextAttachment.h>

namespace Tavrin::AuditBlock
{

using namespace Qt::StringLiterals;

namespace
{

constexpr double headingSize = 14;

void appendPlace(StyledText &text, const PDFSpecification::Entry &entry)
{
    text.append(localized("Location", "spec entry destination") + u": "_s, subHeadingAttributes());
    if (const HostPDFDestination *place = placeOf(entry)) {
        text.append(u"page %1, at (%2, %3)\n"_s.arg(place->page()->index())
                        .arg(decimalForm(place->point().x), decimalForm(place->point().y)),
                    bodyAttributes());
        return;
    }
    text.append(u"error loading destination ("_s + entry.internalLink().value_or(QString()) + u')',
                bodyErrorAttributes());
    text.append(u"\n"_s, bodyAttributes());
}

} // namespace

TextAttributes headingAttributes()
{
    return {.font = systemFont(headingSize)};
}

TextAttributes subHeadingAttributes()
{
    return {.font = systemFont(smallFontSize)};
}

TextAttributes bodyAttributes()
{
    return {.font = systemFont(smallFontSize)};
}

TextAttributes bodyErrorAttributes()
{
    return {.font = systemFont(smallFontSize, TextFont::Bold), .foregroundColor = systemRed};
}

void appendField(StyledText &text, const QString &name, const QString &value)
{
    text.append(name + u": "_s, subHeadingAttributes());
    text.append(value + u'\n', bodyAttributes());
}

void appendSummary(StyledText &text, const std::optional<StyledText> &summary)
{
    text.append(localized("Summary", "spec entry field") + u": "_s, subHeadingAttributes());
    if (summary)
        text.append(*summary);
    else
        text.append(localized("No summary available", "spec audit message"), bodyErrorAttributes());
}

void appendPreview(StyledText &text, const QImage &image, double pixelsPerPoint)
{
    text.append(localized("Preview", "spec entry field") + u": "_s, subHeadingAttributes());
    if (image.isNull()) {
        text.append(localized("No image available", "spec audit message"), bodyErrorAttributes());
        return;
    }
    text.append(u"\n"_s, bodyAttributes());
    text.append(TextAttachment::png(image, pixelsPerPoint).text());
}

StyledText text(const PDFSpecification::Entry &entry)
{
    StyledText text(entry.label(), headingAttributes());
    text.append(u"\n\n"_s, bodyAttributes());
    appendField(text, localized("Title", "spec entry field"), entry.title());
    appendField(text, localized("Index", "spec entry field"), entry.indexString());
    appendPlace(text, entry);
    entry.computeDisplay();
    if (isTextual(entry.type()))
        appendSummary(text, entry.summaryText());
    else
        appendPreview(text, entry.previewImage().value_or(QImage()));
    text.append(u"\n"_s, bodyAttributes());
    return text;
}

} // namespace Tavrin::AuditBlock
