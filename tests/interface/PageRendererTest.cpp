// SPDX-License-Identifier: Apache-2.0
// The thread that reads for a view.
#include <QSignalSpy>

#include <chrono>

#include <Tavrin/interface/pdfview/PageRenderer.h>

#include "ViewFixture.h"

using namespace std::chrono_literals;

namespace
{

PageTile wholePage(int page, double scale = 0.1)
{
    return {page, scale, QRect(0, 0, 61, 79)};
}

/// Draws for far longer than any test waits.
PDFBuilder slowPage()
{
    QByteArray squares;
    for (int i = 0; i < 1'500'000; ++i)
        squares += "0 0 600 700 re f\n";
    PDFBuilder pdf;
    pdf.addPage().operators(squares);
    pdf.addPage();
    return pdf;
}

struct Results {
    explicit Results(PageRenderer &renderer)
    {
        QObject::connect(
            &renderer, &PageRenderer::tileDrawn, &renderer,
            [this](const PageTile &tile, const QImage &) { order.push_back(tile.page); });
        QObject::connect(&renderer, &PageRenderer::tileFailed, &renderer,
                         [this](const PageTile &tile) { failed.push_back(tile.page); });
        QObject::connect(
            &renderer, &PageRenderer::contentsRead, &renderer,
            [this](int page, const PageContentsPtr &) { order.push_back(100 + page); });
        QObject::connect(&renderer, &PageRenderer::pagesRead, &renderer,
                         [this](const auto &pages) { pageCount = static_cast<int>(pages.size()); });
    }
    int pageCount = -1;
    /// Drawn pages, and 100 for the contents of page 0 and so on.
    std::vector<int> order;
    std::vector<int> failed;
};

} // namespace

TEST(PageRenderer, WorksInTheOrderOfUrgency)
{
    PageRenderer renderer;
    Results results(renderer);
    renderer.setDocument(HostPDFDocument::open(twentyPages().build()));
    renderer.want({wholePage(3), wholePage(1), wholePage(2)}, 2, {3});
    renderer.wantContents(4, 5);
    ASSERT_TRUE(waitFor([&] { return results.order.size() == 6; }));
    EXPECT_EQ(results.pageCount, 20);
    EXPECT_THAT(results.order, testing::ElementsAre(3, 1, 103, 2, 104, 105));
}

TEST(PageRenderer, CallsOffWhatIsNotWantedAnyMore)
{
    PageRenderer renderer;
    Results results(renderer);
    renderer.setDocument(HostPDFDocument::open(slowPage().build()));
    renderer.want({wholePage(0, 2)}, 1, {});
    QTest::qWait(100);
    QElapsedTimer timer;
    timer.start();
    renderer.want({wholePage(1)}, 1, {});
    ASSERT_TRUE(waitFor([&] { return !results.order.empty(); }));
    EXPECT_LT(timer.elapsed(), 3000);
    EXPECT_THAT(results.order, testing::ElementsAre(1));
    EXPECT_TRUE(results.failed.empty()) << "what is called off has not failed";
}

TEST(PageRenderer, GivesUpAPageThatTakesTooLong)
{
    PageRenderer renderer(nullptr, 50ms);
    Results results(renderer);
    renderer.setDocument(HostPDFDocument::open(slowPage().build()));
    renderer.want({wholePage(0, 2), wholePage(1)}, 1, {});
    ASSERT_TRUE(waitFor([&] { return !results.order.empty(); }));
    EXPECT_THAT(results.failed, testing::ElementsAre(0));
    EXPECT_THAT(results.order, testing::ElementsAre(1));
}

TEST(PageRenderer, TellsNothingOfAReplacedDocument)
{
    PageRenderer renderer;
    Results results(renderer);
    renderer.setDocument(HostPDFDocument::open(slowPage().build()));
    renderer.want({wholePage(1)}, 1, {});
    renderer.setDocument(HostPDFDocument::open(twentyPages().build()));
    renderer.want({wholePage(7)}, 1, {});
    ASSERT_TRUE(waitFor([&] { return !results.order.empty(); }));
    QTest::qWait(20);
    EXPECT_THAT(results.order, testing::ElementsAre(7));
    EXPECT_EQ(results.pageCount, 20);
}
