// SPDX-License-Identifier: Apache-2.0
#include "MapFile.h"

#include <QFileInfo>

#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "CommandLineError.h"
#include "Console.h"
#include "Library.h"

namespace Tavrin::Cli::MapFile
{

using namespace Qt::StringLiterals;
using CommandLine::CommandDescription;
using CommandLine::ValueDescription;

namespace
{

QUrl existingFile(const QString &path)
{
    if (!QFileInfo::exists(path))
        throw CommandLineError(path + u": no such file"_s);
    return fileUrl(path);
}

} // namespace

void describe(CommandDescription &description)
{
    description.addOption({u"dtd"_s, u"The DTD of a map that has none of its own."_s,
                           ValueDescription::file(u"D.dtd"_s)});
}

std::shared_ptr<Specification> read(const QCommandLineParser &parser, const QString &path)
{
    const QUrl map = existingFile(path);
    std::optional<QUrl> dtd;
    if (parser.isSet(u"dtd"_s))
        dtd = existingFile(parser.value(u"dtd"_s));
    auto specification = Specification::withStructureFile(map, dtd);
    specification->loadStructure();
    return specification;
}

bool bind(Specification &specification, const QString &pdf)
{
    const auto document = openPDF(pdf);
    if (specification.claimAuxiliaryFile(fileUrl(pdf)))
        return true;
    auto *withPDF = dynamic_cast<PDFSpecification *>(&specification);
    if (!withPDF)
        throw CommandLineError(u"the map asks for no PDF"_s);
    withPDF->loadPDFStructure(document);
    Console::complain(
        localized("%1: the words of its first page are not those of the map's verifier", "a PDF")
            .arg(pdf));
    return false;
}

} // namespace Tavrin::Cli::MapFile
