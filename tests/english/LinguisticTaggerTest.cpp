// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <QStringList>

#include <future>

#include <Tavrin/platform/LinguisticTagger.h>

namespace
{

struct Seen {
    QString text;
    LinguisticTag tag = LinguisticTag::Word;

    friend bool operator==(const Seen &, const Seen &) = default;
    friend std::ostream &operator<<(std::ostream &out, const Seen &seen)
    {
        return out << '"' << seen.text.toStdString() << "\" " << int(seen.tag);
    }
};

std::vector<Seen> tokens(const QString &text, TagScheme scheme)
{
    std::vector<Seen> result;
    const auto tagger = LinguisticTagger::make();
    tagger->setString(text);
    tagger->enumerateTags(
        {0, text.size()}, scheme,
        [&](std::optional<LinguisticTag> tag, TextRange token, TextRange, bool &) {
            result.push_back({text.mid(token.location, token.length), *tag});
        });
    return result;
}

std::vector<LinguisticTag> tags(const QString &text, TagScheme scheme)
{
    std::vector<LinguisticTag> result;
    for (const Seen &seen : tokens(text, scheme))
        result.push_back(seen.tag);
    return result;
}

/// The words of a class, parted by blanks.
std::string words(const QString &text, LinguisticTag wordClass)
{
    QStringList result;
    for (const Seen &seen : tokens(text, TagScheme::LexicalClass)) {
        if (seen.tag == wordClass)
            result << seen.text;
    }
    return result.join(u' ').toStdString();
}

std::string joinedTokens(const QString &text)
{
    QStringList result;
    for (const Seen &seen : tokens(text, TagScheme::TokenType))
        result << seen.text;
    return result.join(u'|').toStdString();
}

} // namespace

TEST(LinguisticTagger, cutsWordsNumbersAndMarks)
{
    EXPECT_EQ(joinedTokens(u"See 4.2.1, e.g. x_y (1,000 bytes)."_s),
              "See| |4.2.1|,| |e.g|.| |x_y| |(|1,000| |bytes|)|.");
    EXPECT_EQ(joinedTokens(u"It doesn't end\tat page\u2019s\n\nedge"_s),
              "It| |does|n't| |end|\t|at| |page|\u2019s|\n|\n|edge");
    EXPECT_EQ(joinedTokens(u"a\U0001d400b \U0001f600"_s), "a\U0001d400b| |\U0001f600");
    // A mark over a letter belongs to the word; one over a sign is a sign.
    EXPECT_EQ(tokens(u"e\u0301"_s, TagScheme::TokenType).front().tag, LinguisticTag::Word);
    EXPECT_NE(tokens(u"\u0338="_s, TagScheme::TokenType).front().tag, LinguisticTag::Word);
    EXPECT_THAT(tokens(QString(), TagScheme::TokenType), IsEmpty());
}

TEST(LinguisticTagger, tellsJoinersAndParagraphs)
{
    using enum LinguisticTag;
    EXPECT_THAT(tags(u"a floating-point"_s, TagScheme::LexicalClass),
                ElementsAre(OtherWord, OtherWhitespace, Adjective, WordJoiner, Noun));
    EXPECT_EQ(joinedTokens(u"a floating-point"_s), "a| |floating|-|point");
    EXPECT_EQ(joinedTokens(u"x - -y\nz\n\nw"_s), "x| |-| |-|y|\n|z|\n|\n|w");
    EXPECT_THAT(tags(u"x - -y\nz\n\nw"_s, TagScheme::TokenType),
                ElementsAre(Word, Whitespace, Punctuation, Whitespace, Punctuation, Word,
                            Whitespace, Word, Whitespace, Whitespace, Word));
    EXPECT_EQ(words(u"one\ntwo\n\nthree"_s, ParagraphBreak), "\n \n");
}

TEST(LinguisticTagger, readsSentencesOfManuals)
{
    const QString text = u"The compiler reports an error if the variable is not declared in the "
                         "enclosing block. Symlinks must not point outside the build directory. "
                         "By default the external port raises an interrupt 16 times a minute."_s;
    EXPECT_EQ(words(text, LinguisticTag::Noun),
              "compiler error variable block Symlinks build directory default port interrupt "
              "times minute");
    EXPECT_EQ(words(text, LinguisticTag::Verb), "reports is declared enclosing must point raises");
    EXPECT_EQ(words(text, LinguisticTag::Adjective), "external");
    EXPECT_EQ(words(text, LinguisticTag::Number), "16");
}

TEST(LinguisticTagger, takesIdentifiersAndAcronymsForNouns)
{
    EXPECT_EQ(words(u"You call setValue or set_value before CRC32 and the FOOBAR run."_s,
                    LinguisticTag::Noun),
              "setValue set_value CRC32 FOOBAR run");
}

TEST(LinguisticTagger, givesLemmasAtAnyPositionOfAWord)
{
    const QString text = u"Two buffers were written, and caches grepped."_s;
    const auto tagger = LinguisticTagger::make();
    tagger->setString(text);
    const auto lemma = [&](const QString &word) {
        return tagger->lemmaAt(text.indexOf(word) + 1).value_or(u"none"_s);
    };
    EXPECT_EQ(lemma(u"buffers"_s), u"buffer"_s);
    EXPECT_EQ(lemma(u"were"_s), u"be"_s);
    EXPECT_EQ(lemma(u"written"_s), u"write"_s);
    EXPECT_EQ(lemma(u"caches"_s), u"cache"_s);
    EXPECT_EQ(lemma(u"grepped"_s), u"grep"_s);
    EXPECT_EQ(lemma(u"Two"_s), u"two"_s);
    EXPECT_EQ(tagger->lemmaAt(3), std::nullopt);
    EXPECT_EQ(tagger->lemmaAt(-1), std::nullopt);
    EXPECT_EQ(tagger->lemmaAt(text.size()), std::nullopt);
    EXPECT_EQ(tagger->tagAt(text.size(), TagScheme::TokenType), std::nullopt);
}

TEST(LinguisticTagger, givesEachTokenItsSentence)
{
    const QString text = u"See Fig. 3 there. Then stop!\n\nA heading\n\nText"_s;
    QStringList sentences;
    const auto tagger = LinguisticTagger::make();
    tagger->setString(text);
    tagger->enumerateTags({0, text.size()}, TagScheme::TokenType,
                          [&](std::optional<LinguisticTag>, TextRange, TextRange sentence, bool &) {
                              const QString words =
                                  text.mid(sentence.location, sentence.length).trimmed();
                              if (sentences.isEmpty() || sentences.last() != words)
                                  sentences << words;
                          });
    EXPECT_EQ(sentences.join(u'|'), u"See Fig. 3 there.|Then stop!||A heading|Text"_s);
}

TEST(LinguisticTagger, takesOtherLanguagesForNouns)
{
    const QString german = u"Der Drucker meldet einen Fehler, wenn die Datei nicht gelesen werden "
                           "kann; dann wird der Auftrag abgebrochen und die Warteschlange neu "
                           "aufgebaut."_s;
    EXPECT_EQ(words(german, LinguisticTag::Verb), "");
    EXPECT_EQ(words(u"Печать файла, 文字"_s, LinguisticTag::Noun), "Печать файла 文字");
    const auto tagger = LinguisticTagger::make();
    tagger->setString(german);
    EXPECT_EQ(tagger->lemmaAt(german.indexOf(u"Fehler"_s)), u"fehler"_s);
}

TEST(LinguisticTagger, bearsTextsThatAreNoText)
{
    QString noise;
    for (int index = 0; index < 20'000; ++index)
        noise += QChar(ushort(index * 7919));
    const QString endless = u"word "_s.repeated(20'000);
    const QString longWord = QString(20'000, u'x');
    for (const QString &text : {noise, endless, longWord, QString(1, QChar(0xd800))}) {
        qsizetype covered = 0;
        for (const Seen &seen : tokens(text, TagScheme::LexicalClass))
            covered += seen.text.size();
        EXPECT_EQ(covered, text.size());
    }
}

TEST(LinguisticTagger, worksInManyThreadsAtOnce)
{
    const QString text = u"The first request enables the server; later ones are queued. "_s;
    const auto expected = tokens(text.repeated(50), TagScheme::LexicalClass);
    std::vector<std::future<std::vector<Seen>>> results;
    results.reserve(4);
    for (int thread = 0; thread < 4; ++thread)
        results.push_back(std::async(std::launch::async, [&] {
            return tokens(text.repeated(50), TagScheme::LexicalClass);
        }));
    for (auto &result : results)
        EXPECT_EQ(result.get(), expected);
}
