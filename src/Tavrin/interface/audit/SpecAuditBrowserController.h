// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QStringList>

#include <memory>
#include <vector>

#include <Tavrin/interface/toolkit/ViewController.h>
#include <Tavrin/manager/ManagerPointer.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

class QAction;
class QLabel;
class QLineEdit;
class QTableView;

namespace Tavrin
{

class AuditExport;
class BackgroundWork;
class BrowserArrayController;
class BrowserSpecReferenceItem;
class BrowserTableView;
class ProgressSheet;
struct BrowserTable;

/// Shows what a list of labels covers of a specification as a table that can be searched, sorted,
/// copied and written to a file, and opens its entries.
///
/// The audit runs each time the view appears, in the background, with a sheet over the window; no
/// file is bound to the specification meanwhile. Without a specification the sheet has nothing to
/// wait for and stays until Escape is pressed, so a host passes one. Dropping the controller gives
/// the audit up.
///
/// Entries are shown by the manager's detailViewControllerDisplayBlock. Main thread.
///
/// The host puts view() into a window of its own and keeps the controller as long as that is open:
///
/// \snippet citing/main.cpp audit
///
/// For an audit without a window, see PDFSpecAuditor.
class TAVRIN_WIDGETS_EXPORT SpecAuditBrowserController : public ViewController
{
    Q_OBJECT

public:
    /// A list for each label, in the order of the labels; all of one length.
    using Components = std::vector<QStringList>;

    /// The components are values of extra columns for each label, in the order of the labels, and
    /// the headings those of the extra columns.
    ///
    /// Labels and spec URLs are understood; one that nobody has makes a row without entry. Nothing
    /// is read before the view appears. Components without headings get columns with empty ones.
    explicit SpecAuditBrowserController(
        const QStringList &labels, std::shared_ptr<PDFSpecification> spec,
        const QStringList &customHeadings = {}, const Components &customComponents = {},
        QObject *parent = nullptr, SpecificationManager &manager = SpecificationManager::shared());
    ~SpecAuditBrowserController() override;

    const std::shared_ptr<PDFSpecification> &spec() const { return m_spec; }
    const QStringList &labels() const { return m_labels; }
    const QStringList &customHeadings() const { return m_customHeadings; }
    const Components &customComponents() const { return m_customComponents; }

    /// Null before the view is loaded and after it is gone.
    QTableView *tableView() const;
    /// What the audit came to, in a line; null as tableView() is.
    QLabel *summaryLabel() const;
    /// What is typed here filters the rows; null as tableView() is.
    QLineEdit *searchField() const;
    /// How many rows are left; hidden while nothing is searched for. Null as tableView() is.
    QLabel *searchResultsLabel() const;
    /// The library's own.
    BrowserArrayController *arrayController() const { return m_arrayController; }

    /// The rows of the audit, in its order; none before it is done.
    ///
    /// For tests; a host that wants the figures takes PDFSpecAuditor.
    const std::vector<BrowserSpecReferenceItem> &entryDict() const;
    /// Of the columns: "column0", "column1" and so on.
    const QStringList &columnIdentifiers() const { return m_columnIdentifiers; }

    /// Whether an audit runs.
    bool isAuditing() const { return m_audit != nullptr; }

    /// Shows the rows that hold all words of the search field, in any case, with any diacritics.
    ///
    /// Called by itself as the user types; only once the view is loaded.
    void searchFieldValueChanged();
    /// Shows the detail view of the clicked row's entry.
    ///
    /// By the manager's block, with a prompt where the entry's document is missing. Without a
    /// block, or if no specification has the label, that is logged and nothing happens.
    void tableViewRowDoubleClicked();
    /// Puts the selected rows on the clipboard, or the clicked one if none is selected: values in
    /// double quotes, parted by commas, a line each. Nothing is escaped. Does nothing where there
    /// is neither.
    void copy();
    /// Puts the clicked value on the clipboard, as it is.
    void copyCell();
    /// Gives the item of copy() its title. Whether the item can be chosen now.
    bool validateMenuItem(QAction &item) const;
    /// Asks for a file, and writes a report of the labels into it.
    ///
    /// The sheet that asks is over the view's window, so it has to be on the screen. Does nothing
    /// without a specification.
    void exportAudit();

Q_SIGNALS:
    /// The rows of an audit are shown.
    ///
    /// Also after one that failed, which a sheet has told of.
    void audited();

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeActions(QWidget &view);
    void setUpTable();
    void startAudit();
    void finishAudit(const QString &error);
    void layOut(BrowserTable &&table);
    void updateMatches();
    void updateEmptyText();
    void validateActions();
    void showContextMenu(const QPoint &position);
    bool passKeyToTable(QEvent &event);
    std::vector<int> rowsToCopy() const;
    /// The specification first, then as the manager looks labels up.
    std::vector<std::shared_ptr<Specification>> lookupOrder() const;
    std::shared_ptr<SpecificationEntry> entryFor(const QString &label) const;

    ManagerPointer m_manager;
    std::shared_ptr<PDFSpecification> m_spec;
    QStringList m_labels;
    QStringList m_customHeadings;
    Components m_customComponents;
    QStringList m_columnIdentifiers;
    BrowserArrayController *m_arrayController;
    QPointer<BrowserTableView> m_tableView;
    QPointer<QLabel> m_summaryLabel;
    QPointer<QLineEdit> m_searchField;
    QPointer<QLabel> m_searchResultsLabel;
    QAction *m_openAction;
    QAction *m_copyAction;
    QAction *m_copyCellAction;
    QAction *m_exportAction;
    QPointer<ProgressSheet> m_sheet;
    std::unique_ptr<BackgroundWork> m_audit;
    /// What the audit makes.
    std::shared_ptr<BrowserTable> m_result;
    std::unique_ptr<AuditExport> m_export;
};

} // namespace Tavrin
