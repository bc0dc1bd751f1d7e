// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditRelations.h>

#include <algorithm>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/model/SpecificationRegistry.h>

namespace Tavrin
{

namespace
{

std::shared_ptr<SpecificationEntry> find(const QString &label, Specification &specification)
{
    // Looking such a text up is taken for a fault of the program.
    return SpecURL::hasReversedLines(label) ? nullptr : specification.entry(label);
}

std::vector<std::shared_ptr<Specification>> registered(const Specification &specification)
{
    const auto registry = specification.registry();
    return registry ? registry->specifications() : std::vector<std::shared_ptr<Specification>>();
}

std::shared_ptr<SpecificationEntry> find(const QString &label, Specification &first,
                                         const OtherSpecifications &others)
{
    if (auto entry = find(label, first))
        return entry;
    for (const auto &other : others ? *others : registered(first)) {
        auto entry = other.get() == &first ? nullptr : find(label, *other);
        if (entry)
            return entry;
    }
    return nullptr;
}

} // namespace

std::vector<std::shared_ptr<Specification>> otherSpecifications(Specification &specification)
{
    find({}, specification);
    const auto &entries = specification.entries();
    const bool isComplete = std::all_of(entries.begin(), entries.end(), [&](const auto &entry) {
        const QStringList related = entry->relatedEntries();
        return std::all_of(related.begin(), related.end(), [&](const QString &label) {
            return find(label, specification) != nullptr;
        });
    });
    if (isComplete)
        return {};
    auto others = registered(specification);
    for (const auto &other : others)
        find({}, *other);
    return others;
}

std::vector<std::shared_ptr<SpecificationEntry>> relatedEntries(const SpecificationEntry &entry,
                                                                Specification &specification,
                                                                const OtherSpecifications &others)
{
    std::vector<std::shared_ptr<SpecificationEntry>> result;
    for (const QString &label : entry.relatedEntries()) {
        if (auto found = find(label, specification, others))
            result.push_back(std::move(found));
    }
    return result;
}

} // namespace Tavrin
