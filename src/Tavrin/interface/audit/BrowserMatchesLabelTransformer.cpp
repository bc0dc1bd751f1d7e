// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/BrowserMatchesLabelTransformer.h>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

QString BrowserMatchesLabelTransformer::transformedValue(std::optional<qsizetype> count)
{
    return count ? localized("%1 matches", "spec audit search").arg(*count)
                 : localized("No matches", "spec audit search");
}

} // namespace Tavrin
