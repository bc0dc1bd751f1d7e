// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/audit/AuditWriter.h>

namespace Tavrin
{

/// A report in the XML form of test results that continuous integration servers read.
///
/// The suite "references" has a case for each reference, which fails if the reference is unknown;
/// "requirements" one for each pattern, which fails if an entry that it demands is not cited, or
/// no entry matches; "coverage" one for the least percentage. Suites without cases are left out.
/// Nothing in it depends on time or language.
class JUnitAuditWriter : public AuditWriter
{
public:
    void write(const AuditReport &report, QIODevice &device,
               const Progress &progress) const override;
};

} // namespace Tavrin
