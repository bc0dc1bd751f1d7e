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
class SpecType
{
public:
    using Maker = std::function<std::shared_ptr<Specification>(const QUrl &map,
                                                               const std::optional<QUrl> &dtd)>;

    explicit SpecType(Maker maker) : m_maker(std::move(maker)) {}

    /// The class T. `configure` runs on each new object before it reads its map.
    template <class T>
    static SpecType of(std::function<void(T &)> configure = {})
    {
        return SpecType([configure](const QUrl &map, const std::optional<QUrl> &dtd) {
            return T::template make<T>(map, dtd, {}, configure);
        });
    }

    /// Makes an object that reads its metadata from the map. Throws what reading throws.
    std::shared_ptr<Specification> make(const QUrl &map, const std::optional<QUrl> &dtd) const
    {
        return m_maker(map, dtd);
    }

private:
    Maker m_maker;
};

/// One row of the registry: the class that reads maps which satisfy the predicate.
struct SpecTypeDefinition {
    SpecType type;
    std::function<bool(const Specification &)> predicate;
};

/// The row that the registry begins with: maps that need one PDF. Defined where PDF
/// specifications are, since the model knows nothing of them.
SpecTypeDefinition builtinSpecTypeDefinition();

} // namespace Tavrin
