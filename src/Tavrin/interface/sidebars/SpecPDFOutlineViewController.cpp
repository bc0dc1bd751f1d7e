// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/SpecPDFOutlineViewController.h>

#include <Tavrin/interface/sidebars/OutlineItem.h>
#include <Tavrin/interface/sidebars/OutlineModel.h>
#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/interface/toolkit/RowChooser.h>
#include <Tavrin/interface/toolkit/SearchFieldKeys.h>
#include <Tavrin/pdf/HostPDFPage.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <cmath>
#include <limits>

#include "ui_SpecPDFOutlineViewController.h"

namespace Tavrin
{

namespace
{

/// How long after a choice the document may move about before it rests at the place chosen, in
/// milliseconds. Where it comes to rest need not be in the item that was chosen: the end of a
/// document can't be scrolled up to the top of the view.
constexpr qint64 settlingTime = 400;

/// Shows titles in the direction of their own script, whatever that of the view: "2.5 Scope" has
/// its number in front.
class TitleDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &) const override
    {
        constexpr QChar firstStrongIsolate(0x2068);
        return firstStrongIsolate + value.toString();
    }
};

} // namespace

SpecPDFOutlineViewController::SpecPDFOutlineViewController(QObject *parent)
    : ViewController(parent), m_model(std::make_unique<OutlineModel>())
{
}

SpecPDFOutlineViewController::~SpecPDFOutlineViewController()
{
    // The view goes after what it shows.
    if (m_outlineView)
        m_outlineView->setModel(nullptr);
}

QTreeView *SpecPDFOutlineViewController::outlineView() const
{
    return m_outlineView;
}

void SpecPDFOutlineViewController::setEntry(const std::shared_ptr<PDFSpecification::Entry> &entry)
{
    m_entry = entry;
    reload();
}

void SpecPDFOutlineViewController::setSpecification(
    const std::shared_ptr<PDFSpecification> &specification)
{
    m_specification = specification;
    reload();
}

// The view

std::unique_ptr<QWidget> SpecPDFOutlineViewController::loadView()
{
    auto view = std::make_unique<QWidget>();
    Ui::SpecPDFOutlineViewController form;
    form.setupUi(view.get());
    view->setFocusProxy(form.outlineView);
    m_outlineView = form.outlineView;
    m_outlineView->setModel(m_model.get());
    m_outlineView->setItemDelegate(new TitleDelegate(m_outlineView));
    m_outlineView->setAccessibleName(localized("Outline", "sidebar"));
    m_filterField = form.filterField;
    m_filterField->setPlaceholderText(localized("Filter the outline", "empty field of a sidebar"));
    m_filterField->setAccessibleName(m_filterField->placeholderText());
    m_noMatchesLabel = form.noMatchesLabel;
    m_noMatchesLabel->setText(localized("No title of the outline holds all of these words. Check "
                                        "their spelling, or use fewer words.",
                                        "outline sidebar"));
    m_noMatchesLabel->hide();
    connect(m_filterField, &QLineEdit::textChanged, this, &SpecPDFOutlineViewController::filter);
    connect(new SearchFieldKeys(*m_filterField, *m_outlineView), &SearchFieldKeys::chosen, this,
            &SpecPDFOutlineViewController::chooseFromField);
    return view;
}

void SpecPDFOutlineViewController::viewDidLoad()
{
    connect(new RowChooser(*m_outlineView), &RowChooser::chosen, this,
            &SpecPDFOutlineViewController::choose);
    connect(m_outlineView, &QTreeView::collapsed, this, [this](const QModelIndex &index) {
        if (!m_isChangingTree)
            m_collapsedByReader.insert(m_model->item(index));
    });
    connect(m_outlineView, &QTreeView::expanded, this,
            [this](const QModelIndex &index) { m_collapsedByReader.remove(m_model->item(index)); });
    // The place was current before there was a tree; nobody has chosen it.
    const QScopedValueRollback isChanging(m_isChangingTree, true);
    reload();
}

void SpecPDFOutlineViewController::reload()
{
    m_model->setRoot(nullptr);
    m_wrappedOutlineRoot.reset();
    m_expandedItems.clear();
    m_collapsedByReader.clear();
    if (!m_outlineView)
        return;
    const auto document = m_specification ? m_specification->document() : nullptr;
    const auto root = document ? document->outlineRoot() : std::nullopt;
    m_filterField->setVisible(root && root->numberOfChildren() > 0);
    if (!root)
        return;
    m_wrappedOutlineRoot = std::make_unique<OutlineItem>(*root);
    m_model->setRoot(m_wrappedOutlineRoot.get());
    if (m_entry && m_entry->destination()) {
        select(*m_entry->destination());
        return;
    }
    const QModelIndex first = m_model->index(0, 0);
    if (m_model->rowCount() == 1 && m_model->hasChildren(first))
        m_outlineView->expand(first);
}

// The item of a place

const OutlineItem &SpecPDFOutlineViewController::itemAt(const HostPDFDestination &place) const
{
    const OutlineItem *item = m_wrappedOutlineRoot.get();
    for (;;) {
        const OutlineItem *next = &nextStepDown(*item, place);
        if (next == item)
            return *item;
        item = next;
    }
}

/// The child that holds the place: of those that begin on its page the one that begins nearest to
/// it, else the last that begins on a page before. The item itself if there is none.
const OutlineItem &SpecPDFOutlineViewController::nextStepDown(const OutlineItem &item,
                                                              const HostPDFDestination &place) const
{
    if (!m_specification || !m_specification->document()) {
        qCWarning(interfaceLog, "No document in which to check next outline child");
        return item;
    }
    const OutlineItem *best = nullptr;
    double bestDistance = std::numeric_limits<double>::max();
    for (std::size_t i = item.childrenCount(); i-- > 0;) {
        const OutlineItem &child = *item.children()[i];
        const auto &start = child.destination();
        if (!start || !start->page())
            continue;
        const int page = start->page()->index();
        if (page < place.page()->index())
            return best ? *best : child;
        const double distance = std::abs(start->point().y - place.point().y);
        if (page == place.page()->index() && distance < bestDistance) {
            best = &child;
            bestDistance = distance;
        }
    }
    return best ? *best : item;
}

void SpecPDFOutlineViewController::select(const HostPDFDestination &place)
{
    if (!m_wrappedOutlineRoot || !place.page())
        return;
    const QModelIndex index = m_model->indexOf(itemAt(place));
    if (!index.isValid())
        return;
    expandTowards(index);
    m_outlineView->setCurrentIndex(index);
    m_outlineView->scrollTo(index);
}

/// Expands what is above the index, from the top down, as far as the reader has not collapsed it.
/// What can be seen then: the index, or what it is collapsed into.
QModelIndex SpecPDFOutlineViewController::expandTowards(const QModelIndex &index)
{
    QModelIndexList path;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        path.prepend(above);
    for (const QModelIndex &above : path) {
        if (m_collapsedByReader.contains(m_model->item(above)))
            return above;
        m_outlineView->expand(above);
    }
    return index;
}

void SpecPDFOutlineViewController::showsPlace(const HostPDFDestination &place)
{
    if (!m_outlineView || !m_wrappedOutlineRoot || !place.page() || isReaderBusy())
        return;
    const QScopedValueRollback isChanging(m_isChangingTree, true);
    const QModelIndex index = m_model->indexOf(itemAt(place));
    // What the filter hides, and what is in front of the first item, is shown by no selection.
    if (index.isValid())
        m_outlineView->setCurrentIndex(expandTowards(index));
    else
        m_outlineView->selectionModel()->clear();
}

bool SpecPDFOutlineViewController::isReaderBusy() const
{
    return (m_sinceChoice.isValid() && m_sinceChoice.elapsed() < settlingTime) ||
           m_outlineView->verticalScrollBar()->isSliderDown() ||
           (m_model->isFiltered() && m_filterField->hasFocus());
}

// What the reader chooses

void SpecPDFOutlineViewController::choose(const QModelIndex &index)
{
    const OutlineItem *item = m_model->item(index);
    if (m_isChangingTree || !item)
        return;
    const auto place = item->destination();
    const auto listener = delegate();
    m_sinceChoice.start();
    if (place && listener)
        listener->sourceListChose(*place);
}

void SpecPDFOutlineViewController::chooseFromField()
{
    const QModelIndex current = m_outlineView->currentIndex();
    if (current.isValid())
        choose(current);
    else if (const QModelIndex first = m_model->firstMatch(); first.isValid())
        m_outlineView->setCurrentIndex(first);
}

// The filter

void SpecPDFOutlineViewController::filter(const QString &text)
{
    const QScopedValueRollback isChanging(m_isChangingTree, true);
    const OutlineItem *selected = m_model->item(m_outlineView->currentIndex());
    if (!m_model->isFiltered())
        rememberExpanded();
    m_model->setFilter(text.simplified().split(u' ', Qt::SkipEmptyParts));
    if (m_model->isFiltered())
        m_outlineView->expandAll();
    else
        restoreExpanded();
    const bool hasMatches = !m_model->isFiltered() || m_model->rowCount() > 0;
    m_noMatchesLabel->setHidden(hasMatches);
    m_outlineView->parentWidget()->setVisible(hasMatches);
    const QModelIndex index = selected ? m_model->indexOf(*selected) : QModelIndex();
    if (index.isValid()) {
        m_outlineView->setCurrentIndex(expandTowards(index));
        m_outlineView->scrollTo(m_outlineView->currentIndex());
    }
}

void SpecPDFOutlineViewController::rememberExpanded()
{
    m_expandedItems.clear();
    // Only what is open has open items below it that matter.
    QModelIndexList pending{QModelIndex()};
    while (!pending.isEmpty()) {
        const QModelIndex above = pending.takeLast();
        for (int row = 0; row < m_model->rowCount(above); ++row) {
            const QModelIndex index = m_model->index(row, 0, above);
            if (!m_outlineView->isExpanded(index))
                continue;
            m_expandedItems.insert(m_model->item(index));
            pending.append(index);
        }
    }
}

void SpecPDFOutlineViewController::restoreExpanded()
{
    for (const OutlineItem *item : std::as_const(m_expandedItems))
        m_outlineView->expand(m_model->indexOf(*item));
}

} // namespace Tavrin
