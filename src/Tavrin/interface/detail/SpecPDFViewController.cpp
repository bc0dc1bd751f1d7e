// SPDX-License-Identifier: Apache-2.0
// What is chosen and shown. What becomes of the view when the specification or its file is another
// is in SpecPDFViewControllerDocument.cpp.
#include <Tavrin/interface/detail/SpecPDFViewController.h>

#include <Tavrin/interface/detail/CoverageComputation.h>
#include <Tavrin/interface/detail/DetailView.h>
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <Tavrin/interface/sidebars/HighlightTabViewController.h>
#include <Tavrin/interface/sidebars/SpecPDFOutlineViewController.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchViewController.h>
#include <Tavrin/interface/toolkit/BackgroundWork.h>
#include <Tavrin/interface/toolkit/FileWatch.h>
#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/interface/toolkit/NoticeBar.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/manager/TavrinConstants.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QDesktopServices>
#include <QScopedValueRollback>

#include <chrono>
#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using namespace std::chrono_literals;

/// Lists hear of the reader's place no more often than this.
constexpr auto placeInterval = 150ms;

std::shared_ptr<SpecPDFViewController> makeWithChildren()
{
    auto result = std::make_shared<SpecPDFViewController>();
    const auto sidebar = std::make_shared<HighlightTabViewController>();
    sidebar->addChildViewController(std::make_shared<SpecPDFOutlineViewController>());
    sidebar->addChildViewController(std::make_shared<SpecPDFSearchViewController>());
    result->addChildViewController(sidebar);
    result->addChildViewController(std::make_shared<SpecPDFViewer>());
    return result;
}

} // namespace

std::shared_ptr<SpecPDFViewController> SpecPDFViewController::make(const EntryPtr &entry)
{
    auto result = makeWithChildren();
    result->setEntry(entry);
    return result;
}

std::shared_ptr<SpecPDFViewController>
SpecPDFViewController::make(const SpecificationPtr &specification)
{
    auto result = makeWithChildren();
    result->setSpecification(specification);
    return result;
}

SpecPDFViewController::SpecPDFViewController(QObject *parent)
    : SpecDetailViewController(parent), m_fileWatch(std::make_unique<FileWatch>())
{
    m_placeTimer.setSingleShot(true);
    m_placeTimer.setInterval(placeInterval);
    connect(&m_placeTimer, &QTimer::timeout, this, &SpecPDFViewController::tellPlace);
    m_filesObservation = NotificationCenter::shared().observe(
        TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification, nullptr,
        [this](const QString &, const void *manager) {
            filesChanged(*static_cast<const SpecificationManager *>(manager));
        });
}

SpecPDFViewController::~SpecPDFViewController()
{
    endCoverageSheet();
}

SpecPDFViewController::PDFSpecificationPtr SpecPDFViewController::pdfSpecification() const
{
    return std::dynamic_pointer_cast<PDFSpecification>(m_specification);
}

SpecPDFViewController::PDFEntryPtr SpecPDFViewController::pdfEntry() const
{
    return std::dynamic_pointer_cast<PDFSpecification::Entry>(m_entry);
}

EntryHighlightPDFView *SpecPDFViewController::pdfView() const
{
    return m_viewer && m_viewer->isViewLoaded() ? &m_viewer->pdfView() : nullptr;
}

// View

std::unique_ptr<QWidget> SpecPDFViewController::loadView()
{
    auto detail = std::make_unique<DetailView>();
    for (const ViewControllerPtr &child : childViewControllers()) {
        if (QWidget *part = child->view())
            detail->addPart(*part);
    }
    m_detailView = detail.get();
    return detail;
}

void SpecPDFViewController::viewDidLoad()
{
    takeChildren();
    connectView();
    showSpecification();
    if (m_viewer) {
        m_viewer->delegate = std::static_pointer_cast<SpecPDFViewController>(shared_from_this());
        m_viewer->setAllowsHighlighting(m_allowsEntrySelection);
    }
    if (std::exchange(m_shouldHighlightOnLoad, false) && m_entry)
        outlineOnLoad();
}

void SpecPDFViewController::takeChildren()
{
    const auto &children = childViewControllers();
    if (children.size() != 2) {
        QStringList names;
        for (const ViewControllerPtr &child : children)
            names << QString::fromLatin1(child->metaObject()->className());
        qCWarning(interfaceLog).noquote()
            << u"Wrong number of child view controllers of %1: [%2]"_s.arg(
                   QString::fromLatin1(metaObject()->className()), names.join(u", "_s));
        return;
    }
    m_sidebar = children.front();
    m_viewer = std::dynamic_pointer_cast<SpecPDFViewer>(children.back());
    auto &lists = m_sourceViewControllers.emplace();
    for (const ViewControllerPtr &child : m_sidebar->childViewControllers()) {
        if (auto list = std::dynamic_pointer_cast<SpecPDFSourceList>(child))
            lists.push_back(std::move(list));
    }
}

void SpecPDFViewController::connectView()
{
    auto *view = pdfView();
    if (!view)
        return;
    m_detailView->addToolBar(*view);
    m_detailView->setFocusProxy(view);
    const auto moved = [this] {
        if (!m_placeTimer.isActive())
            m_placeTimer.start();
    };
    connect(view, &HostPDFView::placeChanged, this, moved);
    connect(view, &HostPDFView::documentReady, this, moved);
    connect(view, &HostPDFView::linkActivated, this, &SpecPDFViewController::openLink);
    connect(m_fileWatch.get(), &FileWatch::removed, this, [this] {
        showNotice(localized("The file of this document was moved or deleted. Pages that have not "
                             "been read yet may be missing.",
                             "Notice of the detail view"));
    });
    connect(m_fileWatch.get(), &FileWatch::modified, this, [this] {
        showNotice(localized("The file of this document was changed by another program. Pages may "
                             "be wrong or missing until it is imported again.",
                             "Notice of the detail view"));
    });
}

void SpecPDFViewController::viewWillAppear()
{
    if (m_detailView)
        m_detailView->resetDivider();
    followDocument();
    goToCurrentEntry();
    if (!m_showsReferenceCoverage)
        return;
    // A sheet needs its window on the screen.
    QMetaObject::invokeMethod(this, &SpecPDFViewController::highlightReferenceCoverage,
                              Qt::QueuedConnection);
}

void SpecPDFViewController::openLink(const QUrl &url)
{
    // A document has no business with programs and files of the reader's machine.
    static const QStringList schemes{u"http"_s, u"https"_s, u"mailto"_s};
    if (schemes.contains(url.scheme().toLower()))
        QDesktopServices::openUrl(url);
    else
        showNotice(localized("Links of this kind are not opened: %1", "Notice of the detail view")
                       .arg(url.toDisplayString().left(200)));
}

void SpecPDFViewController::tellPlace()
{
    const auto *view = pdfView();
    if (!view || !m_sourceViewControllers)
        return;
    const QPointF point(view->viewport()->width() / 2.0, HostPDFView::readingLine);
    const auto page = view->pageAt(point, true);
    if (!page)
        return;
    const HostPDFDestination place(page, view->convertToPage(point, *page));
    for (const auto &list : *m_sourceViewControllers)
        list->showsPlace(place);
}

// Entries

void SpecPDFViewController::setEntry(const EntryPtr &entry)
{
    m_entry = entry;
    m_lostLabel.reset();
    m_reading.reset();
    if (!entry)
        return;
    setSpecification(std::dynamic_pointer_cast<PDFSpecification>(entry->specification()));
    goToCurrentEntry();
}

void SpecPDFViewController::goToCurrentEntry()
{
    const auto entry = pdfEntry();
    if (!entry || !pdfView())
        return;
    const auto specification = pdfSpecification();
    if (entry->destination())
        goTo(landing(*entry));
    else if (specification && specification->document())
        showNotice(localized("“%1” has no place in this document.", "Notice of the detail view")
                       .arg(entry->displayTitle()));
}

HostPDFDestination SpecPDFViewController::landing(const PDFSpecification::Entry &entry) const
{
    HostPDFDestination place = *entry.destination();
    const auto specification = pdfSpecification();
    if (isTextual(entry.type()) || !specification || !place.page())
        return place;
    // Producers often name the caption, above which the figure stands.
    const auto info = specification->pageRectInfo(entry);
    if (!info)
        return place;
    const auto rect = info->pageRects.find(place.page()->index());
    if (rect == info->pageRects.end() || rect->second.maxY() <= place.point().y)
        return place;
    return HostPDFDestination(place.page(), {place.point().x, rect->second.maxY()});
}

void SpecPDFViewController::goTo(const HostPDFDestination &place)
{
    auto *view = pdfView();
    if (!view)
        return;
    m_detailView->noticeBar().clear();
    view->goTo(place);
    view->flash(place);
}

void SpecPDFViewController::setAllowsEntrySelection(bool allowed)
{
    m_allowsEntrySelection = allowed;
    if (m_viewer)
        m_viewer->setAllowsHighlighting(allowed);
}

std::shared_ptr<SpecDetailViewControllerDelegate> SpecPDFViewController::delegate() const
{
    return m_delegate.lock();
}

void SpecPDFViewController::setDelegate(
    const std::weak_ptr<SpecDetailViewControllerDelegate> &delegate)
{
    m_delegate = delegate;
}

void SpecPDFViewController::selectEntry(const EntryPtr &entry)
{
    if (!m_allowsEntrySelection) {
        qCWarning(interfaceLog,
                  "Tried to select an entry in a PDF detail view when entry selection is disabled "
                  "- set allowsEntrySelection to true");
        return;
    }
    setEntry(entry);
    const auto specification = pdfSpecification();
    const auto selected = std::dynamic_pointer_cast<PDFSpecification::Entry>(entry);
    if (pdfView()) {
        const auto info =
            specification && selected ? specification->pageRectInfo(*selected) : std::nullopt;
        m_viewer->highlightPageRects(info ? std::optional(info->pageRects) : std::nullopt);
    } else if (specification && selected && selected->destination()) {
        // A view that isn't loaded yet catches up.
        m_shouldHighlightOnLoad = true;
        readEntry();
    }
    if (!m_sourceViewControllers)
        return;
    // A list tells what it selects by itself, too: the outline's section of a figure, for example.
    const QScopedValueRollback telling(m_isTellingLists, true);
    for (const auto &list : *m_sourceViewControllers)
        list->setEntry(selected);
}

void SpecPDFViewController::readEntry()
{
    const auto specification = pdfSpecification();
    const auto entry = pdfEntry();
    if (!specification || !entry)
        return;
    m_isRead = false;
    m_reading = std::make_unique<BackgroundWork>();
    connect(m_reading.get(), &BackgroundWork::finished, this, [this](const QString &error) {
        m_isRead = error.isEmpty();
        if (!m_isRead)
            qCWarning(interfaceLog).noquote() << error;
        else if (pdfView())
            outlineAndTell(m_entry);
    });
    m_reading->start([specification, entry](const BackgroundWork::Progress &) {
        const auto lock = specification->readingLock();
        specification->pageRectInfo(*entry);
    });
}

void SpecPDFViewController::outlineOnLoad()
{
    if (m_reading && m_isRead)
        outlineAndTell(m_entry);
    else if (!m_reading)
        readEntry();
}

void SpecPDFViewController::tell(const EntryPtr &entry)
{
    if (const auto listener = m_delegate.lock())
        listener->specDetailViewController(*this, entry);
}

void SpecPDFViewController::outlineAndTell(const EntryPtr &entry)
{
    const auto specification = pdfSpecification();
    const auto shown = std::dynamic_pointer_cast<PDFSpecification::Entry>(entry);
    if (!m_allowsEntrySelection || !specification || !shown)
        return;
    // What is chosen now comes after what is still being read.
    if (!m_isRead)
        m_reading.reset();
    const auto info = specification->pageRectInfo(*shown);
    if (!info)
        return;
    if (pdfView())
        m_viewer->highlightPageRects(info->pageRects);
    tell(entry);
}

void SpecPDFViewController::viewerClicked(SpecPDFViewer &, const HostPDFDestination &place)
{
    const auto specification = pdfSpecification();
    if (m_allowsEntrySelection && specification)
        outlineAndTell(specification->closestEntry(place));
}

void SpecPDFViewController::viewerSelected(SpecPDFViewer &, const HostPDFSelection &selection)
{
    const auto specification = pdfSpecification();
    if (!specification)
        return;
    const EntryPtr entry = specification->entry(selection);
    if (!entry)
        return;
    outlineAndTell(entry);
    // Once more: also where choosing is switched off, one hears what the reader selected.
    tell(entry);
}

void SpecPDFViewController::sourceListChose(const HostPDFDestination &destination)
{
    if (m_isTellingLists)
        return;
    goTo(destination);
    const auto specification = pdfSpecification();
    if (!specification)
        return;
    if (const auto entry = specification->entry(destination))
        outlineAndTell(entry);
}

// Coverage

void SpecPDFViewController::setReferenceCoverage(const std::optional<ReferenceCoverage> &coverage)
{
    m_referenceCoverage = coverage;
}

void SpecPDFViewController::beginCoverageSheet()
{
    QWidget *shown = m_detailView;
    if (!shown || !shown->isVisible())
        return;
    m_sheet = ProgressSheet::begin(
        *shown->window(),
        localized("Highlighting spec coverage…", "spec detail view progress message"),
        ProgressSheet::Kind::Determinate);
}

void SpecPDFViewController::endCoverageSheet()
{
    if (m_sheet)
        m_sheet->end(QDialog::Accepted);
}

void SpecPDFViewController::explainEmptySheet()
{
    if (!m_sheet)
        return;
    m_sheet->setInformativeText(localized("No references were given to highlight in a document.",
                                          "Sheet of the detail view"));
    m_sheet->setEndsOnEscape(true);
    m_sheet->addButton(localized("OK", "alert button"), QDialog::Accepted);
}

void SpecPDFViewController::highlightReferenceCoverage()
{
    endCoverageSheet();
    beginCoverageSheet();
    const auto specification = pdfSpecification();
    if (!m_referenceCoverage || !specification) {
        // No result will come to end the sheet.
        m_coverage.reset();
        explainEmptySheet();
        return;
    }
    m_coverage = std::make_unique<CoverageComputation>();
    connect(m_coverage.get(), &CoverageComputation::progressed, this, [this](double share) {
        if (m_sheet)
            m_sheet->setValue(share);
    });
    connect(m_coverage.get(), &CoverageComputation::finished, this,
            [this](const CoverageMarks::Marks &marks) {
                endCoverageSheet();
                if (m_viewer)
                    m_viewer->setCoverageHighlights(marks);
            });
    connect(m_coverage.get(), &CoverageComputation::outdated, this,
            &SpecPDFViewController::endCoverageSheet);
    m_coverage->start(specification, *m_referenceCoverage);
}

} // namespace Tavrin
