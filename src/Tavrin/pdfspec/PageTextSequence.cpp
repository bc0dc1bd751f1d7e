// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/PageTextSequence.h>

#include <algorithm>

namespace Tavrin
{

qsizetype FilteredPage::filteredPosition(qsizetype pagePosition) const
{
    const auto it =
        std::find_if(mappings.begin(), mappings.end(), [pagePosition](const RangeMapping &mapping) {
            return pagePosition < mapping.page.end();
        });
    if (it == mappings.end())
        return text.length();
    return it->filtered.location + std::max<qsizetype>(0, pagePosition - it->page.location);
}

} // namespace Tavrin
