// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// The directory under which applications keep what belongs to the user, as the platform has it:
/// $XDG_DATA_HOME, else ~/.local/share (XDG Base Directory Specification 0.8). Asked anew each
/// time; absent if the platform names none. It need not exist. Any thread.
TAVRIN_CORE_EXPORT std::optional<QString> userDataDirectory();

/// Names this library among all that keep data there. The directory of imported files lies below
/// one of this name. Any thread.
TAVRIN_CORE_EXPORT QString libraryIdentifier();

/// Names the application among the hosts of this library: what setHostIdentifier was given, else
/// "organisation.application" by QCoreApplication, without the first if that is empty. Always good
/// for the name of a directory, "/" being replaced; empty if there is no name to go by. Any thread.
TAVRIN_CORE_EXPORT QString hostIdentifier();

/// For hosts that share their files with another, or want to be known under a name that they
/// don't show. An empty text goes back to the application's own name. Call it before files are
/// asked for. Any thread.
///
/// What was imported under another name stays there and is not found under this one.
TAVRIN_CORE_EXPORT void setHostIdentifier(const QString &identifier);

} // namespace Tavrin
