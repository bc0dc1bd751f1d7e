// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/summary/SpecErrorViewController.h>

#include <algorithm>

#include "ui_SpecErrorViewController.h"

namespace Tavrin
{

namespace
{

/// Beside the button's text, on both sides together, in pixels.
constexpr int buttonPadding = 36;
/// The width that a message takes before it is broken into lines, in average characters.
constexpr int messageCharacters = 36;

} // namespace

SpecErrorViewControllerDelegate::~SpecErrorViewControllerDelegate() = default;

SpecErrorViewController::SpecErrorViewController(QObject *parent) : ViewController(parent) {}

SpecErrorViewController::~SpecErrorViewController() = default;

void SpecErrorViewController::setMessageText(const QString &text)
{
    m_messageText = text;
    Q_EMIT changed();
}

void SpecErrorViewController::setButtonTitle(const QString &title)
{
    m_buttonTitle = title;
    Q_EMIT changed();
}

void SpecErrorViewController::buttonPressed()
{
    if (const auto delegate = m_delegate.lock())
        delegate->specErrorViewControllerButtonPressed(*this);
}

std::unique_ptr<QWidget> SpecErrorViewController::loadView()
{
    auto view = std::make_unique<QWidget>();
    Ui::SpecErrorViewController form;
    form.setupUi(view.get());
    const auto update = [this, form] {
        const QFontMetrics metrics = form.messageLabel->fontMetrics();
        form.messageLabel->setText(messageString());
        form.messageLabel->setMinimumWidth(
            std::min(metrics.horizontalAdvance(messageString()),
                     messageCharacters * metrics.averageCharWidth()));
        form.button->setText(buttonString());
        form.button->setMinimumWidth(form.button->fontMetrics().horizontalAdvance(buttonString()) +
                                     buttonPadding);
        form.button->setHidden(buttonIsHidden());
    };
    update();
    // Ends with the view.
    connect(this, &SpecErrorViewController::changed, view.get(), update);
    connect(form.button, &QPushButton::clicked, this, &SpecErrorViewController::buttonPressed);
    return view;
}

} // namespace Tavrin
