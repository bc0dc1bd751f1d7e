// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/manager/ManagerPointer.h>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/manager/TavrinConstants.h>

#include <utility>

namespace Tavrin
{

ManagerPointer::ManagerPointer(SpecificationManager &manager)
    : m_manager(&manager), m_lifetime(manager.lifetime())
{
}

NotificationCenter::TokenPtr ManagerPointer::observeFiles(std::function<void()> changed) const
{
    // Another manager may come to lie where this one was.
    return NotificationCenter::shared().observe(
        TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification, m_manager,
        [lifetime = m_lifetime, changed = std::move(changed)](const QString &, const void *) {
            if (!lifetime.expired())
                changed();
        });
}

} // namespace Tavrin
