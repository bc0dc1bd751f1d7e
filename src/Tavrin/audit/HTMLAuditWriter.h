// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/audit/AuditWriter.h>

namespace Tavrin
{

/// A report as one page of HTML that loads nothing from elsewhere and runs no script: coverage by
/// chapter, what is unknown or missing, and each cited entry with its text or its picture. Written
/// entry by entry, so that no more than one entry's picture is in memory.
class HTMLAuditWriter : public AuditWriter
{
public:
    void write(const AuditReport &report, QIODevice &device,
               const Progress &progress) const override;
};

} // namespace Tavrin
