// SPDX-License-Identifier: Apache-2.0
#include <reader/window/SidePane.h>

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QSplitter>
#include <QVBoxLayout>

#include <Tavrin/interface/clipboard/EntryClipboard.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <reader/lookup/LookupField.h>
#include <reader/lookup/RecentPlaces.h>
#include <reader/panes/ControllerPane.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int leastWidth = 220;
constexpr int padding = 8;

} // namespace

SidePane::SidePane(EntryFinder &finder, QWidget *parent)
    : QWidget(parent),
      m_finder(finder),
      m_field(new LookupField(finder)),
      m_summary(new ControllerPane({})),
      m_recent(new RecentPlaces(this)),
      m_recentView(new QListView),
      m_splitter(new QSplitter(Qt::Vertical))
{
    m_splitter->addWidget(m_summary);
    m_splitter->addWidget(makeRecentPlaces());
    m_splitter->setStretchFactor(0, 3);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(padding, padding, padding, padding);
    layout->addWidget(m_field);
    layout->addWidget(m_splitter, 1);
    setMinimumWidth(leastWidth);
}

QWidget *SidePane::makeRecentPlaces()
{
    auto *heading = new QLabel(localized("Recent places", "heading of a list"));
    heading->setForegroundRole(QPalette::PlaceholderText);
    heading->setBuddy(m_recentView);
    m_recentView->setObjectName(u"recentPlaces"_s);
    m_recentView->setModel(m_recent);
    m_recentView->setUniformItemSizes(true);
    m_recentView->setTextElideMode(Qt::ElideRight);
    m_recentView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_recentView->setAccessibleName(heading->text());
    connect(m_recentView, &QListView::activated, this,
            [this](const QModelIndex &place) { Q_EMIT placeChosen(m_recent->specURL(place)); });
    connect(m_recentView, &QListView::clicked, m_recentView, &QListView::activated);
    auto *copy = new QAction(m_recentView);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &SidePane::copyPlace);
    m_recentView->addAction(copy);
    auto *places = new QWidget;
    auto *layout = new QVBoxLayout(places);
    layout->setContentsMargins({});
    layout->addWidget(heading);
    layout->addWidget(m_recentView);
    return places;
}

void SidePane::copyPlace()
{
    const auto found = m_finder.resolve(m_recent->specURL(m_recentView->currentIndex()));
    if (!found.front().entries.empty())
        EntryClipboard::copy(*found.front().entries.front());
}

} // namespace Tavrin::Reader
