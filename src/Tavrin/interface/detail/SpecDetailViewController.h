// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>

#include <Tavrin/interface/toolkit/ViewController.h>
#include <Tavrin/model/ReferenceCoverage.h>
#include <Tavrin/model/Specification.h>

namespace Tavrin
{

class SpecDetailViewController;

/// Hears of the entry that a reader chose. The same choice may be told twice. Held weakly: the host
/// keeps it.
class TAVRIN_WIDGETS_EXPORT SpecDetailViewControllerDelegate
{
public:
    virtual ~SpecDetailViewControllerDelegate();
    /// `selected` may be an entry for some lines of a section (PDFSpecification::Entry::lineRange).
    /// Its spec URL is what to store.
    virtual void specDetailViewController(SpecDetailViewController &controller,
                                          const std::shared_ptr<SpecificationEntry> &selected) = 0;
};

/// Shows one specification, of whatever kind, with one of its entries current. A host that brings
/// a kind of specification of its own derives from it. Main thread.
///
/// The manager's detailViewControllerDisplayBlock gets one, or a prompt in its place, so a host
/// that does more than show it asks by `std::dynamic_pointer_cast`. One that is on the screen
/// already can go to another entry by setEntry(), and keeps zoom and history then:
///
///     const auto detail = std::dynamic_pointer_cast<SpecDetailViewController>(shown);
///     if (detail && detail->specification() == entry->specification())
///         detail->setEntry(entry);
class TAVRIN_WIDGETS_EXPORT SpecDetailViewController : public ViewController
{
    Q_OBJECT

public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;
    using SpecificationPtr = std::shared_ptr<Specification>;

    explicit SpecDetailViewController(QObject *parent = nullptr);
    ~SpecDetailViewController() override;

    /// The current entry; null if there is none.
    virtual EntryPtr entry() const = 0;
    /// Makes an entry current and shows its place; null for none.
    virtual void setEntry(const EntryPtr &entry) = 0;
    /// The one that is shown; null if there is none.
    virtual SpecificationPtr specification() const = 0;
    /// Shows another. An entry that isn't one of its own is current no longer.
    virtual void setSpecification(const SpecificationPtr &specification) = 0;

    /// Whether the reader may choose an entry in the document. Off at first. What is chosen is
    /// outlined and told to the delegate.
    virtual bool allowsEntrySelection() const = 0;
    virtual void setAllowsEntrySelection(bool allowed) = 0;

    /// Not kept alive.
    virtual std::shared_ptr<SpecDetailViewControllerDelegate> delegate() const = 0;
    virtual void setDelegate(const std::weak_ptr<SpecDetailViewControllerDelegate> &delegate) = 0;

    /// Makes an entry current and marks it. The delegate is not told.
    ///
    /// That of a PDF does nothing but log while choosing isn't allowed, so allow that first.
    virtual void selectEntry(const EntryPtr &entry) = 0;

    /// Whether the places of referenceCoverage() are marked each time the view appears.
    virtual bool showsReferenceCoverage() const = 0;
    virtual void setShowsReferenceCoverage(bool shows) = 0;
    /// What is to be marked; absent at first. Labels nobody knows are left out.
    virtual const std::optional<ReferenceCoverage> &referenceCoverage() const = 0;
    /// Counts from the next time that the view appears.
    virtual void setReferenceCoverage(const std::optional<ReferenceCoverage> &coverage) = 0;
};

} // namespace Tavrin
