// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/manager/EntryFinder.h>

#include <QSet>

#include <algorithm>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using Hit = EntryFinder::Hit;
using Reference = ReferenceResolver::Reference;

QString describe(Hit::Reason reason)
{
    switch (reason) {
    case Hit::Reason::Reference:
        return localized("reference", "where a search matched");
    case Hit::Reason::Title:
        return localized("title", "where a search matched");
    case Hit::Reason::Number:
        return localized("number", "where a search matched");
    case Hit::Reason::Keyword:
        break;
    case Hit::Reason::Punctuation:
        return localized("with punctuation left out", "how a search matched");
    }
    return {};
}

Hit explain(const EntryFinder::EntryPtr &entry, const QStringList &words, Qt::CaseSensitivity cs)
{
    const auto holds = [&](const QString &text) {
        return std::any_of(words.begin(), words.end(),
                           [&](const QString &word) { return text.contains(word, cs); });
    };
    Hit hit{entry, {}, {}};
    if (holds(entry->title()))
        hit.reasons.push_back(Hit::Reason::Title);
    if (holds(entry->indexString()))
        hit.reasons.push_back(Hit::Reason::Number);
    for (const QString &keyword : entry->keywords()) {
        if (holds(keyword))
            hit.keywords += keyword;
    }
    if (!hit.keywords.isEmpty())
        hit.reasons.push_back(Hit::Reason::Keyword);
    if (hit.reasons.empty())
        hit.reasons.push_back(Hit::Reason::Punctuation);
    return hit;
}

} // namespace

EntryFinder::EntryFinder(SpecificationManager &manager) : m_manager(manager) {}

EntryFinder::~EntryFinder() = default;

std::vector<EntryFinder::SpecificationPtr> EntryFinder::specifications()
{
    auto specifications = m_manager.specifications();
    for (const auto &first : {m_manager.primarySpecification(), preferred()}) {
        const auto place = std::find(specifications.begin(), specifications.end(), first);
        if (place != specifications.end())
            std::rotate(specifications.begin(), place, std::next(place));
    }
    for (const auto &specification : specifications) {
        if (specification->entries().isEmpty())
            specification->loadStructure();
    }
    return specifications;
}

const ReferenceResolver &EntryFinder::resolverFor(const SpecificationPtr &specification)
{
    std::erase_if(m_readings,
                  [](const Reading &reading) { return reading.specification.expired(); });
    const auto known =
        std::find_if(m_readings.begin(), m_readings.end(), [&](const Reading &reading) {
            return reading.specification.lock() == specification;
        });
    const qsizetype size = specification->entries().size();
    if (known != m_readings.end() && known->size == size)
        return *known->resolver;
    if (known != m_readings.end())
        m_readings.erase(known);
    m_readings.push_back(
        {specification, size, std::make_unique<ReferenceResolver>(*specification)});
    return *m_readings.back().resolver;
}

std::vector<Reference> EntryFinder::resolve(const QString &text)
{
    std::vector<Reference> unknown{{text, {}}};
    if (SpecURL::hasReversedLines(text))
        return unknown;
    if (const auto first = preferred()) {
        if (auto entry = first->entry(text))
            return {{text, {std::move(entry)}}};
    }
    if (auto entry = m_manager.entry(text))
        return {{text, {std::move(entry)}}};
    for (const auto &specification : specifications()) {
        auto references = resolverFor(specification).resolve(text);
        const bool knowsOne =
            std::any_of(references.begin(), references.end(),
                        [](const Reference &reference) { return !reference.entries.empty(); });
        if (knowsOne)
            return references;
        if (!references.empty())
            unknown = std::move(references);
    }
    return unknown;
}

std::vector<Hit> EntryFinder::search(const Specification &specification, const QString &text,
                                     SearchOptions options) const
{
    const QStringList words = options.testFlag(SearchOption::MatchEntireString)
                                  ? QStringList{text}
                                  : text.simplified().split(u' ', Qt::SkipEmptyParts);
    const auto sensitivity =
        options.testFlag(SearchOption::CaseSensitive) ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const auto entries = specification.searchEntries(text, options);
    std::vector<Hit> hits;
    hits.reserve(entries.size());
    for (const auto &entry : entries)
        hits.push_back(explain(entry, words, sensitivity));
    return hits;
}

std::vector<Hit> EntryFinder::suggestions(const QString &text, std::size_t limit)
{
    const QString typed = text.trimmed();
    std::vector<Hit> hits;
    QSet<const SpecificationEntry *> seen;
    const auto add = [&](Hit hit) {
        if (hits.size() < limit && !seen.contains(hit.entry.get())) {
            seen.insert(hit.entry.get());
            hits.push_back(std::move(hit));
        }
    };
    if (typed.isEmpty())
        return hits;
    for (const Reference &reference : resolve(typed)) {
        for (const auto &entry : reference.entries)
            add({entry, {Hit::Reason::Reference}, {}});
    }
    const QStringList words = typed.simplified().split(u' ');
    for (const auto &specification : specifications()) {
        if (hits.size() >= limit)
            break;
        // Reasons are told of the few that are shown, not of all that are found.
        for (const auto &entry : specification->searchEntries(typed, {})) {
            if (hits.size() >= limit)
                break;
            add(explain(entry, words, Qt::CaseInsensitive));
        }
    }
    return hits;
}

QString description(const EntryFinder::Hit &hit)
{
    QStringList parts;
    for (const Hit::Reason reason : hit.reasons) {
        if (reason != Hit::Reason::Keyword)
            parts += describe(reason);
    }
    for (const QString &keyword : hit.keywords)
        parts += localized("keyword %1", "where a search matched").arg(keyword);
    return parts.join(u", "_s);
}

} // namespace Tavrin
