// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/enhance/StopWords.h>
#include <Tavrin/enhance/TermCounter.h>

namespace
{

TermCounter counter(const QStringList &stopWords = {})
{
    using enum LinguisticTag;
    return TermCounter(
        {stopWords, {u"\n"_s, u"\t"_s}, {Verb, Noun, Adjective}, {Noun, Adjective, Number}});
}

/// "bus=2, word=1", by name.
std::string counts(const QString &text, const QStringList &stopWords = {})
{
    QStringList result;
    for (const auto &[term, count] : counter(stopWords).count(text))
        result += u"%1=%2"_s.arg(term).arg(count);
    result.sort();
    return result.join(u", "_s).toStdString();
}

} // namespace

TEST(TermCounter, countsLemmasOfWordsAndPhrasesAsTheyStand)
{
    EXPECT_EQ(counts(u"The Packet Headers were written. Packet headers write."_s),
              "be=1, header=2, packet headers=2, packet=2, write=2");
    EXPECT_EQ(counts(u"the packet header"_s, {u"packet"_s}), "header=1, packet header=1")
        << "stop words are left out of words, not out of phrases";
    EXPECT_EQ(counts(u"kernel buffer, queue (socket) module\nthread\n\nmutex\tpipe"_s),
              "buffer=1, kernel buffer=1, kernel=1, module=1, mutex=1, pipe=1, queue=1, socket=1, "
              "thread=1")
        << "phrases end at verbs, marks and line ends";
    EXPECT_EQ(counts(u"the floating-point unit of 16 bits"_s),
              "16 bits=1, bit=1, floating-point unit=1, floating=1, point=1, unit=1");
    EXPECT_EQ(counts(u"1,000 bytes of 1,00iii0"_s), "byte=1") << "a map would take it apart";
    EXPECT_EQ(counts(u"with-kernel modules of packet headers-and"_s),
              "header=1, kernel modules=1, kernel=1, module=1, packet headers=1, packet=1")
        << "no hyphen is loose";
}

TEST(TermCounter, losesUnitsAtTheEndToCharactersOfSeveralUnits)
{
    // Four characters too many hide the last word, whose first unit lies behind the range.
    EXPECT_THAT(counts(u"\U0001f600\U0001f600\U0001f600\U0001f600 kernel pipe"_s),
                Not(HasSubstr("pipe")));
    EXPECT_THAT(counts(u"\U0001f600\U0001f600\U0001f600 kernel pipe"_s), HasSubstr("pipe"));
    EXPECT_EQ(counts(QString()), "");
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
