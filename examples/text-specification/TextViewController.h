// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/interface/detail/SpecDetailViewController.h>

class QPlainTextEdit;

/// Shows the whole text, with the section of the current entry selected.
class TextViewController : public Tavrin::SpecDetailViewController
{
public:
    EntryPtr entry() const override { return m_entry; }
    void setEntry(const EntryPtr &entry) override;
    SpecificationPtr specification() const override { return m_specification; }
    void setSpecification(const SpecificationPtr &specification) override;
    bool allowsEntrySelection() const override { return m_allowsEntrySelection; }
    void setAllowsEntrySelection(bool allowed) override { m_allowsEntrySelection = allowed; }
    std::shared_ptr<Tavrin::SpecDetailViewControllerDelegate> delegate() const override;
    void
    setDelegate(const std::weak_ptr<Tavrin::SpecDetailViewControllerDelegate> &delegate) override;
    void selectEntry(const EntryPtr &entry) override { setEntry(entry); }
    bool showsReferenceCoverage() const override { return m_showsReferenceCoverage; }
    void setShowsReferenceCoverage(bool shows) override { m_showsReferenceCoverage = shows; }
    const std::optional<Tavrin::ReferenceCoverage> &referenceCoverage() const override
    {
        return m_referenceCoverage;
    }
    void setReferenceCoverage(const std::optional<Tavrin::ReferenceCoverage> &coverage) override;

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;

private:
    void showEntry();

    SpecificationPtr m_specification;
    EntryPtr m_entry;
    bool m_allowsEntrySelection = false;
    bool m_showsReferenceCoverage = false;
    std::optional<Tavrin::ReferenceCoverage> m_referenceCoverage;
    std::weak_ptr<Tavrin::SpecDetailViewControllerDelegate> m_delegate;
    QPointer<QPlainTextEdit> m_text;
};
