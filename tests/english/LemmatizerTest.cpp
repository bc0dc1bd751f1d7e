// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <Tavrin/english/Lemmatizer.h>

using namespace Tavrin::English;

namespace
{

std::string lemma(const std::string &word, PennTag tag)
{
    return Lemmatizer(*EnglishModel::shared()).lemma(WordForm(QString::fromStdString(word)), tag);
}

} // namespace

TEST(Lemmatizer, takesPluralEndingsOff)
{
    for (const auto &[plural, singular] :
         std::vector<std::pair<std::string, std::string>>{{"boxes", "box"},
                                                          {"indices", "index"},
                                                          {"matrices", "matrix"},
                                                          {"keys", "key"},
                                                          {"buses", "bus"},
                                                          {"branches", "branch"},
                                                          {"directories", "directory"},
                                                          {"data", "data"},
                                                          {"species", "species"},
                                                          {"mutexes", "mutex"},
                                                          {"hostnames", "hostname"},
                                                          {"corpus", "corpus"},
                                                          {"classes", "class"},
                                                          {"caches", "cache"},
                                                          {"subdirectories", "subdirectory"}})
        EXPECT_EQ(lemma(plural, PennTag::NNS), singular);
    EXPECT_EQ(lemma("bus", PennTag::NN), "bus");
    EXPECT_EQ(lemma("Buffers", PennTag::NNP), "buffer");
    EXPECT_EQ(lemma("EPS", PennTag::NNP), "eps");
}

TEST(Lemmatizer, takesVerbEndingsOff)
{
    for (const auto &[form, base] :
         std::vector<std::pair<std::string, std::string>>{{"installed", "install"},
                                                          {"written", "write"},
                                                          {"lay", "lie"},
                                                          {"built", "build"},
                                                          {"used", "use"},
                                                          {"stopped", "stop"},
                                                          {"parsed", "parse"},
                                                          {"had", "have"},
                                                          {"symlinked", "symlink"},
                                                          {"tokenized", "tokenize"},
                                                          {"preallocated", "preallocate"}})
        EXPECT_EQ(lemma(form, PennTag::VBD), base);
    EXPECT_EQ(lemma("debugging", PennTag::VBG), "debug");
    EXPECT_EQ(lemma("running", PennTag::VBG), "run");
    EXPECT_EQ(lemma("caching", PennTag::VBG), "cache");
    EXPECT_EQ(lemma("specifies", PennTag::VBZ), "specify");
    EXPECT_EQ(lemma("reinitializes", PennTag::VBZ), "reinitialize");
    EXPECT_EQ(lemma("'s", PennTag::VBZ), "be");
}

TEST(Lemmatizer, takesDegreesOff)
{
    EXPECT_EQ(lemma("larger", PennTag::JJR), "large");
    EXPECT_EQ(lemma("earliest", PennTag::JJS), "early");
    EXPECT_EQ(lemma("better", PennTag::JJR), "good");
    EXPECT_EQ(lemma("more", PennTag::JJR), "more");
    EXPECT_EQ(lemma("other", PennTag::JJ), "other");
}
