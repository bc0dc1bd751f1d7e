// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/interface/toolkit/TableCellView.h>

namespace Tavrin
{

class ElidedLabel;
class SpecPDFSearchResult;

/// What a row of the search sidebar looks like: title and index, and a line of summary below.
class SpecPDFSearchCell : public TableCellView
{
    Q_OBJECT

public:
    /// What lies behind the cell.
    enum class BackgroundStyle { Light, Dark };

    explicit SpecPDFSearchCell(QWidget *parent = nullptr);

    /// Marks the words in the title.
    void show(const SpecPDFSearchResult &result, const QStringList &words);

    BackgroundStyle backgroundStyle() const { return m_backgroundStyle; }
    /// Sets the colours of the labels so that they can be read.
    void setBackgroundStyle(BackgroundStyle style);

    ElidedLabel *descriptionLabel() const { return m_descriptionLabel; }
    QLabel *indexLabel() const { return m_indexLabel; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateColors();

    BackgroundStyle m_backgroundStyle = BackgroundStyle::Light;
    ElidedLabel *m_titleLabel = nullptr;
    ElidedLabel *m_descriptionLabel = nullptr;
    QLabel *m_indexLabel = nullptr;
};

} // namespace Tavrin
