// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/BrowserTextViewCell.h>

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollBar>

#include <Tavrin/interface/audit/BrowserCellDelegate.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// In UTF-16 units. Laying text out takes time.
constexpr qsizetype longestShown = 20'000;

/// A text that can be read and nothing more.
class TextView : public QPlainTextEdit
{
public:
    explicit TextView(QWidget *parent) : QPlainTextEdit(parent)
    {
        constexpr int margin = BrowserCellDelegate::margin;
        document()->setDocumentMargin(0);
        // Lines are whole however far the text is scrolled.
        setViewportMargins(margin, margin, margin, margin);
        QTextOption option = document()->defaultTextOption();
        option.setTextDirection(Qt::LayoutDirectionAuto);
        document()->setDefaultTextOption(option);
        // From the right to the left, lines that end in blanks would be shifted.
        setLayoutDirection(Qt::LeftToRight);
    }

    bool takesWheel = false;

protected:
    void mousePressEvent(QMouseEvent *event) override { event->ignore(); }
    void mouseMoveEvent(QMouseEvent *event) override { event->ignore(); }
    void mouseReleaseEvent(QMouseEvent *event) override { event->ignore(); }
    void mouseDoubleClickEvent(QMouseEvent *event) override { event->ignore(); }
    void contextMenuEvent(QContextMenuEvent *event) override { event->ignore(); }
    void wheelEvent(QWheelEvent *event) override
    {
        if (takesWheel)
            QPlainTextEdit::wheelEvent(event);
        else
            event->ignore();
    }
};

} // namespace

BrowserTextViewCell::BrowserTextViewCell(QWidget *parent)
    : QWidget(parent), m_textView(new TextView(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_textView);
    m_textView->setReadOnly(true);
    m_textView->setTextInteractionFlags(Qt::NoTextInteraction);
    m_textView->setFocusPolicy(Qt::NoFocus);
    m_textView->setFrameShape(QFrame::NoFrame);
    m_textView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The table paints what lies behind the text.
    m_textView->setAutoFillBackground(false);
    m_textView->viewport()->setAutoFillBackground(false);
    m_textView->viewport()->setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::NoFocus);
}

void BrowserTextViewCell::setText(const QString &text)
{
    m_textView->verticalScrollBar()->setValue(0);
    if (text == m_text)
        return;
    m_text = text;
    const bool isCut = text.size() > longestShown;
    m_textView->setPlainText(isCut ? text.left(longestShown) + u'…' : text);
}

void BrowserTextViewCell::setAppearance(const QColor &color, bool isCurrent)
{
    QPalette colors = m_textView->palette();
    if (colors.color(QPalette::Text) != color) {
        colors.setColor(QPalette::Text, color);
        m_textView->setPalette(colors);
    }
    static_cast<TextView *>(m_textView)->takesWheel = isCurrent;
}

void BrowserTextViewCell::scrollBy(int steps)
{
    QScrollBar *bar = m_textView->verticalScrollBar();
    bar->setValue(bar->value() + steps * bar->singleStep());
}

} // namespace Tavrin
