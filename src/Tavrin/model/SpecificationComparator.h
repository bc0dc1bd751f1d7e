// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <compare>
#include <functional>
#include <utility>

namespace Tavrin
{

class Specification;

/// An ordering of specifications as an object: how a host hands one to the manager.
/// SpecificationManager::setSpecComparators takes the functions as they are; this is for hosts that
/// hold objects only.
class SpecificationComparator
{
public:
    /// `less` puts the first specification in front.
    ///
    /// Where it says `equivalent` the next comparator decides. Newest revision first, for example,
    /// if revisions are plain numbers of equal length:
    ///
    ///     [](const Specification &a, const Specification &b) -> std::weak_ordering {
    ///         return b.revision().compare(a.revision()) <=> 0;
    ///     }
    using Comparator =
        std::function<std::weak_ordering(const Specification &, const Specification &)>;

    /// `comparator` must not be empty.
    explicit SpecificationComparator(Comparator comparator) : m_comparator(std::move(comparator)) {}

    const Comparator &comparator() const { return m_comparator; }

private:
    Comparator m_comparator;
};

} // namespace Tavrin
