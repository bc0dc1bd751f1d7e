// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QTimer>

#include <memory>
#include <vector>

#include <Tavrin/interface/sidebars/SpecPDFSourceList.h>
#include <Tavrin/interface/toolkit/ViewController.h>

class QLabel;
class QLineEdit;
class QListView;
class QModelIndex;

namespace Tavrin
{

class SearchResultLoader;
class SpecPDFSearchDelegate;
class SpecPDFSearchModel;
class SpecPDFSearchResult;

/// A field to search the entries of a specification, and the list of what it found, which leads
/// into the document. Of the entries found, the list shows the last on top.
///
/// Searches run in the background, one after the other, so that the latest text has the last word.
/// Descriptions follow the rows: those that can be seen are computed in the background, in the
/// order in which they came into sight. The text of the field is remembered. Main thread.
///
/// SpecPDFViewController::make puts one into its sidebar. The text that was remembered is not
/// searched for by itself, but when Return is pressed. A search holds the specification's reading
/// lock, so that binding a file waits for it.
class TAVRIN_WIDGETS_EXPORT SpecPDFSearchViewController : public ViewController,
                                                          public SpecPDFSourceList
{
    Q_OBJECT
    Q_PROPERTY(bool noResultsLabelHidden READ noResultsLabelHidden NOTIFY resultsShown)
    Q_PROPERTY(bool tableViewHidden READ tableViewHidden NOTIFY resultsShown)

public:
    using EntryPtr = std::shared_ptr<PDFSpecification::Entry>;

    /// Where the text of the field is kept between runs.
    ///
    /// In QSettings(), under the application's name: set that before there are views.
    static inline const QString searchFieldTextKey =
        QStringLiteral("Tavrin.DetailView.SearchFieldText");

    explicit SpecPDFSearchViewController(QObject *parent = nullptr);
    ~SpecPDFSearchViewController() override;

    std::shared_ptr<PDFSpecification::Entry> entry() const override { return m_entry; }
    /// Keeps it; the list stays.
    void setEntry(const std::shared_ptr<PDFSpecification::Entry> &entry) override
    {
        m_entry = entry;
    }
    std::shared_ptr<PDFSpecification> specification() const override { return m_specification; }
    /// Where later searches look; what is shown stays.
    void setSpecification(const std::shared_ptr<PDFSpecification> &specification) override
    {
        m_specification = specification;
    }
    std::shared_ptr<SpecPDFSourceListDelegate> delegate() const override
    {
        return m_delegate.lock();
    }
    void setDelegate(const std::weak_ptr<SpecPDFSourceListDelegate> &delegate) override
    {
        m_delegate = delegate;
    }

    // Parts of the view; null before it is loaded and after it went.
    /// Where the user types.
    QLineEdit *searchField() const;
    /// The list of what was found.
    QListView *searchTableView() const;

    /// What the list shows, from top to bottom.
    const std::vector<std::shared_ptr<SpecPDFSearchResult>> &arrangedResults() const;
    /// Whether descriptions are being computed.
    bool isLoadingEntries() const;
    /// The label shows only where a text found nothing.
    bool noResultsLabelHidden() const { return m_noResultsLabelHidden; }
    /// The list gives way to the label.
    bool tableViewHidden() const { return !m_noResultsLabelHidden; }

Q_SIGNALS:
    /// A search has ended, or the field was cleared.
    void resultsShown();

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;
    void viewDidDisappear() override;

private:
    void searchFieldValueChanged(const QString &text);
    void storeText();
    void search(const QString &text);
    void showResults(const std::vector<EntryPtr> &entries, const QString &text);
    void setNoResultsLabelHidden(bool hidden);
    void update(const std::shared_ptr<SpecPDFSearchResult> &result);
    void choose(const QModelIndex &index);
    void chooseFromField();
    void copyCurrent() const;

    std::shared_ptr<PDFSpecification::Entry> m_entry;
    std::shared_ptr<PDFSpecification> m_specification;
    std::weak_ptr<SpecPDFSourceListDelegate> m_delegate;
    std::unique_ptr<SpecPDFSearchModel> m_model;
    std::unique_ptr<SpecPDFSearchDelegate> m_delegateOfRows;
    std::unique_ptr<SearchResultLoader> m_loader;
    /// Searches that have not begun know by it whether this is gone.
    std::shared_ptr<char> m_life;
    QTimer m_storing;
    QPointer<QLineEdit> m_searchField;
    QPointer<QListView> m_searchTableView;
    QPointer<QWidget> m_searchTableViewContainer;
    QPointer<QLabel> m_noResultsLabel;
    bool m_noResultsLabelHidden = true;
};

} // namespace Tavrin
