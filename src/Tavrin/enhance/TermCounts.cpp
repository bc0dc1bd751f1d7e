// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/TermCounts.h>

namespace Tavrin
{

void TermCounts::add(const QString &term, double count, double start)
{
    makePositions();
    auto position = m_positions.constFind(term);
    if (position == m_positions.constEnd()) {
        position = m_positions.insert(term, m_terms.size());
        m_terms.push_back({term, start});
    }
    m_terms[*position].count += count;
}

void TermCounts::add(const TermCounts &other, double factor)
{
    for (const Term &term : other.m_terms)
        add(term.text, term.count * factor);
}

bool TermCounts::contains(const QString &term) const
{
    makePositions();
    return m_positions.contains(term);
}

double TermCounts::value(const QString &term) const
{
    makePositions();
    const auto position = m_positions.constFind(term);
    return position == m_positions.constEnd() ? 0 : m_terms[*position].count;
}

void TermCounts::clear()
{
    m_terms.clear();
    m_positions.clear();
}

void TermCounts::squeeze()
{
    m_positions = {};
    m_terms.shrink_to_fit();
}

void TermCounts::makePositions() const
{
    if (!m_positions.isEmpty() || m_terms.empty())
        return;
    m_positions.reserve(static_cast<qsizetype>(m_terms.size()));
    for (std::size_t position = 0; position < m_terms.size(); ++position)
        m_positions.insert(m_terms[position].text, position);
}

} // namespace Tavrin
