// SPDX-License-Identifier: Apache-2.0
// The parts of the PDF view that need no window.
#include <support/Test.h>

#include <Tavrin/interface/pdfview/FoldedText.h>
#include <Tavrin/interface/pdfview/InvertedPage.h>
#include <Tavrin/interface/pdfview/PageLayout.h>
#include <Tavrin/interface/pdfview/TextSelection.h>
#include <Tavrin/interface/pdfview/TileCache.h>
#include <Tavrin/interface/pdfview/ViewHistory.h>
#include <Tavrin/pdf/HostPDFDocument.h>
#include <support/PDFBuilder.h>

#include <limits>
#include <random>

namespace
{

PageTile tile(int page, int row = 0)
{
    return {page, 1.0, QRect(0, row * 100, 100, 100)};
}

QImage image()
{
    return {100, 100, QImage::Format_RGB32};
}

} // namespace

TEST(PageLayout, FindsThePageNearestToEachHeight)
{
    PageLayout layout;
    EXPECT_EQ(layout.pageAt(0), -1);
    std::mt19937 random(7);
    std::vector<Size> sizes(50);
    for (Size &size : sizes)
        size = {100.0 + double(random() % 500), 50.0 + double(random() % 900)};
    layout.setPages(sizes);
    layout.setScale(1.37);
    layout.setViewWidth(300);
    const int steps = static_cast<int>(layout.contentSize().height() / 3.3) + 30;
    for (int step = -15; step < steps; ++step) {
        const double y = step * 3.3;
        int nearest = 0;
        double least = std::numeric_limits<double>::infinity();
        for (int page = 0; page < layout.pageCount(); ++page) {
            const QRectF rect = layout.pageRect(page);
            const double off = std::max({rect.top() - y, 0.0, y - rect.bottom()});
            if (off < least) {
                least = off;
                nearest = page;
            }
        }
        const int found = layout.pageAt(y);
        const QRectF rect = layout.pageRect(found);
        EXPECT_NEAR(std::max({rect.top() - y, 0.0, y - rect.bottom()}), least, 1e-6)
            << y << ": " << nearest << " or " << found;
    }
}

TEST(PageLayout, KeepsToSoundSizesAndScales)
{
    PageLayout layout;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    layout.setPages({{nan, 100}, {0, -5}, {600, 800}, {14400, 14400}});
    EXPECT_EQ(layout.pageSize(0), (Size{612, 792}));
    EXPECT_EQ(layout.pageSize(1), (Size{612, 792}));
    EXPECT_NEAR(layout.scaleForWidth(636), 1, 0.01) << "one huge sheet among small ones";
    layout.setScale(1e9);
    EXPECT_EQ(layout.scale(), PageLayout::maximumScale);
    layout.setScale(nan);
    EXPECT_EQ(layout.scale(), 1);
    layout.setPages(std::vector<Size>(1'000'000, Size{612, 14400}));
    layout.setScale(16);
    EXPECT_LT(layout.contentSize().height(), double(std::numeric_limits<int>::max()));
}

TEST(PageTile, CutsLargePagesAlone)
{
    const PageTile small{0, 1, QRect(0, 0, 1200, 1600)};
    EXPECT_THAT(tilesOf(small, QRect(10, 10, 20, 20)), ElementsAre(small));
    const PageTile large{0, 1, QRect(0, 0, 5000, 3000)};
    const auto tiles = tilesOf(large, QRect(1000, 2000, 100, 2000));
    ASSERT_EQ(tiles.size(), 4U);
    QRect all;
    for (const PageTile &part : tiles)
        all |= part.rect;
    EXPECT_TRUE(all.contains(QRect(1000, 2000, 100, 1000)));
    EXPECT_TRUE(large.rect.contains(all));
    EXPECT_TRUE(tilesOf(large, QRect(6000, 0, 10, 10)).empty());
}

TEST(TileCache, LetsGoOfWhatWasUnseenForLongest)
{
    TileCache cache(3 * image().sizeInBytes());
    for (int page = 0; page < 3; ++page)
        cache.insert(tile(page), image());
    EXPECT_FALSE(cache.image(tile(0)).isNull());
    cache.insert(tile(3), image());
    EXPECT_TRUE(cache.contains(tile(0)));
    EXPECT_FALSE(cache.contains(tile(1)));
    cache.insert(tile(3), image());
    EXPECT_EQ(cache.byteCount(), 3 * image().sizeInBytes()) << "the same tile twice";
    cache.insert(tile(4), QImage(1000, 1000, QImage::Format_RGB32));
    EXPECT_FALSE(cache.contains(tile(4)));
    EXPECT_EQ(cache.byteCount(), 3 * image().sizeInBytes());
}

TEST(InvertedPage, TurnsLightnessAndKeepsHue)
{
    QImage page(3, 1, QImage::Format_RGB32);
    page.setPixelColor(0, 0, Qt::white);
    page.setPixelColor(1, 0, Qt::black);
    page.setPixelColor(2, 0, QColor(0, 0, 200));
    invertPage(page);
    EXPECT_EQ(page.pixel(0, 0), invertedPaper);
    EXPECT_EQ(page.pixelColor(1, 0), QColor(Qt::white));
    EXPECT_GT(page.pixelColor(2, 0).blue(), page.pixelColor(2, 0).red() + 100);
}

TEST(ViewHistory, GoesBackAndForwardAndPassesOverShortStays)
{
    using namespace std::chrono_literals;
    const auto at = [](int page) { return ViewPlace{page, {0, 0}}; };
    const ViewHistory::Clock::time_point start{};
    ViewHistory history;
    history.leave(at(1), start);
    history.leave(at(2), start + 1s);
    history.leave(at(3), start + 10s);
    EXPECT_EQ(history.goBack(at(4)), at(3));
    EXPECT_EQ(history.goBack(at(3)), at(1)) << "page 2 was left after a second";
    EXPECT_FALSE(history.canGoBack());
    EXPECT_EQ(history.goForward(at(1)), at(3));
    EXPECT_EQ(history.goForward(at(3)), at(4));
    EXPECT_EQ(history.goForward(at(4)), std::nullopt);
    history.goBack(at(4));
    history.leave(at(3), start + 20s);
    EXPECT_FALSE(history.canGoForward()) << "a jump ends the way forward";
}

TEST(FoldedText, FindsAcrossLineEndsQuotesAndBrokenWords)
{
    const QString text = u"An inter-\nrupt is\nraised by “it’s” pin. INTERRUPT"_s;
    const auto found = [&text](const QString &phrase) {
        QStringList result;
        for (const TextRange &range : FoldedText(text).rangesOf(phrase))
            result << text.mid(range.location, range.length);
        return result;
    };
    EXPECT_THAT(found(u"interrupt"_s), ElementsAre(u"inter-\nrupt"_s, u"INTERRUPT"_s));
    EXPECT_THAT(found(u"is  raised"_s), ElementsAre(u"is\nraised"_s));
    EXPECT_THAT(found(u"\"it's\""_s), ElementsAre(u"“it’s”"_s));
    EXPECT_THAT(found(u" "_s), ElementsAre());
    EXPECT_THAT(found(u"absent"_s), ElementsAre());
}

TEST(TextSelection, TakesTheNearestLineAndWholeWords)
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, u"alpha beta gamma"_s).text(72, 680, u"delta"_s);
    pdf.addPage().rotate(90).text(72, 700, u"turned words"_s);
    const auto document = HostPDFDocument::open(pdf.build());
    const auto textOf = [&](int page) { return document->page(page)->text(); };
    const auto offset = [&](int page, Point point, TextUnit unit = TextUnit::Character) {
        return TextSelection::nearestOffset(*textOf(page), document->page(page)->geometry(), point,
                                            unit);
    };
    EXPECT_EQ(offset(0, {500, 703}), 16) << "right of the first line is its end";
    EXPECT_EQ(offset(0, {10, 683}), 17);
    EXPECT_EQ(offset(0, {500, 10}), 22);
    const Rect t = document->page(1)->characterBounds(7);
    EXPECT_EQ(offset(1, {t.minX() + 1, t.center().y}), 7);

    const Rect b = document->page(0)->characterBounds(8);
    TextSelection words({0, offset(0, b.center(), TextUnit::Word)}, TextUnit::Word);
    EXPECT_EQ(words.rangeOn(0, textOf), (TextRange{6, 4}));
    words.moveTo({0, 1});
    EXPECT_EQ(words.rangeOn(0, textOf), (TextRange{0, 10})) << "backwards, both words whole";
    words.moveTo({1, 2});
    EXPECT_EQ(words.rangeOn(0, textOf), (TextRange{6, 16}));
    EXPECT_EQ(words.rangeOn(1, textOf), (TextRange{0, 6}));
}

TEST(TextSelection, StepsOverLinesAndPages)
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, u"alpha beta"_s).text(72, 680, u"gamma"_s);
    pdf.addPage().text(72, 700, u"delta"_s);
    const auto document = HostPDFDocument::open(pdf.build());
    const auto textOf = [&](int page) { return document->page(page)->text(); };
    TextSelection selection(TextPosition{0, 2});
    const auto step = [&](TextStep way, TextUnit unit = TextUnit::Character) {
        selection.step(way, unit, 2, textOf);
        return selection.focus();
    };
    EXPECT_EQ(step(TextStep::Next), (TextPosition{0, 3}));
    EXPECT_EQ(step(TextStep::Next, TextUnit::Word).offset, 6);
    EXPECT_EQ(step(TextStep::LineEnd).offset, 10);
    EXPECT_EQ(step(TextStep::LineStart).offset, 0);
    EXPECT_EQ(step(TextStep::Down).offset, 11);
    EXPECT_EQ(step(TextStep::Down), (TextPosition{1, 0}));
    EXPECT_EQ(step(TextStep::Down), (TextPosition{1, 0})) << "the end of the document";
    EXPECT_EQ(step(TextStep::Previous).page, 0);
}
