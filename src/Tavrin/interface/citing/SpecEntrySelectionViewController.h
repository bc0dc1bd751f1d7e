// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include <Tavrin/interface/citing/SpecEntrySelectionViewControllerDelegate.h>
#include <Tavrin/interface/detail/SpecDetailViewController.h>
#include <Tavrin/manager/ManagerPointer.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/platform/NotificationCenter.h>

namespace Tavrin
{

/// Lets the user choose an entry in the detail view of a specification.
///
/// Shows the detail view of the given entry's specification, else of the primary one, with a list
/// to change to another. Where a document is missing it shows the prompt to import, and changes by
/// itself when the file arrives. In a Sheet it ends the sheet. Held by std::shared_ptr; main
/// thread.
///
/// SpecEntryTokenFieldDelegate shows one for its field. A host that cites in another way does so
/// itself:
///
/// \snippet citing/main.cpp choose
class TAVRIN_WIDGETS_EXPORT SpecEntrySelectionViewController
    : public ViewController,
      public SpecDetailViewControllerDelegate
{
    Q_OBJECT
    Q_PROPERTY(bool controlsHidden READ controlsHidden NOTIFY changed)
    Q_PROPERTY(bool selectButtonEnabled READ selectButtonEnabled NOTIFY changed)

public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;
    using SpecificationPtr = std::shared_ptr<Specification>;

    /// What it ends with.
    ///
    /// As a sheet's result and as the delegate is told.
    enum Result { Cancelled = 0, Selected = 1 };

    /// `selectedEntry` is marked when the view comes up; null begins with none.
    explicit SpecEntrySelectionViewController(
        const EntryPtr &selectedEntry = nullptr,
        SpecificationManager &manager = SpecificationManager::shared());
    ~SpecEntrySelectionViewController() override;

    /// Null for none.
    const EntryPtr &selectedEntry() const { return m_selectedEntry; }
    /// Changes what is chosen, not what is shown.
    void setSelectedEntry(const EntryPtr &entry);
    /// Those that have all their files, in the order of the manager; empty before the view is
    /// loaded.
    const std::vector<SpecificationPtr> &availableSpecifications() const
    {
        return m_availableSpecifications;
    }
    /// The one that is shown, or whose document is missing; null for none.
    const SpecificationPtr &selectedSpecification() const { return m_selectedSpecification; }
    /// Shows it. The selected entry stays if it is one of its own.
    ///
    /// Else no entry is selected any more. Null does nothing.
    void setSelectedSpecification(const SpecificationPtr &specification);
    /// Null while there is the prompt, or nothing.
    const std::shared_ptr<SpecDetailViewController> &currentDetailController() const
    {
        return m_currentDetailController;
    }

    /// Not kept alive.
    std::shared_ptr<SpecEntrySelectionViewControllerDelegate> delegate() const
    {
        return m_delegate.lock();
    }
    void setDelegate(const std::weak_ptr<SpecEntrySelectionViewControllerDelegate> &delegate)
    {
        m_delegate = delegate;
    }

    /// Whether there is nothing to choose from, so that there are no buttons. True while there is
    /// the prompt to import in place of a document.
    bool controlsHidden() const { return m_controlsHidden; }
    /// Whether there is an entry to end with.
    bool selectButtonEnabled() const { return m_selectedEntry && m_currentDetailController; }
    /// "Selected entry: Section 4.2.1 Scope", in the user's language.
    QString selectedEntryText() const;

    /// Ends with the selected entry, as the button does: tells the delegate, once, and ends the
    /// Sheet that the view is in, if it is in one.
    void selectButtonClicked() { end(Selected); }
    /// Ends with none, in the same way.
    void cancelButtonClicked() { end(Cancelled); }

    /// The reader chose in the document.
    void specDetailViewController(SpecDetailViewController &controller,
                                  const EntryPtr &selected) override;

Q_SIGNALS:
    /// What the view shows has changed.
    void changed();

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;

private:
    void loadDetail();
    void showSpecification(const SpecificationPtr &specification, const EntryPtr &entry);
    std::shared_ptr<SpecDetailViewController>
    makeDetail(const SpecificationPtr &specification) const;
    void removeShown();
    SpecificationPtr primarySpecification() const;
    void specAuxiliaryFilesChanged();
    void refreshAvailableSpecifications();
    void end(int result);
    void tellDelegate(int result);

    ManagerPointer m_manager;
    EntryPtr m_selectedEntry;
    std::vector<SpecificationPtr> m_availableSpecifications;
    SpecificationPtr m_selectedSpecification;
    std::shared_ptr<SpecDetailViewController> m_currentDetailController;
    /// That one, or the prompt.
    ViewControllerPtr m_shown;
    std::weak_ptr<SpecEntrySelectionViewControllerDelegate> m_delegate;
    QPointer<QWidget> m_containerView;
    QPointer<QWidget> m_sheet;
    bool m_controlsHidden = false;
    bool m_hasEnded = false;
    NotificationCenter::TokenPtr m_filesChanged;
};

} // namespace Tavrin
