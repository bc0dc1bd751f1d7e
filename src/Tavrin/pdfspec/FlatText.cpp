// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/FlatText.h>

#include <Tavrin/platform/CharacterSet.h>

#include <cstdlib>

namespace Tavrin
{

FlatText::FlatText(QStringView text)
{
    bool isGap = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (CharacterSet::isWhiteSpaceOrNewline(text[i])) {
            isGap = !m_string.isEmpty();
            continue;
        }
        if (isGap) {
            m_string += u' ';
            m_positions.push_back(i - 1);
        }
        isGap = false;
        m_string += text[i];
        m_positions.push_back(i);
    }
}

std::optional<TextRange> FlatText::find(const QString &flat, qsizetype hint, qsizetype from) const
{
    std::optional<TextRange> nearest;
    if (flat.isEmpty())
        return nearest;
    for (qsizetype at = m_string.indexOf(flat); at >= 0; at = m_string.indexOf(flat, at + 1)) {
        const qsizetype begin = m_positions[static_cast<std::size_t>(at)];
        const qsizetype end = m_positions[static_cast<std::size_t>(at + flat.size() - 1)] + 1;
        const bool isNearer =
            !nearest || std::abs(begin - hint) < std::abs(nearest->location - hint);
        if (begin >= from && isNearer)
            nearest = TextRange{begin, end - begin};
    }
    return nearest;
}

} // namespace Tavrin
