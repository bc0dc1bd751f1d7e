// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include <Tavrin/audit/AuditFormat.h>
#include <Tavrin/audit/AuditReport.h>

class QIODevice;

namespace Tavrin
{

/// Writes a report in one format. What the report holds is in every format, with equal counts;
/// texts of the specification are left out where it allows no previews.
class AuditWriter
{
public:
    using Progress = std::function<void(double)>;

    static std::unique_ptr<AuditWriter> make(AuditFormat format);

    virtual ~AuditWriter() = default;

    /// Calls `progress`, if there is one, with a fraction as each entry is done. Throws AuditError
    /// if the device takes no more.
    virtual void write(const AuditReport &report, QIODevice &device,
                       const Progress &progress) const = 0;

protected:
    static void put(QIODevice &device, const QByteArray &bytes);
    static void put(QIODevice &device, const QString &text);
    static void tell(const Progress &progress, std::size_t done, std::size_t all);
};

} // namespace Tavrin
