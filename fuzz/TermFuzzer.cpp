// SPDX-License-Identifier: Apache-2.0
// The text of a section: its broken words healed, its words tagged, its terms counted.
#include "Fuzzing.h"

#include <Tavrin/enhance/StopWords.h>
#include <Tavrin/enhance/TermCounter.h>

using namespace Tavrin;
using namespace Qt::StringLiterals;

namespace
{

void tag(const QString &text)
{
    const auto tagger = LinguisticTagger::make();
    tagger->setString(text);
    qsizetype end = 0;
    tagger->enumerateTags(
        {0, text.size()}, TagScheme::TokenType,
        [&](std::optional<LinguisticTag> type, TextRange token, TextRange sentence, bool &) {
            Fuzzing::require(token.location == end && token.length > 0,
                             "tokens follow each other without a gap");
            Fuzzing::require(sentence.location <= token.location && token.end() <= sentence.end(),
                             "a token is in its sentence");
            const auto lemma = tagger->lemmaAt(token.location);
            Fuzzing::require(lemma.has_value() == (type == LinguisticTag::Word),
                             "words have a lemma, and nothing else has");
            Fuzzing::require(!lemma || !lemma->isEmpty(), "a lemma has letters");
            end = token.end();
        });
    Fuzzing::require(end == text.size(), "tokens cover the text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static TermCounter counter(
        {readStopWords(),
         {u"\n"_s, u"\t"_s},
         {LinguisticTag::Verb, LinguisticTag::Noun, LinguisticTag::Adjective},
         {LinguisticTag::Noun, LinguisticTag::Adjective, LinguisticTag::Number}});
    const QString text = counter.healed(Fuzzing::text(data, size));
    tag(text);
    for (const auto &[term, count] : counter.count(text)) {
        Fuzzing::require(!term.isEmpty() && !term.contains(u','), "a term can stand in a map");
        Fuzzing::require(count > 0, "a term that is counted occurs");
    }
    return 0;
}
