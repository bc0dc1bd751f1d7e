// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QSettings>
#include <QTest>

#include <Tavrin/interface/detail/DetailView.h>
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <Tavrin/interface/sidebars/HighlightTabViewController.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <support/FinishTasks.h>
#include <support/PDFBuilder.h>

#include "Pictures.h"
#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

using SpecificationPtr = std::shared_ptr<Specification>;

/// A detail view, made anew for each scene.
class Scene
{
public:
    Scene(Studio &studio, const std::shared_ptr<SpecPDFViewController> &shown,
          QSize size = {1'100, 760})
        : controller(shown), m_studio(studio)
    {
        controller->setAllowsEntrySelection(true);
        controller->view()->resize(size);
        controller->view()->show();
        settle();
    }
    EntryHighlightPDFView &view() const { return controller->viewer()->pdfView(); }
    DetailView &detail() const { return static_cast<DetailView &>(*controller->view()); }
    void shoot(const QString &name)
    {
        settle();
        m_studio.shoot(*controller->view(), name);
    }

    std::shared_ptr<SpecPDFViewController> controller;

private:
    void settle()
    {
        if (!view().document())
            return;
        Studio::waitFor(
            [this] { return view().isFullyDrawn() && view().textOf(view().currentPage()); });
    }

    Studio &m_studio;
};

std::shared_ptr<SpecPDFViewController> atEntry(const SpecificationPtr &specification,
                                               const QString &label)
{
    auto controller = SpecPDFViewController::make(specification);
    controller->setAllowsEntrySelection(true);
    controller->selectEntry(specification->entry(label));
    return controller;
}

/// Two sections, one behind the other, and one apart.
const ReferenceCoverage coverage{{u"2.3"_s, {}}, {u"2.4"_s, {}}, {u"3.1"_s, {}}};

void shootEntry(Studio &studio, const SpecificationPtr &specification)
{
    Scene(studio, SpecPDFViewController::make(specification)).shoot(u"detail"_s);
    Scene scene(studio, atEntry(specification, u"2.3"_s));
    // The place still lights up.
    scene.shoot(u"detail-landing"_s);
    QTest::qWait(1'800);
    scene.shoot(u"detail-highlight"_s);
    scene.view().showFindBar();
    scene.shoot(u"detail-find"_s);
    scene.view().hideFindBar();
    scene.detail().showSidebar(false);
    scene.shoot(u"detail-no-sidebar"_s);
    scene.view().setColorsInverted(true);
    scene.shoot(u"detail-inverted"_s);
}

void shootCoverage(Studio &studio, const SpecificationPtr &specification)
{
    const auto controller = atEntry(specification, u"2.4"_s);
    controller->setReferenceCoverage(coverage);
    controller->setShowsReferenceCoverage(true);
    Scene scene(studio, controller);
    Studio::waitFor([&] { return controller->viewer()->coverageHighlights().has_value(); });
    QTest::qWait(1'800);
    scene.shoot(u"detail-coverage"_s);
    // The sheet is a window of its own, and gone too soon for a picture.
    auto *sheet = ProgressSheet::begin(
        *controller->view()->window(),
        localized("Highlighting spec coverage…", "spec detail view progress message"),
        ProgressSheet::Kind::Determinate);
    sheet->setValue(0.4);
    studio.shoot(*sheet, u"detail-coverage-sheet"_s);
    sheet->end(QDialog::Accepted);
}

void shootTroubles(Studio &studio, const SpecificationPtr &specification)
{
    {
        Scene narrow(studio, atEntry(specification, u"2.3"_s), {420, 560});
        QTest::qWait(1'800);
        narrow.shoot(u"detail-narrow"_s);
    }
    const auto nowhere = std::make_shared<PDFSpecification::Entry>(
        specification, u"9.9"_s, u"Nowhere"_s, SpecificationEntryType::Section,
        std::vector<int>{9, 9});
    Scene(studio, SpecPDFViewController::make(nowhere)).shoot(u"detail-no-place"_s);
    PDFBuilder plain;
    plain.addPage().text(72, 700, u"A page, and no outline"_s, {.size = 20});
    const auto bare = Specification::make<PDFSpecification>();
    bare->setTitle(u"Plain"_s);
    bare->loadPDFStructure(CachingPDFDocument::open(plain.build()));
    Scene(studio, SpecPDFViewController::make(SpecificationPtr(bare)))
        .shoot(u"detail-no-outline"_s);
    const auto unbound = Specification::make<PDFSpecification>();
    unbound->setTitle(u"Portable, Extensible Toolkit"_s);
    Scene(studio, SpecPDFViewController::make(SpecificationPtr(unbound)))
        .shoot(u"detail-no-document"_s);
}

} // namespace

void takeDetailPictures(Studio &studio)
{
    QSettings().clear();
    SpecificationManager manager;
    const auto specification = studio.bindSample(manager, u"slepc"_s);
    shootEntry(studio, specification);
    shootCoverage(studio, specification);
    shootTroubles(studio, specification);
    finishTasks(backgroundPool());
}

} // namespace Tavrin::Testing
