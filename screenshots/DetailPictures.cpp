// SPDX-License-Identifier: Apache-2.0
#include <QSettings>
#include <QTest>

#include <Tavrin/interface/detail/DetailView.h>
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <support/FinishTasks.h>
#include <support/PDFBuilder.h>

#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

using Controller = std::shared_ptr<SpecPDFViewController>;
using SpecificationPtr = std::shared_ptr<Specification>;

void show(const Controller &controller, QSize size = {1'100, 760})
{
    controller->setAllowsEntrySelection(true);
    controller->view()->resize(size);
    controller->view()->show();
}

Controller atEntry(const SpecificationPtr &specification, const QString &label)
{
    auto controller = SpecPDFViewController::make(specification);
    controller->setAllowsEntrySelection(true);
    controller->selectEntry(specification->entry(label));
    return controller;
}

/// Until the place no longer lights up.
void fade()
{
    QTest::qWait(1'800);
}

const State<SpecPDFViewController> entryStates[] = {
    {"detail-landing"},
    {"detail-highlight", [](SpecPDFViewController &) { fade(); }},
    {"detail-find",
     [](SpecPDFViewController &controller) { controller.viewer()->pdfView().showFindBar(); }},
    {"detail-no-sidebar",
     [](SpecPDFViewController &controller) {
         controller.viewer()->pdfView().hideFindBar();
         static_cast<DetailView &>(*controller.view()).showSidebar(false);
     }},
    {"detail-inverted",
     [](SpecPDFViewController &controller) {
         controller.viewer()->pdfView().setColorsInverted(true);
     }},
};

void takeCoverage(Studio &studio, const SpecificationPtr &specification)
{
    const auto controller = atEntry(specification, u"2.4"_s);
    // Two sections, one behind the other, and one apart.
    controller->setReferenceCoverage(
        ReferenceCoverage{{u"2.3"_s, {}}, {u"2.4"_s, {}}, {u"3.1"_s, {}}});
    controller->setShowsReferenceCoverage(true);
    show(controller);
    Studio::waitFor([&] { return controller->viewer()->coverageHighlights().has_value(); });
    fade();
    studio.shoot(*controller->view(), u"detail-coverage"_s);
    // The sheet is a window of its own, and gone too soon for a picture.
    auto *sheet = ProgressSheet::begin(
        *controller->view()->window(),
        localized("Highlighting spec coverage…", "spec detail view progress message"),
        ProgressSheet::Kind::Determinate);
    sheet->setValue(0.4);
    studio.shoot(*sheet, u"detail-coverage-sheet"_s);
    sheet->end(QDialog::Accepted);
}

std::shared_ptr<PDFSpecification> titled(const QString &title)
{
    auto specification = Specification::make<PDFSpecification>();
    specification->setTitle(title);
    return specification;
}

void takeTroubles(Studio &studio, const SpecificationPtr &specification)
{
    const auto nowhere = std::make_shared<PDFSpecification::Entry>(
        specification, u"9.9"_s, u"Nowhere"_s, SpecificationEntryType::Section,
        std::vector<int>{9, 9});
    PDFBuilder plain;
    plain.addPage().text(72, 700, u"A page, and no outline"_s, {.size = 20});
    const auto bare = titled(u"Plain"_s);
    bare->loadPDFStructure(CachingPDFDocument::open(plain.build()));
    const SpecificationPtr unbound = titled(u"Portable, Extensible Toolkit"_s);
    const std::pair<const char *, Controller> scenes[] = {
        {"detail-no-place", SpecPDFViewController::make(nowhere)},
        {"detail-no-outline", SpecPDFViewController::make(SpecificationPtr(bare))},
        {"detail-no-document", SpecPDFViewController::make(unbound)},
    };
    for (const auto &[name, controller] : scenes) {
        show(controller);
        studio.shoot(*controller->view(), QLatin1String(name));
    }
}

} // namespace

void takeDetailPictures(Studio &studio)
{
    QSettings().clear();
    SpecificationManager manager;
    const SpecificationPtr specification = studio.bindSample(manager);
    const auto whole = SpecPDFViewController::make(specification);
    show(whole);
    studio.shoot(*whole->view(), u"detail"_s);
    const auto entry = atEntry(specification, u"2.3"_s);
    show(entry);
    studio.shootStates(*entry->view(), *entry, entryStates);
    takeCoverage(studio, specification);
    const auto narrow = atEntry(specification, u"2.3"_s);
    show(narrow, {420, 560});
    fade();
    studio.shoot(*narrow->view(), u"detail-narrow"_s);
    takeTroubles(studio, specification);
    finishTasks(backgroundPool());
}

} // namespace Tavrin::Testing
