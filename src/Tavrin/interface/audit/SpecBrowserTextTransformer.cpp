// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/SpecBrowserTextTransformer.h>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

QString SpecBrowserTextTransformer::transformedValue(const QVariant &value)
{
    const QString text = value.typeId() == QMetaType::QString ? value.toString() : QString();
    return text.isEmpty() ? localized("<no value>", "spec audit message") : text;
}

} // namespace Tavrin
