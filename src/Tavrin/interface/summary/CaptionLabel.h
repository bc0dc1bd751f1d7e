// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>

namespace Tavrin
{

/// A label that stands back behind the text beside it, on any palette.
class CaptionLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace Tavrin
