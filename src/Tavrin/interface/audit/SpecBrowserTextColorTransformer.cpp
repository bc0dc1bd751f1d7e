// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/SpecBrowserTextColorTransformer.h>

namespace Tavrin
{

QColor SpecBrowserTextColorTransformer::transformedValue(const QVariant &value,
                                                         const QPalette &palette)
{
    return palette.color(value.toString().isEmpty() ? QPalette::PlaceholderText : QPalette::Text);
}

} // namespace Tavrin
