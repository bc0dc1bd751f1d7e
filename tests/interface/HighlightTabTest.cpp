// SPDX-License-Identifier: Apache-2.0
// The tabs of the sidebar, and what is remembered of them.
#include <Tavrin/interface/sidebars/HighlightTabViewController.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>

#include <support/Test.h>

namespace
{

class Page : public ViewController
{
protected:
    std::unique_ptr<QWidget> loadView() override { return std::make_unique<QLabel>(); }
};

class HighlightTabTest : public testing::Test
{
protected:
    void SetUp() override { QSettings().clear(); }
    void TearDown() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

    static QVariant stored()
    {
        return QSettings().value(QLatin1String(HighlightTabViewController::selectedTabKey));
    }
    static void store(const QVariant &value)
    {
        QSettings().setValue(QLatin1String(HighlightTabViewController::selectedTabKey), value);
    }
    void load()
    {
        for (const auto &page : pages)
            tabs.addChildViewController(page);
        tabs.view();
    }
    std::vector<bool> checked() const
    {
        std::vector<bool> result;
        for (const auto *button : *tabs.tabButtons())
            result.push_back(button->isChecked());
        return result;
    }

    std::vector<std::shared_ptr<Page>> pages{std::make_shared<Page>(), std::make_shared<Page>()};
    HighlightTabViewController tabs;
};

TEST_F(HighlightTabTest, BeginsWithTheFirstTabAndRemembersTheOneThatWasClicked)
{
    load();
    EXPECT_THAT(checked(), ElementsAre(true, false));
    EXPECT_EQ(tabs.tabView()->currentIndex(), 0);
    QTest::mouseClick(tabs.tabButtons()->at(1), Qt::LeftButton);
    EXPECT_THAT(checked(), ElementsAre(false, true));
    EXPECT_TRUE(tabs.tabView()->currentWidget()->isAncestorOf(pages[1]->view()));
    EXPECT_EQ(stored().toInt(), 1);
    // A click on the one that is on leaves it on.
    QTest::mouseClick(tabs.tabButtons()->at(1), Qt::LeftButton);
    EXPECT_THAT(checked(), ElementsAre(false, true));
}

TEST_F(HighlightTabTest, TheStoredTabIsOnAfterLoadingAndStoredAgain)
{
    store(u"1"_s);
    load();
    EXPECT_THAT(checked(), ElementsAre(false, true));
    EXPECT_EQ(tabs.tabView()->currentIndex(), 1);
    // Written anew, as the number that it is.
    QSettings settings;
    settings.sync();
    EXPECT_EQ(stored().toInt(), 1);
}

TEST_F(HighlightTabTest, WhatIsNoTabCountsAsNothingStored)
{
    for (const QVariant &value :
         {QVariant(u"garbage"_s), QVariant(7), QVariant(-3), QVariant(QStringList{u"a"_s, u"b"_s}),
          QVariant(u"99999999999999999999"_s), QVariant(QByteArray("\xff\x00", 2))}) {
        store(value);
        HighlightTabViewController others;
        others.view();
        EXPECT_EQ(others.tabView()->currentIndex(), 0);
        EXPECT_TRUE(others.tabButtons()->at(0)->isChecked());
        EXPECT_EQ(stored().toInt(), 0);
    }
}

TEST_F(HighlightTabTest, TheMarkerForNoTabSelectsNoneAndIsKept)
{
    store(-1);
    load();
    EXPECT_EQ(stored().toInt(), -1);
}

TEST_F(HighlightTabTest, ATabViewThatTurnsByItselfTurnsTheButtonsOnly)
{
    load();
    tabs.tabView()->setCurrentIndex(1);
    EXPECT_THAT(checked(), ElementsAre(false, true));
    EXPECT_EQ(stored().toInt(), 0);
}

TEST_F(HighlightTabTest, ButtonsAreInTheOrderInWhichOneReadsThem)
{
    load();
    const auto &buttons = *tabs.tabButtons();
    ASSERT_EQ(buttons.size(), 2U);
    EXPECT_LT(buttons[0]->x(), buttons[1]->x());
    EXPECT_FALSE(buttons[0]->text().isEmpty());

    QApplication::setLayoutDirection(Qt::RightToLeft);
    HighlightTabViewController mirrored;
    mirrored.view();
    EXPECT_EQ(mirrored.tabButtons()->at(0)->text(), buttons[0]->text());
    EXPECT_GT(mirrored.tabButtons()->at(0)->x(), mirrored.tabButtons()->at(1)->x());
}

TEST_F(HighlightTabTest, AnIndexWithoutAButtonIsFatal)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    load();
    EXPECT_DEATH(tabs.selectTab(2), "There is no tab 2");
    EXPECT_DEATH(tabs.selectTab(-1), "There is no tab -1");
}

} // namespace
