// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/audit/AuditReport.h>

/// What a report tells people, in the user's language: the same in a document and on a terminal.
namespace Tavrin::AuditSentences
{

/// "theora-specification, revision 2017"; empty if it has neither.
QString revision(const Specification &specification);

/// How many entries are cited, by how many references, and how much is covered. Two lines.
TAVRIN_CORE_EXPORT QStringList counts(const AuditReport &report);

/// "12 of 40 covered, 30.0 %"
TAVRIN_CORE_EXPORT QString share(const AuditShare &share);

/// "66.6 %", to a tenth.
TAVRIN_CORE_EXPORT QString percentage(double percent);

/// Whether a demand is met, and what is missing. In the user's language.
struct Verdict {
    bool isGood = false;
    QString text;
    /// The entries that are missing, a line each.
    QStringList missing;
};
/// One for each required pattern in the order of the demands, then one for the coverage, if one is
/// demanded. Empty where nothing is.
TAVRIN_CORE_EXPORT std::vector<Verdict> verdicts(const AuditReport &report);

/// "refs.txt:12: 4.99 is unknown (REQ-7); nearest: 4.9  Motion"
///
/// Location, label and suggestion are left out where there are none.
TAVRIN_CORE_EXPORT QString unknown(const AuditReport::Unknown &unknown);

/// "REQ-12 (4.2.1, refs.txt:3), Fig. 3-7"
QString citedBy(const AuditReport::Citation &citation);

/// That text and pictures are left out, and why.
QString notShown();

} // namespace Tavrin::AuditSentences
