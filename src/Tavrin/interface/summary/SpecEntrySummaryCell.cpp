// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/summary/SpecEntrySummaryCell.h>

#include <Tavrin/interface/summary/DynamicHeightImageView.h>
#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QDebug>
#include <QEvent>
#include <QLayout>

#include <algorithm>

#include "ui_SummaryCell.h"

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// The length from which on a text is cut, in UTF-16 units.
constexpr qsizetype longTextLength = 750;

/// Cuts a long text behind the first punctuation at or after a length; one without stays whole.
void shorten(StyledText &text)
{
    if (text.length() <= longTextLength)
        return;
    const QString &string = text.string();
    const auto mark = std::find_if(string.begin() + longTextLength, string.end(),
                                   [](QChar character) { return character.isPunct(); });
    if (mark == string.end())
        return;
    const qsizetype end = mark - string.begin() + 1;
    const TextAttributes attributes{.font = text.attributesAt(end - 1).font};
    text.deleteCharacters({end, string.size() - end});
    text.append(u"…"_s, attributes);
}

bool isListOfTexts(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<QVariantList>())
        return false;
    const QVariantList list = value.toList();
    return std::all_of(list.begin(), list.end(), [](const QVariant &element) {
        return element.metaType() == QMetaType::fromType<StyledText>();
    });
}

} // namespace

SpecEntrySummaryCell::SpecEntrySummaryCell(QWidget *parent) : TableCellView(parent)
{
    Ui::SummaryCell form;
    form.setupUi(this);
    setImageView(form.imageView);
    m_textViewContainer = form.textViewContainer;
    makeTextView();
}

void SpecEntrySummaryCell::makeTextView()
{
    m_textView = new DynamicHeightTextView(m_textViewContainer);
    m_textView->setDelegate(this);
    m_textViewContainer->layout()->addWidget(m_textView);
}

void SpecEntrySummaryCell::setObjectValue(const QVariant &value)
{
    TableCellView::setObjectValue(value);
    m_textView->clear();
    imageView()->setImage({});
    if (!showValue(value))
        m_textView->setPlainText(localized("<cannot display this type>", "spec entry value"));
    imageView()->setVisible(hasImage());
    m_textViewContainer->setVisible(!hasImage());
}

bool SpecEntrySummaryCell::hasImage() const
{
    return !imageView()->image().isNull();
}

void SpecEntrySummaryCell::setCaption(const QString &caption)
{
    m_textView->setAccessibleName(caption);
    imageView()->setAccessibleName(caption);
}

bool SpecEntrySummaryCell::showValue(const QVariant &value)
{
    const QMetaType type = value.metaType();
    if (type == QMetaType::fromType<QString>()) {
        m_textView->setPlainText(value.toString());
    } else if (type == QMetaType::fromType<QStringList>()) {
        m_textView->setPlainText(value.toStringList().join(u'\n'));
    } else if (type == QMetaType::fromType<StyledText>()) {
        showText(value.value<StyledText>());
    } else if (isListOfTexts(value)) {
        StyledText text;
        for (const QVariant &element : value.toList()) {
            text.append(element.value<StyledText>());
            text.append(u"\n"_s);
        }
        showText(text);
    } else if (type == QMetaType::fromType<QImage>() && !value.value<QImage>().isNull()) {
        imageView()->setImage(value.value<QImage>());
    } else {
        return false;
    }
    return true;
}

void SpecEntrySummaryCell::showText(StyledText text)
{
    shorten(text);
    m_textView->insertAtStart(text);
}

QSize SpecEntrySummaryCell::fittingSize(std::optional<int> width) const
{
    // Layouts of hidden widgets don't hear what changed below them.
    imageView()->updateGeometry();
    m_textViewContainer->updateGeometry();
    layout()->invalidate();
    if (!width)
        return layout()->totalSizeHint();
    const QSize hint = layout()->totalSizeHint();
    return {*width,
            layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(*width) : hint.height()};
}

int SpecEntrySummaryCell::unwrappedWidth() const
{
    const QMargins margins = layout()->contentsMargins();
    return margins.left() + m_textView->unwrappedWidth() + margins.right();
}

bool SpecEntrySummaryCell::textViewClickedLink(DynamicHeightTextView &, const QVariant &link)
{
    if (link.metaType() != QMetaType::fromType<QString>()) {
        qCWarning(interfaceLog).noquote() << "Destination isn't a string:" << link;
        return false;
    }
    if (m_delegate)
        m_delegate->summaryCellClickedLink(link.toString());
    return true;
}

void SpecEntrySummaryCell::changeEvent(QEvent *event)
{
    TableCellView::changeEvent(event);
    // Links and sizes are written into the text.
    const bool isLook =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (isLook && m_textView && objectValue().isValid())
        setObjectValue(QVariant(objectValue()));
}

void SpecEntrySummaryCell::resizeEvent(QResizeEvent *event)
{
    m_textView->invalidateIntrinsicContentSize();
    TableCellView::resizeEvent(event);
}

} // namespace Tavrin
