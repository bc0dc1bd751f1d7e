// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/CellText.h>

#include <algorithm>

namespace Tavrin::CellText
{

namespace
{

bool isNonspacing(const QString &text, qsizetype at, qsizetype length)
{
    const char32_t c =
        length == 2 ? QChar::surrogateToUcs4(text[at], text[at + 1]) : char32_t(text[at].unicode());
    const auto category = QChar::category(c);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Takes the run of digits off the front of a text that begins with one, and its leading zeros.
QStringView takeNumber(QStringView &text)
{
    const auto *end = std::find_if_not(text.begin(), text.end(), isDigit);
    const auto *begin = std::find_if(text.begin(), end, [](QChar c) { return c != u'0'; });
    const QStringView number(begin, end);
    text = QStringView(end, text.end());
    return number;
}

int compareNumbers(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    return a.compare(b);
}

} // namespace

QString folded(const QString &text)
{
    const QString decomposed = text.normalized(QString::NormalizationForm_D);
    QString result;
    result.reserve(decomposed.size());
    for (qsizetype at = 0; at < decomposed.size();) {
        const bool isPair = decomposed[at].isHighSurrogate() && at + 1 < decomposed.size() &&
                            decomposed[at + 1].isLowSurrogate();
        const qsizetype length = isPair ? 2 : 1;
        if (decomposed[at].unicode() < 0x300 || !isNonspacing(decomposed, at, length))
            result += QStringView(decomposed).sliced(at, length);
        at += length;
    }
    // Only upper case takes apart what folds into two letters.
    const bool isPlain =
        std::all_of(result.begin(), result.end(), [](QChar c) { return c.unicode() < 0x80; });
    result = (isPlain ? std::move(result) : std::move(result).toUpper()).toCaseFolded();
    // Most texts are all lower case in the end, or nearly: one copy of those is enough.
    return result == text ? text : result;
}

int compareNaturally(QStringView a, QStringView b)
{
    while (!a.isEmpty() && !b.isEmpty()) {
        if (isDigit(a[0]) && isDigit(b[0])) {
            const QStringView first = takeNumber(a);
            const QStringView second = takeNumber(b);
            if (const int order = compareNumbers(first, second))
                return order;
        } else if (a[0] != b[0]) {
            return a[0] < b[0] ? -1 : 1;
        } else {
            a = a.sliced(1);
            b = b.sliced(1);
        }
    }
    return int(!a.isEmpty()) - int(!b.isEmpty());
}

} // namespace Tavrin::CellText
