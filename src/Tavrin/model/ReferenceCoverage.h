// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

namespace Tavrin
{

/// One place of a work that cites an entry.
///
/// Several places may cite one entry; each has its own. A reference whose label nobody knows is
/// left unmarked.
struct CoveredReference {
    /// Label or spec URL of the entry.
    QString label;
    /// The host's own text for the place.
    QString reference;
};

/// What a body of work cites, in any order: what SpecificationManager::showSpecCoverage and detail
/// views take.
using ReferenceCoverage = std::vector<CoveredReference>;

} // namespace Tavrin
