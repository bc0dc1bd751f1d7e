// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <Tavrin/interface/summary/DynamicHeightTextView.h>
#include <Tavrin/interface/summary/SpecEntrySummaryCellDelegate.h>
#include <Tavrin/interface/toolkit/TableCellView.h>
#include <Tavrin/platform/StyledText.h>

namespace Tavrin
{

/// One value of a summary: a text, a list of texts, or an image.
///
/// Long texts are cut at the end of a sentence; what is left out is a link away.
class SpecEntrySummaryCell : public TableCellView, public TextViewDelegate
{
    Q_OBJECT

public:
    explicit SpecEntrySummaryCell(QWidget *parent = nullptr);

    /// A QString, a QStringList, a StyledText, a list of those, a QImage. Anything else shows that
    /// it can't be shown.
    void setObjectValue(const QVariant &value) override;

    /// The width at which a text keeps its lines.
    int unwrappedWidth() const;

    bool hasImage() const;
    /// What a screen reader calls the value.
    void setCaption(const QString &caption);

    DynamicHeightTextView *textView() const { return m_textView; }
    QWidget *textViewContainer() const { return m_textViewContainer; }

    /// Must outlive the cell, or be taken away.
    void setDelegate(SpecEntrySummaryCellDelegate *delegate) { m_delegate = delegate; }

    /// What the cell takes, in pixels: at the given width, or at the one it would like to have.
    QSize fittingSize(std::optional<int> width = {}) const;

    bool textViewClickedLink(DynamicHeightTextView &view, const QVariant &link) override;

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeTextView();
    void showText(StyledText text);
    /// False for a value that is none of the known types.
    bool showValue(const QVariant &value);

    DynamicHeightTextView *m_textView = nullptr;
    QWidget *m_textViewContainer = nullptr;
    SpecEntrySummaryCellDelegate *m_delegate = nullptr;
};

} // namespace Tavrin
