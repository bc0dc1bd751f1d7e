// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

#include <optional>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StyledText.h>

/// What a rich text report says of one entry, piece by piece.
namespace Tavrin::AuditBlock
{

/// The looks of the pieces.
TextAttributes headingAttributes();
TextAttributes subHeadingAttributes();
TextAttributes bodyAttributes();
TextAttributes bodyErrorAttributes();

/// "Title: " and a line.
void appendField(StyledText &text, const QString &name, const QString &value);

/// The summary as it looks by itself, or that there is none, with "Summary: " in front.
void appendSummary(StyledText &text, const std::optional<StyledText> &summary);

/// The picture, or that there is none if it is null, with "Preview: " in front.
void appendPreview(StyledText &text, const QImage &image, double pixelsPerPoint = 1);

/// Label, title, index and place of an entry, and its summary or preview. Computes what the entry
/// shows, if that was not done yet.
StyledText text(const PDFSpecification::Entry &entry);

} // namespace Tavrin::AuditBlock
