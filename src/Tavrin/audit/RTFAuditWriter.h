// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/audit/AuditWriter.h>

namespace Tavrin
{

/// A report as rich text: the counts, what is unknown or missing, and a block for each cited entry.
/// Put together in memory, with the pictures as PNG.
class RTFAuditWriter : public AuditWriter
{
public:
    void write(const AuditReport &report, QIODevice &device,
               const Progress &progress) const override;
};

} // namespace Tavrin
