// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/audit/AuditWriter.h>

namespace Tavrin
{

/// A report as a table in UTF-8, by RFC 4180: a row for each entry and reference in document
/// order, then one for each unknown reference, with "cited" or "unknown" in the first column, and
/// then one for each demanded entry that nothing cites, "missing". Headings and these three words
/// are the same in every language.
///
/// References and what a document says may begin as a formula does, with "=", "+", "-", "@" or a
/// control. Spreadsheets would compute that, so such a cell has an apostrophe in front, unless it
/// is a number. Programs that need each text to the letter read JSON.
class CSVAuditWriter : public AuditWriter
{
public:
    void write(const AuditReport &report, QIODevice &device,
               const Progress &progress) const override;
};

} // namespace Tavrin
