// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditReportMaker.h>

#include <QRegularExpression>

#include <algorithm>

#include <Tavrin/model/PrintedNumber.h>
#include <Tavrin/model/SpecURL.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// Makes the table be read, as the first look-up does.
const std::shared_ptr<PDFSpecification> &
withTable(const std::shared_ptr<PDFSpecification> &specification)
{
    specification->entry(QString());
    return specification;
}

QRegularExpression expression(const QString &pattern)
{
    QString escaped = QRegularExpression::escape(pattern.trimmed());
    escaped.replace(u"\\*"_s, u".*"_s).replace(u"\\?"_s, u"."_s);
    return QRegularExpression(QRegularExpression::anchoredPattern(escaped),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::DotMatchesEverythingOption);
}

bool matches(const QRegularExpression &pattern, const SpecificationEntry &entry)
{
    const QString texts[] = {entry.label(), PrintedNumber::number(entry),
                             PrintedNumber::name(entry)};
    return std::any_of(std::begin(texts), std::end(texts),
                       [&](const QString &text) { return pattern.match(text).hasMatch(); });
}

} // namespace

AuditReportMaker::AuditReportMaker(const std::shared_ptr<PDFSpecification> &specification,
                                   OtherSpecifications others)
    : m_others(std::move(others)),
      m_outline(*withTable(specification)),
      m_resolver(*specification),
      m_isCited(m_outline.entries().size()),
      m_chapterOf(m_outline.entries().size())
{
    m_report.specification = specification;
}

AuditReport AuditReportMaker::make(const std::vector<AuditReference> &references,
                                   const AuditDemands &demands)
{
    m_report.referenceCount = int(references.size());
    for (const AuditReference &reference : references)
        resolve(reference);
    countChapters();
    orderCitations();
    for (const QString &pattern : demands.required)
        addRequirement(pattern);
    m_report.minimumCoverage = demands.minimumCoverage;
    return std::move(m_report);
}

void AuditReportMaker::resolve(const AuditReference &reference)
{
    const QString &text = reference.reference;
    if (SpecURL::hasReversedLines(text)) {
        reportUnknown(reference, text);
        return;
    }
    if (const auto entry = m_report.specification->entry(text)) {
        cite(entry, reference);
        return;
    }
    const auto found = m_resolver.resolve(text);
    if (found.empty())
        reportUnknown(reference, text);
    for (const ReferenceResolver::Reference &part : found) {
        for (const auto &entry : part.entries)
            cite(entry, reference);
        if (part.entries.empty())
            reportUnknown(reference, found.size() == 1 ? text : part.written);
    }
}

void AuditReportMaker::cite(const EntryPtr &entry, const AuditReference &reference)
{
    auto it = m_citationOf.find(entry.get());
    if (it == m_citationOf.end()) {
        it = m_citationOf.insert(entry.get(), m_report.citations.size());
        m_report.citations.push_back({entry, {}, relations(*entry)});
    }
    auto &references = m_report.citations[*it].references;
    // "4.1-4.2, 4.2" refers to 4.2 once.
    if (references.empty() || references.back() != reference)
        references.push_back(reference);
    if (const auto position = m_outline.position(*entry))
        m_isCited[*position] = true;
}

void AuditReportMaker::reportUnknown(const AuditReference &reference, const QString &written)
{
    if (!m_nearest)
        m_nearest.emplace(*m_report.specification);
    m_report.unknown.push_back({reference, written, m_nearest->find(written)});
}

std::vector<AuditReport::Relation>
AuditReportMaker::relations(const SpecificationEntry &entry) const
{
    std::vector<AuditReport::Relation> result;
    for (const auto &related : relatedEntries(entry, *m_report.specification, m_others)) {
        const QString title = PrintedNumber::name(*related) + u' ' + related->title();
        result.push_back({title, related});
    }
    return result;
}

void AuditReportMaker::orderCitations()
{
    for (AuditReport::Citation &citation : m_report.citations) {
        if (const auto position = m_outline.position(*citation.entry))
            citation.chapter = m_chapterOf[*position];
    }
    const auto lines = [](const SpecificationEntry &entry) {
        const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
        const auto range = pdfEntry ? pdfEntry->lineRange() : std::nullopt;
        return range ? std::pair(range->lower, range->upper) : std::pair(-1, -1);
    };
    // By chapter first, since figures move on to the pages of the next one. Parts of one entry have
    // its place; the whole comes before them, and they follow by their lines.
    std::stable_sort(m_report.citations.begin(), m_report.citations.end(),
                     [&](const AuditReport::Citation &a, const AuditReport::Citation &b) {
                         if (a.chapter != b.chapter)
                             return a.chapter < b.chapter;
                         if (isBeforeInDocument(*a.entry, *b.entry))
                             return true;
                         return !isBeforeInDocument(*b.entry, *a.entry) &&
                                lines(*a.entry) < lines(*b.entry);
                     });
}

void AuditReportMaker::countChapters()
{
    const auto &entries = m_outline.entries();
    std::vector<std::optional<std::size_t>> chapterOfRoot(entries.size());
    std::vector<bool> hasContent(entries.size());
    std::optional<std::size_t> outside;
    // Only an entry without a parent that is text makes a chapter, in document order.
    for (Position position = 0; position < entries.size(); ++position) {
        if (const auto parent = m_outline.parent(position)) {
            hasContent[*parent] = true;
        } else if (isTextual(entries[position]->type())) {
            chapterOfRoot[position] = m_report.chapters.size();
            m_report.chapters.push_back({entries[position]});
        }
    }
    for (Position position = 0; position < entries.size(); ++position) {
        bool isCovered = m_isCited[position];
        Position root = position;
        while (const auto parent = m_outline.parent(root)) {
            root = *parent;
            isCovered = isCovered || m_isCited[root];
        }
        if (!chapterOfRoot[root] && !outside) {
            outside = m_report.chapters.size();
            m_report.chapters.push_back({});
        }
        m_chapterOf[position] = chapterOfRoot[root] ? *chapterOfRoot[root] : *outside;
        m_report.chapters[m_chapterOf[position]].cited += m_isCited[position] ? 1 : 0;
        if (root != position || !hasContent[position])
            addShare(position, isCovered);
    }
}

void AuditReportMaker::addShare(Position position, bool isCovered)
{
    const AuditShare one{isCovered ? 1 : 0, 1};
    m_report.chapters[m_chapterOf[position]].share += one;
    m_report.coverage += one;
}

void AuditReportMaker::addRequirement(const QString &pattern)
{
    AuditReport::Requirement requirement{pattern};
    const QRegularExpression wanted = expression(pattern);
    for (Position position = 0; position < m_outline.entries().size(); ++position) {
        const EntryPtr &entry = m_outline.entries()[position];
        if (!matches(wanted, *entry))
            continue;
        ++requirement.matched;
        if (!m_isCited[position])
            requirement.missing.push_back(entry);
    }
    m_report.requirements.push_back(std::move(requirement));
}

} // namespace Tavrin
