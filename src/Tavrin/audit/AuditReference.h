// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace Tavrin
{

/// One reference of the work that is audited.
///
///     const std::vector<AuditReference> references{
///         {QStringLiteral("4.2.1"), QStringLiteral("REQ-12"), QStringLiteral("refs.txt:3")}};
struct AuditReference {
    /// A label, a spec URL, or a reference as people write it: "§ 4.2", "Fig. 3-7", "4.1-4.3".
    QString reference;
    /// What refers: the name of a requirement or a test, as the work calls it. May be empty.
    QString label;
    /// Where the reference is written, "refs.txt:12" for example. May be empty.
    QString location;

    friend bool operator==(const AuditReference &, const AuditReference &) = default;
};

} // namespace Tavrin
