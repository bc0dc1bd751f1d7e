// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

class QLabel;

namespace Tavrin
{

/// A line of text across the top of a view, about what can't be shown there. It stays until it is
/// closed or cleared, and keeps nobody from going on. Hidden at first. Main thread.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    /// Replaces what it says, and tells screen readers.
    void showText(const QString &text);
    void clear();
    /// Empty while it is hidden.
    QString text() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_label;
};

} // namespace Tavrin
