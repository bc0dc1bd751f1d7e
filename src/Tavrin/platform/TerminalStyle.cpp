// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/TerminalStyle.h>

#include <QRegularExpression>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

QString styled(int style, int color, const QString &text)
{
    return u"\x1b[%1;%2m"_s.arg(style).arg(color) + text + u"\x1b[0;39m"_s;
}

} // namespace

QString bold(const QString &text)
{
    return styled(1, 39, text);
}

QString red(const QString &text)
{
    return styled(0, 31, text);
}

QString yellow(const QString &text)
{
    return styled(0, 33, text);
}

QString green(const QString &text)
{
    return styled(0, 32, text);
}

QString cyan(const QString &text)
{
    return styled(0, 36, text);
}

QString withoutTerminalStyles(QString text)
{
    static const QRegularExpression style(u"\x1b\\[[0-9;]*m"_s);
    return text.remove(style);
}

} // namespace Tavrin
