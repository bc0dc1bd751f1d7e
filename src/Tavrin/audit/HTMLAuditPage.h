// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>

#include <Tavrin/audit/AuditReport.h>

namespace Tavrin
{

/// The pieces of the page of a report, each complete in itself. The report outlives this.
class HTMLAuditPage
{
public:
    explicit HTMLAuditPage(const AuditReport &report);

    /// All in front of the first chapter: the counts, the chapters, demands, unknown references.
    QString opening() const;
    /// The heading above the entries of a chapter.
    QString chapter(std::size_t position) const;
    /// An entry with its text or its picture, which is computed now and not kept.
    QString entry(const AuditReport::Citation &citation) const;
    QString closing() const;

private:
    QString coverage() const;
    QString navigation() const;
    QString verdicts() const;
    QString unknown() const;
    QString facts(const AuditReport::Citation &citation) const;
    QString content(const SpecificationEntry &entry, const QString &anchor) const;
    QString summary(const SpecificationEntry &entry, const QString &anchor) const;
    static QString picture(const SpecificationEntry &entry);
    QString related(const AuditReport::Citation &citation) const;
    QString linkTarget(const QString &link) const;
    /// "#4.2.1" for an entry of the page, for others the spec URL.
    QString href(const SpecificationEntry &entry) const;
    void addAnchor(const SpecificationEntry &entry);

    const AuditReport &m_report;
    /// What an entry of the page is called in it: its label, but for blanks.
    QHash<const SpecificationEntry *, QString> m_anchors;
    QHash<QString, int> m_anchorUses;
};

} // namespace Tavrin
