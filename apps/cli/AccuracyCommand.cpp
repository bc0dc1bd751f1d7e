// SPDX-License-Identifier: Apache-2.0
#include "AccuracyCommand.h"

#include <QJsonObject>

#include "Accuracy.h"
#include "CommandLineError.h"
#include "Console.h"
#include "MapFile.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

/// A share of the table, the option that bounds it, and whether that bound is a ceiling.
struct Line {
    Accuracy::Share Accuracy::*share;
    const char *option;
    const char *standard;
    bool isCeiling = false;
};

const Line lines[] = {
    {&Accuracy::known, "min-known", "0"},
    {&Accuracy::places, "min-places", "0"},
    {&Accuracy::headings, "min-headings", "99"},
    {&Accuracy::firstWords, "min-first-words", "99"},
    {&Accuracy::keptWords, "min-words", "97"},
    {&Accuracy::foreignWords, "max-foreign", "1", true},
    {&Accuracy::runningHeads, "max-running", "0", true},
    {&Accuracy::regions, "min-regions", "95"},
    {&Accuracy::cleanRegions, "min-clean", "95"},
    {&Accuracy::wholeRegions, "min-whole", "95"},
};

double threshold(const QCommandLineParser &parser, const Line &line)
{
    const QString option = QString::fromLatin1(line.option);
    bool isNumber = false;
    const double value = parser.value(option).toDouble(&isNumber);
    if (!isNumber || value < 0 || value > 100)
        throw CommandLineError(u"--%1: not a number of per cent"_s.arg(option));
    return value;
}

/// Whether the share is within its bound. Prints its line.
bool report(const Accuracy::Share &share, double bound, bool isCeiling, bool asJson)
{
    const bool isWithin =
        isCeiling ? share.percent() <= bound || share.right == 0 : share.percent() >= bound;
    if (!asJson) {
        const QString text =
            u"%1 %2 % %3  %4 of %5"_s.arg(share.name, -40)
                .arg(share.all == 0 ? 0 : share.percent(), 7, 'f', 2)
                .arg(isCeiling ? u"≤ %1"_s.arg(bound, -4) : u"≥ %1"_s.arg(bound, -4))
                .arg(share.right, 6)
                .arg(share.all);
        Console::print(share.all == 0 ? u"%1       –"_s.arg(share.name, -40)
                       : isWithin     ? Console::good(text)
                                      : Console::bad(text));
    }
    return isWithin || share.all == 0;
}

} // namespace

QString AccuracyCommand::details() const
{
    return u"The table has one row an item and tabs between its columns: kind, label, title, y,\n"
           "tx, ty, ttop, tpage, ok, body, bodyok. Exit code 1: a share is beyond its bound."_s;
}

void AccuracyCommand::describe(CommandDescription &description) const
{
    MapFile::describe(description);
    for (const Line &line : lines) {
        const QString what = line.isCeiling ? u"At most this many per cent (%1)."_s
                                            : u"At least this many per cent (%1)."_s;
        const QString standard = QString::fromLatin1(line.standard);
        description.addOption({QString::fromLatin1(line.option), what.arg(standard),
                               ValueDescription::text(u"P"_s), standard});
    }
    description.addOption({u"faults"_s, u"List the items that are wrong."_s});
    description.addOption({u"json"_s, u"Print as JSON."_s});
    description.addArgument({ValueDescription::map(u"MAP.xml"_s), u"The map."_s});
    description.addArgument({ValueDescription::pdf(u"DOC.pdf"_s), u"The document."_s});
    description.addArgument(
        {ValueDescription::file(u"TRUTH.tsv"_s), u"What the document holds."_s});
}

ExitCode AccuracyCommand::run(const QCommandLineParser &parser) const
{
    const QStringList paths = parser.positionalArguments();
    if (paths.size() != 3)
        throw CommandLineError(u"a map, a PDF and a table are wanted"_s);
    const auto truth = readTruth(paths[2]);
    const auto map = MapFile::read(parser, paths[0]);
    MapFile::bind(*map, paths[1]);
    const Accuracy accuracy(dynamic_cast<PDFSpecification &>(*map), truth);
    const bool asJson = parser.isSet(u"json"_s);
    bool isWithin = true;
    QJsonObject object;
    for (const Line &line : lines) {
        const Accuracy::Share &share = accuracy.*line.share;
        isWithin &= report(share, threshold(parser, line), line.isCeiling, asJson);
        object[QString::fromLatin1(line.option).section(u'-', 1)] =
            QJsonObject{{u"right"_s, share.right}, {u"all"_s, share.all}};
    }
    if (parser.isSet(u"faults"_s) && !asJson) {
        for (const QString &fault : accuracy.faults())
            Console::print(u"  "_s + fault);
    }
    if (asJson)
        Console::printJson(object);
    return isWithin ? Success : NotFound;
}

} // namespace Tavrin::Cli
