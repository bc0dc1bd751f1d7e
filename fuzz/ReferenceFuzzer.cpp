// SPDX-License-Identifier: Apache-2.0
// What a user types: a reference as people write it, and words to search for.
#include "Fuzzing.h"

#include <Tavrin/model/ReferenceResolver.h>

using namespace Tavrin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const auto specification = Fuzzing::specification();
    static const ReferenceResolver resolver(*specification);
    const QString text = Fuzzing::text(data, size);
    for (const auto &reference : resolver.resolve(text))
        Fuzzing::require(!reference.written.isEmpty(), "a reference is written somehow");
    const auto limit = static_cast<std::size_t>(specification->entryCount());
    for (const SearchOptions options : {SearchOptions(), SearchOptions(SearchOption::CaseSensitive),
                                        SearchOptions(SearchOption::MatchEntireString)}) {
        Fuzzing::require(specification->searchEntries(text, options).size() <= limit,
                         "a search finds each entry once");
    }
    Fuzzing::require(specification->mostSimilarEntries(text, 2).size() <= 2,
                     "no more entries are similar than were asked for");
    return 0;
}
