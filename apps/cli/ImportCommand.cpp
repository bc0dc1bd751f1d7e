// SPDX-License-Identifier: Apache-2.0
#include "ImportCommand.h"

#include <QFile>
#include <QJsonArray>

#include <algorithm>
#include <optional>

#include <Tavrin/pdfspec/CandidateReading.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "CommandLineError.h"
#include "Console.h"
#include "Library.h"
#include "StoredFile.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

bool haveSameContent(const QString &a, const QString &b)
{
    constexpr qint64 pieceSize = 1 << 20;
    QFile first(a);
    QFile second(b);
    if (!first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly) ||
        first.size() != second.size())
        return false;
    while (!first.atEnd()) {
        const QByteArray piece = first.read(pieceSize);
        if (piece.isEmpty() || piece != second.read(pieceSize))
            return false;
    }
    return true;
}

/// The copy that an earlier import made of the same document and that still serves a map.
std::optional<QUrl> earlierCopy(SpecificationManager &manager, const QUrl &file)
{
    const std::vector<QUrl> &files = manager.auxiliaryFiles();
    const auto it = std::find_if(files.begin(), files.end(), [&](const QUrl &stored) {
        return manager.specificationBoundTo(stored) &&
               haveSameContent(stored.toLocalFile(), file.toLocalFile());
    });
    return it == files.end() ? std::nullopt : std::optional(*it);
}

/// The copy in the store. Nothing, which is told, if there is none.
std::optional<QUrl> imported(SpecificationManager &manager, const QString &path)
{
    const QUrl file = fileUrl(path);
    if (auto copy = earlierCopy(manager, file))
        return copy;
    try {
        const QUrl stored = manager.registerAuxiliaryFile(file);
        if (stored != file)
            return stored;
        Console::complain(localized("%1: not imported", "a file").arg(path));
    } catch (const SpecificationManager::SetupError &) {
        Console::complain(
            localized("%1: no map that still wants a PDF recognises it", "a file").arg(path));
    }
    return std::nullopt;
}

} // namespace

QString ImportCommand::details() const
{
    return u"A PDF that a map recognises is copied, and found from then on by lookup, show and "
           u"the\n"
           "other commands without --pdf. The original may go. Importing it again changes "
           "nothing."_s;
}

void ImportCommand::describe(CommandDescription &description) const
{
    Library::describeMaps(description);
    description.addOption({u"json"_s, u"Print the copies as JSON."_s});
    description.addArgument(
        {ValueDescription::pdf(u"FILE"_s), u"The PDFs."_s, ArgumentDescription::Count::OneOrMore});
}

ExitCode ImportCommand::run(const QCommandLineParser &parser) const
{
    const QStringList paths = parser.positionalArguments();
    if (paths.isEmpty())
        throw CommandLineError(u"nothing to import"_s);
    // Before the first is copied, so that a slip leaves things as they were.
    CandidateReading reading;
    for (const QString &path : paths)
        reading.open(fileUrl(path));
    SpecificationManager manager;
    Library::registerMaps(manager, parser);
    const bool asJson = parser.isSet(u"json"_s);
    QJsonArray copies;
    for (const QString &path : paths) {
        const auto copy = imported(manager, path);
        if (!copy)
            continue;
        const auto specification = manager.specificationBoundTo(*copy);
        copies.append(StoredFile::json(*copy, specification.get()));
        if (!asJson)
            StoredFile::print(*copy, specification.get());
    }
    if (asJson)
        Console::printJson(copies);
    return copies.size() == paths.size() ? Success : NotFound;
}

} // namespace Tavrin::Cli
