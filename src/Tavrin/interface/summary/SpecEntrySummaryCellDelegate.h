// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace Tavrin
{

/// Hears of the links of a summary. SpecEntrySummaryViewController does what is usual. Main thread.
class SpecEntrySummaryCellDelegate
{
public:
    virtual ~SpecEntrySummaryCellDelegate() = default;
    /// A label, a spec URL or another URL. It comes out of a document: nobody has looked at it yet.
    virtual void summaryCellClickedLink(const QString &destination) = 0;
};

} // namespace Tavrin
