// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditReport.h>

#include <Tavrin/model/PrintedNumber.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <algorithm>

namespace Tavrin
{

QString AuditReport::Chapter::title() const
{
    if (!entry)
        return localized("Outside of chapters", "spec audit message");
    return (PrintedNumber::number(*entry) + u' ' + entry->title()).trimmed();
}

int AuditReport::citedEntries() const
{
    int count = 0;
    for (const Chapter &chapter : chapters)
        count += chapter.cited;
    return count;
}

bool AuditReport::isCoverageMet() const
{
    return !minimumCoverage || coverage.all == 0 ||
           100.0 * coverage.covered >= *minimumCoverage * coverage.all;
}

bool AuditReport::areDemandsMet() const
{
    return isCoverageMet() && std::all_of(requirements.begin(), requirements.end(),
                                          [](const Requirement &one) { return one.isMet(); });
}

} // namespace Tavrin
