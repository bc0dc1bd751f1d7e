// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Writes a line to the process's standard output, as UTF-8 and in one piece, and lets it be seen
/// at once. For the progress of work that a person waits for at a terminal. Any thread.
/// PDFXMLEnhancer and PDFSpecAuditor::writeAuditRTF do so. A line end is added.
TAVRIN_CORE_EXPORT void standardOutput(const QString &message);

/// Sends what standardOutput writes somewhere else while the object lives. The newest redirection
/// counts. The receiver may be called from any thread.
///
/// Redirections end in the order opposite to that in which they began.
class TAVRIN_CORE_EXPORT StandardOutputRedirection
{
public:
    using Receiver = std::function<void(const QString &message)>;

    /// From now on the receiver gets each line, without its end, in place of the process's stream.
    explicit StandardOutputRedirection(Receiver receiver);
    ~StandardOutputRedirection();
    StandardOutputRedirection(const StandardOutputRedirection &) = delete;
    StandardOutputRedirection &operator=(const StandardOutputRedirection &) = delete;
};

} // namespace Tavrin
