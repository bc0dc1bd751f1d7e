// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>
#include <QPointer>

#include <Tavrin/manager/EntryFinder.h>

class QLineEdit;
class QListView;

namespace Tavrin::Reader
{

class SuggestionModel;

/// A field with a list below it over the top of a window, from which one jumps to any entry of any
/// specification. Closes with a choice, Escape, or when the focus goes elsewhere.
class EntryPalette : public QFrame
{
    Q_OBJECT

public:
    /// Lies over the window; the finder must outlive it.
    EntryPalette(EntryFinder &finder, QWidget &window);

    void open();

Q_SIGNALS:
    void entryChosen(const std::shared_ptr<Tavrin::SpecificationEntry> &entry);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void suggest(const QString &text);
    void choose(const QModelIndex &index);
    void dismiss();
    void place();
    bool handleKey(int key);

    EntryFinder &m_finder;
    QLineEdit *m_field;
    QListView *m_list;
    SuggestionModel *m_model;
    QPointer<QWidget> m_focusBefore;
};

} // namespace Tavrin::Reader
