// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <typeindex>

namespace Tavrin
{

class Specification;
class SpecificationEntry;

/// A class of entries as a value: what a specification makes its entries of.
///
/// A kind of specification that has entries of its own returns one from
/// Specification::entryClass():
///
/// \snippet text-specification/TextSpecification.cpp entry class
class EntryClass
{
public:
    /// The class T, which derives from SpecificationEntry and can be made of a pointer to its
    /// specification.
    template <class T>
    static EntryClass of()
    {
        return EntryClass(typeid(T),
                          [](const std::shared_ptr<Specification> &specification)
                              -> std::shared_ptr<SpecificationEntry> {
                              return std::make_shared<T>(specification);
                          });
    }

    /// A new entry of that class, in no table yet. Never null.
    std::shared_ptr<SpecificationEntry> make(const std::shared_ptr<Specification> &owner) const
    {
        return m_make(owner);
    }

    /// By which two values can be compared: equal for the same class.
    std::type_index type() const { return m_type; }

private:
    using Maker = std::shared_ptr<SpecificationEntry> (*)(const std::shared_ptr<Specification> &);

    EntryClass(std::type_index entryType, Maker maker) : m_type(entryType), m_make(maker) {}

    std::type_index m_type;
    Maker m_make;
};

} // namespace Tavrin
