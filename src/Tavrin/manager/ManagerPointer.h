// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/NotificationCenter.h>

namespace Tavrin
{

class SpecificationManager;

/// A manager, or null once that has ended.
///
/// A view keeps one of these, since a host may end its manager before its windows: the view then
/// goes on to show what it has, and finds and displays nothing more. On the manager's thread.
class TAVRIN_CORE_EXPORT ManagerPointer
{
public:
    /// Keeps nothing alive.
    explicit ManagerPointer(SpecificationManager &manager);

    SpecificationManager *get() const { return m_lifetime.expired() ? nullptr : m_manager; }

    /// Calls after each change of the manager's list of files, as long as the manager lives and the
    /// token is kept.
    [[nodiscard]] NotificationCenter::TokenPtr observeFiles(std::function<void()> changed) const;

private:
    SpecificationManager *m_manager;
    std::weak_ptr<const void> m_lifetime;
};

} // namespace Tavrin
