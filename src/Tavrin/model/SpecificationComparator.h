// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <compare>
#include <functional>
#include <utility>

namespace Tavrin
{

class Specification;

/// An ordering of specifications as an object: how a host hands one to the manager.
class SpecificationComparator
{
public:
    /// `less` puts the first specification in front.
    using Comparator =
        std::function<std::weak_ordering(const Specification &, const Specification &)>;

    explicit SpecificationComparator(Comparator comparator) : m_comparator(std::move(comparator)) {}

    const Comparator &comparator() const { return m_comparator; }

private:
    Comparator m_comparator;
};

} // namespace Tavrin
