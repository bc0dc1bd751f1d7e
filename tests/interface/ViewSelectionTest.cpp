// SPDX-License-Identifier: Apache-2.0
// Selecting text in the PDF view by mouse and keyboard.
#include <QClipboard>

#include "ViewFixture.h"

namespace
{

class ViewSelectionTest : public ViewTest
{
protected:
    void doubleClick(QPoint point)
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, point);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, point);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, point);
    }
};

} // namespace

TEST_F(ViewSelectionTest, DragsOverCharactersLinesAndPages)
{
    show(twentyPages());
    drag(word(0, u"quick"_s), word(0, u"fox"_s));
    EXPECT_THAT(selected(), testing::AnyOf(Ends(u" f"_s), Ends(u" fo"_s)));
    EXPECT_TRUE(selected().contains(u"brown"_s));
    view.setZoomMode(HostPDFView::ZoomMode::FitPage);
    view.resize(700, 1500);
    view.setScaleFactor(0.8);
    settle();
    drag(word(0, u"lazy"_s), word(1, u"begins"_s));
    EXPECT_THAT(selected(), Holds(u"sleeps.\npage 2"_s));
    EXPECT_EQ(view.currentSelection()->pages().size(), 2U);
    click(at(0, {400, 300}));
    EXPECT_EQ(view.currentSelection(), std::nullopt);
}

TEST_F(ViewSelectionTest, TakesWordsAndLinesByTwoAndThreeClicks)
{
    show(twentyPages());
    const QPoint fox = word(0, u"fox"_s);
    doubleClick(fox);
    EXPECT_EQ(selected(), u"fox"_s);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, fox);
    EXPECT_EQ(selected(), u"The quick brown fox jumps over"_s);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    click(word(0, u"quick"_s));
    EXPECT_EQ(selected(), QString());
    click(word(0, u"jumps"_s), Qt::ShiftModifier);
    EXPECT_THAT(selected(), Holds(u"brown fox"_s));
}

TEST_F(ViewSelectionTest, ExtendsByKeysAndCopies)
{
    show(twentyPages());
    click(at(0, {300, 600}));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, word(0, u"quick"_s));
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    doubleClick(word(0, u"quick"_s));
    ASSERT_EQ(selected(), u"quick"_s);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    // The end of the word moves, and its start stays.
    view.setCurrentSelection(page(0)->selection(TextRange{24, 5}));
    const QString start = selected();
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(selected().size(), start.size() + 1);
    key(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_THAT(selected(), Ends(u"over"_s));
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_THAT(selected(), Holds(u"the lazy"_s));
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), selected());
    key(Qt::Key_Escape);
    EXPECT_EQ(view.currentSelection(), std::nullopt);
}

TEST_F(ViewSelectionTest, SelectsEveryPageOnceAllIsRead)
{
    show(twentyPages());
    key(Qt::Key_A, Qt::ControlModifier);
    ASSERT_TRUE(waitFor([this] { return view.currentSelection().has_value(); }));
    EXPECT_EQ(view.currentSelection()->pages().size(), 20U);
    key(Qt::Key_C, Qt::ControlModifier);
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith(u"page 1 begins here\n"_s));
    EXPECT_EQ(copied.count(u"lazy dog"_s), 20);
}
