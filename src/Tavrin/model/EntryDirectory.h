// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>
#include <memory>

#include <Tavrin/CoreExport.h>
#include <Tavrin/model/SpecificationEntry.h>

/// How an entry finds entries of other specifications, without knowing who keeps those.
namespace Tavrin::EntryDirectory
{

using Lookup = std::function<std::shared_ptr<SpecificationEntry>(const QString &label)>;

/// Sets what looks through all specifications; the manager's shared instance does so when it is
/// made. An empty function means that there is none.
TAVRIN_CORE_EXPORT void setLookup(Lookup lookup);

/// The entry for a label or spec URL in any specification; null if there is none, or no lookup.
TAVRIN_CORE_EXPORT std::shared_ptr<SpecificationEntry> entry(const QString &label);

} // namespace Tavrin::EntryDirectory
