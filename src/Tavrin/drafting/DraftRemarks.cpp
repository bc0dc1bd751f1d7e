// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/DraftRemarks.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavrin
{

void DraftRemarks::add(const QString &kind, const QString &example)
{
    constexpr int mostExamples = 3;
    constexpr qsizetype longestExample = 60;
    auto it = std::find_if(m_kinds.begin(), m_kinds.end(),
                           [&](const Kind &known) { return known.text == kind; });
    if (it == m_kinds.end())
        it = m_kinds.insert(m_kinds.end(), {kind, 0, {}});
    ++it->cases;
    if (it->examples.size() < mostExamples)
        it->examples.append(QLatin1Char('"') + example.left(longestExample) + QLatin1Char('"'));
}

void DraftRemarks::add(const QString &sentence)
{
    m_kinds.push_back({sentence, 0, {}});
}

QStringList DraftRemarks::sentences() const
{
    QStringList result;
    for (const Kind &kind : m_kinds) {
        if (kind.cases == 0) {
            result.append(kind.text);
            continue;
        }
        QString sentence =
            u"%1 (%2): %3"_s.arg(kind.text).arg(kind.cases).arg(kind.examples.join(u", "_s));
        if (kind.cases > kind.examples.size())
            sentence += u", …"_s;
        result.append(sentence);
    }
    return result;
}

} // namespace Tavrin
