// SPDX-License-Identifier: Apache-2.0
#include "LookupCommand.h"

#include <QJsonArray>

#include <Tavrin/platform/StringLocalizer.h>

#include "CommandLineError.h"
#include "Console.h"
#include "EntryReport.h"
#include "Library.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

using Reference = ReferenceResolver::Reference;

QJsonObject json(const Reference &reference)
{
    QJsonArray entries;
    for (const auto &entry : reference.entries)
        entries.append(EntryReport::json(*entry));
    return {{u"reference"_s, reference.written}, {u"entries"_s, entries}};
}

} // namespace

QString LookupCommand::details() const
{
    return u"A reference is a label, a spec URL (spec://4.2.1/*/*), or a number as people write "
           u"it:\n"
           "\"Fig. 3-7\", \"§ 4.2\", \"Tables 2.1 and 2.2\", \"4.2.1-4.2.3\". One that no map "
           "knows\n"
           "is reported unknown, and the exit code is 1. Of several maps the first that knows it\n"
           "answers, in the order of tavrin list; spec://4.2.1/ID/* asks one map alone."_s;
}

void LookupCommand::describe(CommandDescription &description) const
{
    Library::describe(description);
    description.addOption({u"json"_s, u"Print the entries as JSON."_s});
    description.addArgument({ValueDescription::entry(u"LABEL|URL"_s), u"What to look up."_s,
                             ArgumentDescription::Count::OneOrMore});
}

ExitCode LookupCommand::run(const QCommandLineParser &parser) const
{
    if (parser.positionalArguments().isEmpty())
        throw CommandLineError(u"nothing to look up"_s);
    for (const QString &text : parser.positionalArguments())
        requireSoundLineRange(text);
    Library library(parser);
    bool allFound = true;
    QJsonArray found;
    for (const QString &text : parser.positionalArguments()) {
        for (const Reference &reference : library.finder().resolve(text)) {
            allFound = allFound && !reference.entries.empty();
            found.append(json(reference));
            if (parser.isSet(u"json"_s))
                continue;
            for (const auto &entry : reference.entries)
                EntryReport::print(*entry);
            if (reference.entries.empty())
                Console::complain(localized("%1: unknown", "a reference").arg(reference.written));
        }
    }
    if (parser.isSet(u"json"_s))
        Console::printJson(found);
    return allFound ? Success : NotFound;
}

} // namespace Tavrin::Cli
