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
    explicit Scene(const std::shared_ptr<PDFSpecification> &specification, QSize size = sidebar)
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

    QWidget &view() { return *controller->view(); }
    void type(const QString &text)
    {
        QTest::keyClicks(view().template findChild<QLineEdit *>(), text);
    }

    std::shared_ptr<Controller> controller = std::make_shared<Controller>();
};

class OutlineScene : public Scene<SpecPDFOutlineViewController>
{
public:
    using Scene::Scene;
    void goDeep()
    {
        const auto document = controller->specification()->document();
        controller->showsPlace(HostPDFDestination(document->page(40), {0, 600}));
    }
};

class SearchScene : public Scene<SpecPDFSearchViewController>
{
public:
    using Scene::Scene;
    void search(const QString &text)
    {
        QSignalSpy shown(controller.get(), &SpecPDFSearchViewController::resultsShown);
        type(text);
        Studio::waitFor([&] { return shown.count() >= text.size(); });
    }
    void waitForDescriptions()
    {
        QTest::qWait(50);
        Studio::waitFor([this] { return !controller->isLoadingEntries(); });
        QTest::qWait(50);
    }
    void find(const QString &text)
    {
        search(text);
        waitForDescriptions();
    }
    void selectSecond()
    {
        QTest::keyClick(controller->searchField(), Qt::Key_Down);
        QTest::keyClick(controller->searchField(), Qt::Key_Down);
    }
};

const State<OutlineScene> outlineStates[] = {
    {"sidebar-outline", [](OutlineScene &scene) { scene.goDeep(); }},
    {"sidebar-outline-filtered", [](OutlineScene &scene) { scene.type(u"solution"_s); }},
    {"sidebar-outline-no-match", [](OutlineScene &scene) { scene.type(u"zzz"_s); }},
};
const State<SearchScene> searchStates[] = {
    {"sidebar-search-empty"},
    {"sidebar-search", [](SearchScene &scene) { scene.find(u"prob sol"_s); }},
    {"sidebar-search-selected", [](SearchScene &scene) { scene.selectSecond(); }},
    {"sidebar-search-none", [](SearchScene &scene) { scene.search(u"zzz"_s); }},
};

const State<OutlineScene> narrowOutlineStates[] = {
    {"sidebar-outline-narrow", [](OutlineScene &scene) { scene.goDeep(); }}};
const State<SearchScene> narrowSearchStates[] = {
    {"sidebar-search-narrow", [](SearchScene &scene) { scene.find(u"a"_s); }}};
const State<OutlineScene> emptyStates[] = {{"sidebar-outline-empty"}};

template <class Kind, std::size_t count>
void take(Studio &studio, const std::shared_ptr<PDFSpecification> &specification,
          const State<Kind> (&states)[count], QSize size = sidebar)
{
    Kind scene(specification, size);
    studio.shootStates(scene.view(), scene, states);
}

/// Descriptions that have not come yet, and long texts.
class SlowSpecification : public Staged<SummaryFixture>
{
public:
    explicit SlowSpecification(Studio &studio)
    {
        section(u"9"_s,
                u"Long Text About a Subject With a Title That Is Longer Than One Line of a "
                "Sidebar Can Hold"_s,
                3, 700);
        bind();
        SearchScene scene(specification);
        Gate gate(*blue);
        scene.search(u" "_s);
        studio.shoot(scene.view(), u"sidebar-search-pending"_s);
        gate.open();
        scene.waitForDescriptions();
        studio.shoot(scene.view(), u"sidebar-search-long"_s);
    }
};

} // namespace

void takeSidebarPictures(Studio &studio)
{
    SpecificationManager manager;
    const auto specification = studio.bindSample(manager);
    take(studio, specification, outlineStates);
    take(studio, specification, narrowOutlineStates, narrow);
    take(studio, nullptr, emptyStates);
    take(studio, specification, searchStates);
    take(studio, specification, narrowSearchStates, narrow);
    SlowSpecification slow(studio);
}

} // namespace Tavrin::Testing
