// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/model/Specification.h>

namespace Tavrin
{

/// The specifications beside the audited one, in which related entries are found. Those of its
/// registry, if there is no list.
using OtherSpecifications = std::optional<std::vector<std::shared_ptr<Specification>>>;

/// The list that the specification's registry has now, with the tables in memory; empty without
/// one, or if the entries of the specification name none but each other.
std::vector<std::shared_ptr<Specification>> otherSpecifications(Specification &specification);

/// The entries that an entry names as related: of its own specification, else of the first other
/// that has the label. A label that leads nowhere is left out.
std::vector<std::shared_ptr<SpecificationEntry>> relatedEntries(const SpecificationEntry &entry,
                                                                Specification &specification,
                                                                const OtherSpecifications &others);

} // namespace Tavrin
