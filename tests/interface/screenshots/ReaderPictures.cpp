// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QListView>
#include <QMimeData>
#include <QTest>

#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <reader/citing/CitationModel.h>
#include <reader/citing/CitationWindow.h>
#include <reader/lookup/EntryPalette.h>
#include <reader/lookup/LookupField.h>
#include <reader/panes/ControllerPane.h>
#include <reader/window/ReaderWindow.h>

#include "Pictures.h"
#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;
using Reader::ReaderWindow;

namespace
{

/// A reader whose maps are the samples.
class Scene
{
public:
    explicit Scene(Studio &studio, QSize size = {1180, 760}) : m_studio(studio)
    {
        m_window.resize(size);
        m_window.show();
    }
    ~Scene()
    {
        m_window.close();
        SpecificationManager::shared().setSpecifications({});
        SpecificationManager::shared().setAuxiliaryFiles({});
    }
    ReaderWindow &window() { return m_window; }
    void open()
    {
        m_window.openMaps({QStringLiteral(TAVRIN_SAMPLES)});
        m_window.bindFiles({m_studio.document(u"slepc.pdf"_s)});
    }
    void shoot(const QString &name)
    {
        Studio::waitFor([this] { return isSettled(); });
        m_studio.shoot(m_window, name);
    }

private:
    bool isSettled()
    {
        const auto summary = std::dynamic_pointer_cast<SpecEntrySummaryViewController>(
            m_window.summaryPane().controller());
        const auto detail =
            std::dynamic_pointer_cast<SpecPDFViewController>(m_window.detailPane().controller());
        return (!summary || !summary->isLoading()) &&
               (!detail || detail->viewer()->pdfView().isFullyDrawn());
    }

    Studio &m_studio;
    ReaderWindow m_window{SpecificationManager::shared()};
};

/// What a work on linear algebra might cite.
Reader::CitationDocument work()
{
    return {{{u"The solver stops when the residual falls below the tolerance that the user set."_s,
              {u"spec://2.5.3/slepc-users-manual/1"_s, u"spec://Table%202.5/slepc-users-manual/1"_s,
               u"spec://2.1/slepc-users-manual/1"_s}},
             {u"Singular values are computed through a cross-product eigenproblem."_s,
              {u"spec://4.1/slepc-users-manual/1"_s, u"see the test report"_s}},
             {u"Matrix functions are not exported."_s, {u"spec://7.1/slepc-users-manual/1"_s}}}};
}

void takeCitations(Studio &studio)
{
    Scene scene(studio);
    scene.open();
    auto *form = scene.window().openCitations();
    studio.shoot(*form, u"reader-citations-new"_s);
    form->citations().setDocument(work());
    auto *list = form->findChild<QListView *>();
    list->setCurrentIndex(list->model()->index(0, 0));
    studio.shoot(*form, u"reader-citations"_s);
    form->setWindowModified(true);
    form->close();
    if (auto *sheet = form->findChild<Sheet *>()) {
        studio.shoot(*sheet, u"reader-citations-unsaved"_s);
        sheet->end(0);
    }
    form->setWindowModified(false);
    scene.window().showCoverage(form->references());
    const auto detail =
        std::dynamic_pointer_cast<SpecPDFViewController>(scene.window().detailPane().controller());
    Studio::waitFor([&detail] { return detail->viewer()->coverageHighlights().has_value(); });
    scene.shoot(u"reader-coverage"_s);
}

void takeStates(Studio &studio)
{
    Scene scene(studio);
    scene.open();
    scene.shoot(u"reader-opened"_s);
    for (const QString &label : {u"2.2"_s, u"Fig. 2.1"_s, u"2.1"_s})
        scene.window().lookUp(label);
    scene.shoot(u"reader-entry"_s);
    scene.window().lookUp(u"Table 2.1"_s);
    scene.shoot(u"reader-table"_s);
    scene.window().lookUp(u"§ 99"_s);
    scene.shoot(u"reader-nothing"_s);
    scene.window().lookUp(u"2.1"_s);
    scene.window().entryPalette().open();
    QTest::keyClicks(scene.window().focusWidget(), u"eigen"_s);
    QTest::keyClick(scene.window().focusWidget(), Qt::Key_Down);
    scene.shoot(u"reader-palette"_s);
    QTest::keyClick(scene.window().focusWidget(), Qt::Key_Escape);
    scene.window().lookupField().setFocus();
    QTest::keyClicks(&scene.window().lookupField(), u"eigen"_s);
    if (QWidget *popup = QApplication::activePopupWidget())
        studio.shoot(*popup, u"reader-suggestions"_s);
}

} // namespace

void takeReaderPictures(Studio &studio)
{
    Scene(studio).shoot(u"reader-empty"_s);
    {
        Scene scene(studio);
        scene.window().openMaps({QStringLiteral(TAVRIN_SAMPLES)});
        scene.shoot(u"reader-without-documents"_s);
        scene.window().lookUp(u"2.1"_s);
        scene.shoot(u"reader-prompt"_s);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(studio.document(u"slepc.pdf"_s))});
        QDragEnterEvent enter({400, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&scene.window(), &enter);
        scene.shoot(u"reader-drop"_s);
    }
    takeStates(studio);
    takeCitations(studio);
    Scene narrow(studio, {640, 520});
    narrow.open();
    narrow.window().lookUp(u"2.1"_s);
    narrow.shoot(u"reader-narrow"_s);
}

} // namespace Tavrin::Testing
