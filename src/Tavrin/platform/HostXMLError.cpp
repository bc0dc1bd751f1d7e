// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/HostXMLError.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

QString located(const QString &file, int line, const QString &message)
{
    const QString place = line > 0 ? u"%1:%2: "_s.arg(file).arg(line) : file + u": "_s;
    return place + message;
}

} // namespace

HostXMLError::HostXMLError(Kind errorKind, const QString &fileName, int lineNumber,
                           const QString &text)
    : std::runtime_error(located(fileName, lineNumber, text).toStdString()),
      kind(errorKind),
      file(fileName),
      line(lineNumber),
      message(text)
{
}

} // namespace Tavrin
