// SPDX-License-Identifier: Apache-2.0
#include "AuditCommand.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

#include <Tavrin/audit/AuditError.h>
#include <Tavrin/audit/AuditReferenceList.h>
#include <Tavrin/audit/PDFSpecAuditor.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "AuditSummary.h"
#include "CommandLineError.h"
#include "Console.h"
#include "Library.h"
#include "MapFile.h"
#include "ProgressBar.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

/// A file's name, or a hyphen for the standard stream.
bool isStandardStream(const QString &path)
{
    return path.isEmpty() || path == "-"_L1;
}

std::vector<AuditReference> readReferences(const QString &path)
{
    QFile file(path);
    const bool isOpen = isStandardStream(path) ? file.open(stdin, QIODevice::ReadOnly)
                                               : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        throw CommandLineError(path + u": "_s + file.errorString());
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw CommandLineError(path + u": "_s + file.errorString());
    auto references = AuditReferenceList::parse(text, isStandardStream(path) ? u"-"_s : path);
    for (const AuditReference &reference : references) {
        try {
            requireSoundLineRange(reference.reference);
        } catch (const CommandLineError &error) {
            throw AuditReferenceList::Error(reference.location, QString::fromUtf8(error.what()));
        }
    }
    return references;
}

std::vector<AuditReference> readAllReferences(const QStringList &paths)
{
    std::vector<AuditReference> all;
    for (const QString &path : paths.isEmpty() ? QStringList{u"-"_s} : paths) {
        const auto references = readReferences(path);
        all.insert(all.end(), references.begin(), references.end());
    }
    if (all.empty())
        throw CommandLineError(u"nothing to audit; no line holds a reference"_s);
    return all;
}

/// Where and how a report is to be written; no format where only the summary is wanted.
struct Output {
    QString path;
    std::optional<AuditFormat> format;

    bool isOnStandardOutput() const { return format && isStandardStream(path); }
};

/// The format that the name of a file asks for.
std::optional<AuditFormat> formatOfFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == "xml"_L1)
        return AuditFormat::JUnit;
    return auditFormatFromText(suffix == "htm"_L1 ? u"html"_s : suffix);
}

Output outputOption(const QCommandLineParser &parser)
{
    Output output{parser.value(u"output"_s), {}};
    if (parser.isSet(u"format"_s)) {
        output.format = auditFormatFromText(parser.value(u"format"_s));
        if (!output.format) {
            throw CommandLineError(u"--format %1: not one of rtf, html, csv, json, junit"_s.arg(
                parser.value(u"format"_s)));
        }
    } else if (parser.isSet(u"output"_s)) {
        output.format = formatOfFile(output.path);
        if (!output.format)
            throw CommandLineError(output.path + u": no name that tells a format; say --format"_s);
    }
    return output;
}

AuditDemands demandOptions(const QCommandLineParser &parser)
{
    AuditDemands demands{parser.values(u"require"_s), {}};
    if (parser.isSet(u"min-coverage"_s)) {
        bool isNumber = false;
        const double value = parser.value(u"min-coverage"_s).toDouble(&isNumber);
        if (!isNumber || !(value >= 0 && value <= 100))
            throw CommandLineError(u"--min-coverage: not a number of per cent"_s);
        demands.minimumCoverage = value;
    }
    return demands;
}

std::shared_ptr<PDFSpecification> readSpecification(const QCommandLineParser &parser)
{
    if (!parser.isSet(u"map"_s))
        throw CommandLineError(u"no map given; say --map MAP.xml"_s);
    const auto map = MapFile::read(parser, parser.value(u"map"_s));
    auto specification = std::dynamic_pointer_cast<PDFSpecification>(map);
    if (!specification)
        throw CommandLineError(parser.value(u"map"_s) + u": the map asks for no PDF"_s);
    if (parser.isSet(u"pdf"_s))
        MapFile::bind(*specification, parser.value(u"pdf"_s));
    return specification;
}

void writeReport(const AuditReport &report, const Output &output)
{
    ProgressBar bar;
    const auto progress = [&bar](double done) { bar.set(done); };
    if (!output.isOnStandardOutput()) {
        try {
            PDFSpecAuditor::write(report, *output.format, fileUrl(output.path), progress);
        } catch (const AuditError &error) {
            throw CommandLineError(output.path + u": "_s + QString::fromUtf8(error.what()));
        }
        return;
    }
    QFile out;
    if (!out.open(stdout, QIODevice::WriteOnly))
        throw CommandLineError(out.errorString());
    PDFSpecAuditor::write(report, *output.format, out, progress);
}

} // namespace

QString AuditCommand::details() const
{
    return u"REFS holds a reference a line: a label, a spec URL, or a number as people write it\n"
           "(\"§ 4.2\", \"Fig. 3-7\", \"4.2.1-4.2.3\"); or LABEL<TAB>REFERENCE, where the label "
           "says what\n"
           "refers, a test for example. A number sign starts a comment. Without REFS, or with -, "
           "the\n"
           "references come from standard input. An entry is covered if it is cited or lies below "
           "one\n"
           "that is; a chapter's share counts what lies below it. Without --pdf a report has "
           "neither\n"
           "texts nor pictures, and the counts go by numbers alone. Exit code 1 says that a "
           "reference\n"
           "is unknown or a demand is not met."_s;
}

void AuditCommand::describe(CommandDescription &description) const
{
    description.addOptions({
        {u"map"_s, u"The map of the specification. Required."_s,
         ValueDescription::map(u"MAP.xml"_s)},
        {u"pdf"_s, u"The specification's PDF."_s, ValueDescription::pdf(u"DOC.pdf"_s)},
        {u"format"_s,
         u"Write a report: rtf, html, csv, json or junit; else as the name of the output says."_s,
         ValueDescription::choice(u"FORMAT"_s,
                                  {u"rtf"_s, u"html"_s, u"csv"_s, u"json"_s, u"junit"_s})},
        {{u"o"_s, u"output"_s},
         u"Write the report to this file; else, or with -, to standard output."_s,
         ValueDescription::file(u"OUT"_s)},
        {u"require"_s,
         u"Demand that every entry is cited whose label, number or name is like this, \"4.2.*\" "
         "for example; may be given several times."_s,
         ValueDescription::text(u"PATTERN"_s)},
        {u"min-coverage"_s, u"Demand that this many per cent of the entries are covered."_s,
         ValueDescription::text(u"P"_s)},
    });
    MapFile::describe(description);
    description.addArgument(
        {ValueDescription::file(u"REFS"_s), u"The references."_s, ArgumentDescription::Count::Any});
}

ExitCode AuditCommand::run(const QCommandLineParser &parser) const
{
    const Output output = outputOption(parser);
    const AuditDemands demands = demandOptions(parser);
    const auto specification = readSpecification(parser);
    const AuditReport report =
        PDFSpecAuditor(specification)
            .report(readAllReferences(parser.positionalArguments()), demands);
    if (output.format)
        writeReport(report, output);
    // A report on standard output stands there alone.
    if (!output.isOnStandardOutput())
        AuditSummary::print(report);
    AuditSummary::complain(report, output.isOnStandardOutput());
    return report.unknown.empty() && report.areDemandsMet() ? Success : NotFound;
}

} // namespace Tavrin::Cli
