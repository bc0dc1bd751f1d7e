// SPDX-License-Identifier: Apache-2.0
// Search with two words over 10,000 entries, against one plain scan of the same texts; and
// look-up by label, which should not notice how many entries there are.
#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include <Tavrin/model/Specification.h>

#include <support/Figures.h>
#include <support/RatioBenchmark.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int searchedEntries = 10'000;
constexpr int lookUps = 20'000;

std::shared_ptr<Specification> withTitles()
{
    const QStringList words{u"Implicit"_s,   u"conversion"_s, u"Lifetime"_s, u"of objects"_s,
                            u"Overload"_s,   u"resolution"_s, u"Storage"_s,  u"duration and"_s,
                            u"declarator"_s, u"Template"_s,   u"argument"_s};
    const auto word = [&words](int seed) { return words[seed % words.size()]; };
    const auto specification = Specification::make<Specification>();
    for (int i = 0; i < searchedEntries; ++i) {
        const QString title =
            word(i) + u' ' + word(i / 11) + u' ' + word(i / 121 + 3) + u' ' + word(i * 7 + 1);
        auto entry = std::make_shared<SpecificationEntry>(
            specification, QString::number(i), title, SpecificationEntryType::Section,
            std::vector<int>{i / 400, i / 20 % 20, i % 20});
        entry->setKeywords({word(i * 3), word(i * 5 + 2), u"keyword"_s, word(i + 4)});
        specification->add(entry);
    }
    return specification;
}

std::shared_ptr<Specification> withLabels(int count)
{
    const auto specification = Specification::make<Specification>();
    for (int i = 0; i < count; ++i) {
        const auto entry = specification->newEntry();
        entry->setLabel(u"Label %1"_s.arg(i));
        specification->add(entry);
    }
    return specification;
}

/// By exact label and by one in other case, in turn.
void lookUp(Specification &specification)
{
    for (int i = 0; i < lookUps; ++i) {
        const QString label = (i % 2 == 0 ? u"Label %1"_s : u"LABEL %1"_s).arg(i % 1000);
        if (!specification.entry(label))
            throw std::runtime_error("an entry was not found");
    }
}

} // namespace

void registerSearchFigures()
{
    const auto specification = withTitles();
    auto texts = std::make_shared<std::vector<QStringList>>();
    for (const auto &entry : specification->entries())
        texts->push_back(entry->searchableItems());
    registerRatio({.name = "search two words in 10,000 entries / scan their texts once",
                   .limit = 3,
                   .floor =
                       [texts] {
                           int hits = 0;
                           for (const QStringList &items : *texts) {
                               for (const QString &item : items)
                                   hits += item.contains(u"resolution"_s, Qt::CaseInsensitive);
                           }
                           benchmark::DoNotOptimize(hits);
                       },
                   .measured =
                       [specification] {
                           benchmark::DoNotOptimize(
                               specification->searchEntries(u"resolution overload"_s, {}));
                       }});
    registerRatio({.name = "look up labels among 100,000 entries / among 1,000",
                   .limit = 3, // The larger table is out of the nearer caches.
                   .floor = [few = withLabels(1000)] { lookUp(*few); },
                   .measured = [many = withLabels(100'000)] { lookUp(*many); }});
}

} // namespace Tavrin::Benchmarks
