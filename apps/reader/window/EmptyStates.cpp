// SPDX-License-Identifier: Apache-2.0
#include <reader/window/EmptyStates.h>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin::Reader::EmptyStates
{

QString ofSummary()
{
    return localized("Look up a number, a title or a spec URL above.\nCtrl+K goes to any entry.",
                     "empty state");
}

QString ofDocument(const SpecificationManager &manager)
{
    if (manager.specifications().empty()) {
        return localized(
            "No maps are open.\n\nChoose a directory of spec maps with File ▸ Open Maps.",
            "empty state");
    }
    const bool isAnyBound = manager.specificationWhere([](const Specification &specification) {
        return specification.areFileRequirementsSatisfied();
    }) != nullptr;
    return isAnyBound
               ? localized("Look up an entry to open its document.", "empty state")
               : localized("Drop the PDF of a specification here to import it.", "empty state");
}

} // namespace Tavrin::Reader::EmptyStates
