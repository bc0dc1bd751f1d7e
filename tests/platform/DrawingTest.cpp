// SPDX-License-Identifier: Apache-2.0
#include <QElapsedTimer>

#include <chrono>
#include <thread>

#include <support/Test.h>

#include <Tavrin/pdf/HostPDFDocument.h>
#include <support/PDFBuilder.h>

namespace
{

constexpr QRgb pureRed = qRgb(255, 0, 0);
constexpr QRgb white = qRgb(255, 255, 255);

/// A page of 200 × 100 points whose crop box begins at (20, 10), with a pureRed square of 10 points
/// in the lower left corner of the crop box.
std::shared_ptr<HostPDFDocument> document(int rotation)
{
    PDFBuilder pdf;
    pdf.addPageWithBox(Rect{{0, 0}, {200, 100}})
        .cropBox(Rect{{20, 10}, {160, 80}})
        .rotate(rotation)
        .fill(Rect{{20, 10}, {10, 10}}, pureRed)
        .annotation("<< /Type /Annot /Subtype /Square /Rect [100 50 120 70] /C [0 0 1] "
                    "/IC [0 0 1] >>");
    return HostPDFDocument::open(pdf.build());
}

QRgb pixel(const QImage &image, int x, int y)
{
    return image.pixel(x, y) | 0xff000000;
}

} // namespace

TEST(Drawing, ShowsThePageAsItIsHeld)
{
    struct Case {
        int rotation;
        QSize size;
        QPoint corner;
    };
    for (const auto &[rotation, size, corner] :
         {Case{0, {160, 80}, {5, 75}}, Case{90, {80, 160}, {5, 5}}, Case{180, {160, 80}, {155, 5}},
          Case{270, {80, 160}, {75, 155}}}) {
        const auto pdf = document(rotation);
        const auto page = pdf->page(0);
        const QImage image = page->draw(page->bounds(PDFBox::Crop));
        ASSERT_EQ(image.size(), size) << rotation;
        EXPECT_EQ(pixel(image, corner.x(), corner.y()), pureRed) << rotation;
        EXPECT_EQ(pixel(image, size.width() / 2, size.height() / 2), white) << rotation;
    }
}

TEST(Drawing, CutsAnAreaAtAScale)
{
    const auto pdf = document(0);
    const auto page = pdf->page(0);
    const QImage image =
        page->draw(Rect{{25, 15}, {10, 10}}, {.scale = 3, .background = Qt::green});
    ASSERT_EQ(image.size(), QSize(30, 30));
    EXPECT_EQ(pixel(image, 3, 26), pureRed)
        << "the square's upper right quarter, at the lower left";
    EXPECT_EQ(pixel(image, 20, 26), QColor(Qt::green).rgb());
    EXPECT_EQ(pixel(image, 3, 5), QColor(Qt::green).rgb());
}

TEST(Drawing, LeavesAnnotationsOutUnlessAskedFor)
{
    const auto pdf = document(0);
    const auto page = pdf->page(0);
    const Rect area{{100, 50}, {20, 20}};
    EXPECT_EQ(pixel(page->draw(area), 10, 10), white);
    EXPECT_NE(pixel(page->draw(area, {.annotations = true}), 10, 10), white);
}

TEST(Drawing, RefusesImagesBeyondReason)
{
    const auto pdf = document(0);
    const auto page = pdf->page(0);
    EXPECT_TRUE(page->draw(page->bounds(PDFBox::Crop), {.scale = 1000}).isNull());
    EXPECT_TRUE(page->draw(Rect::null()).isNull());
}

TEST(Drawing, StopsWhenItIsCalledOff)
{
    PDFBuilder pdf;
    QByteArray squares;
    for (int i = 0; i < 2'000'000; ++i)
        squares += "0 0 600 700 re f\n";
    pdf.addPage().operators(squares);
    const auto opened = HostPDFDocument::open(pdf.build());
    const auto page = opened->page(0);
    DrawingCancellation cancellation;
    QImage image(1, 1, QImage::Format_RGB32);
    std::thread drawer(
        [&] { image = page->draw(page->bounds(PDFBox::Crop), {.cancellation = &cancellation}); });
    QElapsedTimer timer;
    timer.start();
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    cancellation.cancel();
    drawer.join();
    EXPECT_TRUE(image.isNull());
    EXPECT_LT(timer.elapsed(), 2000) << "the whole takes far longer";
    EXPECT_TRUE(page->draw({{0, 0}, {10, 10}}, {.cancellation = &cancellation}).isNull());
}
