// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/CSVAuditWriter.h>

#include <QIODevice>
#include <QSet>

#include <Tavrin/audit/AuditContent.h>
#include <Tavrin/audit/AuditOutline.h>
#include <Tavrin/model/PrintedNumber.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

const QStringList headings{u"status"_s,  u"reference"_s, u"cited by"_s, u"location"_s, u"label"_s,
                           u"kind"_s,    u"number"_s,    u"title"_s,    u"page"_s,     u"chapter"_s,
                           u"related"_s, u"nearest"_s,   u"url"_s,      u"summary"_s};

/// Whether a spreadsheet would compute the text instead of showing it.
bool isFormula(const QString &text)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    return !text.isEmpty() && QStringView(u"=+-@\t\r\n").contains(text[0]) && !isNumber;
}

QString cell(QString text)
{
    if (isFormula(text))
        text.prepend(u'\'');
    static constexpr QChar special[] = {u'"', u',', u'\n', u'\r'};
    const bool isPlain = std::none_of(std::begin(special), std::end(special),
                                      [&](QChar c) { return text.contains(c); }) &&
                         text == text.trimmed();
    return isPlain ? text : u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

QString row(const QStringList &cells)
{
    QStringList escaped;
    escaped.reserve(cells.size());
    for (const QString &one : cells)
        escaped += cell(one);
    return escaped.join(u',') + u"\r\n"_s;
}

/// Label, kind, number, title and page.
QStringList entryCells(const SpecificationEntry &entry)
{
    const HostPDFDestination *place = placeOf(entry);
    return {entry.label(), textForm(entry.type()), PrintedNumber::number(entry), entry.title(),
            place ? QString::number(place->page()->index() + 1) : QString()};
}

QString citationRows(const AuditReport &report, const AuditReport::Citation &citation)
{
    const SpecificationEntry &entry = *citation.entry;
    QStringList related;
    for (const AuditReport::Relation &relation : citation.related)
        related += relation.entry->label();
    const auto &chapter = report.chapters[citation.chapter].entry;
    const QStringList behind{chapter ? chapter->label() : QString(), related.join(u'\n'), QString(),
                             AuditContent::url(entry),
                             AuditContent::isShown(report) ? AuditContent::plainSummary(entry)
                                                           : QString()};
    QString rows;
    for (const AuditReference &one : citation.references)
        rows += row(QStringList{u"cited"_s, one.reference, one.label, one.location} +
                    entryCells(entry) + behind);
    return rows;
}

QString unknownRow(const AuditReport::Unknown &unknown)
{
    const QString nearest = unknown.nearest ? unknown.nearest->label() : QString();
    return row(QStringList{u"unknown"_s, unknown.written, unknown.reference.label,
                           unknown.reference.location} +
               QStringList(7) + QStringList{nearest, {}, {}});
}

} // namespace

void CSVAuditWriter::write(const AuditReport &report, QIODevice &device,
                           const Progress &progress) const
{
    put(device, row(headings));
    std::size_t done = 0;
    for (const AuditReport::Citation &citation : report.citations) {
        put(device, citationRows(report, citation));
        tell(progress, ++done, report.citations.size());
    }
    for (const AuditReport::Unknown &unknown : report.unknown)
        put(device, unknownRow(unknown));
    QSet<const SpecificationEntry *> told;
    for (const AuditReport::Requirement &requirement : report.requirements) {
        for (const auto &entry : requirement.missing) {
            if (told.contains(entry.get()))
                continue;
            told.insert(entry.get());
            put(device, row(QStringList{u"missing"_s, {}, {}, {}} + entryCells(*entry) +
                            QStringList{{}, {}, {}, AuditContent::url(*entry), {}}));
        }
    }
}

} // namespace Tavrin
