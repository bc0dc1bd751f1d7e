// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/interface/detail/SpecDetailViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewerDelegate.h>
#include <Tavrin/interface/sidebars/SpecPDFSourceList.h>
#include <Tavrin/manager/ManagerPointer.h>
#include <Tavrin/platform/NotificationCenter.h>

namespace Tavrin
{

class BackgroundWork;
class CoverageComputation;
class DetailView;
class EntryHighlightPDFView;
class FileWatch;
class ProgressSheet;
class SpecPDFViewer;

/// The detail view of a specification that lives in a PDF: lists that lead into the document on
/// the left, the document on the right.
///
/// It keeps the current entry, marks what the reader chooses, and tells its delegate. References
/// are marked by a computation in the background, which a sheet over the window tells of. When the
/// file of the specification is replaced or forgotten while it is shown, the view follows: it
/// shows the specification that took its place, at the same entry. Main thread.
///
/// Most hosts get one from the manager. Opening takes little more than drawing the page: pages,
/// texts and the outline of an entry come from other threads a moment later. Links of the document
/// are opened only if they are http, https or mailto; the view says so of others.
class TAVRIN_WIDGETS_EXPORT SpecPDFViewController : public SpecDetailViewController,
                                                    public SpecPDFViewerDelegate,
                                                    public SpecPDFSourceListDelegate
{
    Q_OBJECT

public:
    /// One whose sidebar has an outline and a search; shows an entry, or a specification.
    ///
    /// The view is made with the first view(). An entry without a place shows the document from its
    /// start, with a notice.
    static std::shared_ptr<SpecPDFViewController> make(const EntryPtr &entry);
    /// The same for a specification with no entry current.
    static std::shared_ptr<SpecPDFViewController> make(const SpecificationPtr &specification);

    /// Without children. A sidebar and a viewer, in this order, are to be added before the view is
    /// loaded. Held by std::shared_ptr.
    ///
    /// With other than two children the view stays without document, which is logged.
    explicit SpecPDFViewController(QObject *parent = nullptr);
    ~SpecPDFViewController() override;

    /// The manager whose changes the view follows from now on. Without one it is whichever knows
    /// the specification, or a successor of it.
    void setManager(SpecificationManager &manager);

    /// The second child; null before the view is loaded.
    const std::shared_ptr<SpecPDFViewer> &viewer() const { return m_viewer; }
    /// The first child; null before the view is loaded.
    const ViewControllerPtr &sidebar() const { return m_sidebar; }
    /// Those children of the sidebar that are lists, in their order; absent before the view is
    /// loaded.
    const std::optional<std::vector<std::shared_ptr<SpecPDFSourceList>>> &
    sourceViewControllers() const
    {
        return m_sourceViewControllers;
    }

    /// Whether the entry that is current when the view is loaded is outlined then, or as soon as
    /// its pages have been read. Off at first, and off again once that is begun.
    bool shouldHighlightOnLoad() const { return m_shouldHighlightOnLoad; }
    void setShouldHighlightOnLoad(bool should) { m_shouldHighlightOnLoad = should; }

    EntryPtr entry() const override { return m_entry; }
    /// Takes over the entry's specification, and goes to the entry's place in the document. An
    /// entry of a specification of another kind isn't kept.
    ///
    /// Null leaves the document where it is. Nothing is outlined: selectEntry() does that.
    void setEntry(const EntryPtr &entry) override;
    SpecificationPtr specification() const override { return m_specification; }
    /// The current entry goes unless it belongs to this specification.
    void setSpecification(const SpecificationPtr &specification) override;
    bool allowsEntrySelection() const override { return m_allowsEntrySelection; }
    void setAllowsEntrySelection(bool allowed) override;
    std::shared_ptr<SpecDetailViewControllerDelegate> delegate() const override;
    void setDelegate(const std::weak_ptr<SpecDetailViewControllerDelegate> &delegate) override;
    /// Does nothing but log while selecting entries isn't allowed. The pages of the entry are read
    /// now if the view is loaded, which may take as long as an extraction; before that they are
    /// read in the background.
    void selectEntry(const EntryPtr &entry) override;
    bool showsReferenceCoverage() const override { return m_showsReferenceCoverage; }
    void setShowsReferenceCoverage(bool shows) override { m_showsReferenceCoverage = shows; }
    const std::optional<ReferenceCoverage> &referenceCoverage() const override
    {
        return m_referenceCoverage;
    }
    void setReferenceCoverage(const std::optional<ReferenceCoverage> &coverage) override;

    /// Marks the references now, as it happens when the view appears. Returns at once.
    ///
    /// What was begun before is given up. Without references the sheet says so.
    void highlightReferenceCoverage();

    /// Outlines the entry at the place and tells the delegate, if choosing is allowed.
    void viewerClicked(SpecPDFViewer &viewer, const HostPDFDestination &place) override;
    /// The same for the lines that are selected. The delegate is told of them even if choosing
    /// isn't allowed.
    void viewerSelected(SpecPDFViewer &viewer, const HostPDFSelection &selection) override;
    /// Goes to the place, and outlines the entry that begins there, if choosing is allowed.
    void sourceListChose(const HostPDFDestination &destination) override;

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;
    void viewWillAppear() override;

private:
    using PDFSpecificationPtr = std::shared_ptr<PDFSpecification>;
    using PDFEntryPtr = std::shared_ptr<PDFSpecification::Entry>;

    PDFSpecificationPtr pdfSpecification() const;
    PDFEntryPtr pdfEntry() const;
    /// Null before the view is loaded, and when a window took it along.
    EntryHighlightPDFView *pdfView() const;

    void takeChildren();
    void connectView();
    void goToCurrentEntry();
    /// Where to go for an entry: its place, or the top of its figure or table.
    HostPDFDestination landing(const PDFSpecification::Entry &entry) const;
    void goTo(const HostPDFDestination &place);
    void outlineAndTell(const EntryPtr &entry);
    /// Has the pages of the current entry read in the background, and outlines it in the view, if
    /// that is there by then.
    void readEntry();
    /// Outlines the current entry once its pages are read: the view must not wait for them.
    void outlineOnLoad();
    void tell(const EntryPtr &entry);
    void tellPlace();
    void openLink(const QUrl &url);

    void showSpecification();
    void updateLists();
    void updateTitle();
    void updateDocument();
    void showPlaceholder();
    void clearMarks();
    void showNotice(const QString &text);

    void filesChanged(const SpecificationManager &manager);
    /// Whether the specification had another file by now.
    bool followDocument();
    void takeSuccessor(const SpecificationPtr &successor);
    void findLostEntry();

    void beginCoverageSheet();
    void endCoverageSheet();
    void explainEmptySheet();

    ViewControllerPtr m_sidebar;
    std::shared_ptr<SpecPDFViewer> m_viewer;
    std::optional<std::vector<std::shared_ptr<SpecPDFSourceList>>> m_sourceViewControllers;
    EntryPtr m_entry;
    SpecificationPtr m_specification;
    bool m_allowsEntrySelection = false;
    std::weak_ptr<SpecDetailViewControllerDelegate> m_delegate;
    bool m_shouldHighlightOnLoad = false;
    bool m_isTellingLists = false;
    bool m_showsReferenceCoverage = false;
    std::optional<ReferenceCoverage> m_referenceCoverage;

    QPointer<DetailView> m_detailView;
    QTimer m_placeTimer;
    std::unique_ptr<FileWatch> m_fileWatch;
    std::optional<ManagerPointer> m_manager;
    NotificationCenter::TokenPtr m_filesObservation;
    /// Of the entry to come back to when its document does.
    std::optional<QString> m_lostLabel;
    /// Null if the current entry isn't read for its outline, or was changed since.
    std::unique_ptr<BackgroundWork> m_reading;
    bool m_isRead = false;
    std::unique_ptr<CoverageComputation> m_coverage;
    QPointer<ProgressSheet> m_sheet;
};

} // namespace Tavrin
