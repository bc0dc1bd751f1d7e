// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/interface/summary/SpecEntrySummaryCellDelegate.h>
#include <Tavrin/interface/toolkit/TableView.h>
#include <Tavrin/interface/toolkit/ViewController.h>
#include <Tavrin/manager/ManagerPointer.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/Specification.h>
#include <Tavrin/model/SpecificationEntry.h>

namespace Tavrin
{

class DisplayComputation;
class SpecEntrySummaryCell;
class TableScrollView;

/// Shows one entry as a table: captions on the left, values on the right.
///
/// A view never waits for an extraction. Where the entry's summary or preview is still to be
/// computed, the view begins with the rows that are known and fills in when a background task is
/// done. The entry lives as long as the controller; its specification may go at any time. Main
/// thread.
///
/// SpecificationManager::summaryLookup makes one. A host that makes its own adds rows by
/// setCustomDisplayItems() and shows it in a Popover or in a window. What rows there are is the
/// entry's: SpecificationEntry::displayItems.
class TAVRIN_WIDGETS_EXPORT SpecEntrySummaryViewController : public ViewController,
                                                             public TableView::Source,
                                                             public SpecEntrySummaryCellDelegate
{
    Q_OBJECT

public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;

    /// Without an entry the view says that there is none.
    explicit SpecEntrySummaryViewController(
        EntryPtr entry = nullptr, QObject *parent = nullptr,
        SpecificationManager &manager = SpecificationManager::shared());
    ~SpecEntrySummaryViewController() override;

    const EntryPtr &entry() const { return m_entry; }

    /// Rows behind the entry's own.
    const std::vector<EntryDisplayItem> &customDisplayItems() const { return m_customDisplayItems; }
    /// Shown at once.
    void setCustomDisplayItems(const std::vector<EntryDisplayItem> &items);

    /// Whether rows are still to come. False before the view is loaded; loaded() tells when it
    /// becomes false.
    bool isLoading() const;

    // The table's rows, read from the entry each time. Before there is a view, that may take as
    // long as an extraction.
    int numberOfRows() const override;
    QWidget *tableViewCell(const TableView::Column *column, int row) override;
    int tableViewRowHeight(int row) override;

    /// The table; null before the view is loaded and after it went.
    TableView *tableView() const { return m_tableView; }
    /// What is shown where there are no rows; null as the table is.
    QWidget *noContentView() const { return m_noContentView; }

    /// Displays what links lead to from now on.
    void setManager(SpecificationManager &manager) { m_manager = ManagerPointer(manager); }

    /// Has the manager display a label's detail view, if it leads to an entry, else opens it
    /// as a URL.
    ///
    /// The entry's own specification is asked first. A URL is handed to the desktop whatever its
    /// scheme; what is neither is logged.
    void summaryCellClickedLink(const QString &destination) override;

Q_SIGNALS:
    /// A link to an entry was followed; the manager displays it next.
    ///
    /// A host that shows this in a popover closes it here.
    void detailViewRequested(const QString &label,
                             const std::shared_ptr<Tavrin::Specification> &specification);
    /// The rows are all there now.
    ///
    /// Only if rows were missing, or an image was drawn at a higher resolution.
    void loaded();

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;

private:
    std::vector<EntryDisplayItem> items() const;
    std::vector<EntryDisplayItem> loadingItems() const;
    EntryDisplayItem item(int row) const;
    void reload();
    SpecEntrySummaryCell *dummySummaryCell();
    void fitWidths();
    int headerWidth() const;
    int widestText();
    void updateHeightConstraint();
    /// The cell's height if the row is an image that the column can be made wide enough for.
    std::optional<int> imageRowHeight(TableView::Column &column);
    void widenColumn(TableView::Column &column, int width);
    void showDetailView(const QString &label, const std::shared_ptr<Specification> &specification);

    EntryPtr m_entry;
    ManagerPointer m_manager;
    std::vector<EntryDisplayItem> m_customDisplayItems;
    std::unique_ptr<DisplayComputation> m_computation;
    bool m_isLoading = false;
    QPointer<TableScrollView> m_scrollView;
    QPointer<TableView> m_tableView;
    QPointer<QWidget> m_noContentView;
    /// Hidden; measures rows.
    QPointer<SpecEntrySummaryCell> m_dummySummaryCell;
    std::optional<int> m_dummyWidthConstraint;
    int m_requestedWidth = 0;
};

} // namespace Tavrin
