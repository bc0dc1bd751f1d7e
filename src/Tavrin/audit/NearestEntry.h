// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <optional>
#include <tuple>
#include <vector>

#include <Tavrin/model/Specification.h>

namespace Tavrin
{

/// Finds the entry that an unknown reference was perhaps meant for, by the fewest changed
/// characters of label or number (optimal string alignment); of equals, the one that begins the
/// same for longer, and then the one with the nearest number. Words that are like no label are
/// searched for in titles.
///
/// Reads the table when made. Each question costs the number of entries times the length of the
/// reference, squared.
class NearestEntry
{
public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;

    explicit NearestEntry(const Specification &specification);

    /// Null if nothing is near: more than half of the characters of a number, or a
    /// third of those of a word, would have to change.
    EntryPtr find(const QString &reference) const;

private:
    struct Candidate {
        QString text;
        EntryPtr entry;
    };
    /// Smaller is nearer.
    struct Distance {
        int changes = 0;
        qsizetype differingTail = 0;
        int numbersApart = 0;
        friend bool operator<(const Distance &a, const Distance &b)
        {
            return std::tie(a.changes, a.differingTail, a.numbersApart) <
                   std::tie(b.changes, b.differingTail, b.numbersApart);
        }
    };

    static std::optional<Distance> distance(const QString &wanted, const QString &text);

    const Specification &m_specification;
    std::vector<Candidate> m_candidates;
};

} // namespace Tavrin
