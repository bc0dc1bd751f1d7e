// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QWidget>

#include <optional>

namespace Tavrin
{

/// Shows an image at its own size, or smaller where there is less room, and never out of
/// proportion.
///
/// The image comes from a page, which is white paper on any palette; a thin frame sets it off.
class DynamicHeightImageView : public QWidget
{
    Q_OBJECT

public:
    explicit DynamicHeightImageView(QWidget *parent = nullptr);

    const QImage &image() const { return m_image; }
    /// A null image is none.
    void setImage(const QImage &image);

    /// Width by height; absent without an image.
    const std::optional<double> &aspectRatioConstraint() const { return m_aspectRatioConstraint; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, 0}; }
    /// The height at which the image is no wider than that.
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_image;
    std::optional<double> m_aspectRatioConstraint;
};

} // namespace Tavrin
