// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>
#include <memory>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Tells whoever asked that something of a name has happened to an object.
///
/// Observers are called on the posting thread, in the order in which they were added, before
/// post() returns; one that adds or drops observers meanwhile changes the next post. Any thread.
class TAVRIN_CORE_EXPORT NotificationCenter
{
public:
    using Observer = std::function<void(const QString &name, const void *object)>;

    /// Keeps an observation alive; dropping it ends the observation.
    class Token;
    using TokenPtr = std::shared_ptr<Token>;

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    /// The centre that the library itself posts to.
    static NotificationCenter &shared();

    /// Observes one name; of one object, or of all if it is null.
    [[nodiscard]] TokenPtr observe(const QString &name, const void *object, Observer observer);
    void post(const QString &name, const void *object);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace Tavrin
