// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

namespace Tavrin::FileFlags
{

/// Whether the file system locks the file against being changed or deleted, which is no matter of
/// permissions. Absent if that can't be read: no such file, or a file system without such flags.
std::optional<bool> isImmutable(const QString &path);

/// Locks or unlocks the file; whether that was allowed. The system may keep it to the
/// administrator.
bool setImmutable(const QString &path, bool immutable);

} // namespace Tavrin::FileFlags
