// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <memory>

#include <Tavrin/interface/detail/SpecDetailViewController.h>
#include <Tavrin/manager/EntryFinder.h>
#include <Tavrin/manager/SpecificationManager.h>

class QWidget;

namespace Tavrin::Reader
{

class ControllerPane;
class RecentPlaces;

/// Shows entries: each as a summary, at its place in the document, and among the recent places.
///
/// A document that is open stays open, with its zoom and its way back, as long as entries of its
/// specification are asked for.
class EntryPresenter : public QObject
{
    Q_OBJECT

public:
    /// Where an entry is shown.
    struct Panes {
        ControllerPane &summary;
        ControllerPane &detail;
        RecentPlaces &recent;
    };

    /// All that is given must outlive the presenter.
    EntryPresenter(SpecificationManager &manager, EntryFinder &finder, Panes panes,
                   QWidget &window);

    /// Shows what a text refers to, or says that there is nothing.
    void lookUp(const QString &text);
    void showEntry(const std::shared_ptr<SpecificationEntry> &entry);
    /// Shows a detail view, or a prompt in its place, that the manager displays.
    void displayDetail(const ViewControllerPtr &controller);
    /// After other maps were opened or other files bound.
    void libraryChanged();

    /// Null before the first, and when it is gone.
    std::shared_ptr<SpecificationEntry> shownEntry() const { return m_shownEntry.lock(); }

Q_SIGNALS:
    /// A document of this specification is on show, or none if it is null.
    void specificationShown(const Tavrin::Specification *specification);

private:
    void present(const std::shared_ptr<SpecificationEntry> &entry);
    /// What is chosen in the document, or by a link that leads there.
    void follow(const std::shared_ptr<SpecificationEntry> &entry);
    void takeOver(const ViewControllerPtr &controller);
    std::shared_ptr<SpecDetailViewController> detail() const;
    /// References mean the document that is on show, or else one that can be.
    void preferSpecification();

    SpecificationManager &m_manager;
    EntryFinder &m_finder;
    Panes m_panes;
    QWidget &m_window;
    std::shared_ptr<SpecDetailViewControllerDelegate> m_listener;
    std::weak_ptr<SpecificationEntry> m_shownEntry;
};

} // namespace Tavrin::Reader
