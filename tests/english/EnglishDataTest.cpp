// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>

#include <Tavrin/english/EnglishModel.h>
#include <Tavrin/platform/LinguisticTagger.h>

using namespace Tavrin::English;

namespace
{

std::string failure(const ModelDirectories &directories)
{
    try {
        EnglishModel::load(directories);
    } catch (const LinguisticTaggerError &error) {
        return error.what();
    }
    return {};
}

/// A copy of a directory's small files, to be spoilt.
void copyFiles(const QString &from, const QDir &to)
{
    for (const QString &name : QDir(from).entryList({u"index.*"_s, u"*.exc"_s, u"wsj*"_s}))
        QFile::copy(QDir(from).filePath(name), to.filePath(name));
}

void write(const QString &path, const QByteArray &data)
{
    QFile::remove(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(data);
}

} // namespace

TEST(EnglishData, thatAreMissingAreNamedWithTheirPackage)
{
    const ModelDirectories installed = ModelDirectories::installed();
    EXPECT_THAT(failure({u"/nowhere"_s, installed.dictionary}),
                AllOf(HasSubstr("/nowhere/wsj.wp39.tri.ngrambin can't be read"),
                      HasSubstr("festlex-poslex")));
    EXPECT_THAT(failure({installed.lexicon, u"/nowhere"_s}),
                AllOf(HasSubstr("/nowhere/index.noun"), HasSubstr("wordnet-base")));
}

TEST(EnglishData, thatAreSpoiltAreNoCrash)
{
    QTemporaryDir directory;
    const QDir here(directory.path());
    const ModelDirectories installed = ModelDirectories::installed();
    copyFiles(installed.lexicon, here);
    copyFiles(installed.dictionary, here);
    const ModelDirectories copies{here.path(), here.path()};
    ASSERT_EQ(failure(copies), "");

    const QString trigrams = here.filePath(u"wsj.wp39.tri.ngrambin"_s);
    QFile original(trigrams);
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const QByteArray sound = original.readAll();
    write(trigrams, sound.first(sound.size() / 2));
    EXPECT_THAT(failure(copies), HasSubstr("is no model of tags"));
    write(trigrams, "NgramBin_2 3\n");
    EXPECT_THAT(failure(copies), HasSubstr("is no model of tags"));
    write(trigrams, sound);

    write(here.filePath(u"wsj.wp39.poslexR"_s), "MNCL\n(\"\n(\"a\" ((\n)(nn x)\n\" (\n");
    EXPECT_THAT(failure(copies), HasSubstr("is no list of words"));
    write(here.filePath(u"index.noun"_s), QByteArray());
    EXPECT_THAT(failure(copies), HasSubstr("is no index of words"));
}

TEST(EnglishData, areReadOnce)
{
    EXPECT_EQ(EnglishModel::shared(), EnglishModel::shared());
}

TEST(TagTransitions, addUpToOne)
{
    const TagTransitions &transitions = EnglishModel::shared()->transitions();
    for (const auto &[before, previous] :
         {std::pair(PennTag::NN, PennTag::PUNC), {PennTag::DT, PennTag::JJ}}) {
        double sum = 0;
        for (int tag = 0; tag < pennTagCount; ++tag)
            sum += std::exp(double(transitions(before, previous, static_cast<PennTag>(tag))));
        EXPECT_NEAR(sum, 1, 1e-3);
    }
    EXPECT_GT(transitions(PennTag::DT, PennTag::JJ, PennTag::NN),
              transitions(PennTag::DT, PennTag::JJ, PennTag::VB));
}

TEST(WordTable, findsWhatWasInserted)
{
    WordTable table(1);
    for (int number = 0; number < 5000; ++number)
        EXPECT_EQ(table.insert("w" + std::to_string(number)), number);
    EXPECT_EQ(table.insert("w4999"), 4999);
    EXPECT_EQ(table.find("w1234"), 1234);
    EXPECT_EQ(table.word(1234), "w1234");
    EXPECT_EQ(table.find("w"), WordTable::absent);
    EXPECT_EQ(table.find(""), WordTable::absent);
}
