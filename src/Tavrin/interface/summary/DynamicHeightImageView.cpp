// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/summary/DynamicHeightImageView.h>

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// On each side: the frame, and as much outside it as a text keeps from its edges.
constexpr int frameWidth = 2;

} // namespace

DynamicHeightImageView::DynamicHeightImageView(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void DynamicHeightImageView::setImage(const QImage &image)
{
    m_image = image;
    m_aspectRatioConstraint.reset();
    if (!image.isNull())
        m_aspectRatioConstraint = double(image.width()) / image.height();
    updateGeometry();
    update();
}

QSize DynamicHeightImageView::sizeHint() const
{
    if (m_image.isNull())
        return {0, 0};
    const QSizeF size = m_image.deviceIndependentSize();
    return {int(std::ceil(size.width())) + 2 * frameWidth,
            int(std::ceil(size.height())) + 2 * frameWidth};
}

int DynamicHeightImageView::heightForWidth(int width) const
{
    const QSize whole = sizeHint();
    if (!m_aspectRatioConstraint || width >= whole.width())
        return whole.height();
    const double inner = std::max(1, width - 2 * frameWidth);
    return int(std::ceil(inner / *m_aspectRatioConstraint)) + 2 * frameWidth;
}

void DynamicHeightImageView::paintEvent(QPaintEvent *)
{
    if (m_image.isNull())
        return;
    const QSize frame = sizeHint().scaled(sizeHint().boundedTo(size()), Qt::KeepAspectRatio);
    const QRect place =
        QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignTop, frame, rect());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place.adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth), m_image);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.25F);
    painter.setPen(QPen(line, 1));
    painter.drawRect(place.adjusted(1, 1, -2, -2));
}

} // namespace Tavrin
