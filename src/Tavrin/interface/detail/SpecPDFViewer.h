// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTimer>

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/interface/detail/ClickGestureRecognizer.h>
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewerDelegate.h>
#include <Tavrin/interface/toolkit/ViewController.h>

namespace Tavrin
{

/// The pane of the detail view that shows the document: marks what the others want marked, and
/// tells its delegate what the reader clicks and selects. Main thread.
class SpecPDFViewer : public ViewController, public ClickGestureRecognizerDelegate
{
    Q_OBJECT

public:
    using PageRects = std::map<int, Rect>;
    using Coverage = std::map<int, std::vector<Rect>>;

    explicit SpecPDFViewer(QObject *parent = nullptr);
    ~SpecPDFViewer() override;

    /// Only once the view is loaded; before that the process ends with a message.
    EntryHighlightPDFView &pdfView() const;
    ClickGestureRecognizer &highlightGestureRecognizer() const;
    ClickGestureRecognizer &doubleHighlightGestureRecognizer() const;

    std::weak_ptr<SpecPDFViewerDelegate> delegate;

    /// What was set before the view is loaded is shown when it is.
    std::shared_ptr<HostPDFDocument> document() const { return m_document; }
    void setDocument(const std::shared_ptr<HostPDFDocument> &document);

    /// Whether clicks are told and outlines taken. Off at first.
    bool allowsHighlighting() const { return m_allowsHighlighting; }
    void setAllowsHighlighting(bool allowed);

    /// Outlines one rectangle a page; nothing happens while highlighting is off.
    void highlightPageRects(const std::optional<PageRects> &rects);
    const std::optional<Coverage> &coverageHighlights() const { return m_coverageHighlights; }
    /// Works whether highlighting is on or off.
    void setCoverageHighlights(const std::optional<Coverage> &highlights);

    /// The action of both recognisers.
    void clickedOnPDFView(const ClickGestureRecognizer &recognizer);
    /// No where text is selected, or an annotation is at the place.
    bool gestureRecognizerShouldBegin(const ClickGestureRecognizer &recognizer) override;
    /// The one with fewer clicks waits for the other.
    bool shouldRequireFailure(const ClickGestureRecognizer &recognizer,
                              const ClickGestureRecognizer &other) override;

    /// Puts off telling the selection until it has rested for 0.1 seconds.
    void pdfSelectionChanged();
    void selectionChangeTimerFired();

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;

private:
    EntryHighlightPDFView *m_pdfView = nullptr;
    ClickGestureRecognizer *m_highlightGestureRecognizer = nullptr;
    ClickGestureRecognizer *m_doubleHighlightGestureRecognizer = nullptr;
    bool m_allowsHighlighting = false;
    std::optional<Coverage> m_coverageHighlights;
    std::shared_ptr<HostPDFDocument> m_document;
    QTimer m_selectionChangeTimer;
};

} // namespace Tavrin
