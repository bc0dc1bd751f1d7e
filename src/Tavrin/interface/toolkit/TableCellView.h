// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariant>
#include <QWidget>

class QLabel;

namespace Tavrin
{

class DynamicHeightImageView;

/// A cell of a TableView: what its form puts into it, and the value that it shows.
class TableCellView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Null where the form has none.
    QLabel *textField() const { return m_textField; }
    void setTextField(QLabel *label) { m_textField = label; }
    DynamicHeightImageView *imageView() const { return m_imageView; }
    void setImageView(DynamicHeightImageView *view) { m_imageView = view; }

    const QVariant &objectValue() const { return m_objectValue; }
    virtual void setObjectValue(const QVariant &value) { m_objectValue = value; }

private:
    QLabel *m_textField = nullptr;
    DynamicHeightImageView *m_imageView = nullptr;
    QVariant m_objectValue;
};

} // namespace Tavrin
