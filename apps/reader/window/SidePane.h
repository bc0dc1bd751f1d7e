// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <Tavrin/manager/EntryFinder.h>

class QListView;
class QSplitter;

namespace Tavrin::Reader
{

class ControllerPane;
class LookupField;
class RecentPlaces;

/// The left of the reader's window: a field to look things up with, the summary of what was found,
/// and below it the places looked at before.
class SidePane : public QWidget
{
    Q_OBJECT

public:
    /// The finder must outlive the pane.
    explicit SidePane(EntryFinder &finder, QWidget *parent = nullptr);

    LookupField &field() const { return *m_field; }
    ControllerPane &summary() const { return *m_summary; }
    RecentPlaces &recent() const { return *m_recent; }
    QSplitter &splitter() const { return *m_splitter; }

Q_SIGNALS:
    /// A place was chosen among the recent ones.
    void placeChosen(const QString &specURL);

private:
    QWidget *makeRecentPlaces();
    void copyPlace();

    EntryFinder &m_finder;
    LookupField *m_field;
    ControllerPane *m_summary;
    RecentPlaces *m_recent;
    QListView *m_recentView;
    QSplitter *m_splitter;
};

} // namespace Tavrin::Reader
