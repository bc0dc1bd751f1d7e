// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>

#include <vector>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// How often each term stands in a text; or any other number for each of some texts. Remembers the
/// order in which they were first seen, so whatever walks them has one order.
///
/// A value. Even reading may build a table inside, so one thread at a time.
class TAVRIN_CORE_EXPORT TermCounts
{
public:
    /// A term and how much it counts.
    struct Term {
        QString text;
        double count = 0;

        friend bool operator==(const Term &, const Term &) = default;
    };

    /// Adds to a term's count; a term that wasn't there begins at `start`.
    void add(const QString &term, double count, double start = 0);
    /// Adds all of another's, each times a factor.
    void add(const TermCounts &other, double factor = 1);

    /// Whether the term was ever added, with whatever count.
    bool contains(const QString &term) const;
    /// 0 for a term that isn't there.
    double value(const QString &term) const;

    bool isEmpty() const { return m_terms.empty(); }
    std::size_t size() const { return m_terms.size(); }
    /// Forgets all terms.
    void clear();

    /// In the order in which the terms were first seen. Iterators end with the next change.
    std::vector<Term>::const_iterator begin() const { return m_terms.begin(); }
    std::vector<Term>::const_iterator end() const { return m_terms.end(); }

    /// Gives back what is needed for adding and looking up; the next call that needs it makes it
    /// anew. For the many that are kept for walking alone.
    void squeeze();

    friend bool operator==(const TermCounts &a, const TermCounts &b)
    {
        return a.m_terms == b.m_terms;
    }

private:
    void makePositions() const;

    std::vector<Term> m_terms;
    mutable QHash<QString, std::size_t> m_positions;
};

} // namespace Tavrin
