// SPDX-License-Identifier: Apache-2.0
#include <QLabel>
#include <QTest>

#include <support/Test.h>

#include <Tavrin/interface/detail/CustomDividerSplitView.h>
#include <Tavrin/interface/toolkit/ViewController.h>

namespace
{

/// Writes down what it hears.
class ListeningController : public ViewController
{
public:
    QStringList heard;

protected:
    std::unique_ptr<QWidget> loadView() override
    {
        heard << u"load"_s;
        return std::make_unique<QLabel>(u"view"_s);
    }
    void viewDidLoad() override { heard << u"did load"_s; }
    void viewWillAppear() override { heard << u"will appear"_s; }
    void viewDidAppear() override { heard << u"did appear"_s; }
    void viewDidDisappear() override { heard << u"did disappear"_s; }
};

} // namespace

TEST(ViewController, LoadsOnceAndHearsItsViewComeAndGo)
{
    ListeningController controller;
    EXPECT_FALSE(controller.isViewLoaded());
    QWidget *view = controller.view();
    EXPECT_EQ(controller.view(), view);
    view->show();
    QCoreApplication::processEvents();
    view->hide();
    EXPECT_THAT(controller.heard, ElementsAre(u"load"_s, u"did load"_s, u"will appear"_s,
                                              u"did appear"_s, u"did disappear"_s));
}

TEST(ViewController, OutlivesTheWindowThatTookItsView)
{
    ListeningController controller;
    {
        QWidget window;
        controller.view()->setParent(&window);
    }
    EXPECT_FALSE(controller.isViewLoaded());
    EXPECT_EQ(controller.view(), nullptr);
}

TEST(CustomDividerSplitView, DrawsItsDividerInThePalettesGray)
{
    CustomDividerSplitView split;
    split.addWidget(new QLabel(u"left"_s));
    split.addWidget(new QLabel(u"right"_s));
    QPalette palette = split.palette();
    palette.setColor(QPalette::Mid, QColor(120, 121, 122));
    split.setPalette(palette);
    split.resize(200, 50);
    split.show();
    const QWidget *divider = split.handle(1);
    const QImage image = split.grab().toImage();
    EXPECT_EQ(image.pixelColor(divider->geometry().center()), QColor(120, 121, 122));
}
