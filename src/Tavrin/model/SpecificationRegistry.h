// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <vector>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

class Specification;
class SpecificationEntry;
class ViewControllerFactory;

/// What a specification may ask of those who keep it: the others beside it, and who makes views. A
/// manager hands itself over as one when it registers the specification.
class TAVRIN_CORE_EXPORT SpecificationRegistry
{
public:
    virtual ~SpecificationRegistry();

    /// The entry for a label or spec URL in the first specification that has it; null if none has.
    /// May load tables.
    virtual std::shared_ptr<SpecificationEntry> entry(const QString &label) const = 0;
    /// In the order of the list.
    virtual std::vector<std::shared_ptr<Specification>> specifications() const = 0;
    /// Null if none is.
    virtual std::shared_ptr<Specification> primarySpecification() const = 0;
    /// Null without windows.
    virtual ViewControllerFactory *viewControllerFactory() const = 0;
};

} // namespace Tavrin
