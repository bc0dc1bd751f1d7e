// SPDX-License-Identifier: Apache-2.0
#include "FilesCommand.h"

#include <QJsonArray>

#include <Tavrin/platform/StringLocalizer.h>

#include "CommandLineError.h"
#include "Console.h"
#include "Library.h"
#include "StoredFile.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

QString FilesCommand::details() const
{
    return u"Which specification a file belongs to is found by its first page, so it is told with\n"
           "--maps alone."_s;
}

void FilesCommand::describe(CommandDescription &description) const
{
    description.addOptions({
        {u"maps"_s, u"Directory of spec maps; may be given several times."_s,
         ValueDescription::directory(u"DIR"_s)},
        {u"json"_s, u"Print as JSON."_s},
    });
}

ExitCode FilesCommand::run(const QCommandLineParser &parser) const
{
    if (!parser.positionalArguments().isEmpty())
        throw CommandLineError(u"no arguments are wanted"_s);
    SpecificationManager manager;
    if (parser.isSet(u"maps"_s))
        Library::registerMaps(manager, parser);
    const bool asJson = parser.isSet(u"json"_s);
    QJsonArray files;
    for (const QUrl &file : manager.auxiliaryFiles()) {
        const auto specification = manager.specificationBoundTo(file);
        files.append(StoredFile::json(file, specification.get()));
        if (!asJson)
            StoredFile::print(file, specification.get());
    }
    if (asJson)
        Console::printJson(files);
    else if (files.isEmpty())
        Console::print(localized("nothing imported", "list of files"));
    return Success;
}

} // namespace Tavrin::Cli
