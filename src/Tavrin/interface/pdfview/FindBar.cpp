// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/FindBar.h>

#include <Tavrin/platform/StringLocalizer.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>

namespace Tavrin
{

using namespace Qt::StringLiterals;

FindBar::FindBar(QWidget *parent)
    : QFrame(parent), m_field(new QLineEdit(this)), m_count(new QLabel(this))
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setAutoFillBackground(true);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(6, 6, 6, 6);
    row->setSpacing(4);
    m_field->setPlaceholderText(localized("Find in document", "Empty find field of a PDF view"));
    m_field->setAccessibleName(m_field->placeholderText());
    m_field->setClearButtonEnabled(true);
    m_field->setMinimumWidth(m_field->fontMetrics().averageCharWidth() * 26);
    row->addWidget(m_field, 1);
    m_count->setMinimumWidth(m_count->fontMetrics().horizontalAdvance(u"0000 / 0000"_s));
    m_count->setAlignment(Qt::AlignCenter);
    row->addWidget(m_count);
    m_previous = addButton(Qt::UpArrow, localized("Previous hit", "Button of the find bar"));
    m_next = addButton(Qt::DownArrow, localized("Next hit", "Button of the find bar"));
    auto *close = addButton(Qt::NoArrow, localized("Close", "Button of the find bar"));
    // A letter takes the colour of the palette, which the style's icon does not.
    close->setText(u"×"_s);
    QFont large = close->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    close->setFont(large);
    connect(m_field, &QLineEdit::textChanged, this, &FindBar::phraseChanged);
    connect(m_previous, &QToolButton::clicked, this, &FindBar::previousWanted);
    connect(m_next, &QToolButton::clicked, this, &FindBar::nextWanted);
    connect(close, &QToolButton::clicked, this, &FindBar::closed);
    showCount(-1, 0, Progress::Finished);
}

QToolButton *FindBar::addButton(Qt::ArrowType arrow, const QString &name)
{
    auto *button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setArrowType(arrow);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::TabFocus);
    layout()->addWidget(button);
    return button;
}

QString FindBar::phrase() const
{
    return m_field->text();
}

void FindBar::setPhrase(const QString &phrase)
{
    m_field->setText(phrase);
}

void FindBar::activate()
{
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

void FindBar::showCount(int index, int count, Progress progress)
{
    const QLocale locale;
    const QString total = locale.toString(count) + (progress == Progress::Searching ? u"…"_s
                                                    : progress == Progress::Stopped ? u"+"_s
                                                                                    : QString());
    if (phrase().trimmed().isEmpty())
        m_count->clear();
    else if (count == 0)
        m_count->setText(progress == Progress::Searching
                             ? u"…"_s
                             : localized("No hits", "Count of the find bar"));
    else
        m_count->setText(index < 0 ? total : u"%1 / %2"_s.arg(locale.toString(index + 1), total));
    m_previous->setEnabled(count > 0);
    m_next->setEnabled(count > 0);
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closed();
    else if (isEnter && event->modifiers().testFlag(Qt::ShiftModifier))
        Q_EMIT previousWanted();
    else if (isEnter)
        Q_EMIT nextWanted();
    else
        QFrame::keyPressEvent(event);
}

} // namespace Tavrin
