// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <support/Test.h>

#include <Tavrin/interface/toolkit/SegmentedControl.h>

namespace
{

/// Three segments between two fields.
class Segments : public testing::Test
{
protected:
    Segments()
    {
        auto *layout = new QHBoxLayout(&window);
        layout->addWidget(before);
        layout->addWidget(control);
        layout->addWidget(after);
        for (const QString &name : {u"Add"_s, u"Remove"_s, u"Edit"_s})
            control->addSegment(name.left(1), name);
        QObject::connect(control, &SegmentedControl::pressed, control,
                         [this](int index) { pressed.push_back(index); });
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        before->setFocus();
    }

    static void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    int focused() const
    {
        for (int index = 0; index < control->segmentCount(); ++index) {
            if (control->segment(index)->hasFocus())
                return index;
        }
        return -1;
    }

    QWidget window;
    QLineEdit *before = new QLineEdit;
    SegmentedControl *control = new SegmentedControl;
    QLineEdit *after = new QLineEdit;
    std::vector<int> pressed;
};

} // namespace

TEST_F(Segments, ArePressedByTheMouse)
{
    EXPECT_EQ(control->selectedSegment(), -1);
    QTest::mouseClick(control->segment(1), Qt::LeftButton);
    QTest::mouseClick(control->segment(0), Qt::LeftButton);
    EXPECT_THAT(pressed, ElementsAre(1, 0));
    EXPECT_EQ(control->selectedSegment(), 0);
    control->setSegmentEnabled(1, false);
    QTest::mouseClick(control->segment(1), Qt::LeftButton);
    EXPECT_EQ(pressed.size(), 2U);
    EXPECT_EQ(control->segment(2)->accessibleName(), u"Edit"_s);
    EXPECT_THAT(control->segment(3), IsNull());
    EXPECT_THAT(control->segment(-1), IsNull());
}

TEST_F(Segments, AreOneStopOfTheKeyboard)
{
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), 0);
    key(Qt::Key_Left);
    EXPECT_EQ(focused(), 0) << "there is none before";
    control->setSegmentEnabled(1, false);
    key(Qt::Key_Right);
    EXPECT_EQ(focused(), 2) << "what can't be pressed is passed over";
    key(Qt::Key_Space);
    key(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return pressed.size() == 2; }));
    EXPECT_THAT(pressed, ElementsAre(2, 2));
    key(Qt::Key_Tab);
    EXPECT_TRUE(after->hasFocus());
    QTest::keyClick(after, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), 2) << "where one was";
    before->setFocus();
    control->setFocus();
    EXPECT_EQ(focused(), 2);
}

TEST_F(Segments, KeepTheFocusWhenOneCanNoMoreBePressed)
{
    control->segment(1)->setFocus();
    control->setSegmentEnabled(1, false);
    EXPECT_EQ(focused(), 0);
    control->setSegmentEnabled(0, false);
    EXPECT_EQ(focused(), 2);
    before->setFocus();
    control->setSegmentEnabled(2, false);
    control->setSegmentEnabled(1, true);
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), 1);
}

TEST_F(Segments, FollowTheDirectionOfReading)
{
    window.setLayoutDirection(Qt::RightToLeft);
    key(Qt::Key_Tab);
    key(Qt::Key_Left);
    EXPECT_EQ(focused(), 1);
    key(Qt::Key_Right);
    EXPECT_EQ(focused(), 0);
}
