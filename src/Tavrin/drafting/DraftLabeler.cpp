// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/DraftLabeler.h>

#include <Tavrin/drafting/TextKey.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavrin
{

DraftLabeler::DraftLabeler(std::vector<DraftItem> &items)
    : m_items(items), m_groups(items), m_lastIndex(items.size() + 1), m_unnumbered(items.size() + 1)
{
}

void DraftLabeler::label()
{
    findLastChapter();
    for (size_t i = 0; i < m_items.size(); ++i)
        labelItem(i);
}

void DraftLabeler::findLastChapter()
{
    QSet<QString> chapters;
    bool hasParts = false;
    qsizetype repeats = 0;
    for (size_t i = 0; i < m_items.size(); ++i) {
        const DraftItem &item = m_items[i];
        hasParts = hasParts || item.isPart;
        if (item.depth != 0 || item.isPart || !item.number)
            continue;
        m_lastNumbered = i;
        repeats += chapters.contains(item.number->text()) ? 1 : 0;
        chapters.insert(item.number->text());
        if (const int rank = item.number->ranks().front(); rank < HeadingNumber::letterRank)
            m_lastChapter = std::max(m_lastChapter, rank);
    }
    // A chapter that is merely listed twice does not begin a new count.
    m_isPartNumbered = hasParts && 5 * repeats > chapters.size();
}

std::vector<int> DraftLabeler::indexFromNumber(const DraftItem &item) const
{
    std::vector<int> index;
    if (m_isPartNumbered && m_part > 0)
        index.push_back(m_part);
    for (const int rank : item.number->ranks()) {
        const bool isLetter = rank > HeadingNumber::letterRank;
        const bool isFirst = index.empty() || (index.size() == 1 && m_isPartNumbered);
        index.push_back(isLetter ? rank - HeadingNumber::letterRank + (isFirst ? m_lastChapter : 0)
                                 : rank);
    }
    return index;
}

std::vector<int> DraftLabeler::indexOf(const HeadingNumber &number) const
{
    std::vector<int> index = number.ranks();
    for (std::size_t position = 0; position < index.size(); ++position) {
        if (index[position] > HeadingNumber::letterRank)
            index[position] += (position == 0 ? m_lastChapter : 0) - HeadingNumber::letterRank;
    }
    return index;
}

std::vector<int> DraftLabeler::indexWithoutNumber(size_t index)
{
    const int parent = m_groups.parent[index];
    const size_t group = parent < 0 ? m_items.size() : static_cast<size_t>(parent);
    const int position = ++m_unnumbered[group];
    std::vector<int> result = m_lastIndex[group];
    // Behind the chapters one goes on counting: a bibliography isn't part of the last one.
    if (parent < 0 && !result.empty() && index > m_lastNumbered)
        return {result.front() + position};
    if (result.empty() && parent >= 0)
        result = m_items[static_cast<size_t>(parent)].index;
    result.push_back(0);
    result.push_back(position);
    return result;
}

void DraftLabeler::labelItem(size_t index)
{
    DraftItem &item = m_items[index];
    const int parent = m_groups.parent[index];
    const size_t group = parent < 0 ? m_items.size() : static_cast<size_t>(parent);
    if (item.isPart) {
        ++m_part;
        m_partText = item.number ? item.number->text() : QString::number(m_part);
        item.index = m_isPartNumbered ? std::vector<int>{m_part} : std::vector<int>{0, m_part};
        item.printedLabel = uniqueLabel(u"Part %1"_s.arg(m_partText));
    } else if (item.number) {
        item.index = indexFromNumber(item);
        m_lastIndex[group] = item.index;
        m_unnumbered[group] = 0;
        const QString number = item.number->text();
        const bool isPrefixed = m_isPartNumbered && m_part > 0;
        item.printedLabel =
            uniqueLabel(isPrefixed ? m_partText + QLatin1Char('.') + number : number);
    } else {
        item.index = indexWithoutNumber(index);
        const QString slug = TextKey::slug(item.title);
        item.printedLabel = uniqueLabel(slug.isEmpty() ? u"section"_s : slug);
    }
}

QString DraftLabeler::uniqueLabel(const QString &wanted)
{
    if (!m_labels.contains(wanted)) {
        m_labels.insert(wanted);
        return wanted;
    }
    ++m_duplicates;
    int &next = m_nextSuffix[wanted];
    QString label;
    do {
        next = std::max(next, 1) + 1;
        label = u"%1-%2"_s.arg(wanted).arg(next);
    } while (m_labels.contains(label));
    m_labels.insert(label);
    return label;
}

} // namespace Tavrin
