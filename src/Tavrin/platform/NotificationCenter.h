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
///
/// An observer that touches widgets has to get to their thread by itself if others post. What the
/// library posts comes on the manager's thread.
class TAVRIN_CORE_EXPORT NotificationCenter
{
public:
    /// `object` is what the post named; whoever observed one knows its type.
    using Observer = std::function<void(const QString &name, const void *object)>;

    /// Keeps an observation alive; dropping it ends the observation.
    ///
    /// Hold it as long as the observer may be called: as a member, in most cases, behind what the
    /// observer uses.
    class Token;
    using TokenPtr = std::shared_ptr<Token>;

    /// One of the host's own, that nobody else posts to.
    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    /// The centre that the library itself posts to.
    static NotificationCenter &shared();

    /// Observes one name; of one object, or of all if it is null.
    ///
    /// The object is compared by its address and never looked into; nobody keeps it alive.
    [[nodiscard]] TokenPtr observe(const QString &name, const void *object, Observer observer);
    /// Calls everybody who observes this name, of this object or of all. What an observer throws
    /// passes through, and those behind it are not called.
    void post(const QString &name, const void *object);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace Tavrin
