// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/TitleMatcher.h>

#include <Tavrin/platform/CharacterSet.h>

namespace Tavrin
{

TitleMatcher::TitleMatcher(const QString &title) : m_plain(plain(title)) {}

QString TitleMatcher::plain(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text.normalized(QString::NormalizationForm_KC)) {
        const bool isDash = c.category() == QChar::Punctuation_Dash || c == QChar::SoftHyphen;
        const bool isQuote = c.category() == QChar::Punctuation_InitialQuote ||
                             c.category() == QChar::Punctuation_FinalQuote || c == u'`' ||
                             c == u'"' || c == u'„' || c == u'‚';
        if (isQuote)
            result += u'\'';
        else if (!isDash && !CharacterSet::isWhiteSpaceOrNewline(c))
            result += c;
    }
    return result;
}

bool TitleMatcher::isIn(const QString &printed) const
{
    // Nothing but ligatures makes a text longer, and those at most threefold.
    const bool canHold = !m_plain.isEmpty() && 3 * printed.size() >= m_plain.size();
    if (!canHold)
        return false;
    const QString text = plain(printed);
    // Capitals tell the names of chapters apart from words of a sentence, unless all are capitals.
    return text.contains(text.isUpper() ? m_plain.toUpper() : m_plain);
}

} // namespace Tavrin
