// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/lookup/ViewFactory.h>

#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/files/AuxiliaryFileBrowserController.h>
#include <Tavrin/interface/lookup/PromptViewController.h>
#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/model/SpecificationRegistry.h>
#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>
#include <Tavrin/platform/PostedTask.h>

#include <exception>
#include <utility>

namespace Tavrin
{

namespace
{

void measure(const std::shared_ptr<PDFSpecification> &specification)
{
    startTask(backgroundPool(), [specification] {
        const auto lock = specification->readingLock();
        try {
            specification->measurePrint();
        } catch (const std::exception &error) {
            // A host may measure in a way of its own. Whoever reads hears of it again.
            qCWarning(interfaceLog).noquote() << QString::fromUtf8(error.what());
        }
    });
}

} // namespace

bool ViewFactory::installIfMissing()
{
    if (!installed())
        install(std::make_unique<ViewFactory>());
    return true;
}

ViewControllerPtr ViewFactory::summary(const std::shared_ptr<SpecificationEntry> &entry)
{
    return std::make_shared<SpecEntrySummaryViewController>(entry);
}

ViewControllerPtr ViewFactory::pdfDetail(const std::shared_ptr<Specification> &specification,
                                         const std::shared_ptr<SpecificationEntry> &entry)
{
    if (entry)
        return SpecPDFViewController::make(entry);
    return SpecPDFViewController::make(specification);
}

ViewControllerPtr ViewFactory::error(const QString &message, const QString &buttonTitle,
                                     std::function<void()> pressed)
{
    auto prompt = std::make_shared<PromptViewController>(std::move(pressed));
    prompt->setMessageText(message);
    prompt->setButtonTitle(buttonTitle);
    return prompt;
}

ViewControllerPtr ViewFactory::auxiliaryFileBrowser(SpecificationManager &manager,
                                                    const std::optional<QString> &instruction)
{
    auto browser = AuxiliaryFileBrowserController::standard(manager);
    if (instruction)
        browser->setInstructionText(*instruction);
    return browser;
}

void ViewFactory::setManager(ViewController &view, SpecificationManager &manager)
{
    if (auto *summary = qobject_cast<SpecEntrySummaryViewController *>(&view))
        summary->setManager(manager);
    else if (auto *detail = qobject_cast<SpecPDFViewController *>(&view))
        detail->setManager(manager);
}

bool ViewFactory::showReferenceCoverage(ViewController &detail, const ReferenceCoverage &coverage)
{
    auto *shown = qobject_cast<SpecDetailViewController *>(&detail);
    if (!shown)
        return false;
    shown->setReferenceCoverage(coverage);
    shown->setShowsReferenceCoverage(true);
    return true;
}

void ViewFactory::documentBound(const std::shared_ptr<Specification> &specification)
{
    // Once all are bound, it is known which is the primary one.
    postTask([weak = std::weak_ptr(specification)] {
        const auto bound = std::dynamic_pointer_cast<PDFSpecification>(weak.lock());
        const auto registry = bound ? bound->registry() : nullptr;
        if (registry && registry->primarySpecification() == bound)
            measure(bound);
    });
}

} // namespace Tavrin

/// Installs the factory as the library is loaded, so that no host has to ask for it. A static
/// library would leave this file out, which nobody calls: its users' link lines name this variable.
extern "C" bool tavrinInstallsViews;
bool tavrinInstallsViews = Tavrin::ViewFactory::installIfMissing();
