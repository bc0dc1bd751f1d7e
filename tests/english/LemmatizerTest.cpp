// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/english/Lemmatizer.h>

using namespace Tavrin::English;

namespace
{

/// Of words that blanks part.
std::string lemmas(const QString &words, PennTag tag)
{
    const Lemmatizer lemmatizer(*EnglishModel::shared());
    QStringList result;
    for (const QString &word : words.split(u' '))
        result += QString::fromStdString(lemmatizer.lemma(WordForm(word), tag));
    return result.join(u' ').toStdString();
}

} // namespace

TEST(Lemmatizer, takesPluralEndingsOff)
{
    EXPECT_EQ(lemmas(u"boxes indices matrices keys buses branches directories data species"_s,
                     PennTag::NNS),
              "box index matrix key bus branch directory data species");
    EXPECT_EQ(lemmas(u"mutexes hostnames corpus classes caches subdirectories"_s, PennTag::NNS),
              "mutex hostname corpus class cache subdirectory");
    EXPECT_EQ(lemmas(u"bus"_s, PennTag::NN), "bus");
    EXPECT_EQ(lemmas(u"Buffers EPS"_s, PennTag::NNP), "buffer eps");
}

TEST(Lemmatizer, takesVerbEndingsOff)
{
    EXPECT_EQ(lemmas(u"installed written lay built used stopped parsed had symlinked tokenized "
                     "preallocated"_s,
                     PennTag::VBD),
              "install write lie build use stop parse have symlink tokenize preallocate");
    EXPECT_EQ(lemmas(u"debugging running caching"_s, PennTag::VBG), "debug run cache");
    EXPECT_EQ(lemmas(u"specifies reinitializes 's"_s, PennTag::VBZ), "specify reinitialize be");
}

TEST(Lemmatizer, takesDegreesOff)
{
    EXPECT_EQ(lemmas(u"larger better more"_s, PennTag::JJR), "large good more");
    EXPECT_EQ(lemmas(u"earliest"_s, PennTag::JJS), "early");
    EXPECT_EQ(lemmas(u"other"_s, PennTag::JJ), "other");
}
