// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/HighlightTabViewController.h>

#include <Tavrin/interface/toolkit/DrawnIcon.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QSettings>

#include <algorithm>

#include "ui_HighlightTabViewController.h"

namespace Tavrin
{

namespace
{

/// What is stored when no tab is selected.
constexpr int notFound = -1;

void setUp(QToolButton &button, IconShape icon, const QString &text)
{
    button.setIcon(drawnIcon(icon));
    button.setText(text);
}

} // namespace

const char *const HighlightTabViewController::selectedTabKey =
    "Tavrin.DetailView.TabViewSelectedTab";

std::unique_ptr<QWidget> HighlightTabViewController::loadView()
{
    auto widget = std::make_unique<QWidget>();
    Ui::HighlightTabViewController form;
    form.setupUi(widget.get());
    m_tabView = form.tabView;
    m_tabSelectorView = form.tabSelectorView;
    setUp(*form.outlineButton, IconShape::Outline, localized("Outline", "Tab of the detail view"));
    setUp(*form.searchButton, IconShape::Find, localized("Search", "Tab of the detail view"));
    m_tabSelectorView->setAccessibleName(
        localized("Sidebar", "Accessible name of the tabs of the detail view"));
    const auto &children = childViewControllers();
    for (std::size_t i = 0; i < children.size(); ++i) {
        if (QWidget *page = m_tabView->widget(static_cast<int>(i)))
            page->layout()->addWidget(children[i]->view());
    }
    return widget;
}

void HighlightTabViewController::viewDidLoad()
{
    collectButtons();
    connect(m_tabView, &QStackedWidget::currentChanged, this, [this](int index) {
        if (!m_isSelecting)
            updateButtons(index);
    });
    if (const auto tab = storedTab())
        selectTab(*tab);
}

void HighlightTabViewController::collectButtons()
{
    // They have no places before they are laid out.
    m_tabSelectorView->resize(m_tabSelectorView->sizeHint());
    m_tabSelectorView->layout()->activate();
    const auto found =
        m_tabSelectorView->findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    std::vector<QAbstractButton *> buttons(found.cbegin(), found.cend());
    const bool isMirrored = m_tabSelectorView->isRightToLeft();
    std::stable_sort(buttons.begin(), buttons.end(), [isMirrored](const auto *a, const auto *b) {
        return isMirrored ? a->x() > b->x() : a->x() < b->x();
    });
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        connect(buttons[i], &QAbstractButton::clicked, this,
                [this, i] { selectTab(static_cast<int>(i)); });
    }
    m_tabButtons = std::move(buttons);
}

std::optional<int> HighlightTabViewController::storedTab() const
{
    bool isNumber = false;
    const int index = QSettings().value(QLatin1String(selectedTabKey), 0).toInt(&isNumber);
    if (isNumber && index == notFound)
        return std::nullopt;
    const bool isTab = isNumber && index >= 0 && index < static_cast<int>(m_tabButtons->size());
    return isTab ? index : 0;
}

void HighlightTabViewController::selectTab(int index)
{
    if (!m_tabButtons || index < 0 || index >= static_cast<int>(m_tabButtons->size()))
        qFatal("There is no tab %d in the sidebar of a detail view", index);
    updateButtons(index);
    m_isSelecting = true;
    m_tabView->setCurrentIndex(index);
    m_isSelecting = false;
    // Each value that is set is written to the file, the same one too.
    QSettings settings;
    const QLatin1String key(selectedTabKey);
    if (settings.value(key).toString() != QString::number(m_tabView->currentIndex()))
        settings.setValue(key, m_tabView->currentIndex());
}

void HighlightTabViewController::updateButtons(int index)
{
    for (std::size_t i = 0; i < m_tabButtons->size(); ++i)
        (*m_tabButtons)[i]->setChecked(static_cast<int>(i) == index);
}

} // namespace Tavrin
