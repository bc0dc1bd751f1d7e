// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/PageField.h>

#include <Tavrin/interface/pdfview/HostPDFView.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

#include <algorithm>

namespace Tavrin
{

using namespace Qt::StringLiterals;

PageField::PageField(HostPDFView &view, QWidget *parent)
    : QWidget(parent), m_view(view), m_number(new QLineEdit(this)), m_count(new QLabel(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(5);
    m_number->setAlignment(Qt::AlignRight);
    m_number->setAccessibleName(localized("Page number", "Field of the detail view's tool bar"));
    row->addWidget(m_number);
    row->addWidget(m_count);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setFocusProxy(m_number);
    connect(m_number, &QLineEdit::returnPressed, this, &PageField::commit);
    connect(&view, &HostPDFView::documentReady, this, &PageField::showPage);
    connect(&view, &HostPDFView::currentPageChanged, this, &PageField::showPage);
    // A document that is taken away takes its history along.
    connect(&view, &HostPDFView::historyChanged, this, &PageField::showPage);
    showPage();
}

void PageField::edit()
{
    m_number->setFocus(Qt::ShortcutFocusReason);
    m_number->selectAll();
}

void PageField::showPage()
{
    const QLocale locale;
    const int page = m_view.currentPage();
    const int count = page < 0 ? 0 : m_view.document()->pageCount();
    const bool isBusy = m_number->hasFocus() && m_number->isModified() && page >= 0;
    if (!isBusy)
        m_number->setText(page < 0 ? QString() : locale.toString(page + 1));
    m_number->setEnabled(page >= 0);
    const QString total = locale.toString(count);
    m_count->setText(
        page < 0 ? QString()
                 : localized("of %1", "Behind the page number: the number of pages").arg(total));
    m_number->setToolTip(localized("Go to page (%1)", "Tool tip with a shortcut")
                             .arg(QKeySequence(QKeyCombination(Qt::CTRL, Qt::Key_L))
                                      .toString(QKeySequence::NativeText)));
    m_number->setAccessibleDescription(m_count->text());
    const auto digits = std::max<qsizetype>(4, total.size());
    const int width = m_number->fontMetrics().horizontalAdvance(QString(digits, u'0'));
    m_number->setFixedWidth(width + 2 * m_number->fontMetrics().averageCharWidth() + 4);
}

void PageField::commit()
{
    bool isNumber = false;
    const int number = QLocale().toInt(m_number->text().trimmed(), &isNumber);
    m_number->setModified(false);
    if (isNumber && m_view.document())
        m_view.goToPage(std::clamp(number, 1, m_view.document()->pageCount()) - 1);
    showPage();
    m_view.setFocus(Qt::OtherFocusReason);
}

void PageField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(event);
    m_number->setModified(false);
    showPage();
    m_view.setFocus(Qt::OtherFocusReason);
}

PageFieldAction::PageFieldAction(HostPDFView &view, QObject *parent)
    : QWidgetAction(parent), m_view(view)
{
    setText(localized("Go to Page", "Tool bar of the detail view"));
}

QWidget *PageFieldAction::createWidget(QWidget *parent)
{
    return new PageField(m_view, parent);
}

} // namespace Tavrin
