// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMimeData>

#include <Tavrin/interface/files/AuxiliaryFileBrowserController.h>
#include <Tavrin/interface/toolkit/Popover.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <interface/SharedManagerFixture.h>

#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

using Browser = AuxiliaryFileBrowserController;

struct Table {
    const char *name;
    QSize size = {560, 360};
    void (*prepare)(Browser &browser, const TemporaryFiles &files) = [](Browser &,
                                                                        const TemporaryFiles &) {};
};

void select(Browser &browser, const TemporaryFiles &)
{
    browser.tableView()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(browser.tableView(), Qt::Key_Down);
    QTest::keyClick(browser.tableView(), Qt::Key_Up);
}

void addAccessory(Browser &browser, const TemporaryFiles &)
{
    browser.setAccessoryView(std::make_unique<QLabel>(u"The host's own view"_s));
}

void dragIn(Browser &browser, const TemporaryFiles &files)
{
    QMimeData data;
    data.setUrls({files.url(u"Handbook.pdf"_s)});
    QDragEnterEvent event({40, 40}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(browser.view(), &event);
}

/// With a file that is imported, and one that nothing recognises.
const Table loadedTables[] = {
    {"files-loaded"},
    {"files-selected", {560, 360}, select},
    {"files-narrow", {300, 300}},
    {"files-accessory", {560, 360}, addAccessory},
    {"files-drop", {560, 360}, dragIn},
};

/// The browser of imported files, and the prompts that lead to it.
class Scene : public Staged<SharedManagerFixture>
{
public:
    explicit Scene(Studio &studio) : m_studio(studio) {}

    void takeTables()
    {
        take({"files-empty"});
        addManual(u"Handbook"_s);
        addManual(u"Protocol Handbook, Second Edition"_s);
        take({"files-not-loaded"});
        import(u"Handbook"_s);
        manager.setAuxiliaryFiles(
            {manager.auxiliaryFiles().front(), files.write(u"Letter of 12 May.pdf"_s, {})});
        for (const Table &table : loadedTables)
            take(table);
    }
    void takeSheets()
    {
        const QUrl stranger = writeDocument(u"Stranger"_s, u"A Book on Gardens.pdf"_s);
        const QUrl broken = files.write(u"notes.pdf"_s, "no PDF");
        // As an import shows it, which would be over too soon.
        QWidget window;
        window.show();
        m_studio.shoot(
            *ProgressSheet::begin(window, localized("Importing…", "aux file import progress title"),
                                  ProgressSheet::Kind::Indeterminate),
            u"files-importing"_s);
        takeAlert(u"files-one-failure"_s, {stranger});
        takeAlert(u"files-two-failures"_s, {stranger, broken});
        const auto browser = Browser::standard();
        browser->view()->show();
        browser->segmentedControlButtonPressed(0);
        auto *panel = browser->view()->findChild<QFileDialog *>();
        panel->setDirectory(files.path());
        m_studio.shoot(*panel, u"files-panel"_s);
    }
    void takePrompts()
    {
        for (const QString &state : {u"none"_s, u"some"_s}) {
            manager.setSpecifications({});
            if (state == u"some")
                manager.registerSpecification(Specification::make<Specification>());
            manager.setAuxiliaryFileBrowserDisplayBlock([](const ViewControllerPtr &) {});
            takePrompt(u"prompt-%1-imported"_s.arg(state));
            manager.setAuxiliaryFileBrowserDisplayBlock({});
            takePrompt(u"prompt-%1-imported-no-browser"_s.arg(state));
        }
    }

private:
    void addManual(const QString &title)
    {
        const QString word = title.section(u' ', 0, 0);
        manager.registerSpecification(
            sampleMap(word).title(title).write(files, u"maps/%1.xml"_s.arg(word)),
            files.url(u"spec.dtd"_s));
    }
    void take(const Table &table)
    {
        const auto browser = Browser::standard();
        browser->view()->resize(table.size);
        browser->view()->show();
        browser->view()->activateWindow();
        table.prepare(*browser, files);
        m_studio.shoot(*browser->view(), QLatin1String(table.name));
    }
    void takeAlert(const QString &name, const std::vector<QUrl> &urls)
    {
        const auto browser = Browser::standard();
        browser->view()->show();
        browser->importFiles(urls);
        Studio::waitFor([&] { return !browser->isImporting(); });
        for (auto *sheet : browser->view()->findChildren<Sheet *>()) {
            if (sheet->isVisible())
                m_studio.shoot(*sheet, name);
        }
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
