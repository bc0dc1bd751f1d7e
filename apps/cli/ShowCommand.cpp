// SPDX-License-Identifier: Apache-2.0
#include "ShowCommand.h"

#include <QImage>
#include <QJsonArray>

#include <algorithm>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "CommandLineError.h"
#include "Console.h"
#include "EntryReport.h"
#include "Library.h"
#include "TextFlow.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int widestText = 100;
constexpr int indent = 2;

using Entry = PDFSpecification::Entry;

/// The plain form of a row's value: texts one below the other, an image as its size.
QString plainText(const QVariant &value)
{
    if (value.canConvert<StyledText>())
        return value.value<StyledText>().string();
    if (value.typeId() == QMetaType::QImage) {
        const QSize size = value.value<QImage>().size();
        return localized("picture of %1 × %2 points", "a figure or table")
            .arg(size.width())
            .arg(size.height());
    }
    if (value.typeId() == QMetaType::QVariantList) {
        QStringList lines;
        for (const QVariant &element : value.toList())
            lines += plainText(element);
        return lines.join(u'\n');
    }
    return value.toString();
}

void printText(const QStringList &paragraphs)
{
    const int width = std::clamp(terminalWidth(), 20, widestText) - indent;
    for (const QString &paragraph : paragraphs) {
        for (const QString &line : TextFlow::wrapped(paragraph, width))
            Console::print(QString(indent, u' ') + line);
    }
}

void print(const EntryDisplayItem &item, const SpecificationEntry &entry)
{
    Console::print(Console::strong(item.label));
    const auto *pdfEntry = dynamic_cast<const Entry *>(&entry);
    if (!pdfEntry || !item.objectValue.canConvert<StyledText>()) {
        printText(plainText(item.objectValue).split(u'\n'));
        return;
    }
    const auto text = item.objectValue.value<StyledText>();
    const auto summary = pdfEntry->summaryText();
    const bool isSummary = summary && *summary == text;
    printText(TextFlow(text, isSummary ? pdfEntry->lineLocations() : std::nullopt).paragraphs());
}

QJsonArray linksJson(const StyledText &text)
{
    QJsonArray links;
    text.enumerateLinks({0, text.length()}, [&](const QString *link, TextRange range, bool &) {
        if (link) {
            links.append(QJsonObject{{u"location"_s, range.location},
                                     {u"length"_s, range.length},
                                     {u"target"_s, *link}});
        }
    });
    return links;
}

QJsonObject json(const SpecificationEntry &entry)
{
    QJsonArray items;
    for (const EntryDisplayItem &item : entry.displayItems()) {
        QJsonObject row{{u"label"_s, item.label}, {u"text"_s, plainText(item.objectValue)}};
        if (item.objectValue.canConvert<StyledText>())
            row[u"links"_s] = linksJson(item.objectValue.value<StyledText>());
        items.append(row);
    }
    QJsonObject object = EntryReport::json(entry);
    object[u"items"_s] = items;
    const auto *pdfEntry = dynamic_cast<const Entry *>(&entry);
    const auto lines = pdfEntry ? pdfEntry->lineLocations() : std::nullopt;
    if (lines) {
        QJsonArray places;
        for (const LineLocation &line : *lines) {
            places.append(QJsonObject{
                {u"page"_s, line.page},
                {u"bounds"_s, QJsonArray{line.bounds.minX(), line.bounds.minY(),
                                         line.bounds.size.width, line.bounds.size.height}}});
        }
        object[u"lines"_s] = places;
    }
    return object;
}

void saveImage(const SpecificationEntry &entry, const QString &path, double scale)
{
    const auto *pdfEntry = dynamic_cast<const Entry *>(&entry);
    const auto specification = std::dynamic_pointer_cast<PDFSpecification>(entry.specification());
    if (!pdfEntry || !specification || isTextual(entry.type()))
        throw CommandLineError(u"--image: %1 is no figure or table"_s.arg(entry.label()));
    const QImage image = specification->extractImage(*pdfEntry, scale);
    if (image.isNull())
        throw CommandLineError(u"--image: %1 is not found in the PDF"_s.arg(entry.label()));
    if (!image.save(path, "PNG"))
        throw CommandLineError(path + u": can't be written"_s);
}

} // namespace

QString ShowCommand::details() const
{
    return u"The entry is named as for lookup: a label, a spec URL, or a reference in words.\n"
           "Links are followed by what they lead to: \"Scope [→ 4.2]\". A spec URL with a range\n"
           "of lines (spec://4.2/*/*/0/3) shows those lines."_s;
}

void ShowCommand::describe(CommandDescription &description) const
{
    Library::describe(description);
    description.addOptions({
        {u"image"_s, u"Draw a figure or table into a picture."_s,
         ValueDescription::file(u"OUT.png"_s)},
        {u"scale"_s, u"Pixels per point of the picture (2)."_s, ValueDescription::text(u"S"_s),
         u"2"_s},
        {u"json"_s, u"Print as JSON."_s},
    });
    description.addArgument({ValueDescription::entry(u"LABEL|URL"_s), u"What to show."_s});
}

ExitCode ShowCommand::run(const QCommandLineParser &parser) const
{
    if (parser.positionalArguments().size() != 1)
        throw CommandLineError(u"one label or URL is wanted"_s);
    const double scale = scaleOption(parser);
    const QString label = parser.positionalArguments().constFirst();
    requireSoundLineRange(label);
    Library library(parser);
    const auto references = library.finder().resolve(label);
    if (references.size() != 1 || references.front().entries.size() > 1)
        throw CommandLineError(u"%1: one entry is wanted; this names several"_s.arg(label));
    if (references.front().entries.empty()) {
        Console::complain(localized("%1: unknown", "a reference").arg(label));
        return NotFound;
    }
    const SpecificationEntry &entry = *references.front().entries.front();
    if (parser.isSet(u"image"_s))
        saveImage(entry, parser.value(u"image"_s), scale);
    if (parser.isSet(u"json"_s)) {
        Console::printJson(json(entry));
        return Success;
    }
    for (const EntryDisplayItem &item : entry.displayItems())
        print(item, entry);
    return Success;
}

} // namespace Tavrin::Cli
