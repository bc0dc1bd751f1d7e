// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/JUnitAuditWriter.h>

#include <QHash>
#include <QIODevice>
#include <QXmlStreamWriter>

#include <algorithm>

#include <Tavrin/audit/AuditContent.h>
#include <Tavrin/audit/AuditError.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

struct Case {
    QString name;
    QString location;
    /// Empty for a case that passed.
    QString failure;
    QString details;
};

struct Suite {
    QString name;
    std::vector<Case> cases;

    int failures() const
    {
        return int(std::count_if(cases.begin(), cases.end(),
                                 [](const Case &one) { return !one.failure.isEmpty(); }));
    }
};

QString name(const AuditReference &reference)
{
    return reference.label.isEmpty() ? reference.reference
                                     : reference.label + u": "_s + reference.reference;
}

/// What XML can't hold is replaced.
QString printable(QString text)
{
    for (QChar &c : text) {
        const bool isAllowed = c.unicode() >= 0x20 || c == u'\n' || c == u'\t' || c == u'\r';
        if (!isAllowed || c.unicode() >= 0xfffe)
            c = QChar::ReplacementCharacter;
    }
    return text;
}

QString line(const SpecificationEntry &entry)
{
    return entry.label() + u"  "_s + entry.title();
}

Suite references(const AuditReport &report)
{
    // A reference to several entries is one case, which fails if one part is unknown.
    Suite suite{u"references"_s, {}};
    QHash<QString, std::size_t> positions;
    const auto caseOf = [&](const AuditReference &reference) -> Case & {
        const QString key = reference.location + u'\n' + name(reference);
        if (!positions.contains(key)) {
            positions.insert(key, suite.cases.size());
            suite.cases.push_back({name(reference), reference.location, {}, {}});
        }
        return suite.cases[positions[key]];
    };
    for (const AuditReport::Citation &citation : report.citations) {
        for (const AuditReference &reference : citation.references)
            caseOf(reference);
    }
    for (const AuditReport::Unknown &unknown : report.unknown) {
        Case &one = caseOf(unknown.reference);
        one.failure = u"unknown reference"_s;
        if (!one.details.isEmpty())
            one.details += u'\n';
        one.details += unknown.written + u" is unknown"_s;
        if (unknown.nearest)
            one.details += u"; nearest: "_s + line(*unknown.nearest);
    }
    return suite;
}

Suite requirementSuite(const AuditReport &report)
{
    Suite suite{u"requirements"_s, {}};
    for (const AuditReport::Requirement &requirement : report.requirements) {
        Case one{requirement.pattern, {}, {}, {}};
        if (requirement.matched == 0) {
            one.failure = u"no entry matches"_s;
        } else if (!requirement.missing.empty()) {
            one.failure = u"%1 of %2 entries are not cited"_s.arg(requirement.missing.size())
                              .arg(requirement.matched);
            QStringList lines;
            for (const auto &entry : requirement.missing)
                lines += line(*entry);
            one.details = lines.join(u'\n');
        }
        suite.cases.push_back(one);
    }
    return suite;
}

Suite coverage(const AuditReport &report)
{
    Suite suite{u"coverage"_s, {}};
    if (!report.minimumCoverage)
        return suite;
    Case one{u"at least %1 %"_s.arg(*report.minimumCoverage), {}, {}, {}};
    if (!report.isCoverageMet())
        one.failure = u"%1 % covered"_s.arg(report.coverage.percent(), 0, 'f', 1);
    one.details =
        u"%1 of %2 entries are covered"_s.arg(report.coverage.covered).arg(report.coverage.all);
    suite.cases.push_back(one);
    return suite;
}

void writeCase(QXmlStreamWriter &xml, const Suite &suite, const Case &one)
{
    xml.writeStartElement(u"testcase"_s);
    xml.writeAttribute(u"classname"_s, u"audit."_s + suite.name);
    xml.writeAttribute(u"name"_s, printable(one.name));
    xml.writeAttribute(u"time"_s, u"0"_s);
    const qsizetype colon = one.location.lastIndexOf(u':');
    if (colon > 0) {
        xml.writeAttribute(u"file"_s, printable(one.location.left(colon)));
        xml.writeAttribute(u"line"_s, one.location.mid(colon + 1));
    }
    if (!one.failure.isEmpty()) {
        xml.writeStartElement(u"failure"_s);
        xml.writeAttribute(u"message"_s, one.failure);
        xml.writeAttribute(u"type"_s, suite.name);
        xml.writeCharacters(printable(one.details));
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void writeCounts(QXmlStreamWriter &xml, qsizetype tests, int failures)
{
    xml.writeAttribute(u"tests"_s, QString::number(tests));
    xml.writeAttribute(u"failures"_s, QString::number(failures));
    xml.writeAttribute(u"errors"_s, u"0"_s);
    xml.writeAttribute(u"skipped"_s, u"0"_s);
    xml.writeAttribute(u"time"_s, u"0"_s);
}

} // namespace

void JUnitAuditWriter::write(const AuditReport &report, QIODevice &device,
                             const Progress & /*progress*/) const
{
    const Suite suites[] = {references(report), requirementSuite(report), coverage(report)};
    qsizetype tests = 0;
    int failures = 0;
    for (const Suite &suite : suites) {
        tests += std::ssize(suite.cases);
        failures += suite.failures();
    }
    QXmlStreamWriter xml(&device);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(u"testsuites"_s);
    xml.writeAttribute(u"name"_s, printable(report.specification->title()));
    writeCounts(xml, tests, failures);
    for (const Suite &suite : suites) {
        if (suite.cases.empty())
            continue;
        xml.writeStartElement(u"testsuite"_s);
        xml.writeAttribute(u"name"_s, suite.name);
        writeCounts(xml, std::ssize(suite.cases), suite.failures());
        for (const Case &one : suite.cases)
            writeCase(xml, suite, one);
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    if (xml.hasError())
        throw AuditError(device.errorString());
}

} // namespace Tavrin
