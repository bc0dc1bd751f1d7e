// SPDX-License-Identifier: Apache-2.0
// The commands above the document, by mouse and by key.
#include <QLineEdit>
#include <QMenu>
#include <QSplitter>
#include <QToolButton>

#include <Tavrin/interface/detail/CustomDividerSplitView.h>
#include <Tavrin/interface/detail/DetailToolBar.h>
#include <Tavrin/interface/detail/PageField.h>
#include <Tavrin/interface/pdfview/FindBar.h>

#include "DetailFixture.h"

namespace
{

class DetailToolBarTest : public DetailFixture
{
protected:
    void SetUp() override
    {
        controller->setSpecification(specification);
        show();
        controller->view()->activateWindow();
        view().setFocus();
    }
    DetailToolBar &bar() const { return *detail().findChild<DetailToolBar *>(); }
    QAction *command(const QString &text) const
    {
        for (QAction *action : bar().actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    QLineEdit &number() const { return *bar().findChild<PageField *>()->findChild<QLineEdit *>(); }
};

TEST_F(DetailToolBarTest, EveryCommandHasANameATipAndAPicture)
{
    int commands = 0;
    for (QAction *action : bar().actions()) {
        auto *button = qobject_cast<QToolButton *>(bar().widgetForAction(action));
        if (!button)
            continue;
        ++commands;
        EXPECT_FALSE(action->text().isEmpty());
        EXPECT_FALSE(button->toolTip().isEmpty());
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        EXPECT_THAT(button->toolTip(), Holds(keys));
        if (!action->menu()) {
            const QImage icon = action->icon().pixmap(32, 32).toImage();
            EXPECT_NE(icon, QImage(icon.size(), icon.format())) << action->text().toStdString();
        }
    }
    EXPECT_EQ(commands, 10);
}

TEST_F(DetailToolBarTest, IconsFollowThePalette)
{
    const QIcon icon = drawnIcon(IconShape::Find);
    const QPalette before = QApplication::palette();
    const QImage dark = icon.pixmap(32, 32).toImage();
    QPalette palette = before;
    palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::white);
    QApplication::setPalette(palette);
    EXPECT_NE(icon.pixmap(32, 32).toImage(), dark);
    EXPECT_NE(icon.pixmap(32, 32, QIcon::Disabled).toImage(), icon.pixmap(32, 32).toImage());
    QApplication::setPalette(before);
}

TEST_F(DetailToolBarTest, ThePageFieldFollowsAndLeads)
{
    EXPECT_EQ(number().text(), u"1"_s);
    view().goToPage(2);
    EXPECT_EQ(number().text(), u"3"_s);
    QTest::keyClick(&view(), Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(number().hasFocus());
    QTest::keyClicks(&number(), u"2\r"_s);
    EXPECT_EQ(view().currentPage(), 1);
    EXPECT_TRUE(view().hasFocus());
    // Beyond the end is the end, and what is no number is nothing.
    QTest::keyClick(&view(), Qt::Key_L, Qt::ControlModifier);
    QTest::keyClicks(&number(), u"99\r"_s);
    EXPECT_EQ(view().currentPage(), 3);
    QTest::keyClick(&view(), Qt::Key_L, Qt::ControlModifier);
    QTest::keyClicks(&number(), u"xii\r"_s);
    EXPECT_EQ(view().currentPage(), 3);
    EXPECT_EQ(number().text(), u"4"_s);
    QTest::keyClick(&view(), Qt::Key_L, Qt::ControlModifier);
    QTest::keyClicks(&number(), u"1"_s);
    QTest::keyClick(&number(), Qt::Key_Escape);
    EXPECT_EQ(number().text(), u"4"_s);
    EXPECT_TRUE(view().hasFocus());
}

TEST_F(DetailToolBarTest, BackAndForwardAreThereWhenThereIsWhereToGo)
{
    EXPECT_FALSE(command(u"Back"_s)->isEnabled());
    QTest::qWait(2'050);
    view().goToPage(2);
    EXPECT_TRUE(command(u"Back"_s)->isEnabled());
    QTest::keyClick(&view(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(view().currentPage(), 0);
    EXPECT_FALSE(command(u"Back"_s)->isEnabled());
    EXPECT_TRUE(command(u"Forward"_s)->isEnabled());
}

TEST_F(DetailToolBarTest, ZoomIsShownAndSet)
{
    EXPECT_TRUE(command(u"Fit Width"_s)->isChecked());
    QAction *level = nullptr;
    for (QAction *action : bar().actions())
        level = action->menu() ? action : level;
    ASSERT_TRUE(level);
    const QString fitted = level->text();
    controller->view()->resize(1'300, 700);
    ASSERT_TRUE(QTest::qWaitFor([&] { return level->text() != fitted; }));
    level->menu()->actions().at(2)->trigger();
    EXPECT_EQ(level->text(), u"100 %"_s);
    EXPECT_FALSE(command(u"Fit Width"_s)->isChecked());
    QTest::keyClick(&view(), Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(level->text(), u"120 %"_s);
    command(u"Fit Page"_s)->trigger();
    EXPECT_TRUE(command(u"Fit Page"_s)->isChecked());
    // Chosen again, it stays.
    command(u"Fit Page"_s)->trigger();
    EXPECT_TRUE(command(u"Fit Page"_s)->isChecked());
}

TEST_F(DetailToolBarTest, FindAndInvertActOnTheDocument)
{
    command(u"Find"_s)->trigger();
    EXPECT_TRUE(view().findChild<FindBar *>()->isVisible());
    command(u"Inverted Pages"_s)->trigger();
    EXPECT_TRUE(view().areColorsInverted());
    view().setColorsInverted(false);
    EXPECT_FALSE(command(u"Inverted Pages"_s)->isChecked());
}

TEST_F(DetailToolBarTest, TheSidebarFoldsAwayAndComesBackAsWideAsItWas)
{
    detail().splitView().setSizes({200, 690});
    const int width = detail().splitView().sizes().first();
    command(u"Sidebar"_s)->trigger();
    EXPECT_FALSE(detail().isSidebarShown());
    command(u"Sidebar"_s)->trigger();
    EXPECT_TRUE(detail().isSidebarShown());
    EXPECT_EQ(detail().splitView().sizes().first(), width);
    // Dragged shut it counts as hidden, and comes back at its first width.
    detail().splitView().setSizes({0, 890});
    Q_EMIT detail().splitView().splitterMoved(0, 1);
    EXPECT_FALSE(command(u"Sidebar"_s)->isChecked());
    command(u"Sidebar"_s)->trigger();
    EXPECT_EQ(detail().splitView().sizes().first(), 270);
}

TEST_F(DetailToolBarTest, WithoutADocumentThereIsNothingToCommand)
{
    controller->setSpecification(nullptr);
    for (const auto &name : {u"Back"_s, u"Zoom In"_s, u"Fit Width"_s, u"Find"_s})
        EXPECT_FALSE(command(name)->isEnabled()) << name.toStdString();
    EXPECT_FALSE(number().isEnabled());
    EXPECT_EQ(number().text(), QString());
}

} // namespace
