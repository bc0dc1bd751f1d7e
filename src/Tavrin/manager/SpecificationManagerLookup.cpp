// SPDX-License-Identifier: Apache-2.0
// The manager's part that turns labels and specifications into what users see.
#include <Tavrin/manager/SpecificationManager.h>

#include <algorithm>
#include <utility>

#include <Tavrin/model/ViewControllerFactory.h>
#include <Tavrin/platform/Logging.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

void logMissingLabel(const QString &label)
{
    qCWarning(managerLog).noquote() << "Could not find label" << label << "in any specification";
}

void logMissingDetail(const std::shared_ptr<Specification> &specification)
{
    qCWarning(managerLog).noquote()
        << "Could not load detail view controller for"
        << (specification ? specification->debugDescription() : u"no specification"_s);
}

ViewControllerPtr detailOf(const std::shared_ptr<Specification> &specification)
{
    return specification ? specification->detailViewController() : nullptr;
}

QString promptText(bool isAnythingImported, bool offersImport)
{
    if (isAnythingImported && offersImport)
        return localized("You have not imported a spec for this reference yet. Would you like to "
                         "choose a file now?",
                         "no specs error prompt");
    if (isAnythingImported)
        return localized("You have not imported a spec for this reference.",
                         "no specs error message");
    if (offersImport)
        return localized("You have not imported any specs yet. Would you like to choose a file "
                         "now?",
                         "no specs error prompt");
    return localized("You have not imported any specs yet.", "no specs error message");
}

} // namespace

ViewControllerFactory *SpecificationManager::viewControllerFactory() const
{
    return m_factory ? m_factory.get() : ViewControllerFactory::installed();
}

void SpecificationManager::setViewControllerFactory(std::shared_ptr<ViewControllerFactory> factory)
{
    m_factory = std::move(factory);
}

/// Null, with a line in the log, in a process without windows.
ViewControllerFactory *SpecificationManager::views() const
{
    auto *factory = viewControllerFactory();
    if (!factory)
        qCWarning(managerLog) << "No view can be made, since Tavrin::Widgets isn't linked";
    return factory;
}

void SpecificationManager::setDetailViewControllerDisplayBlock(DisplayBlock block)
{
    m_detailDisplayBlock = std::move(block);
}

void SpecificationManager::setAuxiliaryFileBrowserDisplayBlock(DisplayBlock block)
{
    m_browserDisplayBlock = std::move(block);
}

void SpecificationManager::setAuxiliaryFileBrowserHelpText(const std::optional<QString> &text)
{
    m_browserHelpText = text;
}

ViewControllerPtr SpecificationManager::summaryLookup(const QString &label,
                                                      const SpecificationPredicate &inSpecsWhere)
{
    auto *factory = views();
    if (!factory)
        return nullptr;
    for (const SpecificationPtr &specification : lookupOrder()) {
        if (!inSpecsWhere(*specification))
            continue;
        if (auto summary = specification->summaryViewController(label)) {
            claim(summary);
            return summary;
        }
    }
    if (!isAnySpecificationSatisfied()) {
        if (auto prompt = makeNoSpecsController())
            return prompt;
    }
    logMissingLabel(label);
    auto empty = factory->summary(nullptr);
    if (!empty)
        qFatal("Couldn't initialize summary view controller");
    return empty;
}

ViewControllerPtr SpecificationManager::detailLookup(const EntryPtr &entry)
{
    if (auto detail = detailFor(entry->label(), acceptAll)) {
        claim(detail);
        return detail;
    }
    qCWarning(managerLog).noquote()
        << "Could not get detail view controller for" << entry->label() << "in any specification";
    return makeNoSpecsController();
}

void SpecificationManager::showDetailViewController(const QString &label,
                                                    const SpecificationPredicate &inSpecsWhere)
{
    if (const auto detail = detailFor(label, inSpecsWhere)) {
        displayDetail(detail);
        return;
    }
    displayPrompt();
    logMissingLabel(label);
}

void SpecificationManager::showDetailViewController(const SpecificationPtr &specification)
{
    if (const auto detail = detailOf(specification))
        displayDetail(detail);
    else if (!displayPrompt())
        logMissingDetail(specification);
}

void SpecificationManager::showSpecCoverage(const ReferenceCoverage &coverage,
                                            const SpecificationPtr &specification)
{
    const auto detail = detailOf(specification);
    if (!detail) {
        logMissingDetail(specification);
        return;
    }
    auto *factory = views();
    if (factory && !factory->showReferenceCoverage(*detail, coverage))
        qCWarning(managerLog) << "The detail view can't show which references are covered";
    displayDetail(detail);
}

ViewControllerPtr SpecificationManager::makeNoSpecsController()
{
    auto *factory = views();
    if (!factory)
        return nullptr;
    const bool offersImport = canDisplayAuxiliaryFileBrowser();
    const QString button =
        offersImport ? localized("Import Specs", "no specs error button") : QString();
    return factory->error(promptText(isAnySpecificationSatisfied(), offersImport), button,
                          [this, lifetime = std::weak_ptr(m_lifetime)] {
                              if (!lifetime.expired())
                                  showAuxiliaryFileBrowser();
                          });
}

ViewControllerPtr SpecificationManager::auxiliaryFileBrowser()
{
    auto *factory = views();
    if (!factory)
        return nullptr;
    auto browser = factory->auxiliaryFileBrowser(*this, m_browserHelpText);
    if (!browser)
        qFatal("Tavrin was unable to initialize the auxiliary file browser.");
    return browser;
}

void SpecificationManager::showAuxiliaryFileBrowser()
{
    // A copy each time, since what displays a view may set another block.
    const DisplayBlock display = m_browserDisplayBlock;
    if (!display)
        return;
    if (const auto browser = auxiliaryFileBrowser())
        display(browser);
}

bool SpecificationManager::isAnySpecificationSatisfied() const
{
    return std::any_of(m_specifications.begin(), m_specifications.end(),
                       [](const auto &spec) { return spec->areFileRequirementsSatisfied(); });
}

ViewControllerPtr SpecificationManager::detailFor(const QString &label,
                                                  const SpecificationPredicate &inSpecsWhere) const
{
    for (const SpecificationPtr &specification : lookupOrder()) {
        if (!inSpecsWhere(*specification))
            continue;
        if (auto detail = specification->detailViewController(label))
            return detail;
    }
    return nullptr;
}

void SpecificationManager::displayDetail(const ViewControllerPtr &detail)
{
    const DisplayBlock display = m_detailDisplayBlock;
    if (!display) {
        qCWarning(managerLog) << "Tried to display a detail view controller, but the application "
                                 "hasn't set up a detail view controller display block.";
        return;
    }
    m_currentDetail = detail;
    claim(detail);
    display(detail);
}

/// Specifications make views, and know no manager.
void SpecificationManager::claim(const ViewControllerPtr &view)
{
    if (auto *factory = viewControllerFactory())
        factory->setManager(*view, *this);
}

/// Whether there was a prompt to display, if not a block to do it.
bool SpecificationManager::displayPrompt()
{
    const auto prompt = makeNoSpecsController();
    if (!prompt)
        return false;
    m_currentDetail.reset();
    if (const DisplayBlock display = m_detailDisplayBlock)
        display(prompt);
    return true;
}

} // namespace Tavrin
