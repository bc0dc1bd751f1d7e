// SPDX-License-Identifier: Apache-2.0
#include "SearchCommand.h"

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

QString tally(std::size_t shown, std::size_t all)
{
    if (all == 0)
        return localized("nothing found", "result of a search");
    if (all == 1)
        return localized("1 hit", "result of a search");
    return shown == all ? localized("%1 hits", "result of a search").arg(all)
                        : localized("%1 of %2 hits; --limit 0 shows all", "result of a search")
                              .arg(shown)
                              .arg(all);
}

SearchOptions options(const QCommandLineParser &parser)
{
    SearchOptions result;
    result.setFlag(SearchOption::CaseSensitive, parser.isSet(u"case-sensitive"_s));
    result.setFlag(SearchOption::MatchEntireString, parser.isSet(u"whole"_s));
    return result;
}

} // namespace

QString SearchCommand::details() const
{
    return u"Every word must occur in the title, the printed number or a keyword of an entry.\n"
           "Best hits come first, specification by specification."_s;
}

void SearchCommand::describe(CommandDescription &description) const
{
    Library::describe(description);
    description.addOptions({
        {u"case-sensitive"_s, u"Tell upper from lower case."_s},
        {u"whole"_s, u"Search the words as one text, blanks included."_s},
        {u"limit"_s, u"Show at most N hits of each specification (20; 0 for all)."_s,
         ValueDescription::text(u"N"_s), u"20"_s},
        {u"json"_s, u"Print the entries as JSON."_s},
    });
    description.addArgument({ValueDescription::text(u"WORDS"_s), u"What to search for."_s,
                             ArgumentDescription::Count::OneOrMore});
}

ExitCode SearchCommand::run(const QCommandLineParser &parser) const
{
    const QString text = parser.positionalArguments().join(u' ').trimmed();
    if (text.isEmpty())
        throw CommandLineError(u"nothing to search for"_s);
    const auto limit = static_cast<std::size_t>(wholeNumber(parser, u"limit"_s, 0));
    const SearchOptions searchOptions = options(parser);
    Library library(parser);
    QJsonArray found;
    std::size_t shown = 0;
    std::size_t all = 0;
    for (const auto &specification : library.loadedSpecifications()) {
        auto hits = library.finder().search(*specification, text, searchOptions);
        all += hits.size();
        if (limit > 0 && hits.size() > limit)
            hits.resize(limit);
        shown += hits.size();
        for (const auto &hit : hits) {
            const QString why = description(hit);
            QJsonObject object = EntryReport::json(*hit.entry);
            object[u"matched"_s] = why;
            found.append(object);
            if (!parser.isSet(u"json"_s)) {
                EntryReport::print(*hit.entry);
                Console::print(u"    "_s + localized("matched: %1", "reason of a hit").arg(why));
            }
        }
    }
    if (parser.isSet(u"json"_s))
        Console::printJson(found);
    else
        Console::print(tally(shown, all));
    return all > 0 ? Success : NotFound;
}

} // namespace Tavrin::Cli
