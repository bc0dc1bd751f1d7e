// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/HostPDFError.h>

namespace Tavrin
{

HostPDFError::HostPDFError(Kind errorKind, const QString &fileName, const QString &text)
    : std::runtime_error((fileName + QStringLiteral(": ") + text).toStdString()),
      kind(errorKind),
      file(fileName),
      message(text)
{
}

} // namespace Tavrin
