// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/manager/ManagedRegistry.h>

#include <Tavrin/manager/SpecificationManager.h>

namespace Tavrin
{

ManagedRegistry::ManagedRegistry(const SpecificationManager &manager) : m_manager(&manager) {}

void ManagedRegistry::close()
{
    const std::scoped_lock lock(m_mutex);
    m_manager = nullptr;
}

std::shared_ptr<SpecificationEntry> ManagedRegistry::entry(const QString &label) const
{
    const std::scoped_lock lock(m_mutex);
    return m_manager ? m_manager->entry(label) : nullptr;
}

std::vector<std::shared_ptr<Specification>> ManagedRegistry::specifications() const
{
    const std::scoped_lock lock(m_mutex);
    return m_manager ? m_manager->specifications() : std::vector<std::shared_ptr<Specification>>();
}

std::shared_ptr<Specification> ManagedRegistry::primarySpecification() const
{
    const std::scoped_lock lock(m_mutex);
    return m_manager ? m_manager->primarySpecification() : nullptr;
}

ViewControllerFactory *ManagedRegistry::viewControllerFactory() const
{
    const std::scoped_lock lock(m_mutex);
    return m_manager ? m_manager->viewControllerFactory() : nullptr;
}

} // namespace Tavrin
