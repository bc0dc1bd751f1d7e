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

#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;
using Reader::ReaderWindow;

namespace
{

/// Looks a reference up, and waits for its summary.
void lookUp(ReaderWindow &window, const QString &reference)
{
    window.lookUp(reference);
    const auto summary = std::dynamic_pointer_cast<SpecEntrySummaryViewController>(
        window.summaryPane().controller());
    Studio::waitFor([&summary] { return !summary || !summary->isLoading(); });
}

void typeInFocus(ReaderWindow &window, const QString &text)
{
    QTest::keyClicks(window.focusWidget(), text);
}

const State<ReaderWindow> unboundStates[] = {
    {"reader-empty"},
    {"reader-without-documents",
     [](ReaderWindow &window) { window.openMaps({QStringLiteral(TAVRIN_SAMPLES)}); }},
    {"reader-prompt", [](ReaderWindow &window) { lookUp(window, u"2.1"_s); }},
    {"reader-drop",
     [](ReaderWindow &window) {
         QMimeData data;
         data.setUrls({QUrl::fromLocalFile(u"/slepc.pdf"_s)});
         QDragEnterEvent enter({400, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
         QApplication::sendEvent(&window, &enter);
     }},
};

const State<ReaderWindow> boundStates[] = {
    {"reader-opened"},
    {"reader-entry",
     [](ReaderWindow &window) {
         for (const QString &label : {u"2.2"_s, u"Fig. 2.1"_s, u"2.1"_s})
             lookUp(window, label);
     }},
    {"reader-table", [](ReaderWindow &window) { lookUp(window, u"Table 2.1"_s); }},
    {"reader-nothing", [](ReaderWindow &window) { lookUp(window, u"§ 99"_s); }},
    {"reader-palette",
     [](ReaderWindow &window) {
         lookUp(window, u"2.1"_s);
         window.entryPalette().open();
         typeInFocus(window, u"eigen"_s);
         QTest::keyClick(window.focusWidget(), Qt::Key_Down);
     }},
};
const State<ReaderWindow> narrowStates[] = {
    {"reader-narrow", [](ReaderWindow &window) { lookUp(window, u"2.1"_s); }},
};

/// A reader whose maps are the samples.
class Scene
{
public:
    explicit Scene(Studio &studio, QSize size = {1180, 760}) : m_studio(studio)
    {
        window.resize(size);
        window.show();
    }
    ~Scene()
    {
        window.close();
        SpecificationManager::shared().setSpecifications({});
        SpecificationManager::shared().setAuxiliaryFiles({});
    }

    Scene &open()
    {
        window.openMaps({QStringLiteral(TAVRIN_SAMPLES)});
        window.bindFiles({m_studio.document(u"slepc.pdf"_s)});
        return *this;
    }
    template <class States>
    void take(const States &states)
    {
        m_studio.shootStates(window, window, states);
    }

    ReaderWindow window{SpecificationManager::shared()};

private:
    Studio &m_studio;
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

void takeSuggestions(Studio &studio, ReaderWindow &window)
{
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    window.lookupField().setFocus();
    typeInFocus(window, u"eigen"_s);
    if (QWidget *popup = QApplication::activePopupWidget())
        studio.shoot(*popup, u"reader-suggestions"_s);
}

void takeCitations(Studio &studio)
{
    Scene scene(studio);
    auto *form = scene.open().window.openCitations();
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
    scene.window.showCoverage(form->references());
    const auto detail =
        std::dynamic_pointer_cast<SpecPDFViewController>(scene.window.detailPane().controller());
    Studio::waitFor([&detail] { return detail->viewer()->coverageHighlights().has_value(); });
    studio.shoot(scene.window, u"reader-coverage"_s);
}

} // namespace

void takeReaderPictures(Studio &studio)
{
    Scene(studio).take(unboundStates);
    {
        Scene scene(studio);
        scene.open().take(boundStates);
        takeSuggestions(studio, scene.window);
    }
    takeCitations(studio);
    Scene(studio, {640, 520}).open().take(narrowStates);
}

} // namespace Tavrin::Testing
