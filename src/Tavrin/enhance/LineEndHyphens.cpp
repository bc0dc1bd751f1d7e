// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/LineEndHyphens.h>

#include <algorithm>

namespace Tavrin
{

namespace
{

bool isHyphen(QChar character)
{
    return character == u'-' || character == u'\u2010' || character == u'\u00ad';
}

qsizetype letterRunBefore(QStringView text, qsizetype end)
{
    qsizetype first = end;
    while (first > 0 && text[first - 1].isLetter())
        --first;
    return first;
}

qsizetype letterRunBehind(QStringView text, qsizetype first)
{
    qsizetype end = first;
    while (end < text.size() && text[end].isLetter())
        ++end;
    return end;
}

/// "GNU-/Linux" are two words; "config-/ured" and "DECO-/RATION" one each.
bool mayGoOn(QStringView head, QStringView tail)
{
    return tail.front().isLower() || (head.size() > 1 && tail.size() > 1 &&
                                      head.toString().isUpper() && tail.toString().isUpper());
}

bool keepsHyphen(QStringView head, QStringView tail, const LinguisticTagger &tagger)
{
    return !tagger.isKnownWord(head.toString().append(tail)) &&
           tagger.isKnownWord(head.toString()) && tagger.isKnownWord(tail.toString());
}

} // namespace

QString withoutLineEndHyphens(const QString &text, const LinguisticTagger &tagger)
{
    QString result;
    qsizetype copied = 0;
    for (qsizetype end = text.indexOf(u'\n'); end >= 0; end = text.indexOf(u'\n', end + 1)) {
        const qsizetype hyphen = end - 1;
        if (hyphen < copied + 1 || !isHyphen(text[hyphen]))
            continue;
        const qsizetype headStart = letterRunBefore(text, hyphen);
        const qsizetype tailEnd = letterRunBehind(text, end + 1);
        if (headStart == hyphen || tailEnd == end + 1)
            continue;
        const auto head = QStringView(text).sliced(headStart, hyphen - headStart);
        const auto tail = QStringView(text).sliced(end + 1, tailEnd - end - 1);
        if (!mayGoOn(head, tail))
            continue;
        const bool keeps = text[hyphen] != u'\u00ad' && keepsHyphen(head, tail, tagger);
        result += QStringView(text).sliced(copied, hyphen - copied + (keeps ? 1 : 0));
        result += tail;
        copied = tailEnd;
    }
    return copied == 0 ? text : result.append(QStringView(text).sliced(copied));
}

} // namespace Tavrin
