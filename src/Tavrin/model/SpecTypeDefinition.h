// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

class Specification;

/// A class of specifications as a value that can be constructed.
///
/// What a host hands to Specification::registerSpecType():
///
/// \snippet text-specification/TextSpecification.cpp register
class SpecType
{
public:
    /// Makes an object out of a map and the DTD that serves it if it has none of its own.
    using Maker = std::function<std::shared_ptr<Specification>(const QUrl &map,
                                                               const std::optional<QUrl> &dtd)>;

    /// For an object that is made in a way of its own; of() serves most.
    explicit SpecType(Maker maker) : m_maker(std::move(maker)) {}

    /// The class T. `configure` runs on each new object before it reads its map.
    /// T derives from Specification and has a constructor without arguments.
    template <class T>
    static SpecType of(std::function<void(T &)> configure = {})
    {
        return SpecType([configure](const QUrl &map, const std::optional<QUrl> &dtd) {
            return T::template make<T>(map, dtd, {}, configure);
        });
    }

    /// Makes an object that reads its metadata from the map. Throws what reading throws.
    ///
    /// Never null, unless the maker is a host's own and gives that.
    std::shared_ptr<Specification> make(const QUrl &map, const std::optional<QUrl> &dtd) const
    {
        return m_maker(map, dtd);
    }

private:
    Maker m_maker;
};

/// One row of the registry: the class that reads maps which satisfy the predicate.
///
/// The predicate is shown a plain Specification that has read the map's metadata and no entries.
struct SpecTypeDefinition {
    SpecType type;
    std::function<bool(const Specification &)> predicate;
};

/// The row that the registry begins with: maps that need one PDF. Defined where PDF
/// specifications are, since the model knows nothing of them.
SpecTypeDefinition builtinSpecTypeDefinition();

} // namespace Tavrin
