// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/NearestEntry.h>

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <numeric>

#include <Tavrin/model/PrintedNumber.h>
#include <Tavrin/model/SpecURL.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype longestReference = 200;

/// Case, and whether a number is written with dots or hyphens, make no difference.
QString folded(const QString &text)
{
    return text.toLower().replace(u'-', u'.').simplified();
}

/// A number with the kind in front of it, by the first letter of the word: "f3.7", "4.2".
QString withShortKind(const QString &text)
{
    static const QRegularExpression kind(
        u"^(?:(?<float>f|t)[a-z]*\\.?|§+|(?:sec|ch|cl|sub|app|annex)[a-z]*\\.?)\\s*(?=[a-z]?\\.?\\d|[a-z]$)"_s);
    const auto match = kind.match(text);
    return match.hasMatch() ? match.captured(u"float"_s) + text.mid(match.capturedLength()) : text;
}

/// The number that begins or goes on at a position; its digits may begin before.
int numberAt(const QString &text, qsizetype at)
{
    while (at > 0 && text[at - 1].isDigit())
        --at;
    qsizetype end = at;
    while (end < text.size() && text[end].isDigit())
        ++end;
    return QStringView(text).mid(at, std::min<qsizetype>(end - at, 6)).toInt();
}

/// The fewest insertions, deletions, replacements and exchanges of neighbours, none of a place
/// twice, that make one text of another; more than `limit` if there are more.
int alignment(const QString &a, const QString &b, int limit)
{
    if (std::abs(a.size() - b.size()) > limit)
        return limit + 1;
    const auto width = std::size_t(b.size()) + 1;
    std::array<std::vector<int>, 3> rows{std::vector<int>(width), std::vector<int>(width),
                                         std::vector<int>(width)};
    std::iota(rows[0].begin(), rows[0].end(), 0);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        const auto &before = rows[std::size_t(i + 1) % 3];
        const auto &above = rows[std::size_t(i - 1) % 3];
        auto &row = rows[std::size_t(i) % 3];
        row[0] = int(i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto at = std::size_t(j);
            const int replaced = above[at - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[at] = std::min({above[at] + 1, row[at - 1] + 1, replaced});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[at] = std::min(row[at], before[at - 2] + 1);
        }
        if (*std::min_element(row.begin(), row.end()) > limit + 1)
            return limit + 1;
    }
    return rows[std::size_t(a.size()) % 3].back();
}

} // namespace

NearestEntry::NearestEntry(const Specification &specification) : m_specification(specification)
{
    for (const EntryPtr &entry : specification.entries()) {
        const QString label = withShortKind(folded(entry->label()));
        const QString name = withShortKind(folded(PrintedNumber::name(*entry)));
        const QString kind = isTextual(entry->type()) ? QString() : textForm(entry->type()).left(1);
        const QString number = kind + folded(PrintedNumber::number(*entry));
        m_candidates.push_back({label, entry});
        if (number != label)
            m_candidates.push_back({number, entry});
        if (name != label && name != number)
            m_candidates.push_back({name, entry});
    }
}

NearestEntry::EntryPtr NearestEntry::find(const QString &reference) const
{
    const auto components = SpecURL::components(reference);
    const QString label = components && !components->isEmpty() ? components->front() : reference;
    const QString wanted = withShortKind(folded(label.left(longestReference)));
    std::optional<Distance> least;
    EntryPtr nearest;
    for (const Candidate &candidate : m_candidates) {
        const auto found = distance(wanted, candidate.text);
        if (found && (!least || *found < *least)) {
            least = found;
            nearest = candidate.entry;
        }
    }
    const bool hasWords =
        std::count_if(wanted.begin(), wanted.end(), [](QChar c) { return c.isLetter(); }) > 2;
    if (nearest || !hasWords)
        return nearest;
    const auto hits = m_specification.searchEntries(label.left(longestReference), SearchOptions());
    return hits.empty() ? nullptr : hits.front();
}

std::optional<NearestEntry::Distance> NearestEntry::distance(const QString &wanted,
                                                             const QString &text)
{
    // Numbers are short and much alike; words that differ by half are other words.
    const bool isNumbered =
        std::any_of(wanted.begin(), wanted.end(), [](QChar c) { return c.isDigit(); });
    const int limit = std::max(1, int(wanted.size()) / (isNumbered ? 2 : 3));
    const int changes = alignment(wanted, text, limit);
    if (changes > limit || text.isEmpty() || changes >= text.size())
        return std::nullopt;
    const auto [end, textEnd] =
        std::mismatch(wanted.begin(), wanted.end(), text.begin(), text.end());
    const qsizetype shared = end - wanted.begin();
    return Distance{changes, wanted.size() - shared,
                    std::abs(numberAt(wanted, shared) - numberAt(text, shared))};
}

} // namespace Tavrin
