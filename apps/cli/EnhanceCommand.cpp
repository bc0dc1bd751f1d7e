// SPDX-License-Identifier: Apache-2.0
#include "EnhanceCommand.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <Tavrin/enhance/PDFDestinationApproximator.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "CommandLineError.h"
#include "Console.h"
#include "Library.h"
#include "ProgressBar.h"
#include "ShippedDTD.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

double number(const QCommandLineParser &parser, const QString &option)
{
    bool isNumber = false;
    const double value = parser.value(option).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value)) {
        throw CommandLineError(u"--%1 %2: not a number"_s.arg(option, parser.value(option)));
    }
    return value;
}

QMap<QString, SpecificationEntryType> typeMarkers(const QStringList &values)
{
    QMap<QString, SpecificationEntryType> markers;
    for (const QString &value : values) {
        const qsizetype equals = value.lastIndexOf(u'=');
        const auto type = entryTypeFromText(QStringView(value).sliced(equals + 1));
        if (equals < 1 || !type) {
            throw CommandLineError(
                u"--type-marker %1: TEXT=section, chapter, figure or table is wanted"_s.arg(value));
        }
        markers.insert(value.first(equals), *type);
    }
    return markers;
}

/// An option that is given empty stands for an empty list.
QStringList withoutEmpty(QStringList values)
{
    values.removeAll(QString());
    return values;
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw CommandLineError(path + u": "_s + file.errorString());
    return QString::fromUtf8(file.readAll()).split(u'\n');
}

void setMarkers(PDFXMLEnhancer &enhancer, const QCommandLineParser &parser)
{
    if (parser.isSet(u"required-marker"_s))
        enhancer.setRequiredLinkMarkers(withoutEmpty(parser.values(u"required-marker"_s)));
    if (parser.isSet(u"ignore-marker"_s))
        enhancer.setIgnoreLinkMarkers(withoutEmpty(parser.values(u"ignore-marker"_s)));
    if (parser.isSet(u"type-marker"_s))
        enhancer.setEntryTypeMarkers(typeMarkers(parser.values(u"type-marker"_s)));
    if (parser.isSet(u"stop-words"_s))
        enhancer.setStopWords(linesOf(parser.value(u"stop-words"_s)));
    if (parser.isSet(u"terminator"_s))
        enhancer.setTerminatorCharacters(withoutEmpty(parser.values(u"terminator"_s)));
}

struct NumberOption {
    QString name;
    QString help;
    void (PDFXMLEnhancer::*set)(double);
    double (PDFXMLEnhancer::*value)() const;
};

struct CountOption {
    QString name;
    QString help;
    void (PDFXMLEnhancer::*set)(int);
    int (PDFXMLEnhancer::*value)() const;
};

const std::vector<NumberOption> &numberOptions()
{
    using Enhancer = PDFXMLEnhancer;
    static const std::vector<NumberOption> options = {
        {u"associated-title-weight"_s,
         u"What a word in a title above or below an entry counts for."_s,
         &Enhancer::setAssociatedEntryTitleWeight, &Enhancer::associatedEntryTitleWeight},
        {u"title-weight"_s, u"Weight of a title that two entries share."_s,
         &Enhancer::setRelatedEntryTitleWeight, &Enhancer::relatedEntryTitleWeight},
        {u"keyword-weight"_s, u"Weight of a keyword that two entries share."_s,
         &Enhancer::setRelatedEntryKeywordWeight, &Enhancer::relatedEntryKeywordWeight},
        {u"linked-weight"_s, u"Weight of a link from an entry's text."_s,
         &Enhancer::setRelatedEntryLinkedWeight, &Enhancer::relatedEntryLinkedWeight},
        {u"linking-weight"_s, u"Weight of a link to an entry from another's text."_s,
         &Enhancer::setRelatedEntryLinkingWeight, &Enhancer::relatedEntryLinkingWeight},
        {u"figure-weight"_s, u"Weight of a figure's or table's own section."_s,
         &Enhancer::setRelatedEntryFigureAssociationWeight,
         &Enhancer::relatedEntryFigureAssociationWeight},
        {u"pruning"_s, u"The share of the weakest relations that is dropped, from 0 to 1."_s,
         &Enhancer::setRelatedEntryPruningFraction, &Enhancer::relatedEntryPruningFraction},
    };
    return options;
}

const std::vector<CountOption> &countOptions()
{
    using Enhancer = PDFXMLEnhancer;
    static const std::vector<CountOption> options = {
        {u"keywords"_s, u"Most keywords of an entry."_s, &Enhancer::setMaxKeywordCount,
         &Enhancer::maxKeywordCount},
        {u"related"_s, u"Most related entries of an entry."_s, &Enhancer::setMaxRelatedEntryCount,
         &Enhancer::maxRelatedEntryCount},
    };
    return options;
}

void configure(PDFXMLEnhancer &enhancer, const QCommandLineParser &parser)
{
    enhancer.setReadingPolicy(PDFReadingPolicy::Common);
    setMarkers(enhancer, parser);
    for (const NumberOption &option : numberOptions()) {
        if (parser.isSet(option.name))
            (enhancer.*option.set)(number(parser, option.name));
    }
    for (const CountOption &option : countOptions()) {
        if (parser.isSet(option.name))
            (enhancer.*option.set)(wholeNumber(parser, option.name, 0));
    }
    const double pruning = enhancer.relatedEntryPruningFraction();
    if (pruning < 0 || pruning > 1)
        throw CommandLineError(u"--pruning %1: not from 0 to 1"_s.arg(pruning));
}

std::shared_ptr<PDFXMLEnhancer> makeEnhancer(const QCommandLineParser &parser, const QUrl &dtd)
{
    const QString skeleton = parser.positionalArguments().at(0);
    const QString pdf = parser.positionalArguments().at(1);
    for (const QString &path : {skeleton, pdf}) {
        if (!QFileInfo::exists(path))
            throw CommandLineError(path + u": no such file"_s);
    }
    const auto set = [&parser](PDFXMLEnhancer &enhancer) { configure(enhancer, parser); };
    std::shared_ptr<PDFXMLEnhancer> enhancer;
    if (parser.isSet(u"approximate"_s))
        enhancer = Specification::make<PDFDestinationApproximator>(fileUrl(skeleton), dtd, {}, set);
    else
        enhancer = Specification::make<PDFXMLEnhancer>(fileUrl(skeleton), dtd, {}, set);
    enhancer->matchWith(fileUrl(pdf));
    return enhancer;
}

struct Summary {
    qsizetype entries = 0;
    qsizetype linked = 0;
    qsizetype keywords = 0;
    qsizetype related = 0;
};

Summary summarize(const PDFXMLEnhancer &enhancer)
{
    Summary summary;
    for (const auto &any : enhancer.entries()) {
        const auto *entry = dynamic_cast<const PDFSpecification::Entry *>(any.get());
        ++summary.entries;
        summary.linked += entry && entry->destination() && entry->destination()->page();
        summary.keywords += any->keywords().size();
        summary.related += any->relatedEntries().size();
    }
    return summary;
}

} // namespace

QString EnhanceCommand::details() const
{
    return u"The n-th named destination of a kind is taken for the n-th entry of that kind by "
           "number;\n"
           "markers say which names are destinations of entries, and of which kind. If no name "
           "qualifies,\n"
           "the map's own links stay. With --approximate, links come from the outline and the "
           "captions.\n"
           "Markers can be given several times and replace the built-in ones; an empty one stands "
           "for none."_s;
}

void EnhanceCommand::describe(CommandDescription &description) const
{
    description.addOptions({
        {{u"o"_s, u"output"_s},
         u"Write the map to this file."_s,
         ValueDescription::map(u"MAP.xml"_s)},
        {u"dtd"_s, u"Make this DTD part of the map instead of the one that comes with Tavrin."_s,
         ValueDescription::file(u"D.dtd"_s)},
        {u"approximate"_s,
         u"For a PDF without usable destinations: go by its outline and captions."_s},
        {u"required-marker"_s, u"The name of a link must contain this; else it is none."_s,
         ValueDescription::text(u"TEXT"_s)},
        {u"ignore-marker"_s, u"A name that contains this is no link."_s,
         ValueDescription::text(u"TEXT"_s)},
        {u"type-marker"_s,
         u"A name that contains this is a link of that type: section, chapter, figure or table."_s,
         ValueDescription::text(u"TEXT=TYPE"_s)},
        {u"stop-words"_s, u"File of lemmas that are no keywords, one a line."_s,
         ValueDescription::file(u"FILE"_s)},
        {u"terminator"_s, u"A token that ends a phrase."_s, ValueDescription::text(u"TEXT"_s)},
    });
    const PDFXMLEnhancer defaults;
    for (const NumberOption &option : numberOptions()) {
        description.addOption({option.name,
                               option.help + u" Default %1."_s.arg((defaults.*option.value)()),
                               ValueDescription::text(u"NUMBER"_s)});
    }
    for (const CountOption &option : countOptions()) {
        description.addOption({option.name,
                               option.help + u" Default %1."_s.arg((defaults.*option.value)()),
                               ValueDescription::text(u"COUNT"_s)});
    }
    description.addArgument(
        {ValueDescription::map(u"SKELETON.xml"_s), u"A map, at least with labels and titles."_s});
    description.addArgument({ValueDescription::pdf(u"DOC.pdf"_s), u"The document."_s});
}

ExitCode EnhanceCommand::run(const QCommandLineParser &parser) const
{
    if (parser.positionalArguments().size() != 2)
        throw CommandLineError(u"a map and a PDF are wanted"_s);
    if (!parser.isSet(u"output"_s))
        throw CommandLineError(u"no file to write to; say -o MAP.xml"_s);
    QElapsedTimer timer;
    timer.start();
    // Keywords need it; better told now than after the document is read.
    LinguisticTagger::make();
    const ShippedDTD shipped;
    const QUrl dtd = parser.isSet(u"dtd"_s) ? fileUrl(parser.value(u"dtd"_s)) : shipped.url();
    const auto enhancer = makeEnhancer(parser, dtd);
    ProgressBar bar;
    enhancer->setProgressHandler([&bar](double fraction) { bar.set(fraction); });
    enhancer->loadStructure();
    bar.clear();
    if (!enhancer->document())
        throw CommandLineError(parser.positionalArguments().at(1) + u": can't be read as a PDF"_s);
    writeMap(enhancer->writeSpecToXMLString(dtd), parser.value(u"output"_s));
    const Summary summary = summarize(*enhancer);
    Console::print(
        localized(
            "%1 entries: %2 linked, %3 without a place; %4 keywords, %5 related entries; %6 s",
            "a map that was enhanced")
            .arg(summary.entries)
            .arg(summary.linked)
            .arg(summary.entries - summary.linked)
            .arg(summary.keywords)
            .arg(summary.related)
            .arg(double(timer.elapsed()) / 1000, 0, 'f', 1));
    return summary.linked > 0 ? Success : NotFound;
}

} // namespace Tavrin::Cli
