// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/model/ViewControllerFactory.h>

namespace Tavrin
{

/// Makes the views of this library for Core.
class ViewFactory : public ViewControllerFactory
{
public:
    /// Called once, as the library is loaded. A factory that is there already stays. True when
    /// there is one.
    static bool installIfMissing();

    ViewControllerPtr summary(const std::shared_ptr<SpecificationEntry> &entry) override;
    ViewControllerPtr pdfDetail(const std::shared_ptr<Specification> &specification,
                                const std::shared_ptr<SpecificationEntry> &entry) override;
    ViewControllerPtr error(const QString &message, const QString &buttonTitle,
                            std::function<void()> pressed) override;
    ViewControllerPtr auxiliaryFileBrowser(SpecificationManager &manager,
                                           const std::optional<QString> &instruction) override;
    void setManager(ViewController &view, SpecificationManager &manager) override;
    bool showReferenceCoverage(ViewController &detail, const ReferenceCoverage &coverage) override;
    /// Has the print of the primary specification measured in the background, so that the first
    /// view of it needn't. Of others the pages are read when they are shown: a host may have
    /// dozens.
    void documentBound(const std::shared_ptr<Specification> &specification) override;
};

} // namespace Tavrin
