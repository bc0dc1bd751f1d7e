// SPDX-License-Identifier: Apache-2.0
#include <support/TaggedText.h>

#include <QFile>
#include <QHash>
#include <QTextStream>

#include <Tavrin/english/Lemmatizer.h>
#include <Tavrin/english/SentenceTagger.h>
#include <Tavrin/english/WordClasses.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

/// Counts of one class: found rightly, in the text, and found at all.
struct ClassCount {
    int right = 0;
    int gold = 0;
    int found = 0;

    double f1() const { return right > 0 ? 200.0 * right / (gold + found) : 0; }
};

QString className(English::PennTag tag)
{
    switch (English::lexicalClass(tag)) {
    case LinguisticTag::Noun:
        return u"Noun"_s;
    case LinguisticTag::Verb:
        return u"Verb"_s;
    case LinguisticTag::Adjective:
        return u"Adjective"_s;
    case LinguisticTag::Number:
        return u"Number"_s;
    default:
        return u"Other"_s;
    }
}

} // namespace

TaggedText::TaggedText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    std::vector<Word> sentence;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() >= 3) {
            sentence.push_back({fields[0], fields[1], fields[2]});
        } else if (!sentence.empty()) {
            m_sentences.push_back(std::move(sentence));
            sentence.clear();
        }
    }
    if (!sentence.empty())
        m_sentences.push_back(std::move(sentence));
}

QString TaggedText::plainText() const
{
    QString text;
    for (const auto &sentence : m_sentences) {
        for (const Word &word : sentence)
            text += word.text + u' ';
        text += u'\n';
    }
    return text;
}

TaggedText::Accuracy TaggedText::measure(const English::EnglishModel &model, bool errors) const
{
    const English::Lemmatizer lemmatizer(model);
    English::SentenceTagger tagger(model);
    QHash<QString, ClassCount> counts;
    int words = 0;
    int rightClasses = 0;
    int lemmas = 0;
    int rightLemmas = 0;
    for (const auto &sentence : m_sentences) {
        std::vector<English::WordForm> forms;
        for (const Word &word : sentence)
            forms.emplace_back(word.text);
        std::vector<English::PennTag> tags(forms.size());
        tagger.tag(forms, tags);
        for (std::size_t index = 0; index < sentence.size(); ++index) {
            const Word &word = sentence[index];
            if (word.wordClass == u"Punct")
                continue;
            const QString found = className(tags[index]);
            const QString lemma =
                QString::fromStdString(lemmatizer.lemma(forms[index], tags[index]));
            const bool right = found == word.wordClass;
            ++words;
            rightClasses += right;
            ++counts[word.wordClass].gold;
            ++counts[found].found;
            counts[word.wordClass].right += right;
            const bool hasLemma = word.wordClass != u"Number" && word.wordClass != u"Other";
            const bool sameLemma = lemma.compare(word.lemma, Qt::CaseInsensitive) == 0;
            lemmas += hasLemma;
            rightLemmas += hasLemma && sameLemma;
            if (errors && (!right || (hasLemma && !sameLemma)))
                QTextStream(stdout) << word.text << u'\t' << word.wordClass << u'\t' << found
                                    << u'\t' << word.lemma << u'\t' << lemma << u'\n';
        }
    }
    return {words,
            100.0 * rightClasses / std::max(1, words),
            100.0 * rightLemmas / std::max(1, lemmas),
            {counts[u"Noun"_s].f1(), counts[u"Verb"_s].f1(), counts[u"Adjective"_s].f1()}};
}

} // namespace Tavrin::Benchmarks
