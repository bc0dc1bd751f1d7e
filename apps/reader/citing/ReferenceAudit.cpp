// SPDX-License-Identifier: Apache-2.0
#include <reader/citing/ReferenceAudit.h>

#include <QFile>

#include <algorithm>
#include <map>
#include <stdexcept>

#include <Tavrin/audit/AuditReferenceList.h>
#include <Tavrin/interface/audit/SpecAuditBrowserController.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 largestFile = 64'000'000;

struct Resolved {
    std::shared_ptr<SpecificationEntry> entry;
    CoveredReference reference;
};

std::vector<Resolved> resolve(EntryFinder &finder, const ReferenceCoverage &references)
{
    std::vector<Resolved> result;
    for (const CoveredReference &reference : references) {
        for (const auto &part : finder.resolve(reference.label)) {
            for (const auto &entry : part.entries)
                result.push_back({entry, reference});
            if (part.entries.empty())
                result.push_back({nullptr, {part.written, reference.reference}});
        }
    }
    return result;
}

std::shared_ptr<PDFSpecification> mostCited(const std::vector<Resolved> &resolved)
{
    std::map<std::shared_ptr<PDFSpecification>, int> counts;
    std::shared_ptr<PDFSpecification> most;
    for (const Resolved &one : resolved) {
        const auto specification =
            one.entry ? std::dynamic_pointer_cast<PDFSpecification>(one.entry->specification())
                      : nullptr;
        if (!specification || !specification->areFileRequirementsSatisfied())
            continue;
        // Of several with the same count, the one that came first.
        if (++counts[specification] > (most ? counts[most] : 0))
            most = specification;
    }
    return most;
}

} // namespace

ReferenceAudit::ReferenceAudit(EntryFinder &finder, const ReferenceCoverage &references)
{
    const auto resolved = resolve(finder, references);
    m_specification = mostCited(resolved);
    if (!m_specification)
        return;
    for (const Resolved &one : resolved) {
        if (!one.entry) {
            m_references.push_back(one.reference);
        } else if (one.entry->specification() == m_specification) {
            m_references.push_back({one.entry->label(), one.reference.reference});
            if (!m_firstEntry)
                m_firstEntry = one.entry;
        }
    }
}

ViewControllerPtr ReferenceAudit::browser(SpecificationManager &manager) const
{
    QStringList labels;
    SpecAuditBrowserController::Components components;
    for (const CoveredReference &reference : m_references) {
        labels += reference.label;
        components.push_back({reference.reference});
    }
    return std::make_shared<SpecAuditBrowserController>(
        labels, m_specification, QStringList{localized("Cited In", "column of an audit")},
        components, nullptr, manager);
}

ReferenceCoverage ReferenceAudit::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        throw std::runtime_error((path + u": "_s + file.errorString()).toStdString());
    const QByteArray bytes = file.read(largestFile + 1);
    if (bytes.size() > largestFile) {
        throw std::runtime_error(
            (path + u": "_s + localized("The file is too large.", "fault of a file"))
                .toStdString());
    }
    ReferenceCoverage references;
    for (const AuditReference &reference : AuditReferenceList::parse(bytes, path))
        references.push_back({reference.reference,
                              reference.label.isEmpty() ? reference.location : reference.label});
    return references;
}

} // namespace Tavrin::Reader
