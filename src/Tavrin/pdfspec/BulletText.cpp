// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/BulletText.h>

#include <Tavrin/platform/StyledTextEditing.h>
#include <Tavrin/platform/SystemFont.h>

namespace Tavrin::BulletText
{

using namespace Qt::StringLiterals;

namespace
{

constexpr char16_t blackCircle = u'●';

} // namespace

void beginLines(StyledText &text)
{
    const QString inLine = QString(u' ') + blackCircle;
    for (qsizetype at = text.string().indexOf(inLine); at >= 0;
         at = text.string().indexOf(inLine, at + 1))
        text.replaceCharacters({at, 1}, StyledText(u"\n"_s, text.attributesAt(at)));
}

void replaceBullets(StyledText &text)
{
    qsizetype at = text.string().indexOf(blackCircle);
    if (at < 0)
        return;
    const TextFont font = StyledTextEditing::primaryFont(text).value_or(systemFont(systemFontSize));
    TextAttributes attributes;
    attributes.font = font;
    const StyledText bullet(u"∙"_s, attributes);
    for (; at >= 0; at = text.string().indexOf(blackCircle, at + 1))
        text.replaceCharacters({at, 1}, bullet);
}

} // namespace Tavrin::BulletText
