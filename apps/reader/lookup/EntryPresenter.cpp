// SPDX-License-Identifier: Apache-2.0
#include <reader/lookup/EntryPresenter.h>

#include <functional>
#include <utility>

#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <reader/lookup/RecentPlaces.h>
#include <reader/panes/Complaint.h>
#include <reader/panes/ControllerPane.h>

namespace Tavrin::Reader
{

namespace
{

/// Hears of what is chosen in the document.
class Listener : public SpecDetailViewControllerDelegate
{
public:
    using Choice = std::function<void(const std::shared_ptr<SpecificationEntry> &)>;

    explicit Listener(Choice choice) : m_choice(std::move(choice)) {}
    void specDetailViewController(SpecDetailViewController &,
                                  const std::shared_ptr<SpecificationEntry> &selected) override
    {
        m_choice(selected);
    }

private:
    Choice m_choice;
};

} // namespace

EntryPresenter::EntryPresenter(SpecificationManager &manager, EntryFinder &finder, Panes panes,
                               QWidget &window)
    : QObject(&window),
      m_manager(manager),
      m_finder(finder),
      m_panes(panes),
      m_window(window),
      m_listener(std::make_shared<Listener>([this](const auto &entry) { follow(entry); }))
{
}

void EntryPresenter::lookUp(const QString &text)
{
    try {
        for (const auto &reference : m_finder.resolve(text)) {
            if (!reference.entries.empty())
                return showEntry(reference.entries.front());
        }
        m_panes.summary.setPlaceholder(
            localized("No entry for “%1”.\n\nType a number such as 4.2, a figure such as "
                      "Fig. 3-7, or words of a title.",
                      "answer of a look-up")
                .arg(text));
        m_panes.summary.setController(nullptr);
    } catch (const std::exception &error) {
        complain(m_window, localized("The entry could not be looked up.", "alert"), error);
    }
}

void EntryPresenter::showEntry(const std::shared_ptr<SpecificationEntry> &entry)
{
    const auto specification = entry->specification();
    if (!specification)
        return;
    present(entry);
    const auto shown = detail();
    if (shown && shown->specification() == specification &&
        specification->areFileRequirementsSatisfied())
        shown->selectEntry(entry);
    else
        m_manager.showDetailViewController(specification->generateURL(*entry, true, true));
}

void EntryPresenter::present(const std::shared_ptr<SpecificationEntry> &entry)
{
    m_panes.recent.add(*entry);
    m_shownEntry = entry;
    // Number, title and source are known from the map, so there is something to see without a PDF.
    m_panes.summary.setController(
        std::make_shared<SpecEntrySummaryViewController>(entry, nullptr, m_manager));
}

void EntryPresenter::follow(const std::shared_ptr<SpecificationEntry> &entry)
{
    // The same choice may be told twice.
    if (entry && entry != shownEntry())
        present(entry);
}

void EntryPresenter::displayDetail(const ViewControllerPtr &controller)
{
    const auto shown = detail();
    const auto next = std::dynamic_pointer_cast<SpecDetailViewController>(controller);
    const auto entry = next ? next->entry() : nullptr;
    // A link may lead to another place in the same document.
    if (shown && entry && shown->specification() == next->specification() &&
        !next->showsReferenceCoverage())
        shown->selectEntry(entry);
    else
        takeOver(controller);
    const auto current = next ? next->specification() : nullptr;
    Q_EMIT specificationShown(current.get());
    preferSpecification();
    follow(entry);
}

void EntryPresenter::takeOver(const ViewControllerPtr &controller)
{
    if (const auto next = std::dynamic_pointer_cast<SpecDetailViewController>(controller)) {
        next->setAllowsEntrySelection(true);
        next->setDelegate(m_listener);
        if (const auto entry = next->entry())
            next->selectEntry(entry);
    }
    m_panes.detail.setController(controller);
}

void EntryPresenter::libraryChanged()
{
    preferSpecification();
    // A prompt for a file that has come gives way to what was asked for.
    const auto entry = shownEntry();
    const bool isPrompt = m_panes.detail.controller() && !detail();
    const auto specification = entry ? entry->specification() : nullptr;
    if (isPrompt && specification && specification->areFileRequirementsSatisfied())
        showEntry(entry);
}

std::shared_ptr<SpecDetailViewController> EntryPresenter::detail() const
{
    return std::dynamic_pointer_cast<SpecDetailViewController>(m_panes.detail.controller());
}

void EntryPresenter::preferSpecification()
{
    const auto shown = detail();
    auto preferred = shown ? shown->specification() : nullptr;
    if (!preferred) {
        preferred = m_manager.specificationWhere([](const Specification &specification) {
            return specification.areFileRequirementsSatisfied();
        });
    }
    m_finder.setPreferred(preferred);
}

} // namespace Tavrin::Reader
