// SPDX-License-Identifier: Apache-2.0
#include "MapFixture.h"

#include <Tavrin/model/EntryText.h>
#include <Tavrin/platform/CharacterSet.h>

#include <QTextBoundaryFinder>

#include <cmath>
#include <random>

using Type = SpecificationEntryType;

namespace
{

using EntryPtr = Specification::EntryPtr;

class Search : public testing::Test
{
protected:
    EntryPtr add(const QString &title, const std::vector<int> &index = {1},
                 const QStringList &keywords = {})
    {
        const QString label = QString::number(spec->entryCount());
        auto entry = std::make_shared<SpecificationEntry>(spec, label, title, Type::Section, index);
        entry->setKeywords(keywords);
        spec->add(entry);
        return entry;
    }

    float relevance(const QString &term, const QString &text)
    {
        return spec->searchRelevance(*spec->newEntry(), term, {}, text);
    }

    std::shared_ptr<Specification> spec = Specification::make<Specification>();
};

// The search as one would write it down, without any of the shortcuts.

float count(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int characters = 0;
    while (finder.toNextBoundary() >= 0)
        ++characters;
    return static_cast<float>(characters);
}

float naiveRelevance(const QString &term, const QString &text)
{
    const auto at = text.indexOf(term);
    if (at == 0)
        return count(term) / count(text);
    if (at > 0) {
        const bool startsWord = text[at - 1].isSpace() || text[at].isSpace();
        return startsWord ? count(term) / count(text) : count(term) / (2 * count(text));
    }
    QString reduced = text;
    reduced.removeIf([](QChar character) {
        return CharacterSet::isPunctuation(character) ||
               CharacterSet::isWhiteSpaceOrNewline(character);
    });
    return reduced.contains(term) ? count(term) / (3 * count(text)) : 0;
}

std::vector<std::pair<EntryPtr, float>> naiveMatches(const Specification &spec, const QString &text)
{
    std::vector<std::pair<EntryPtr, float>> matches;
    for (const auto &entry : spec.entries()) {
        float total = 0;
        bool all = true;
        for (const QString &term : text.toLower().split(u' ', Qt::SkipEmptyParts)) {
            float score = 0;
            for (const QString &item : entry->searchableItems())
                score += naiveRelevance(term, item.toLower());
            all = all && score != 0;
            total += score;
        }
        if (all)
            matches.emplace_back(entry, total / static_cast<float>(entry->index().size()));
    }
    return matches;
}

} // namespace

TEST_F(Search, CountsTheShareOfTheTextThatTheTermCovers)
{
    EXPECT_FLOAT_EQ(relevance(u"scope"_s, u"scope of work"_s), 5.F / 13);
    EXPECT_FLOAT_EQ(relevance(u"ope"_s, u"scope of work"_s), 3.F / 26);
    EXPECT_FLOAT_EQ(relevance(u"work"_s, u"scope of work"_s), 4.F / 13);
    EXPECT_FLOAT_EQ(relevance(u" of"_s, u"scope of work"_s), 3.F / 13);
    EXPECT_FLOAT_EQ(relevance(u"o"_s, u"xo o"_s), 1.F / 8) << "only the first hit counts";
    EXPECT_FLOAT_EQ(relevance(u"42"_s, u"section 4.2"_s), 2.F / 33);
    EXPECT_EQ(relevance(u"4,2"_s, u"section 4.2"_s), 0);
    EXPECT_EQ(relevance(u""_s, u"text"_s), 0);
    EXPECT_FLOAT_EQ(relevance(u"e\u0301"_s, u"e\u0301😀👨‍👩‍👧"_s), 1.F / 3);
    const auto entry = add(u"Scope of work"_s);
    EXPECT_FLOAT_EQ(spec->searchRelevance(*entry, u"scope"_s, {}), 10.F / 13);
    EXPECT_EQ(spec->searchRelevance(*entry, u"scope"_s, SearchOption::CaseSensitive), 0);
}

TEST_F(Search, WantsEveryWordAndHonoursTheOptions)
{
    const auto entry = add(u"Scope of Work"_s, {1}, {u"range"_s});
    add(u"Something else"_s);
    EXPECT_EQ(spec->searchEntries(u" RANGE\tscope "_s, {}), std::vector{entry});
    EXPECT_TRUE(spec->searchEntries(u"scope nothing"_s, {}).empty());
    EXPECT_TRUE(spec->searchEntries(u"work scope"_s, SearchOption::MatchEntireString).empty());
    EXPECT_EQ(spec->searchEntries(u"scope of"_s, SearchOption::MatchEntireString),
              std::vector{entry});
    EXPECT_TRUE(spec->searchEntries(u"scope"_s, SearchOption::CaseSensitive).empty());
    EXPECT_TRUE(spec->searchEntries(u""_s, SearchOption::MatchEntireString).empty());
}

TEST_F(Search, PutsTheLessDeepFirstAmongEqualsAndKeepsTheTablesOrder)
{
    const auto deep = add(u"abcd"_s, {1, 1, 1});
    const auto second = add(u"abcd"_s, {2});
    const auto first = add(u"abcd"_s, {1});
    const auto infinite = add(u"abcd other words"_s, {});
    const auto alsoInfinite = add(u"abcd"_s, {});
    EXPECT_EQ(spec->searchEntries(u"abcd"_s, {}),
              (std::vector{infinite, alsoInfinite, first, second, deep}));
    EXPECT_EQ(spec->searchEntries(u" \n"_s, {}),
              (std::vector{deep, second, first, infinite, alsoInfinite}));
}

TEST_F(Search, TreatsATenthOfAPercentAsATie)
{
    class Scored : public Specification
    {
        float searchRelevance(const SpecificationEntry &entry, const QString &, SearchOptions,
                              const std::optional<QString> &text) const override
        {
            return text == entry.searchableItems().last() ? text->toFloat() : 0;
        }
    };
    spec = Specification::make<Scored>();
    const auto deeper = add(u"x"_s, {1, 1}, {u"1.0008"_s});
    const auto shallow = add(u"x"_s, {1}, {u"0.5"_s});
    const auto better = add(u"x"_s, {7}, {u"0.52"_s});
    EXPECT_EQ(spec->searchEntries(u"t"_s, {}), (std::vector{better, shallow, deeper}));
}

TEST_F(Search, FindsWhatALiteralSearchFinds)
{
    std::mt19937 random(11);
    const QString alphabet = u"abAB.- é\u0301\u00A012"_s;
    const auto text = [&](std::size_t longest) {
        QString result;
        for (auto length = random() % (longest + 1); length > 0; --length)
            result +=
                alphabet[std::uniform_int_distribution<qsizetype>(0, alphabet.size() - 1)(random)];
        return result;
    };
    for (int i = 0; i < 300; ++i)
        add(text(12), {1, static_cast<int>(random() % 3)}, {text(5), text(70)});
    for (int i = 0; i < 300; ++i) {
        const QString query = text(2).remove(u'\u00A0') + u' ' + text(i % 7 == 0 ? 66 : 3);
        const auto words = query.split(QChar(0xA0), Qt::SkipEmptyParts).join(u' ');
        std::map<EntryPtr, float> expected;
        for (const auto &[entry, score] : naiveMatches(*spec, words))
            expected.emplace(entry, score);
        const auto found = spec->searchEntries(words, {});
        ASSERT_EQ(found.size(), expected.size()) << words.toStdString();
        for (std::size_t at = 0; at < found.size(); ++at) {
            ASSERT_TRUE(expected.contains(found[at]));
            if (at > 0 && !words.trimmed().isEmpty()) {
                EXPECT_GE(expected[found[at - 1]] * 1.001F, expected[found[at]] * 0.998F);
            }
        }
    }
}

TEST_F(Search, CountsCharactersAndWordsAsReadersDo)
{
    EXPECT_EQ(EntryText::characterCount(u"a\r\nb"), 3);
    EXPECT_EQ(EntryText::characterCount(u"“naïve”–章"), 9);
    EXPECT_EQ(EntryText::characterCount(u"a\U0001d400b"), 3);
    EXPECT_EQ(EntryText::characterCount(u"e\u0301\r\n\u2019"), 3);
    EXPECT_EQ(EntryText::characterCount(u"a\u20d7 →"), 3);
    EXPECT_EQ(EntryText::characterCount(u""), 0);
    const auto words = EntryText::simpleWordFrequencies(u"to be, or not to be: it's 4.2 é!"_s);
    const decltype(words) expected{{u"to"_s, 2},   {u"be"_s, 2},  {u"or"_s, 1}, {u"not"_s, 1},
                                   {u"it's"_s, 1}, {u"4.2"_s, 1}, {u"é"_s, 1}};
    EXPECT_EQ(words, expected);
}

TEST_F(Search, RanksBySharedWords)
{
    const auto longWords = add(u"Integral promotions of operands"_s);
    const auto shortWords = add(u"On of in a at"_s);
    const auto none = add(u"Zebra"_s);
    EXPECT_EQ(spec->mostSimilarEntries(u"of PROMOTIONS a"_s, 9),
              (std::vector{longWords, shortWords, none}));
    EXPECT_EQ(spec->mostSimilarEntries(u"zebra"_s, 1), std::vector{none});
    EXPECT_TRUE(spec->mostSimilarEntries(u"zebra"_s, 0).empty());
    EXPECT_TRUE(spec->mostSimilarEntries(u"zebra"_s, -1).empty());
}
