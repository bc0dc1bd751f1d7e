// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include <Tavrin/model/Specification.h>

namespace Tavrin
{

/// The entries that an entry names as related, in its order: each by the given specification, else
/// by the others that the shared manager has, in the order of its list. What resolves to nothing
/// is left out. May load the tables of other specifications; on the thread that the shared manager
/// is used on.
std::vector<std::shared_ptr<SpecificationEntry>> relatedEntries(const SpecificationEntry &entry,
                                                                Specification &specification);

} // namespace Tavrin
