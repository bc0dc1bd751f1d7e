// SPDX-License-Identifier: Apache-2.0
#include "SimilarCommand.h"

#include <QJsonArray>
#include <QRegularExpression>

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

/// Words of one letter weigh nothing, so they are none here.
QStringList words(const QString &text)
{
    static const QRegularExpression word(u"\\w{2,}"_s,
                                         QRegularExpression::UseUnicodePropertiesOption);
    QStringList result;
    for (auto matches = word.globalMatch(text.toLower()); matches.hasNext();)
        result += matches.next().captured();
    return result;
}

/// The words that an entry shares with a text, each once: the reason to show beside it.
QStringList sharedWords(const SpecificationEntry &entry, const QString &text)
{
    const QStringList entryWords = words(entry.searchableItems().join(u'\n'));
    QStringList shared = words(text);
    shared.removeIf([&entryWords](const QString &word) { return !entryWords.contains(word); });
    shared.removeDuplicates();
    return shared;
}

} // namespace

QString SimilarCommand::details() const
{
    return u"Compares the words of the text with the titles, numbers and keywords of the entries;\n"
           "long shared words weigh most. The most similar come first, specification by "
           "specification."_s;
}

void SimilarCommand::describe(CommandDescription &description) const
{
    Library::describe(description);
    description.addOptions({
        {u"count"_s, u"How many entries of each specification to show (5)."_s,
         ValueDescription::text(u"N"_s), u"5"_s},
        {u"json"_s, u"Print the entries as JSON."_s},
    });
    description.addArgument({ValueDescription::text(u"TEXT"_s), u"The text to compare with."_s});
}

ExitCode SimilarCommand::run(const QCommandLineParser &parser) const
{
    if (parser.positionalArguments().isEmpty())
        throw CommandLineError(u"nothing to compare with"_s);
    const QString text = parser.positionalArguments().join(u' ');
    const int count = wholeNumber(parser, u"count"_s, 1);
    Library library(parser);
    QJsonArray found;
    for (const auto &specification : library.loadedSpecifications()) {
        for (const auto &entry : specification->mostSimilarEntries(text, count)) {
            const QStringList shared = sharedWords(*entry, text);
            if (shared.isEmpty())
                continue;
            QJsonObject object = EntryReport::json(*entry);
            object[u"shared"_s] = QJsonArray::fromStringList(shared);
            found.append(object);
            if (!parser.isSet(u"json"_s)) {
                EntryReport::print(*entry);
                Console::print(u"    "_s + localized("shares: %1", "words of a text and an entry")
                                               .arg(shared.join(u", "_s)));
            }
        }
    }
    if (parser.isSet(u"json"_s))
        Console::printJson(found);
    else if (found.isEmpty())
        Console::print(localized("nothing found", "result of a search"));
    return found.isEmpty() ? NotFound : Success;
}

} // namespace Tavrin::Cli
