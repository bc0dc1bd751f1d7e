// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMimeData>

#include <Tavrin/interface/files/AuxiliaryFileBrowserController.h>
#include <Tavrin/interface/toolkit/Popover.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <interface/SharedManagerFixture.h>

#include "Pictures.h"
#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

/// The browser of imported files, and the prompts that lead to it.
class Scene : public SharedManagerFixture
{
public:
    explicit Scene(Studio &studio) : m_studio(studio) {}
    ~Scene() override { TearDown(); }

    void takeTables()
    {
        take(u"files-empty"_s);
        addManual(u"Handbook"_s);
        addManual(u"Protocol Handbook, Second Edition"_s);
        take(u"files-not-loaded"_s);
        import(u"Handbook"_s);
        manager.setAuxiliaryFiles(
            {manager.auxiliaryFiles().front(), files.write(u"Letter of 12 May.pdf"_s, {})});
        take(u"files-loaded"_s);
        take(u"files-selected"_s, {560, 360}, [](AuxiliaryFileBrowserController &controller) {
            controller.tableView()->setFocus(Qt::TabFocusReason);
            QTest::keyClick(controller.tableView(), Qt::Key_Down);
            QTest::keyClick(controller.tableView(), Qt::Key_Up);
        });
        take(u"files-narrow"_s, {300, 300});
        take(u"files-accessory"_s, {560, 360}, [](AuxiliaryFileBrowserController &controller) {
            controller.setAccessoryView(std::make_unique<QLabel>(u"The host's own view"_s));
        });
        take(u"files-drop"_s, {560, 360}, [this](AuxiliaryFileBrowserController &controller) {
            QMimeData data;
            data.setUrls({files.url(u"Handbook.pdf"_s)});
            QDragEnterEvent event({40, 40}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(controller.view(), &event);
        });
    }
    void takeSheets()
    {
        const QUrl stranger = writeDocument(u"Stranger"_s, u"A Book on Gardens.pdf"_s);
        const QUrl broken = files.write(u"notes.pdf"_s, "no PDF");
        takeImporting();
        takeAlert(u"files-one-failure"_s, {stranger});
        takeAlert(u"files-two-failures"_s, {stranger, broken});
        takePanel();
    }
    void takePrompts()
    {
        for (const bool isAnythingImported : {false, true}) {
            manager.setSpecifications({});
            if (isAnythingImported)
                manager.registerSpecification(Specification::make<Specification>());
            const QString state = isAnythingImported ? u"some"_s : u"none"_s;
            manager.setAuxiliaryFileBrowserDisplayBlock([](const ViewControllerPtr &) {});
            takePrompt(u"prompt-%1-imported"_s.arg(state));
            manager.setAuxiliaryFileBrowserDisplayBlock({});
            takePrompt(u"prompt-%1-imported-no-browser"_s.arg(state));
        }
    }

private:
    using Preparation = std::function<void(AuxiliaryFileBrowserController &)>;

    void TestBody() override {}

    void addManual(const QString &title)
    {
        manager.registerSpecification(
            sampleMap(title.section(u' ', 0, 0))
                .title(title)
                .write(files, u"maps/%1.xml"_s.arg(title.section(u' ', 0, 0))),
            files.url(u"spec.dtd"_s));
    }
    void take(const QString &name, QSize size = {560, 360}, const Preparation &prepare = {})
    {
        const auto controller = AuxiliaryFileBrowserController::standard();
        controller->view()->resize(size);
        controller->view()->show();
        controller->view()->activateWindow();
        if (prepare)
            prepare(*controller);
        m_studio.shoot(*controller->view(), name);
    }
    /// As an import shows it, which would be over too soon.
    void takeImporting()
    {
        QWidget window;
        window.show();
        auto *sheet =
            ProgressSheet::begin(window, localized("Importing…", "aux file import progress title"),
                                 ProgressSheet::Kind::Indeterminate);
        m_studio.shoot(*sheet, u"files-importing"_s);
    }
    void takeAlert(const QString &name, const std::vector<QUrl> &urls)
    {
        const auto controller = AuxiliaryFileBrowserController::standard();
        controller->view()->show();
        controller->importFiles(urls);
        Studio::waitFor([&] { return !controller->isImporting(); });
        for (auto *sheet : controller->view()->findChildren<Sheet *>()) {
            if (sheet->isVisible())
                m_studio.shoot(*sheet, name);
        }
    }
    void takePanel()
    {
        const auto controller = AuxiliaryFileBrowserController::standard();
        controller->view()->show();
        controller->segmentedControlButtonPressed(0);
        auto *panel = controller->view()->findChild<QFileDialog *>();
        panel->setDirectory(files.path());
        m_studio.shoot(*panel, u"files-panel"_s);
    }
    void takePrompt(const QString &name)
    {
        QWidget window;
        window.resize(560, 260);
        QLabel reference(u"1.1"_s, &window);
        reference.move(270, 20);
        window.show();
        const QPointer<Popover> popover =
            Popover::show(manager.makeNoSpecsController(), reference.rect(), reference);
        m_studio.shoot(window, name);
        if (popover)
            popover->close();
    }

    Studio &m_studio;
};

} // namespace

void takeFilesPictures(Studio &studio)
{
    Scene scene(studio);
    scene.takeTables();
    scene.takeSheets();
    scene.takePrompts();
}

} // namespace Tavrin::Testing
