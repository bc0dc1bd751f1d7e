// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

#include <Tavrin/CoreExport.h>
#include <Tavrin/model/ReferenceCoverage.h>
#include <Tavrin/model/ViewControllerPtr.h>

namespace Tavrin
{

class Specification;
class SpecificationEntry;
class SpecificationManager;

/// Makes views for those who know no windows. Tavrin::Widgets installs one when it is loaded, which
/// managers take unless they are given another; a process without windows has none. Main thread.
class TAVRIN_CORE_EXPORT ViewControllerFactory
{
public:
    virtual ~ViewControllerFactory();

    /// A summary of an entry, or one with nothing in it.
    virtual ViewControllerPtr summary(const std::shared_ptr<SpecificationEntry> &entry) = 0;
    /// A detail view of a specification whose PDF is bound, at an entry if there is one.
    virtual ViewControllerPtr pdfDetail(const std::shared_ptr<Specification> &specification,
                                        const std::shared_ptr<SpecificationEntry> &entry) = 0;
    /// A message; with a title there is a button, which calls the function.
    virtual ViewControllerPtr error(const QString &message, const QString &buttonTitle,
                                    std::function<void()> pressed) = 0;
    /// The table of a manager's imported files, with the instruction above it, or with its own.
    virtual ViewControllerPtr auxiliaryFileBrowser(SpecificationManager &manager,
                                                   const std::optional<QString> &instruction) = 0;
    /// Tells a summary or detail view, which a specification made, whose the specification is.
    virtual void setManager(ViewController &view, SpecificationManager &manager);
    /// Has a detail view mark references each time it appears. False if it is no detail view.
    virtual bool showReferenceCoverage(ViewController &detail,
                                       const ReferenceCoverage &coverage) = 0;
    /// A document was bound to the specification: views of it may be wanted soon. It may be in the
    /// middle of being registered.
    virtual void documentBound(const std::shared_ptr<Specification> &specification);

    /// Null without windows.
    static ViewControllerFactory *installed();
    /// Replaces the one that is installed; null takes it away. A host that makes views of its own
    /// installs one before the first is asked for.
    static void install(std::unique_ptr<ViewControllerFactory> factory);
};

} // namespace Tavrin
