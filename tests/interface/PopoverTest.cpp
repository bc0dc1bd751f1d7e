// SPDX-License-Identifier: Apache-2.0
#include <QPushButton>

#include <Tavrin/interface/summary/SpecErrorViewController.h>

#include "SummaryFixture.h"

namespace
{

class PopoverOfAnEntry : public SummaryFixture
{
protected:
    PopoverOfAnEntry()
    {
        window.resize(700, 500);
        button = new QPushButton(u"Reference"_s, &window);
        button->setGeometry(300, 20, 100, 30);
        other = new QPushButton(u"Other"_s, &window);
        other->setGeometry(10, 460, 100, 30);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        button->setFocus();
    }
    QPointer<Popover> show()
    {
        return Popover::show(std::make_unique<SpecEntrySummaryViewController>(scope),
                             button->rect(), *button);
    }
    /// Lets a popover that closed be deleted.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QWidget window;
    QPushButton *button = nullptr;
    QPushButton *other = nullptr;
};

class Listener : public SpecErrorViewControllerDelegate
{
public:
    void specErrorViewControllerButtonPressed(SpecErrorViewController &) override { ++pressed; }
    int pressed = 0;
};

} // namespace

TEST_F(PopoverOfAnEntry, AppearsAtOnceAndGrowsWhenTheEntryIsRead)
{
    bind();
    Gate gate(*scope);
    const QPointer<Popover> popover = show();
    auto *controller = dynamic_cast<SpecEntrySummaryViewController *>(popover->viewController());
    EXPECT_TRUE(popover->isVisible());
    EXPECT_EQ(text(*popover, u"Section"_s), scope->displayTitle());
    const QRect before = popover->geometry();
    QSignalSpy loaded(controller, &SpecEntrySummaryViewController::loaded);
    gate.open();
    ASSERT_TRUE(loaded.wait());
    EXPECT_TRUE(QTest::qWaitFor([&] { return popover->height() > before.height(); }));
    EXPECT_EQ(popover->width(), before.width());
    EXPECT_TRUE(window.rect().contains(popover->geometry()));
    EXPECT_GE(popover->viewController()->view()->mapTo(&window, QPoint()).y(),
              button->geometry().bottom());
}

TEST_F(PopoverOfAnEntry, ClosesOnEscapeAndGivesTheFocusBack)
{
    bind();
    const QPointer<Popover> popover = show();
    QSignalSpy closed(popover, &Popover::closed);
    EXPECT_TRUE(popover->isAncestorOf(QApplication::focusWidget()));
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(popover->isAncestorOf(QApplication::focusWidget())) << "Tab stays within";
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(closed.count(), 1);
    settle();
    EXPECT_TRUE(popover.isNull());
    EXPECT_TRUE(button->hasFocus());
    const QPointer<Popover> again = show();
    other->setFocus();
    QTest::keyClick(other, Qt::Key_Escape);
    settle();
    EXPECT_TRUE(again.isNull()) << "with the focus outside";
    EXPECT_TRUE(other->hasFocus());
}

TEST_F(PopoverOfAnEntry, ClosesOnAClickOutsideWhichHasItsEffect)
{
    bind();
    QPointer<Popover> popover = show();
    auto *summary = cell(*popover, u"Section"_s)->textView();
    QTest::mouseClick(summary->viewport(), Qt::LeftButton);
    EXPECT_FALSE(popover->isHidden()) << "a click inside";
    QSignalSpy clicked(other, &QPushButton::clicked);
    QTest::mouseClick(other, Qt::LeftButton);
    settle();
    EXPECT_TRUE(popover.isNull());
    EXPECT_EQ(clicked.count(), 1);
    popover = show();
    QTest::mouseClick(popover, Qt::LeftButton, {}, QPoint(1, 1));
    settle();
    EXPECT_TRUE(popover.isNull()) << "on the shadow";
}

TEST_F(PopoverOfAnEntry, GoesWithWhatItPointsTo)
{
    bind();
    QPointer<Popover> popover = show();
    button->hide();
    settle();
    EXPECT_TRUE(popover.isNull());
    button->show();
    popover = show();
    delete button;
    settle();
    EXPECT_TRUE(popover.isNull());
}

TEST_F(PopoverOfAnEntry, StaysInsideWindowsOfAnySize)
{
    bind();
    const QPointer<Popover> popover = show();
    for (const QSize &size : {QSize(260, 300), QSize(900, 700), QSize(120, 90)}) {
        window.resize(size);
        button->move(size.width() - 60, size.height() / 2);
        window.resize(size - QSize(1, 1));
        QCoreApplication::processEvents();
        EXPECT_LE(popover->width(), std::max(size.width(), 60));
        EXPECT_GE(popover->x(), 0);
    }
    EXPECT_FALSE(popover->isHidden());
}

TEST(SpecErrorView, ShowsItsMessageAndTellsOfItsButton)
{
    SpecErrorViewController controller;
    EXPECT_TRUE(controller.buttonIsHidden());
    controller.setMessageText(u"Nothing here."_s);
    controller.view()->show();
    auto *button = controller.view()->findChild<QPushButton *>();
    EXPECT_TRUE(button->isHidden());
    EXPECT_EQ(controller.view()->findChild<QLabel *>()->text(), u"Nothing here."_s);
    controller.setButtonTitle(u"Import"_s);
    EXPECT_FALSE(button->isHidden());
    EXPECT_EQ(button->text(), u"Import"_s);
    button->click();
    auto listener = std::make_shared<Listener>();
    controller.setDelegate(listener);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(listener->pressed, 1);
    listener.reset();
    button->click();
    EXPECT_EQ(controller.delegate(), nullptr);
}
