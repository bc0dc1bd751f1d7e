// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/VerifierText.h>

#include <Tavrin/platform/StandardError.h>

#include <QRegularExpression>
#include <QSet>

namespace Tavrin::VerifierText
{

using namespace Qt::StringLiterals;

QStringList words(const QString &text)
{
    static const QRegularExpression expression(u"\\w+"_s,
                                               QRegularExpression::CaseInsensitiveOption |
                                                   QRegularExpression::UseUnicodePropertiesOption);
    if (!expression.isValid()) {
        standardError(u"Regex error: "_s + expression.errorString());
        return {};
    }
    QStringList result;
    for (auto matches = expression.globalMatch(text); matches.hasNext();)
        result += matches.next().captured();
    return result;
}

bool match(const QStringList &page, const QStringList &verifier)
{
    const auto asSet = [](const QStringList &list) {
        return QSet<QString>(list.begin(), list.end());
    };
    return page.size() == verifier.size() && asSet(page) == asSet(verifier);
}

} // namespace Tavrin::VerifierText
