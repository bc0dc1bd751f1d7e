// SPDX-License-Identifier: Apache-2.0
#include "ForgetCommand.h"

#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>
#include <optional>

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

/// The stored file of a name, or at a path.
std::optional<QUrl> storedFile(SpecificationManager &manager, const QString &text)
{
    const std::vector<QUrl> &files = manager.auxiliaryFiles();
    const auto it = std::find_if(files.begin(), files.end(), [&](const QUrl &file) {
        return file.fileName() == text || file == fileUrl(text);
    });
    return it == files.end() ? std::nullopt : std::optional(*it);
}

bool forget(SpecificationManager &manager, const QUrl &file)
{
    manager.unregisterAuxiliaryFile(file);
    const QString path = file.toLocalFile();
    if (!QFileInfo::exists(path))
        return true;
    Console::complain(localized("%1: can't be deleted", "a file").arg(path));
    return false;
}

} // namespace

QString ForgetCommand::details() const
{
    return u"FILE is a name that tavrin files shows, or the path of the copy. Originals are left\n"
           "alone."_s;
}

void ForgetCommand::describe(CommandDescription &description) const
{
    description.addOption({u"json"_s, u"Print what was deleted as JSON."_s});
    description.addArgument({ValueDescription::file(u"FILE"_s), u"The copies."_s,
                             ArgumentDescription::Count::OneOrMore});
}

ExitCode ForgetCommand::run(const QCommandLineParser &parser) const
{
    if (parser.positionalArguments().isEmpty())
        throw CommandLineError(u"nothing to forget"_s);
    SpecificationManager manager;
    const bool asJson = parser.isSet(u"json"_s);
    bool allGone = true;
    QJsonArray gone;
    for (const QString &text : parser.positionalArguments()) {
        const auto file = storedFile(manager, text);
        if (!file)
            Console::complain(localized("%1: was not imported", "a file").arg(text));
        const QJsonObject object = file ? StoredFile::json(*file, nullptr) : QJsonObject();
        if (!file || !forget(manager, *file)) {
            allGone = false;
            continue;
        }
        gone.append(object);
        if (!asJson)
            Console::print(localized("%1: deleted", "a file").arg(file->toLocalFile()));
    }
    if (asJson)
        Console::printJson(gone);
    return allGone ? Success : NotFound;
}

} // namespace Tavrin::Cli
