// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <mutex>

#include <Tavrin/model/SpecificationRegistry.h>

namespace Tavrin
{

class SpecificationManager;

/// A manager as its specifications see it. Answers with nothing once the manager has gone, which
/// may happen while an entry is being shown on another thread.
class ManagedRegistry : public SpecificationRegistry
{
public:
    explicit ManagedRegistry(const SpecificationManager &manager);

    /// The manager goes. Waits for whoever asks it something.
    void close();

    std::shared_ptr<SpecificationEntry> entry(const QString &label) const override;
    std::vector<std::shared_ptr<Specification>> specifications() const override;
    std::shared_ptr<Specification> primarySpecification() const override;
    ViewControllerFactory *viewControllerFactory() const override;

private:
    /// A specification that is asked for an entry may ask others in turn.
    mutable std::recursive_mutex m_mutex;
    const SpecificationManager *m_manager;
};

} // namespace Tavrin
