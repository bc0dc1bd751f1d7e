// SPDX-License-Identifier: Apache-2.0
// What is drawn over the pages.
#include "ViewFixture.h"

namespace
{

/// One blank page, shown at three pixels a point, so that lines have a middle.
class HighlightTest : public ViewTest
{
protected:
    void showPage(int rotation = 0)
    {
        PDFBuilder pdf;
        pdf.addPage({200, 200}).rotate(rotation);
        show(pdf);
        view.setScaleFactor(3);
        settle();
    }
    QColor color(Point point) { return picture().pixelColor(at(0, point)); }
};

} // namespace

TEST_F(HighlightTest, OutlinesTheEntryWithRoundCornersAndNoFill)
{
    for (const int rotation : {0, 90}) {
        view.setDocument(nullptr);
        showPage(rotation);
        view.pageRects = {{0, Rect{{40, 60}, {80, 50}}}};
        const QColor accent = view.palette().color(QPalette::Active, QPalette::Highlight);
        for (const Point edge : {Point{40, 80}, Point{120, 80}, Point{80, 60}, Point{80, 110}})
            EXPECT_EQ(color(edge), accent) << edge.x << " " << edge.y;
        EXPECT_EQ(color({80, 80}), QColor(Qt::white));
        EXPECT_EQ(color({40.3, 60.3}), QColor(Qt::white)) << "the corner is rounded off";
        view.pageRects = {{1, Rect{{40, 60}, {80, 50}}}};
        EXPECT_EQ(color({40, 80}), QColor(Qt::white)) << "another page's";
    }
}

TEST_F(HighlightTest, TintsCoverageWithABarAtItsLeft)
{
    showPage();
    EXPECT_EQ(view.coverageHighlightColor, QColor::fromRgbF(0, 0.75F, 0, 1));
    // Two that touch are drawn one by one.
    view.coverageHighlights = {{0, {Rect{{40, 60}, {80, 30}}, Rect{{40, 90}, {80, 20}}}}};
    const QColor bar = color({40.2, 75});
    EXPECT_GT(bar.green(), bar.red() + 150);
    EXPECT_EQ(color({40.2, 100}), bar);
    const QColor tint = color({80, 75});
    EXPECT_NEAR(tint.blue(), 230, 1);
    EXPECT_NEAR(tint.green(), 249, 1);
    EXPECT_EQ(color({125, 75}), QColor(Qt::white));
    view.coverageHighlights = std::nullopt;
    EXPECT_EQ(color({80, 75}), QColor(Qt::white));
}

TEST_F(HighlightTest, KeepsMarksWhenTheDocumentChanges)
{
    showPage();
    view.pageRects = {{0, Rect{{40, 60}, {80, 50}}}};
    showPage();
    EXPECT_NE(color({40, 80}), QColor(Qt::white));
}
