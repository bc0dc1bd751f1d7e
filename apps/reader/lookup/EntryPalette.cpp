// SPDX-License-Identifier: Apache-2.0
#include <reader/lookup/EntryPalette.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QVBoxLayout>

#include <algorithm>

#include <Tavrin/interface/clipboard/EntryClipboard.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <reader/lookup/SuggestionDelegate.h>
#include <reader/lookup/SuggestionModel.h>

namespace Tavrin::Reader
{

namespace
{

constexpr std::size_t mostSuggestions = 50;
constexpr int visibleSuggestions = 8;
constexpr int widest = 620;
constexpr int padding = 8;

} // namespace

EntryPalette::EntryPalette(EntryFinder &finder, QWidget &window)
    : QFrame(&window),
      m_finder(finder),
      m_field(new QLineEdit),
      m_list(new QListView),
      m_model(new SuggestionModel(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(padding, padding, padding, padding);
    layout->addWidget(m_field);
    layout->addWidget(m_list);
    m_field->setPlaceholderText(localized("Go to any entry", "placeholder of the palette"));
    m_field->setAccessibleName(localized("Go to any entry", "placeholder of the palette"));
    m_list->setModel(m_model);
    m_list->setItemDelegate(new SuggestionDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setAccessibleName(localized("Suggestions", "name of a list"));
    connect(m_field, &QLineEdit::textChanged, this, &EntryPalette::suggest);
    connect(m_list, &QListView::clicked, this, &EntryPalette::choose);
    m_field->installEventFilter(this);
    window.installEventFilter(this);
    hide();
}

void EntryPalette::open()
{
    m_focusBefore = window()->focusWidget();
    m_field->clear();
    suggest({});
    show();
    raise();
    m_field->setFocus(Qt::ShortcutFocusReason);
}

bool EntryPalette::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        place();
    if (watched != m_field)
        return QFrame::eventFilter(watched, event);
    if (event->type() == QEvent::FocusOut && isVisible()) {
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        // A menu of the field, or another window on top, is no leave-taking.
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            hide();
    }
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && !m_field->hasSelectedText() &&
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy)) {
        if (const auto entry = m_model->entry(m_list->currentIndex()))
            EntryClipboard::copy(*entry);
        return true;
    }
    if (event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent *>(event)->key()))
        return true;
    return QFrame::eventFilter(watched, event);
}

bool EntryPalette::handleKey(int key)
{
    const int rows = m_model->rowCount();
    int row = m_list->currentIndex().row();
    switch (key) {
    case Qt::Key_Escape:
        dismiss();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(m_list->currentIndex());
        return true;
    case Qt::Key_Down:
        ++row;
        break;
    case Qt::Key_Up:
        --row;
        break;
    case Qt::Key_PageDown:
        row += visibleSuggestions;
        break;
    case Qt::Key_PageUp:
        row -= visibleSuggestions;
        break;
    default:
        return false;
    }
    m_list->setCurrentIndex(m_model->index(std::clamp(row, 0, std::max(rows - 1, 0))));
    return true;
}

void EntryPalette::suggest(const QString &text)
{
    m_model->setHits(m_finder.suggestions(text, mostSuggestions));
    m_list->setCurrentIndex(m_model->index(0));
    place();
}

void EntryPalette::choose(const QModelIndex &index)
{
    const auto entry = m_model->entry(index);
    if (!entry)
        return;
    dismiss();
    Q_EMIT entryChosen(entry);
}

void EntryPalette::dismiss()
{
    const QPointer<QWidget> back = m_focusBefore;
    hide();
    if (back)
        back->setFocus(Qt::OtherFocusReason);
}

void EntryPalette::place()
{
    const QRect room = parentWidget()->rect().adjusted(padding, padding, -padding, -padding);
    const int rows = std::min(m_model->rowCount(), visibleSuggestions);
    m_list->setVisible(rows > 0);
    m_list->setFixedHeight(std::max(rows, 1) * std::max(m_list->sizeHintForRow(0), 1));
    const QSize size(std::min(widest, room.width()), std::min(sizeHint().height(), room.height()));
    setGeometry(
        QRect({room.center().x() - size.width() / 2, room.top() + room.height() / 12}, size));
}

} // namespace Tavrin::Reader
