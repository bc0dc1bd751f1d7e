// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/SpecPDFViewer.h>

#include <chrono>

#include "ui_SpecPDFViewer.h"

namespace Tavrin
{

SpecPDFViewer::SpecPDFViewer(QObject *parent) : ViewController(parent)
{
    m_selectionChangeTimer.setSingleShot(true);
    m_selectionChangeTimer.setInterval(std::chrono::milliseconds(100));
    connect(&m_selectionChangeTimer, &QTimer::timeout, this,
            &SpecPDFViewer::selectionChangeTimerFired);
}

SpecPDFViewer::~SpecPDFViewer()
{
    // The view may outlive this by a moment, in a window that is closing.
    if (isViewLoaded()) {
        m_highlightGestureRecognizer->setDelegate(nullptr);
        m_doubleHighlightGestureRecognizer->setDelegate(nullptr);
    }
}

std::unique_ptr<QWidget> SpecPDFViewer::loadView()
{
    auto widget = std::make_unique<QWidget>();
    Ui::SpecPDFViewer form;
    form.setupUi(widget.get());
    m_pdfView = form.pdfView;
    m_highlightGestureRecognizer = new ClickGestureRecognizer(m_pdfView->viewport(), 1);
    m_doubleHighlightGestureRecognizer = new ClickGestureRecognizer(m_pdfView->viewport(), 2);
    for (auto *recognizer : {m_highlightGestureRecognizer, m_doubleHighlightGestureRecognizer}) {
        recognizer->setDelegate(this);
        recognizer->setEnabled(m_allowsHighlighting);
        connect(recognizer, &ClickGestureRecognizer::recognized, this,
                [this, recognizer] { clickedOnPDFView(*recognizer); });
    }
    return widget;
}

void SpecPDFViewer::viewDidLoad()
{
    pdfView().coverageHighlights = m_coverageHighlights;
    pdfView().setDocument(m_document);
    connect(m_pdfView, &HostPDFView::selectionChanged, this, &SpecPDFViewer::pdfSelectionChanged);
}

EntryHighlightPDFView &SpecPDFViewer::pdfView() const
{
    if (!isViewLoaded() || !m_pdfView)
        qFatal("The PDF view of a viewer was used before it was loaded");
    return *m_pdfView;
}

ClickGestureRecognizer &SpecPDFViewer::highlightGestureRecognizer() const
{
    pdfView();
    return *m_highlightGestureRecognizer;
}

ClickGestureRecognizer &SpecPDFViewer::doubleHighlightGestureRecognizer() const
{
    pdfView();
    return *m_doubleHighlightGestureRecognizer;
}

void SpecPDFViewer::setDocument(const std::shared_ptr<HostPDFDocument> &document)
{
    m_document = document;
    if (isViewLoaded())
        pdfView().setDocument(document);
}

void SpecPDFViewer::setAllowsHighlighting(bool allowed)
{
    m_allowsHighlighting = allowed;
    if (isViewLoaded()) {
        m_highlightGestureRecognizer->setEnabled(allowed);
        m_doubleHighlightGestureRecognizer->setEnabled(allowed);
    }
}

void SpecPDFViewer::highlightPageRects(const std::optional<PageRects> &rects)
{
    if (!m_allowsHighlighting)
        return;
    pdfView().pageRects = rects;
    pdfView().viewport()->update();
}

void SpecPDFViewer::setCoverageHighlights(const std::optional<Coverage> &highlights)
{
    m_coverageHighlights = highlights;
    if (isViewLoaded()) {
        pdfView().coverageHighlights = highlights;
        pdfView().viewport()->update();
    }
}

void SpecPDFViewer::clickedOnPDFView(const ClickGestureRecognizer &recognizer)
{
    const auto page = pdfView().pageAt(recognizer.location(), true);
    const auto listener = delegate.lock();
    if (!page || !listener)
        return;
    const Point point = pdfView().convertToPage(recognizer.location(), *page);
    if (recognizer.numberOfClicksRequired() == 1)
        listener->viewerClicked(*this, HostPDFDestination(page, point));
    else if (const auto word = page->selectionForWord(point))
        listener->viewerSelected(*this, *word);
}

bool SpecPDFViewer::gestureRecognizerShouldBegin(const ClickGestureRecognizer &recognizer)
{
    if (pdfView().currentSelection())
        return false;
    const auto page = pdfView().pageAt(recognizer.location(), true);
    if (!page)
        return true;
    const Point point = pdfView().convertToPage(recognizer.location(), *page);
    const auto annotations = pdfView().annotationsOf(*page);
    return std::none_of(
        annotations.begin(), annotations.end(),
        [point](const HostPDFAnnotation &annotation) { return annotation.bounds.contains(point); });
}

bool SpecPDFViewer::shouldRequireFailure(const ClickGestureRecognizer &recognizer,
                                         const ClickGestureRecognizer &other)
{
    return recognizer.numberOfClicksRequired() < other.numberOfClicksRequired();
}

void SpecPDFViewer::pdfSelectionChanged()
{
    m_selectionChangeTimer.start();
}

void SpecPDFViewer::selectionChangeTimerFired()
{
    const auto listener = delegate.lock();
    if (!listener || !isViewLoaded())
        return;
    if (const auto selection = pdfView().currentSelection())
        listener->viewerSelected(*this, *selection);
}

} // namespace Tavrin
