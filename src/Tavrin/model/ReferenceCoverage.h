// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

namespace Tavrin
{

/// One place of a work that cites an entry.
struct CoveredReference {
    /// Label or spec URL of the entry.
    QString label;
    /// The host's own text for the place.
    QString reference;
};

using ReferenceCoverage = std::vector<CoveredReference>;

} // namespace Tavrin
