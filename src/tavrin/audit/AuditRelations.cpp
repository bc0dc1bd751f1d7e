// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditRelations.h>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/SpecURL.h>

namespace Tavrin
{

namespace
{

std::shared_ptr<SpecificationEntry> find(const QString &label, Specification &first)
{
    // Looking such a text up is taken for a fault of the program.
    if (SpecURL::hasReversedLines(label))
        return nullptr;
    if (auto entry = first.entry(label))
        return entry;
    for (const auto &other : SpecificationManager::shared().specifications()) {
        auto entry = other.get() == &first ? nullptr : other->entry(label);
        if (entry)
            return entry;
    }
    return nullptr;
}

} // namespace

std::vector<std::shared_ptr<SpecificationEntry>> relatedEntries(const SpecificationEntry &entry,
                                                                Specification &specification)
{
    std::vector<std::shared_ptr<SpecificationEntry>> result;
    for (const QString &label : entry.relatedEntries()) {
        if (auto found = find(label, specification))
            result.push_back(std::move(found));
    }
    return result;
}

} // namespace Tavrin
