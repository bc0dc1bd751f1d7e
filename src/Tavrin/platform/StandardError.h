// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Writes a line to the process's standard error, as UTF-8 and in one piece. Any thread. Here the
/// library tells what is wrong with a map or a PDF where it goes on all the same: an entry without
/// a place, for example. A line end is added.
TAVRIN_CORE_EXPORT void standardError(const QString &message);

/// Sends what standardError writes somewhere else while the object lives: into a host's log, or
/// into a test. The newest redirection counts. The receiver may be called from any thread.
///
/// Redirections end in the order opposite to that in which they began.
class TAVRIN_CORE_EXPORT StandardErrorRedirection
{
public:
    using Receiver = std::function<void(const QString &message)>;

    /// From now on the receiver gets each line, without its end, in place of the process's stream.
    explicit StandardErrorRedirection(Receiver receiver);
    ~StandardErrorRedirection();
    StandardErrorRedirection(const StandardErrorRedirection &) = delete;
    StandardErrorRedirection &operator=(const StandardErrorRedirection &) = delete;
};

} // namespace Tavrin
