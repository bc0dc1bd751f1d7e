// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace Tavrin
{

/// Hears of the links of a summary.
class SpecEntrySummaryCellDelegate
{
public:
    virtual ~SpecEntrySummaryCellDelegate() = default;
    /// A label, a spec URL or another URL.
    virtual void summaryCellClickedLink(const QString &destination) = 0;
};

} // namespace Tavrin
