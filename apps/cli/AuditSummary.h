// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/audit/AuditReport.h>

namespace Tavrin::Cli::AuditSummary
{

/// Counts, chapters and demands on standard output.
void print(const AuditReport &report);

/// What is at fault, unknown references and with `demands` demands that are not met, on standard
/// error.
void complain(const AuditReport &report, bool demands);

} // namespace Tavrin::Cli::AuditSummary
