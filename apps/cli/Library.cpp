// SPDX-License-Identifier: Apache-2.0
#include "Library.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/pdfspec/CandidateReading.h>

#include "CommandLineError.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;
using CommandLine::CommandDescription;
using CommandLine::ValueDescription;

namespace
{

/// Digits and nothing else; no sign, no blanks.
std::optional<int> lineNumber(const QString &text)
{
    const bool isDigits =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    bool fits = false;
    const int number = text.toInt(&fits);
    return isDigits && fits ? std::optional(number) : std::nullopt;
}

} // namespace

void Library::describe(CommandDescription &description)
{
    describeMaps(description);
    description.addOption(
        {u"pdf"_s,
         u"PDF to bind to the map that recognises it; may be given several times. Imported PDFs "
         "need not be named."_s,
         ValueDescription::pdf(u"DOC.pdf"_s)});
}

void Library::describeMaps(CommandDescription &description)
{
    description.addOption({u"maps"_s,
                           u"Directory of spec maps. Required; may be given several times."_s,
                           ValueDescription::directory(u"DIR"_s)});
}

Library::Library(const QCommandLineParser &parser, const QStringList &furtherPDFs)
{
    // What can't be opened ends this before any map is asked. What can is opened once.
    CandidateReading reading;
    std::vector<QUrl> pdfs;
    for (const QString &pdf : parser.values(u"pdf"_s) + furtherPDFs) {
        pdfs.push_back(fileUrl(pdf));
        reading.open(pdfs.back());
    }
    if (!pdfs.empty()) {
        // What a map is offered first it takes, and an imported copy would take the PDF's place.
        std::vector<QUrl> offered = pdfs;
        const std::vector<QUrl> &imported = m_manager.auxiliaryFiles();
        offered.insert(offered.end(), imported.begin(), imported.end());
        m_manager.setAuxiliaryFiles(std::move(offered));
    }
    registerMaps(m_manager, parser);
    for (const QUrl &pdf : pdfs) {
        if (!m_manager.specificationBoundTo(pdf))
            m_manager.bindAuxiliaryFile(pdf);
    }
}

void Library::registerMaps(SpecificationManager &manager, const QCommandLineParser &parser)
{
    const QStringList directories = parser.values(u"maps"_s);
    if (directories.isEmpty())
        throw CommandLineError(u"no maps given; say --maps DIR"_s);
    for (const QString &directory : directories)
        manager.loadSpecInformation(fileUrl(directory));
    if (manager.specifications().empty()) {
        throw CommandLineError(
            u"%1: no map (NAME.xml) in this directory"_s.arg(directories.join(u", "_s)));
    }
}

const std::vector<std::shared_ptr<Specification>> &Library::loadedSpecifications()
{
    for (const auto &specification : m_manager.specifications()) {
        if (specification->entries().isEmpty())
            specification->loadStructure();
    }
    return m_manager.specifications();
}

std::shared_ptr<CachingPDFDocument> openPDF(const QString &path)
{
    return CachingPDFDocument::open(fileUrl(path));
}

void requireSoundLineRange(const QString &text)
{
    const auto components = SpecURL::components(text);
    if (!components || components->size() < 5)
        return;
    const auto lower = lineNumber((*components)[3]);
    const auto upper = lineNumber((*components)[4]);
    if (!lower || !upper || *upper < *lower) {
        throw CommandLineError(
            u"%1: \"%2/%3\" is no range of lines; the first line and the one after the last are "
            "wanted, counted from 0"_s.arg(text, (*components)[3], (*components)[4]));
    }
}

int wholeNumber(const QCommandLineParser &parser, const QString &option, int least)
{
    bool isNumber = false;
    const int value = parser.value(option).toInt(&isNumber);
    if (!isNumber || value < least) {
        throw CommandLineError(u"--%1 %2: not a whole number from %3 up"_s.arg(
            option, parser.value(option), QString::number(least)));
    }
    return value;
}

double scaleOption(const QCommandLineParser &parser)
{
    const double scale = parser.value(u"scale"_s).toDouble();
    if (!(scale > 0 && scale <= 20))
        throw CommandLineError(u"--scale: not a number above 0 and up to 20"_s);
    return scale;
}

QUrl fileUrl(const QString &path)
{
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
}

} // namespace Tavrin::Cli
