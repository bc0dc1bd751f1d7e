// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringView>

#include <optional>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// The forms in which an audit is written. All of them tell the same counts. RTF and HTML show what
/// the document says at each cited place, unless its map allows no previews
/// (Specification::allowsPreviews).
enum class AuditFormat {
    /// Rich text, a block for each cited entry, for word processors.
    RTF,
    /// One page that loads nothing from elsewhere.
    HTML,
    /// A row for each entry and reference (RFC 4180).
    CSV,
    /// For programs; pages count from 0.
    JSON,
    /// A test case for each reference and demand, as continuous integration servers read them.
    JUnit,
};

/// The format with this name, in lower case: "rtf", "html", "csv", "json", "junit". Absent for
/// anything else, which includes "RTF".
TAVRIN_CORE_EXPORT std::optional<AuditFormat> auditFormatFromText(QStringView text);

} // namespace Tavrin
