// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include <Tavrin/enhance/StopWords.h>
#include <Tavrin/enhance/TermCounter.h>

using namespace Tavrin;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace
{

TermCounter counter(const QStringList &stopWords = {})
{
    using enum LinguisticTag;
    return TermCounter(
        {stopWords, {u"\n"_s, u"\t"_s}, {Verb, Noun, Adjective}, {Noun, Adjective, Number}});
}

std::map<std::string, double> counts(const QString &text, const QStringList &stopWords = {})
{
    std::map<std::string, double> result;
    for (const auto &[term, count] : counter(stopWords).count(text))
        result[term.toStdString()] = count;
    return result;
}

} // namespace

TEST(TermCounter, countsLemmasOfWordsAndPhrasesAsTheyStand)
{
    EXPECT_THAT(counts(u"The Packet Headers were written. Packet headers write."_s),
                UnorderedElementsAre(Pair("packet", 2), Pair("header", 2), Pair("be", 1),
                                     Pair("write", 2), Pair("packet headers", 2)));
}

TEST(TermCounter, leavesStopWordsOutOfWordsAndNotOutOfPhrases)
{
    EXPECT_THAT(counts(u"the packet header"_s, {u"packet"_s}),
                UnorderedElementsAre(Pair("header", 1), Pair("packet header", 1)));
}

TEST(TermCounter, endsPhrasesAtVerbsMarksAndLineEnds)
{
    EXPECT_THAT(counts(u"kernel buffer, queue (socket) module\nthread\n\nmutex\tpipe"_s),
                UnorderedElementsAre(Pair("kernel", 1), Pair("buffer", 1), Pair("queue", 1),
                                     Pair("socket", 1), Pair("module", 1), Pair("thread", 1),
                                     Pair("mutex", 1), Pair("pipe", 1), Pair("kernel buffer", 1)));
}

TEST(TermCounter, keepsHyphensAndNumbersInPhrases)
{
    EXPECT_THAT(counts(u"the floating-point unit of 16 bits"_s),
                UnorderedElementsAre(Pair("floating", 1), Pair("point", 1), Pair("unit", 1),
                                     Pair("bit", 1), Pair("floating-point unit", 1),
                                     Pair("16 bits", 1)));
}

TEST(TermCounter, countsNoTermThatAMapWouldTakeApart)
{
    EXPECT_THAT(counts(u"1,000 bytes of 1,00iii0"_s), UnorderedElementsAre(Pair("byte", 1)));
}

TEST(TermCounter, leavesNoHyphenLoose)
{
    EXPECT_THAT(counts(u"with-kernel modules of packet headers-and"_s),
                UnorderedElementsAre(Pair("kernel", 1), Pair("module", 1), Pair("packet", 1),
                                     Pair("header", 1), Pair("kernel modules", 1),
                                     Pair("packet headers", 1)));
}

TEST(TermCounter, losesUnitsAtTheEndToCharactersOfSeveralUnits)
{
    // Four characters too many hide the last word, whose first unit lies behind the range.
    EXPECT_EQ(counts(u"\U0001f600\U0001f600\U0001f600\U0001f600 kernel pipe"_s).count("pipe"), 0U);
    EXPECT_EQ(counts(u"\U0001f600\U0001f600\U0001f600 kernel pipe"_s).count("pipe"), 1U);
    EXPECT_THAT(counts(QString()), IsEmpty());
}

TEST(TermCounts, rememberTheirOrder)
{
    TermCounts counts;
    counts.add(u"b"_s, 1);
    counts.add(u"a"_s, 2);
    counts.squeeze();
    counts.add(u"b"_s, 0.5);
    counts.add(u"c"_s, 1, 1);
    TermCounts twice;
    twice.add(counts, 2);
    EXPECT_THAT(std::vector<TermCounts::Term>(twice.begin(), twice.end()),
                ElementsAre(TermCounts::Term{u"b"_s, 3}, TermCounts::Term{u"a"_s, 4},
                            TermCounts::Term{u"c"_s, 4}));
    EXPECT_EQ(twice.value(u"d"_s), 0);
}

TEST(StopWords, areSortedLowercaseWords)
{
    QStringList words = readStopWords();
    ASSERT_FALSE(words.isEmpty());
    EXPECT_EQ(words.takeLast(), QString());
    EXPECT_GE(words.size(), 300);
    EXPECT_LE(words.size(), 600);
    for (qsizetype index = 1; index < words.size(); ++index) {
        EXPECT_LT(words[index - 1], words[index]);
        EXPECT_EQ(words[index], words[index].toLower());
    }
}
