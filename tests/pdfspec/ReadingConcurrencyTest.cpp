// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/MapDrafter.h>
#include <support/Corpus.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <thread>

#include "ReadingFixture.h"

namespace
{

using Entry = PDFSpecification::Entry;
using EntryPtr = std::shared_ptr<Entry>;

/// What a reader sees of an entry, in a form to compare.
QString shown(const PDFSpecification &specification, const Entry &entry)
{
    QString result;
    for (const EntryDisplayItem &item : entry.displayItems())
        result += item.label + u'\n';
    result += entry.summaryText().value_or(StyledText()).string();
    if (const auto info = specification.pageRectInfo(entry)) {
        for (const auto &[page, rect] : info->pageRects)
            result += u"%1 %2 %3\n"_s.arg(page).arg(rect.minY()).arg(rect.maxY());
    }
    return result;
}

/// Reads all entries from eight threads, each in an order of its own.
std::vector<std::vector<QString>> readInParallel(const PDFSpecification &specification)
{
    std::vector<EntryPtr> entries;
    for (const auto &entry : specification.entries())
        entries.push_back(std::dynamic_pointer_cast<Entry>(entry));
    std::vector<std::vector<QString>> results(8, std::vector<QString>(entries.size()));
    std::vector<std::thread> threads;
    for (unsigned seed = 0; seed < results.size(); ++seed) {
        threads.emplace_back([&, seed] {
            std::vector<std::size_t> order(entries.size());
            std::iota(order.begin(), order.end(), 0);
            std::shuffle(order.begin(), order.end(), std::mt19937(seed));
            for (const std::size_t i : order)
                results[seed][i] = shown(specification, *entries[i]);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    return results;
}

class ReadingConcurrency : public ReadingFixture
{
};

} // namespace

TEST_F(ReadingConcurrency, GivesEveryThreadTheSame)
{
    addPages(12);
    for (int i = 1; i < 12; ++i) {
        page(i).text(left, 720, u"%1 Part %1"_s.arg(i), heading);
        page(i).column(left, 700, 12, lines(u"text"_s, 10), body);
        page(i)
            .stroke({{150, 400}, {200, 120}})
            .text(180, 380, u"Figure %1: Box %1"_s.arg(i), body);
        section(QString::number(i), u"Part %1"_s.arg(i), i, 740);
        figure(u"Figure %1"_s.arg(i), u"Box %1"_s.arg(i), i, 525);
    }
    bind();
    const auto results = readInParallel(*specification);
    for (const auto &result : results)
        EXPECT_EQ(result, results.front());
    EXPECT_EQ(summary(std::dynamic_pointer_cast<Entry>(specification->entry(u"3"_s))),
              lines(u"text"_s, 10).join(u'\n'));
    EXPECT_TRUE(std::find(results.front().begin(), results.front().end(), QString()) ==
                results.front().end());
}

TEST_F(ReadingConcurrency, HoldsOnARealDocument)
{
    const auto path = corpusFile(u"slepc.pdf"_s);
    if (!path)
        GTEST_SKIP() << noCorpus;
    const auto document = CachingPDFDocument::open(QUrl::fromLocalFile(*path));
    specification->setReadingPolicy(PDFReadingPolicy::Common);
    for (const DraftEntry &drafted : MapDrafter::draft(document).entries)
        section(drafted.label, drafted.title, drafted.page, drafted.place.y);
    specification->loadPDFStructure(CachingPDFDocument::open(QUrl::fromLocalFile(*path)));
    const auto results = readInParallel(*specification);
    EXPECT_GT(results.front().size(), 80);
    for (const auto &result : results)
        EXPECT_EQ(result, results.front());
}
