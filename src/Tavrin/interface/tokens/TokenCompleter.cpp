// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/tokens/TokenCompleter.h>

#include <QListView>
#include <QStyledItemDelegate>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

namespace
{

constexpr int visibleRows = 10;
/// Above and below the text of a row together.
constexpr int rowPadding = 6;

/// Rows with room for the eye and the mouse.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, rowPadding);
    }
};

} // namespace

TokenCompleter::TokenCompleter(QWidget &field)
{
    // The delegate has chosen what fits; nothing is left out again.
    m_completer.setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer.setModel(&m_texts);
    m_completer.setMaxVisibleItems(visibleRows);
    m_completer.setWidget(&field);
    auto *view = new QListView;
    view->setUniformItemSizes(true);
    view->setTextElideMode(Qt::ElideMiddle);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setAccessibleName(localized("Suggestions", "accessible name of a list"));
    m_completer.setPopup(view);
    // The completer puts in one of its own.
    view->setItemDelegate(new RowDelegate(view));
    connect(&m_completer, qOverload<const QString &>(&QCompleter::activated), this,
            &TokenCompleter::chosen);
}

void TokenCompleter::show(const TokenFieldDelegate::Completions &completions, const QRect &below)
{
    if (completions.texts.isEmpty()) {
        hide();
        return;
    }
    if (m_texts.stringList() != completions.texts)
        m_texts.setStringList(completions.texts);
    m_completer.popup()->setLayoutDirection(m_completer.widget()->layoutDirection());
    m_completer.complete(below);
    // From right to left it would begin where the field ends.
    const QPoint left = m_completer.widget()->mapToGlobal(below.topLeft());
    m_completer.popup()->move(left.x(), m_completer.popup()->y());
    m_completer.popup()->setCurrentIndex(m_texts.index(completions.selectedIndex));
}

void TokenCompleter::hide()
{
    if (isShown())
        m_completer.popup()->hide();
}

bool TokenCompleter::isShown() const
{
    return m_completer.popup()->isVisible();
}

bool TokenCompleter::hasChoice() const
{
    return isShown() && m_completer.popup()->currentIndex().isValid();
}

} // namespace Tavrin
