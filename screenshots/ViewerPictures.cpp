// SPDX-License-Identifier: Apache-2.0
#include <QLineEdit>

#include <span>

#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <interface/ViewFixture.h>

#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A page of running text and code.
constexpr int shownPage = 599;

void find(EntryHighlightPDFView &view)
{
    view.clearSelection();
    view.pageRects.reset();
    view.coverageHighlights.reset();
    view.showFindBar();
    QTest::keyClicks(view.findChild<QLineEdit *>(), u"the"_s);
    Studio::waitFor([&view] { return !view.finder().isSearching(); });
}

const State<EntryHighlightPDFView> states[] = {
    {"viewer", [](EntryHighlightPDFView &view) { view.goToPage(shownPage); }},
    {"viewer-highlight",
     [](EntryHighlightPDFView &view) {
         const Rect box = view.document()->page(shownPage)->bounds(PDFBox::Crop);
         const Rect entry{{box.minX() + 60, box.maxY() - 330}, {box.size.width - 120, 130}};
         const Rect covered{{entry.minX(), entry.minY() - 200}, {entry.size.width, 150}};
         view.pageRects = {{shownPage, entry}};
         view.coverageHighlights = {{shownPage, {covered}}};
     }},
    {"viewer-selection",
     [](EntryHighlightPDFView &view) {
         view.setCurrentSelection(view.document()->page(shownPage)->selection(TextRange{200, 500}));
     }},
    {"viewer-find", find},
    {"viewer-inverted",
     [](EntryHighlightPDFView &view) {
         view.hideFindBar();
         view.setColorsInverted(true);
     }},
    {"viewer-whole-page",
     [](EntryHighlightPDFView &view) {
         view.setZoomMode(HostPDFView::ZoomMode::FitPage);
         view.setColorsInverted(false);
     }},
};
const State<EntryHighlightPDFView> emptyStates[] = {{"viewer-empty"}};
const State<EntryHighlightPDFView> brokenStates[] = {{"viewer-broken"}};
const State<EntryHighlightPDFView> narrowStates[] = {
    {"viewer-narrow", [](EntryHighlightPDFView &view) { view.showFindBar(); }}};

void take(Studio &studio, const std::shared_ptr<HostPDFDocument> &document,
          std::span<const State<EntryHighlightPDFView>> wanted, QSize size = {820, 640})
{
    SpecPDFViewer viewer;
    viewer.setAllowsHighlighting(true);
    viewer.setDocument(document);
    viewer.view()->resize(size);
    viewer.view()->show();
    studio.shootStates(*viewer.view(), viewer.pdfView(), wanted);
}

} // namespace

void takeViewerPictures(Studio &studio)
{
    const auto document =
        HostPDFDocument::open(QUrl::fromLocalFile(studio.document(u"cplusplus.pdf"_s)));
    take(studio, document, states);
    take(studio, nullptr, emptyStates);
    take(studio, document, narrowStates, {360, 500});
    PDFBuilder broken;
    broken.addPage().operators("/Missing Do\n");
    take(studio, HostPDFDocument::open(broken.build()), brokenStates);
}

} // namespace Tavrin::Testing
