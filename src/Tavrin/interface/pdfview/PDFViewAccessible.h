// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

namespace Tavrin
{

class HostPDFView;

/// What a screen reader learns of a PDF view: a document, whose text is that of the page in the
/// middle, with the selection on it.
class PDFViewAccessible : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    /// Makes Qt ask this class about PDF views. Costs nothing when repeated.
    static void install();

    explicit PDFViewAccessible(HostPDFView *view);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

    using QAccessibleWidget::text;

private:
    HostPDFView &view() const;
    QString pageText() const;
};

} // namespace Tavrin
