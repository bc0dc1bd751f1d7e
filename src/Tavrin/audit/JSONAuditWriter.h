// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/audit/AuditWriter.h>

namespace Tavrin
{

/// A report as one JSON object: `specification`, `coverage`, `chapters`, `requirements`, `unknown`
/// and `entries`. `page` counts from 0 as in maps.
class JSONAuditWriter : public AuditWriter
{
public:
    void write(const AuditReport &report, QIODevice &device,
               const Progress &progress) const override;
};

} // namespace Tavrin
