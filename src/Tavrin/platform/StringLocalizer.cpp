// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/StringLocalizer.h>

#include <QCoreApplication>

namespace Tavrin
{

QString localized(const char *key, const char *comment)
{
    return QCoreApplication::translate("Tavrin", key, comment);
}

} // namespace Tavrin
