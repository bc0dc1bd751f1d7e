// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditSentences.h>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin::AuditSentences
{

using namespace Qt::StringLiterals;

namespace
{

Verdict verdict(const AuditReport::Requirement &requirement)
{
    Verdict result{requirement.isMet(), {}, {}};
    if (requirement.matched == 0) {
        result.text = localized("Required %1: no entry matches", "spec audit message")
                          .arg(requirement.pattern);
        return result;
    }
    const auto cited = requirement.matched - std::ssize(requirement.missing);
    result.text =
        localized("Required %1: %2 of %3 entries cited", "spec audit message")
            .arg(requirement.pattern, QString::number(cited), QString::number(requirement.matched));
    for (const auto &entry : requirement.missing)
        result.missing += entry->label() + u"  "_s + entry->title();
    return result;
}

} // namespace

QString revision(const Specification &specification)
{
    if (specification.revision().isEmpty())
        return specification.identifier();
    return localized("%1, revision %2", "spec audit message")
        .arg(specification.identifier(), specification.revision());
}

QStringList counts(const AuditReport &report)
{
    return {localized("Entries cited: %1, references: %2, unknown: %3", "spec audit message")
                .arg(report.citedEntries())
                .arg(report.referenceCount)
                .arg(report.unknown.size()),
            localized("Coverage: %1", "spec audit message").arg(share(report.coverage))};
}

QString share(const AuditShare &share)
{
    return localized("%1 of %2 covered, %3", "spec audit message")
        .arg(share.covered)
        .arg(share.all)
        .arg(percentage(share.percent()));
}

QString percentage(double percent)
{
    return localized("%1 %", "a share").arg(percent, 0, 'f', 1);
}

std::vector<Verdict> verdicts(const AuditReport &report)
{
    std::vector<Verdict> result;
    for (const AuditReport::Requirement &requirement : report.requirements)
        result.push_back(verdict(requirement));
    if (report.minimumCoverage) {
        result.push_back({report.isCoverageMet(),
                          localized("Required coverage: %1 %, reached: %2", "spec audit message")
                              .arg(*report.minimumCoverage)
                              .arg(percentage(report.coverage.percent())),
                          {}});
    }
    return result;
}

QString unknown(const AuditReport::Unknown &unknown)
{
    const AuditReference &reference = unknown.reference;
    QString text = localized("%1 is unknown", "a reference").arg(unknown.written);
    if (!reference.label.isEmpty())
        text += u" (%1)"_s.arg(reference.label);
    if (unknown.nearest) {
        text += u"; "_s + localized("nearest: %1", "spec audit message")
                              .arg(unknown.nearest->label() + u"  "_s + unknown.nearest->title());
    }
    return reference.location.isEmpty() ? text : reference.location + u": "_s + text;
}

QString citedBy(const AuditReport::Citation &citation)
{
    QStringList all;
    for (const AuditReference &reference : citation.references) {
        QStringList details{reference.label.isEmpty() ? QString() : reference.reference,
                            reference.location};
        details.removeAll(QString());
        const QString &name = reference.label.isEmpty() ? reference.reference : reference.label;
        all += details.isEmpty() ? name : name + u" (%1)"_s.arg(details.join(u", "_s));
    }
    return all.join(u", "_s);
}

QString notShown()
{
    return localized("This specification does not allow its text to be shown elsewhere.",
                     "spec audit message");
}

} // namespace Tavrin::AuditSentences
