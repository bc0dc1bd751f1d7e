// SPDX-License-Identifier: Apache-2.0
#include <QLineEdit>

#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <interface/ViewFixture.h>

#include "Pictures.h"
#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A page of running text and code.
constexpr int shownPage = 599;

/// The viewer with a document, made anew for each scene.
class Scene
{
public:
    Scene(Studio &studio, const std::shared_ptr<HostPDFDocument> &document, QSize size = {820, 640})
        : m_studio(studio)
    {
        m_viewer.setAllowsHighlighting(true);
        m_viewer.setDocument(document);
        m_viewer.view()->resize(size);
        m_viewer.view()->show();
        settle();
    }
    EntryHighlightPDFView &view() { return m_viewer.pdfView(); }
    void shoot(const QString &name)
    {
        settle();
        m_studio.shoot(*m_viewer.view(), name);
    }

private:
    void settle()
    {
        if (!view().document())
            return;
        Studio::waitFor(
            [this] { return view().isFullyDrawn() && view().textOf(view().currentPage()); });
    }

    Studio &m_studio;
    SpecPDFViewer m_viewer;
};

void markEntry(EntryHighlightPDFView &view)
{
    const Rect box = view.document()->page(shownPage)->bounds(PDFBox::Crop);
    const Rect entry{{box.minX() + 60, box.maxY() - 330}, {box.size.width - 120, 130}};
    const Rect covered{{entry.minX(), entry.minY() - 200}, {entry.size.width, 150}};
    view.pageRects = {{shownPage, entry}};
    view.coverageHighlights = {{shownPage, {covered}}};
}

void shootStates(Studio &studio, const std::shared_ptr<HostPDFDocument> &document)
{
    Scene scene(studio, document);
    EntryHighlightPDFView &view = scene.view();
    view.goToPage(shownPage);
    scene.shoot(u"viewer"_s);
    markEntry(view);
    scene.shoot(u"viewer-highlight"_s);
    view.setCurrentSelection(document->page(shownPage)->selection(TextRange{200, 500}));
    scene.shoot(u"viewer-selection"_s);
    view.clearSelection();
    view.pageRects.reset();
    view.coverageHighlights.reset();
    view.showFindBar();
    QTest::keyClicks(view.findChild<QLineEdit *>(), u"the"_s);
    Studio::waitFor([&view] { return !view.finder().isSearching(); });
    scene.shoot(u"viewer-find"_s);
    view.hideFindBar();
    view.setColorsInverted(true);
    scene.shoot(u"viewer-inverted"_s);
    view.setZoomMode(HostPDFView::ZoomMode::FitPage);
    view.setColorsInverted(false);
    scene.shoot(u"viewer-whole-page"_s);
}

} // namespace

void takeViewerPictures(Studio &studio)
{
    const auto document =
        HostPDFDocument::open(QUrl::fromLocalFile(studio.document(u"cplusplus.pdf"_s)));
    shootStates(studio, document);
    Scene(studio, nullptr).shoot(u"viewer-empty"_s);
    {
        Scene narrow(studio, document, {360, 500});
        narrow.view().showFindBar();
        narrow.shoot(u"viewer-narrow"_s);
    }
    PDFBuilder broken;
    broken.addPage().operators("/Missing Do\n");
    Scene(studio, HostPDFDocument::open(broken.build())).shoot(u"viewer-broken"_s);
}

} // namespace Tavrin::Testing
