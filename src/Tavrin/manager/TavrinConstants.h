// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Names that a host meets at run time.
struct TAVRIN_CORE_EXPORT TavrinConstants {
    /// Posted, with the manager as object, whenever imported files were added or taken away.
    ///
    /// A specification may have been replaced by then, so ask the manager for its list anew.
    /// Observers are called on the manager's thread, before the operation that changed the files
    /// returns:
    ///
    ///     m_observation = NotificationCenter::shared().observe(
    ///         TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification, &manager,
    ///         [this](const QString &, const void *) { reload(); });
    static const QString SpecManagerAuxiliaryFilesChangedNotification;
};

} // namespace Tavrin
