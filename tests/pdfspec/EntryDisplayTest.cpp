// SPDX-License-Identifier: Apache-2.0
#include <atomic>
#include <thread>

#include <Tavrin/manager/SpecificationManager.h>

#include "ReadingFixture.h"

namespace
{

class EntryDisplay : public ReadingFixture
{
protected:
    EntryDisplay()
    {
        addPages(4);
        printSection(1, 720, u"1 Scope"_s, u"scope"_s, 4);
        page(1)
            .fill({{150, 100}, {200, 100}}, qRgb(255, 0, 0))
            .text(200, 80, u"Figure 1: Red"_s, body);
        page(1).link({{150, 100}, {200, 100}}, Dest::xyz(2, 0, 0));
        page(2).column(left, 700, 12, lines(u"rest"_s, 4), body);
        scope = section(u"§ 1"_s, u"Scope"_s, 1, 740);
        red = figure(u"Figure 1"_s, u"Red"_s, 1, 205);
        specification->setTitle(u"A Specification"_s);
    }

    static QStringList labels(const Entry &entry)
    {
        QStringList result;
        for (const EntryDisplayItem &item : entry.displayItems())
            result += item.label;
        return result;
    }
    static QVariant value(const Entry &entry, const QString &label)
    {
        for (const EntryDisplayItem &item : entry.displayItems()) {
            if (item.label == label)
                return item.objectValue;
        }
        return {};
    }

    EntryPtr scope;
    EntryPtr red;
};

} // namespace

TEST_F(EntryDisplay, ShowsOfAnUnboundEntryWhatTheMapSays)
{
    EXPECT_EQ(labels(*scope), (QStringList{u"Section"_s, u"Source"_s}));
    const auto title = value(*scope, u"Section"_s).value<StyledText>();
    EXPECT_EQ(title.string(), scope->displayTitle());
    EXPECT_EQ(title.attributesAt(0).font, (TextFont{QString(), 11, TextFont::Bold}));
    EXPECT_EQ(value(*scope, u"Source"_s), u"A Specification"_s);
    EXPECT_EQ(scope->summaryText(), std::nullopt);
    EXPECT_EQ(scope->previewImage(), std::nullopt);
    EXPECT_EQ(scope->lineLocations(), std::nullopt);
}

TEST_F(EntryDisplay, ShowsSummaryOrPictureAndTheWayIntoTheDocument)
{
    bind();
    EXPECT_EQ(labels(*scope), (QStringList{u"Section"_s, u"Source"_s, u"Summary"_s, u"More"_s}));
    EXPECT_EQ(labels(*red), (QStringList{u"Figure"_s, u"Source"_s, u"Preview"_s, u"More"_s}));
    const auto more = value(*scope, u"More"_s).value<StyledText>();
    EXPECT_EQ(more.string(), u"View in specification"_s);
    EXPECT_EQ(more.attributesAt(0).link, u"spec://%C2%A7%201"_s);
    specification->setAllowsPreviews(false);
    EXPECT_EQ(labels(*scope), (QStringList{u"Section"_s, u"Source"_s, u"More"_s}));
    specification.reset();
    EXPECT_EQ(labels(*scope), (QStringList{u"Section"_s, u"More"_s})) << "without its owner";
    EXPECT_EQ(value(*scope, u"More"_s).value<StyledText>().attributesAt(0).link, u"§ 1"_s);
}

TEST_F(EntryDisplay, ResolvesRelatedEntriesAtHomeFirst)
{
    auto other = Specification::make<Specification>();
    for (const QString &label : {u"Figure 1"_s, u"Far"_s}) {
        other->add(std::make_shared<SpecificationEntry>(
            other, label, u"Elsewhere"_s, SpecificationEntryType::Table, std::vector<int>{7}));
    }
    std::optional<SpecificationManager> manager(std::in_place);
    manager->setSpecifications({specification, other});
    scope->setRelatedEntries({u"Far"_s, u"nowhere"_s, u"Figure 1"_s});
    EXPECT_EQ(value(*scope, u"Related"_s), QVariant()) << "nothing to read, nothing related";
    bind();
    const QVariantList related = value(*scope, u"Related"_s).toList();
    ASSERT_EQ(related.size(), 2);
    EXPECT_EQ(related[0].value<StyledText>().string(), u"Table 7 Elsewhere"_s);
    EXPECT_EQ(related[0].value<StyledText>().attributesAt(3).link, u"Far"_s);
    EXPECT_EQ(related[1].value<StyledText>().string(), red->displayTitle());
    scope->setRelatedEntries({u"nowhere"_s});
    EXPECT_FALSE(labels(*scope).contains(u"Related"_s));

    scope->setRelatedEntries({u"Far"_s});
    EXPECT_TRUE(labels(*scope).contains(u"Related"_s));
    manager->setSpecifications({specification});
    EXPECT_FALSE(labels(*scope).contains(u"Related"_s));
    manager->registerSpecification(other);
    EXPECT_TRUE(labels(*scope).contains(u"Related"_s));
    manager.reset();
    EXPECT_FALSE(labels(*scope).contains(u"Related"_s)) << "nobody knows of others any more";
}

TEST_F(EntryDisplay, DrawsPreviewsOnWhiteWithoutAnnotations)
{
    bind();
    const auto image = red->previewImage();
    ASSERT_TRUE(image);
    EXPECT_NEAR(image->width(), 200, 4);
    EXPECT_NEAR(image->height(), 124, 4);
    EXPECT_EQ(image->pixelColor(100, 50), QColor(255, 0, 0));
    EXPECT_EQ(image->pixelColor(10, image->height() - 5), QColor(Qt::white));
    const QImage large = specification->extractImage(*red, 3);
    EXPECT_EQ(large.width(),
              int(3 * specification->pageRectInfo(*red)->pageRects.at(1).size.width));
    EXPECT_TRUE(specification->extractImage(*scope, 1e6).isNull());
    EXPECT_THAT(messages(),
                testing::Contains(u"Can't extract image -- unable to get drawing context"_s));
}

TEST_F(EntryDisplay, CutsSummariesToLineRanges)
{
    bind();
    const auto all = scope->childEntry({0, 4});
    const auto some = scope->childEntry({1, 3});
    const auto beyond = scope->childEntry({1, 5});
    for (const auto &child : {all, some, beyond})
        specification->initializeEntry(*child);
    EXPECT_EQ(summary(all), summary(scope));
    EXPECT_EQ(summary(some), lines(u"scope"_s, 4).mid(1, 2).join(u'\n'));
    EXPECT_EQ(some->lineLocations()->size(), 2U);
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_EQ(summary(beyond), summary(scope)) << "the text stays whole";
    ASSERT_EQ(messages().size(), 1);
    EXPECT_TRUE(messages()[0].startsWith(u"Line range 1..<5 out of bounds for "_s));
}

TEST_F(EntryDisplay, ComputesOnceAndNotAgainAfterAFailure)
{
    int runs = 0;
    scope->setDisplayBlock([&](Entry &entry) {
        ++runs;
        EXPECT_EQ(entry.summaryText(), std::nullopt) << "a read from inside sees what is there";
        entry.setLineLocations(LineLocations{});
        EXPECT_TRUE(entry.lineLocations());
    });
    EXPECT_EQ(scope->summaryText(), std::nullopt);
    EXPECT_EQ(scope->previewImage(), std::nullopt);
    scope->computeDisplay();
    EXPECT_EQ(runs, 1);
    scope->setNeedsComputeDisplay(true);
    EXPECT_TRUE(scope->lineLocations()) << "what is there needs no computing";
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(scope->summaryText(), std::nullopt);
    EXPECT_EQ(runs, 2);
    EXPECT_FALSE(scope->needsComputeDisplay());
    const auto copy = std::static_pointer_cast<Entry>(scope->copy());
    EXPECT_FALSE(copy->needsComputeDisplay());
    EXPECT_TRUE(copy->displayBlock());
}

TEST_F(EntryDisplay, LetsASecondThreadWaitForTheFirst)
{
    std::atomic<int> runs = 0;
    std::atomic<bool> isRunning = false;
    scope->setDisplayBlock([&](Entry &entry) {
        ++runs;
        isRunning = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        entry.setSummaryText(StyledText(u"done"_s));
    });
    std::thread first([&] { scope->computeDisplay(); });
    while (!isRunning)
        std::this_thread::yield();
    EXPECT_EQ(summary(scope), u"done"_s);
    first.join();
    EXPECT_EQ(runs, 1);
}
