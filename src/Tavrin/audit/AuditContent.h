// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QString>

#include <optional>

#include <Tavrin/audit/AuditReport.h>
#include <Tavrin/platform/StyledText.h>

/// What a report says of one entry, the same in every format.
namespace Tavrin::AuditContent
{

/// Pictures are drawn at this scale, so that they are sharp in print and on dense displays.
inline constexpr double pixelsPerPoint = 2;

/// Kind, number, and the lines of a part: "Section 4.2.1", "Section 4.2.1, lines 3 to 5".
QString name(const SpecificationEntry &entry);

/// The page as it is counted, from 1, and as it is printed, if that is another: "17 (printed 5)".
/// Empty without a place.
QString page(const SpecificationEntry &entry);

/// The spec URL, bound to specification and revision.
QString url(const SpecificationEntry &entry);

/// Whether the text and the pictures of the specification may be shown.
bool isShown(const AuditReport &report);

/// The text of a section or chapter. Computed now, if that was not done yet.
std::optional<StyledText> summary(const SpecificationEntry &entry);

/// The text without attributes, as the tables of data hold it; empty if there is none.
QString plainSummary(const SpecificationEntry &entry);

/// The picture of a figure or table, at so many pixels a point; null if there is none. Kept
/// nowhere.
QImage picture(const SpecificationEntry &entry, double scale);

} // namespace Tavrin::AuditContent
