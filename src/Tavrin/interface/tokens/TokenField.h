// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractScrollArea>
#include <QTextLayout>
#include <QTimer>
#include <QVariant>

#include <memory>
#include <optional>

#include <Tavrin/WidgetsExport.h>

class QMimeData;

namespace Tavrin
{

class TokenCompleter;
class TokenEditor;
class TokenFieldDelegate;
class TokenLayout;

/// A field whose text is made of tokens, each of which stands for an object of the host's.
///
/// What is typed becomes a token with Return, with one of the tokenizing characters, when a
/// completion is chosen, or when the focus leaves. Tokens are selected, copied, dragged and deleted
/// as a whole; a double click, or F2, makes text of one again. Copies keep the objects for other
/// token fields, and are editing strings, a line each, for everybody else. The field grows by rows
/// up to a limit, then scrolls. Without a delegate tokens are texts. Main thread.
///
/// It knows nothing of specifications: SpecEntryTokenFieldDelegate makes it a field of references.
/// Its value is that of a form, and can be bound by QDataWidgetMapper, as it is the USER property.
/// Text that is longer than 32767 units is cut.
class TAVRIN_WIDGETS_EXPORT TokenField : public QAbstractScrollArea
{
    Q_OBJECT
    Q_PROPERTY(QVariant objectValue READ objectValue WRITE setObjectValue NOTIFY objectValueChanged
                   USER true)
    Q_PROPERTY(QString tokenizingCharacters READ tokenizingCharacters WRITE setTokenizingCharacters)
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)
    Q_PROPERTY(int maximumVisibleRows READ maximumVisibleRows WRITE setMaximumVisibleRows)

public:
    explicit TokenField(QWidget *parent = nullptr);
    ~TokenField() override;

    /// Not kept alive. Null for none.
    std::shared_ptr<TokenFieldDelegate> delegate() const;
    /// What tokens there are is shown anew.
    void setDelegate(const std::weak_ptr<TokenFieldDelegate> &delegate);

    /// A list of what the tokens stand for, in order. Text that is no token yet counts as the one
    /// that it would become.
    ///
    /// A QVariantList. What an object is, the delegate decides: the default is QString.
    QVariant objectValue() const;
    /// A value that isn't a list becomes the only token; one that isn't valid leaves none. What
    /// could be undone is forgotten.
    ///
    /// A QVariantList or QStringList. objectValueChanged() comes, as after an edit.
    void setObjectValue(const QVariant &value);
    /// The same as an edit of the user's, which can be undone.
    void editObjectValue(const QVariant &value);
    /// Asks the delegate again what tokens show and whether they have a menu. The value stays.
    void reloadTokens();

    /// Each of these ends a token, and so do ends of lines. "\n" at first.
    const QString &tokenizingCharacters() const;
    /// Counts for what is typed and pasted from now on.
    void setTokenizingCharacters(const QString &characters);
    /// Shown while the field is empty.
    const QString &placeholderText() const { return m_placeholderText; }
    void setPlaceholderText(const QString &text);
    /// From this many rows on it scrolls; 5 at first. At least 1.
    int maximumVisibleRows() const { return m_maximumVisibleRows; }
    void setMaximumVisibleRows(int rows);

    /// Text that is no token yet isn't counted.
    int tokenCount() const;
    /// Where a token is drawn, in the viewport. From 0; empty beyond the tokens.
    QRect tokenRect(int index) const;
    /// Selects a token as a click does; nothing happens beyond the tokens.
    void selectToken(int index);
    /// Shows the menu of a token, if it has one.
    void showTokenMenu(int index);

    /// Content, cursor and history; the library's own.
    TokenEditor &editor() const { return *m_editor; }
    /// The list of completions; the library's own.
    TokenCompleter &completer() const { return *m_completer; }
    /// Where the caret is, or would be at a position of the content, in the viewport.
    QRect caretRect() const;
    /// Where the caret would be at a position of the content, in the viewport.
    QRect caretRect(qsizetype position) const;
    /// The position of the content nearest to a point of the viewport.
    qsizetype positionAt(const QPoint &point) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

public Q_SLOTS:
    /// Takes the last edit back; as many as 200 can be.
    void undo();
    /// Does again what was taken back.
    void redo();
    /// Copies what is selected and takes it out.
    void cut();
    /// Puts what is selected on the clipboard; nothing happens if nothing is.
    void copy() const;
    /// Puts in what is on the clipboard: tokens of another field with their objects, text by lines,
    /// each a token.
    void paste();
    /// Selects tokens and text.
    void selectAll();
    /// Makes tokens of all text. Blanks alone make none.
    void tokenizeText();
    /// Offers what the text before the cursor can be completed to, even if there is none.
    ///
    /// Nothing is offered without a delegate, while the field is disabled, and while something is
    /// selected.
    void complete();

Q_SIGNALS:
    /// By the user or by the host, also while the user types.
    void objectValueChanged();
    /// When the user pressed Return, or the focus left.
    void editingFinished();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    /// What a press of the mouse begins.
    enum class Gesture { None, Selecting, MayDrag };

    // Layout and drawing.
    void layOut();
    void updateScrollBar();
    void ensureCaretVisible();
    void restartCaret();
    void drawFrame();
    void drawPlaceholder(QPainter &painter) const;
    QPointF toLayout(const QPointF &inViewport) const;
    QRect toViewport(const QRectF &inLayout) const;
    int heightOfRows(int rows) const;
    bool showToolTip(const QPoint &place);
    // Completion.
    void updateCompletions();
    void takeCompletion(const QString &text);
    // Keys.
    bool handleHistoryAndClipboard(QKeyEvent *event);
    bool handleMove(QKeyEvent *event);
    bool handleDelete(QKeyEvent *event);
    bool handleOther(QKeyEvent *event);
    void step(bool forward, bool byWord, bool select);
    void stepRow(int rows, bool select);
    void moveTo(qsizetype position, bool select);
    /// The start or the end of the row with the caret.
    qsizetype rowEdge(bool end) const;
    void removeTo(qsizetype position);
    // Mouse, menus, drags.
    std::optional<qsizetype> menuAt(const QPointF &inViewport) const;
    void setHoveredMenu(std::optional<qsizetype> position);
    void showMenuAt(qsizetype position);
    void showEditMenu(const QPoint &globalPlace);
    void insertFrom(const QMimeData &data);
    void startDrag();
    void setDropPosition(std::optional<qsizetype> position);

    std::unique_ptr<TokenEditor> m_editor;
    std::unique_ptr<TokenLayout> m_layout;
    std::unique_ptr<TokenCompleter> m_completer;
    QTimer m_completionTimer;
    QTimer m_caretTimer;
    bool m_isCaretOn = true;
    QString m_placeholderText;
    int m_maximumVisibleRows = 5;
    int m_rowsOfHint = 1;
    /// What an input method is composing at the cursor.
    struct {
        QString text;
        int cursor = 0;
        QList<QTextLayout::FormatRange> formats;
    } m_preedit;
    Gesture m_gesture = Gesture::None;
    QPoint m_pressed;
    std::optional<qsizetype> m_hoveredMenu;
    std::optional<qsizetype> m_dropPosition;
};

} // namespace Tavrin
