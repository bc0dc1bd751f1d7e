// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/FoldedText.h>

namespace Tavrin
{

namespace
{

QChar plain(QChar c)
{
    switch (c.unicode()) {
    case 0x2018:
    case 0x2019:
        return u'\'';
    case 0x201C:
    case 0x201D:
        return u'"';
    case 0x2010:
    case 0x2011:
    case 0x2012:
    case 0x2013:
    case 0x2014:
    case 0x2212:
        return u'-';
    default:
        return c.isSpace() ? QChar(u' ') : c;
    }
}

bool breaksWord(const QString &text, qsizetype index)
{
    return index > 0 && index + 2 < text.size() && plain(text[index]) == u'-' &&
           text[index + 1] == u'\n' && text[index - 1].isLetter() && text[index + 2].isLower();
}

} // namespace

FoldedText::FoldedText(const QString &text)
{
    m_folded.reserve(text.size());
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (breaksWord(text, index)) {
            ++index;
            continue;
        }
        const QChar c = plain(text[index]);
        if (c == u' ' && m_folded.endsWith(u' '))
            continue;
        m_folded.append(c);
        m_origin.push_back(index);
    }
    m_origin.push_back(text.size());
}

std::vector<TextRange> FoldedText::rangesOf(const QString &phrase) const
{
    QString wanted = phrase.simplified();
    for (QChar &c : wanted)
        c = plain(c);
    std::vector<TextRange> ranges;
    if (wanted.isEmpty())
        return ranges;
    qsizetype at = m_folded.indexOf(wanted, 0, Qt::CaseInsensitive);
    while (at >= 0) {
        const qsizetype last = at + wanted.size() - 1;
        const qsizetype from = m_origin[static_cast<std::size_t>(at)];
        ranges.push_back({from, m_origin[static_cast<std::size_t>(last)] + 1 - from});
        at = m_folded.indexOf(wanted, last + 1, Qt::CaseInsensitive);
    }
    return ranges;
}

} // namespace Tavrin
