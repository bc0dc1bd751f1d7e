// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>
#include <QStringList>

namespace Tavrin
{

/// One line of plain text, cut off with an ellipsis where it doesn't fit, with some words marked.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// Marked wherever they stand, in any case.
    void setMarkedWords(const QStringList &words);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QStringList m_markedWords;
};

} // namespace Tavrin
