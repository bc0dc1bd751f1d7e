// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QToolButton;

namespace Tavrin
{

/// The field to find words in a document by, with its buttons and the count of hits.
class FindBar : public QFrame
{
    Q_OBJECT

public:
    explicit FindBar(QWidget *parent = nullptr);

    QString phrase() const;
    void setPhrase(const QString &phrase);
    /// Puts the cursor into the field and selects what is there.
    void activate();
    /// How far a search has come.
    enum class Progress { Searching, Finished, Stopped };
    /// `index` from 0, or -1 for none. A search that goes on, or stopped at too many, says so.
    void showCount(int index, int count, Progress progress);

Q_SIGNALS:
    void phraseChanged(const QString &phrase);
    void nextWanted();
    void previousWanted();
    void closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QToolButton *addButton(Qt::ArrowType arrow, const QString &name);

    QLineEdit *m_field;
    QLabel *m_count;
    QToolButton *m_previous = nullptr;
    QToolButton *m_next = nullptr;
};

} // namespace Tavrin
