// SPDX-License-Identifier: Apache-2.0
// Finding words in the PDF view.
#include <QLabel>
#include <QLineEdit>

#include <Tavrin/interface/pdfview/FindBar.h>

#include "ViewFixture.h"

namespace
{

class FindTest : public ViewTest
{
protected:
    void find(const QString &phrase)
    {
        QTest::keyClicks(field(), phrase);
        ASSERT_TRUE(waitFor([this] { return !view.finder().isSearching(); }));
    }
    QLineEdit *field() const { return view.findChild<QLineEdit *>(); }
    QString count() const { return view.findChild<FindBar *>()->findChild<QLabel *>()->text(); }
};

} // namespace

TEST_F(FindTest, MarksHitsAndStepsThroughThemRoundTheEnd)
{
    show(twentyPages());
    view.goToPage(4);
    settle();
    key(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(field()->isVisible());
    find(u"LAZY dog"_s);
    EXPECT_EQ(view.finder().hitCount(), 20);
    ASSERT_TRUE(view.currentHit());
    EXPECT_EQ(view.currentHit()->page, 4) << "from where the reader is";
    EXPECT_EQ(count(), u"5 / 20"_s);
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_EQ(view.currentHit()->page, 5);
    QTest::keyClick(field(), Qt::Key_Return, Qt::ShiftModifier);
    key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(view.currentHit()->page, 3);
    for (int step = 0; step < 17; ++step)
        key(Qt::Key_F3);
    EXPECT_EQ(view.currentHit()->page, 0);
    settle();
    const QColor marked = picture().pixelColor(word(0, u"lazy"_s) + QPoint(0, -7));
    EXPECT_LT(marked.blue(), 200) << "a hit has its colour";

    QTest::keyClick(field(), Qt::Key_Escape);
    EXPECT_FALSE(field()->isVisible());
    EXPECT_EQ(view.finder().hitCount(), 0);
    EXPECT_EQ(view.currentHit(), std::nullopt);
}

TEST_F(FindTest, SaysThatNothingWasFound)
{
    show(twentyPages());
    QTest::keyClicks(&view, u"/"_s);
    find(u"unicorn"_s);
    EXPECT_EQ(count(), u"No hits"_s);
    view.findNext();
    EXPECT_EQ(view.currentHit(), std::nullopt);
    view.setDocument(nullptr);
    view.find(u"dog"_s);
    EXPECT_EQ(view.finder().hitCount(), 0);
}
