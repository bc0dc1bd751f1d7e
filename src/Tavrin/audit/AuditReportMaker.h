// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <set>
#include <vector>

#include <Tavrin/audit/AuditOutline.h>
#include <Tavrin/audit/AuditRelations.h>
#include <Tavrin/audit/AuditReport.h>
#include <Tavrin/audit/NearestEntry.h>
#include <Tavrin/model/ReferenceResolver.h>

namespace Tavrin
{

/// Holds references against a specification. Used once.
class AuditReportMaker
{
public:
    explicit AuditReportMaker(const std::shared_ptr<PDFSpecification> &specification,
                              OtherSpecifications others = {});

    AuditReport make(const std::vector<AuditReference> &references, const AuditDemands &demands);

private:
    using EntryPtr = AuditReport::EntryPtr;
    using Position = AuditOutline::Position;

    void resolve(const AuditReference &reference);
    void cite(const EntryPtr &entry, const AuditReference &reference);
    void reportUnknown(const AuditReference &reference, const QString &written);
    void orderCitations();
    void countChapters();
    void addShare(Position position, bool isCovered);
    void addRequirement(const QString &pattern);
    std::vector<AuditReport::Relation> relations(const SpecificationEntry &entry) const;

    AuditReport m_report;
    OtherSpecifications m_others;
    AuditOutline m_outline;
    ReferenceResolver m_resolver;
    /// Made when the first reference is unknown.
    std::optional<NearestEntry> m_nearest;
    QHash<const SpecificationEntry *, std::size_t> m_citationOf;
    /// By position in the outline.
    std::vector<bool> m_isCited;
    std::vector<std::size_t> m_chapterOf;
};

} // namespace Tavrin
