// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/EnglishModel.h>

#include <QDir>
#include <QFile>

#include <Tavrin/platform/LinguisticTagger.h>

namespace Tavrin::English
{

using namespace Qt::StringLiterals;

namespace
{

const QString lexiconPackage = u"festlex-poslex"_s;
const QString dictionaryPackage = u"wordnet-base"_s;

[[noreturn]] void fail(const QString &path, const QString &why, const QString &package)
{
    throw LinguisticTaggerError(u"Words can't be told apart by class, since %1 %2; install the "
                                "Debian package %3"_s.arg(path, why, package));
}

QByteArray contents(const QString &directory, const QString &name, const QString &package)
{
    QFile file(QDir(directory).filePath(name));
    if (!file.open(QIODevice::ReadOnly))
        fail(file.fileName(), u"can't be read"_s, package);
    return file.readAll();
}

Dictionary readDictionary(const QString &directory)
{
    struct Source {
        WordClass wordClass;
        QString ending;
    };
    Dictionary dictionary;
    for (const Source &source : {Source{WordClass::Noun, u"noun"_s},
                                 {WordClass::Verb, u"verb"_s},
                                 {WordClass::Adjective, u"adj"_s},
                                 {WordClass::Adverb, u"adv"_s}}) {
        const auto file = [&](const QString &name) {
            return contents(directory, name, dictionaryPackage);
        };
        dictionary.readIndex(file(u"index."_s + source.ending), source.wordClass);
        dictionary.readExceptions(file(source.ending + u".exc"_s), source.wordClass);
    }
    if (!dictionary.holds("word", WordClass::Noun))
        fail(QDir(directory).filePath(u"index.noun"_s), u"is no index of words"_s,
             dictionaryPackage);
    return dictionary;
}

} // namespace

ModelDirectories ModelDirectories::installed()
{
    return {QStringLiteral(TAVRIN_POSLEX_DIRECTORY), QStringLiteral(TAVRIN_WORDNET_DIRECTORY)};
}

EnglishModel::EnglishModel(TagTransitions transitions, Dictionary dictionary, Lexicon lexicon)
    : m_transitions(std::move(transitions)),
      m_dictionary(std::move(dictionary)),
      m_lexicon(std::move(lexicon))
{
}

std::shared_ptr<const EnglishModel> EnglishModel::load(const ModelDirectories &directories)
{
    const QString trigrams = u"wsj.wp39.tri.ngrambin"_s;
    const QString words = u"wsj.wp39.poslexR"_s;
    const QDir lexiconDirectory(directories.lexicon);
    auto transitions =
        TagTransitions::read(contents(directories.lexicon, trigrams, lexiconPackage));
    if (!transitions)
        fail(lexiconDirectory.filePath(trigrams), u"is no model of tags"_s, lexiconPackage);
    Dictionary dictionary = readDictionary(directories.dictionary);
    Lexicon lexicon(contents(directories.lexicon, words, lexiconPackage), *transitions, dictionary);
    if (lexicon.isEmpty())
        fail(lexiconDirectory.filePath(words), u"is no list of words"_s, lexiconPackage);
    return std::make_shared<EnglishModel>(*std::move(transitions), std::move(dictionary),
                                          std::move(lexicon));
}

std::shared_ptr<const EnglishModel> EnglishModel::shared()
{
    // A failure leaves the value unset, so that the next call tells it again.
    static const auto model = load(ModelDirectories::installed());
    return model;
}

} // namespace Tavrin::English
