// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>
#include <QTimer>
#include <QVariantAnimation>

namespace Tavrin
{

/// Says which page one is on while one scrolls, and fades when that ends. The mouse goes through.
class PageIndicator : public QLabel
{
    Q_OBJECT

public:
    explicit PageIndicator(QWidget *parent);

    /// Shows itself for a moment, at the middle of the lower edge of the parent.
    void showPage(const QString &label, int page, int pageCount);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer m_rest;
    QVariantAnimation m_fade;
};

} // namespace Tavrin
