// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/CharacterCount.h>

#include <QTextBoundaryFinder>

#include <algorithm>

namespace Tavrin
{

namespace
{

/// Units that are a character by themselves, whatever stands around them: Latin letters, and
/// general punctuation and symbols without joiners. Nearly all text is made of them alone.
bool standsAlone(QChar character)
{
    const ushort unit = character.unicode();
    if (unit < 0x300)
        return unit != '\r';
    return unit >= 0x200e && unit < 0x2c00 && (unit < 0x20d0 || unit > 0x20ff);
}

} // namespace

qsizetype characterCount(QStringView text)
{
    if (std::all_of(text.begin(), text.end(), standsAlone))
        return text.size();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    qsizetype count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

} // namespace Tavrin
