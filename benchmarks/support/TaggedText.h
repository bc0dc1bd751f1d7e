// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <array>
#include <vector>

#include <Tavrin/english/EnglishModel.h>

namespace Tavrin::Benchmarks
{

/// A text whose words people have tagged: a line a word with its class ("Noun", "Verb",
/// "Adjective", "Number", "Other", or "Punct", which isn't scored) and its lemma, parted by tabs,
/// and an empty line behind each sentence.
class TaggedText
{
public:
    /// Empty if the file can't be read.
    explicit TaggedText(const QString &path);

    bool isEmpty() const { return m_sentences.empty(); }
    /// The words with a blank between, a sentence a line.
    QString plainText() const;

    struct Accuracy {
        int words = 0;
        double classes = 0;
        double lemmas = 0;
        std::array<double, 3> nounVerbAdjectiveF1{};
    };

    /// Tags the words as they are given; with `errors`, prints each that came out wrong.
    Accuracy measure(const English::EnglishModel &model, bool errors) const;

private:
    struct Word {
        QString text;
        QString wordClass;
        QString lemma;
    };

    std::vector<std::vector<Word>> m_sentences;
};

} // namespace Tavrin::Benchmarks
