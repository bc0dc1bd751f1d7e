// SPDX-License-Identifier: Apache-2.0
#include <QLineEdit>
#include <QListView>
#include <QSettings>
#include <QTreeView>

#include <Tavrin/interface/sidebars/SpecPDFOutlineViewController.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchResult.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchViewController.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <interface/SummaryFixture.h>
#include <support/FinishTasks.h>

#include "Pictures.h"
#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize sidebar(270, 520);
constexpr QSize narrow(150, 520);

/// A sidebar of a specification, made anew for each scene.
template <class Controller>
class Scene
{
public:
    Scene(Studio &studio, const std::shared_ptr<PDFSpecification> &specification,
          QSize size = sidebar)
        : m_studio(studio)
    {
        QSettings().clear();
        controller->setSpecification(specification);
        controller->view()->resize(size);
        controller->view()->show();
        controller->view()->activateWindow();
    }
    ~Scene()
    {
        controller.reset();
        // It stores its text in a folder that goes.
        finishTasks(serialBackground());
    }
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;

    void type(const QString &text)
    {
        QTest::keyClicks(controller->view()->template findChild<QLineEdit *>(), text);
    }
    void shoot(const QString &name) { m_studio.shoot(*controller->view(), name); }

    std::shared_ptr<Controller> controller = std::make_shared<Controller>();

private:
    Studio &m_studio;
};
using OutlineScene = Scene<SpecPDFOutlineViewController>;
using SearchScene = Scene<SpecPDFSearchViewController>;

void search(SearchScene &scene, const QString &text)
{
    QSignalSpy shown(scene.controller.get(), &SpecPDFSearchViewController::resultsShown);
    scene.type(text);
    Studio::waitFor([&] { return shown.count() >= text.size(); });
}

void waitForDescriptions(const SearchScene &scene)
{
    QTest::qWait(50);
    Studio::waitFor([&scene] { return !scene.controller->isLoadingEntries(); });
    QTest::qWait(50);
}

void shootOutlines(Studio &studio, const std::shared_ptr<PDFSpecification> &specification)
{
    const auto deep = [](OutlineScene &scene) {
        const auto document = scene.controller->specification()->document();
        scene.controller->showsPlace(HostPDFDestination(document->page(40), {0, 600}));
    };
    {
        OutlineScene scene(studio, specification);
        deep(scene);
        scene.shoot(u"sidebar-outline"_s);
        scene.type(u"solution"_s);
        scene.shoot(u"sidebar-outline-filtered"_s);
        scene.type(u"zzz"_s);
        scene.shoot(u"sidebar-outline-no-match"_s);
    }
    OutlineScene small(studio, specification, narrow);
    deep(small);
    small.shoot(u"sidebar-outline-narrow"_s);
    OutlineScene(studio, nullptr).shoot(u"sidebar-outline-empty"_s);
}

void shootSearches(Studio &studio, const std::shared_ptr<PDFSpecification> &specification)
{
    {
        SearchScene scene(studio, specification);
        scene.shoot(u"sidebar-search-empty"_s);
        search(scene, u"prob sol"_s);
        waitForDescriptions(scene);
        scene.shoot(u"sidebar-search"_s);
        QTest::keyClick(scene.controller->searchField(), Qt::Key_Down);
        QTest::keyClick(scene.controller->searchField(), Qt::Key_Down);
        scene.shoot(u"sidebar-search-selected"_s);
        search(scene, u"zzz"_s);
        scene.shoot(u"sidebar-search-none"_s);
    }
    SearchScene scene(studio, specification, narrow);
    search(scene, u"a"_s);
    waitForDescriptions(scene);
    scene.shoot(u"sidebar-search-narrow"_s);
}

/// Descriptions that have not come yet, and long texts.
class SlowSpecification : public SummaryFixture
{
public:
    explicit SlowSpecification(Studio &studio)
    {
        section(u"9"_s,
                u"Long Text About a Subject With a Title That Is Longer Than One Line of a "
                "Sidebar Can Hold"_s,
                3, 700);
        bind();
        SearchScene scene(studio, specification);
        Gate gate(*blue);
        search(scene, u" "_s);
        scene.shoot(u"sidebar-search-pending"_s);
        gate.open();
        waitForDescriptions(scene);
        scene.shoot(u"sidebar-search-long"_s);
    }
    ~SlowSpecification() override { TearDown(); }

private:
    void TestBody() override {}
};

} // namespace

void takeSidebarPictures(Studio &studio)
{
    SpecificationManager manager;
    const auto specification =
        std::dynamic_pointer_cast<PDFSpecification>(studio.bindSample(manager, u"slepc"_s));
    shootOutlines(studio, specification);
    shootSearches(studio, specification);
    SlowSpecification slow(studio);
}

} // namespace Tavrin::Testing
