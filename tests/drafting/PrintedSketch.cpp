// SPDX-License-Identifier: Apache-2.0
#include "PrintedSketch.h"

#include <support/Test.h>

#include <QRandomGenerator>

namespace Tavrin::Testing
{

PrintedLine line(double x, double y, const QString &text, double size, bool isBold)
{
    PrintedLine result;
    result.text = text;
    result.bounds = {{x, y - 0.2 * size}, {0.5 * size * double(text.size()), size}};
    result.size = size;
    result.largestSize = size;
    result.beginsStyled = isBold;
    result.isBold = isBold;
    return result;
}

PrintedLine heading(double x, double y, const QString &text)
{
    return line(x, y, text, 14, true);
}

std::vector<PrintedLine> body(int page, double top, double bottom)
{
    static const QStringList words{u"the"_s,   u"device"_s, u"shall"_s,  u"report"_s, u"every"_s,
                                   u"state"_s, u"change"_s, u"before"_s, u"it"_s,     u"waits"_s};
    QRandomGenerator random(static_cast<quint32>(page));
    std::vector<PrintedLine> lines;
    for (int row = 0; top - 12 * row > bottom; ++row) {
        QString text;
        for (int i = 0; i < 12; ++i)
            text += words[random.bounded(words.size())] + u' ';
        lines.push_back(line(72, top - 12 * row, text.trimmed()));
    }
    return lines;
}

} // namespace Tavrin::Testing
