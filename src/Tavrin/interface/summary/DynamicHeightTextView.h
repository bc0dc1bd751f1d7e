// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTextEdit>
#include <QVariant>

#include <optional>
#include <vector>

namespace Tavrin
{

class StyledText;
class DynamicHeightTextView;

/// Hears of links that were followed.
class TextViewDelegate
{
public:
    virtual ~TextViewDelegate() = default;
    /// The link as the text has it; true if that was dealt with.
    virtual bool textViewClickedLink(DynamicHeightTextView &view, const QVariant &link) = 0;
};

/// Shows a text, all of it: as tall as the text is at its width, without scroll bars.
///
/// Read only. The text can be selected and copied; Tab goes through its links, Return follows one.
/// Other keys, and the wheel, are left to whatever scrolls the view.
class DynamicHeightTextView : public QTextEdit
{
    Q_OBJECT

public:
    explicit DynamicHeightTextView(QWidget *parent = nullptr);

    /// Must outlive the view.
    void setDelegate(TextViewDelegate *delegate) { m_delegate = delegate; }

    /// Puts a text in front of what is there.
    void insertAtStart(const StyledText &text);

    /// What the text takes, in pixels, on lines as long as they are now.
    QSizeF intrinsicContentSize() const;
    /// What the longest line takes if none is wrapped.
    int unwrappedWidth() const;
    void invalidateIntrinsicContentSize() { updateGeometry(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

    /// The links, in order; what Tab goes through.
    struct Link {
        int start = 0;
        int end = 0;
        QString target;
    };
    const std::vector<Link> &links() const { return m_links; }
    /// Around the link's text, a rectangle a line, in the view's coordinates.
    std::vector<QRect> linkRects(const Link &link) const;
    /// The link that Return follows.
    std::optional<std::size_t> focusedLink() const { return m_focusedLink; }

protected:
    bool event(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void readLinks();
    void setFocusedLink(std::optional<std::size_t> link);
    void follow(const QString &target);

    TextViewDelegate *m_delegate = nullptr;
    std::vector<Link> m_links;
    std::optional<std::size_t> m_focusedLink;
    QString m_pressedLink;
};

} // namespace Tavrin
