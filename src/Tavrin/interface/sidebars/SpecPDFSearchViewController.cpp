// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/SpecPDFSearchViewController.h>

#include <Tavrin/interface/clipboard/EntryClipboard.h>
#include <Tavrin/interface/sidebars/SearchResultLoader.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchDelegate.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchModel.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchResult.h>
#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/interface/toolkit/RowChooser.h>
#include <Tavrin/interface/toolkit/SearchFieldKeys.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>
#include <Tavrin/platform/PostedTask.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QAction>
#include <QSettings>

#include <chrono>

#include "ui_SpecPDFSearchViewController.h"

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using EntryPtr = SpecPDFSearchViewController::EntryPtr;
using Entries = std::vector<EntryPtr>;

/// Any thread; the table stays as it is meanwhile. Nothing where there is nothing to search in.
std::optional<Entries> entriesWith(const QString &text, const PDFSpecification *specification)
{
    QString description = u"nil"_s;
    if (specification) {
        const auto lock = specification->readingLock();
        Entries entries;
        const auto found = specification->searchEntries(text, {});
        entries.reserve(found.size());
        for (const auto &entry : found) {
            if (auto shown = std::dynamic_pointer_cast<PDFSpecification::Entry>(entry))
                entries.push_back(std::move(shown));
        }
        if (entries.size() == found.size())
            return entries;
        description = specification->debugDescription();
    }
    qCWarning(interfaceLog).noquote().nospace()
        << "Couldn't get search results - specification is " << description;
    return std::nullopt;
}

} // namespace

SpecPDFSearchViewController::SpecPDFSearchViewController(QObject *parent)
    : ViewController(parent),
      m_model(std::make_unique<SpecPDFSearchModel>()),
      m_delegateOfRows(std::make_unique<SpecPDFSearchDelegate>()),
      m_loader(std::make_unique<SearchResultLoader>()),
      m_life(std::make_shared<char>())
{
    connect(m_loader.get(), &SearchResultLoader::loaded, this,
            &SpecPDFSearchViewController::update);
    connect(m_delegateOfRows.get(), &SpecPDFSearchDelegate::rowShown, this,
            [this](const QModelIndex &index) { m_loader->enqueue(m_model->result(index)); });
    m_storing.setSingleShot(true);
    m_storing.setInterval(std::chrono::milliseconds(300));
    connect(&m_storing, &QTimer::timeout, this, &SpecPDFSearchViewController::storeText);
}

SpecPDFSearchViewController::~SpecPDFSearchViewController()
{
    if (m_storing.isActive())
        storeText();
    // The view goes after what it shows.
    if (m_searchTableView) {
        m_searchTableView->setModel(nullptr);
        m_searchTableView->setItemDelegate(nullptr);
    }
}

QLineEdit *SpecPDFSearchViewController::searchField() const
{
    return m_searchField;
}

QListView *SpecPDFSearchViewController::searchTableView() const
{
    return m_searchTableView;
}

const std::vector<std::shared_ptr<SpecPDFSearchResult>> &
SpecPDFSearchViewController::arrangedResults() const
{
    return m_model->arrangedResults();
}

bool SpecPDFSearchViewController::isLoadingEntries() const
{
    return m_loader->isLoading();
}

// The view

std::unique_ptr<QWidget> SpecPDFSearchViewController::loadView()
{
    auto view = std::make_unique<QWidget>();
    Ui::SpecPDFSearchViewController form;
    form.setupUi(view.get());
    view->setFocusProxy(form.searchField);
    m_searchField = form.searchField;
    m_searchField->setPlaceholderText(
        localized("Title, number or keyword", "empty search field of a sidebar"));
    m_searchField->setAccessibleName(localized("Search entries", "sidebar"));
    m_searchTableViewContainer = form.searchTableViewContainer;
    m_searchTableView = form.searchTableView;
    m_searchTableView->setAccessibleName(localized("Entries found", "sidebar"));
    m_searchTableView->setModel(m_model.get());
    m_searchTableView->setItemDelegate(m_delegateOfRows.get());
    m_noResultsLabel = form.noResultsLabel;
    m_noResultsLabel->setText(localized("No entry has all of these words in its title, number or "
                                        "keywords. Check their spelling, or use fewer words.",
                                        "search sidebar"));
    setNoResultsLabelHidden(true);
    return view;
}

void SpecPDFSearchViewController::viewDidLoad()
{
    const QVariant text = QSettings().value(searchFieldTextKey);
    if (text.metaType() == QMetaType::fromType<QString>())
        m_searchField->setText(text.toString());
    connect(m_searchField, &QLineEdit::textChanged, this,
            &SpecPDFSearchViewController::searchFieldValueChanged);
    auto *copy = new QAction(localized("Copy", "menu item"), m_searchTableView);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    m_searchTableView->addAction(copy);
    connect(copy, &QAction::triggered, this, &SpecPDFSearchViewController::copyCurrent);
    connect(new RowChooser(*m_searchTableView), &RowChooser::chosen, this,
            &SpecPDFSearchViewController::choose);
    auto *keys = new SearchFieldKeys(*m_searchField, *m_searchTableView);
    connect(keys, &SearchFieldKeys::chosen, this, &SpecPDFSearchViewController::chooseFromField);
    connect(keys, &SearchFieldKeys::copyWanted, this, &SpecPDFSearchViewController::copyCurrent);
}

void SpecPDFSearchViewController::viewDidDisappear()
{
    m_loader->removeAll();
}

// Searching

void SpecPDFSearchViewController::searchFieldValueChanged(const QString &text)
{
    if (!text.isEmpty()) {
        search(text);
    } else {
        m_loader->removeAll();
        m_model->setResults({});
        setNoResultsLabelHidden(true);
        Q_EMIT resultsShown();
    }
    m_storing.start();
}

/// Files are slow to write, and written when the reader pauses.
void SpecPDFSearchViewController::storeText()
{
    if (!m_searchField)
        return;
    startTask(serialBackground(),
              [text = m_searchField->text()] { QSettings().setValue(searchFieldTextKey, text); });
}

void SpecPDFSearchViewController::search(const QString &text)
{
    // The thread doesn't wait until the results are shown: the application may have begun to end.
    startTask(serialBackground(), [this, text, specification = m_specification,
                                   life = std::weak_ptr<char>(m_life)] {
        const auto entries = entriesWith(text, life.expired() ? nullptr : specification.get());
        postTask([this, text, life, entries] {
            if (entries && !life.expired())
                showResults(*entries, text);
        });
    });
}

void SpecPDFSearchViewController::showResults(const Entries &entries, const QString &text)
{
    // Whoever has cleared the field wants to see none.
    if (!m_searchField || m_searchField->text().isEmpty())
        return;
    m_loader->removeAll();
    std::vector<std::shared_ptr<SpecPDFSearchResult>> results;
    results.reserve(entries.size());
    for (const EntryPtr &entry : entries) {
        auto result = std::make_shared<SpecPDFSearchResult>(entry);
        result->relevance = static_cast<float>(results.size());
        results.push_back(std::move(result));
    }
    m_delegateOfRows->setMarkedWords(text.simplified().split(u' ', Qt::SkipEmptyParts));
    m_model->setResults(std::move(results));
    // Else it would be painted once without rows, and laid out afterwards.
    m_searchTableView->doItemsLayout();
    m_searchTableView->scrollToTop();
    setNoResultsLabelHidden(m_model->rowCount() > 0);
    Q_EMIT resultsShown();
}

void SpecPDFSearchViewController::setNoResultsLabelHidden(bool hidden)
{
    m_noResultsLabelHidden = hidden;
    m_noResultsLabel->setHidden(noResultsLabelHidden());
    m_searchTableViewContainer->setHidden(tableViewHidden());
}

/// A search may have replaced the result by another of the same entry meanwhile, or by none.
void SpecPDFSearchViewController::update(const std::shared_ptr<SpecPDFSearchResult> &result)
{
    result->updateDescription();
    const QModelIndex index = m_model->indexOf(*result);
    if (!index.isValid())
        return;
    m_model->result(index)->updateDescription();
    m_model->reload(index);
}

// What the reader chooses

void SpecPDFSearchViewController::choose(const QModelIndex &index)
{
    const auto result = m_model->result(index);
    const auto listener = delegate();
    if (result && listener && result->entry()->destination())
        listener->sourceListChose(*result->entry()->destination());
}

void SpecPDFSearchViewController::chooseFromField()
{
    const QModelIndex current = m_searchTableView->currentIndex();
    if (current.isValid())
        choose(current);
    else if (m_model->rowCount() > 0)
        m_searchTableView->setCurrentIndex(m_model->index(0));
    else if (!m_searchField->text().isEmpty())
        // A text from an earlier run has not been searched for.
        search(m_searchField->text());
}

void SpecPDFSearchViewController::copyCurrent() const
{
    if (const auto result = m_model->result(m_searchTableView->currentIndex()))
        EntryClipboard::copy(*result->entry());
}

} // namespace Tavrin
