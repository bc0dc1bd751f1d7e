// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>

#include <Tavrin/english/Dictionary.h>
#include <Tavrin/english/Lexicon.h>
#include <Tavrin/english/TagTransitions.h>

namespace Tavrin::English
{

/// Where the data of the language lie: directories of two Debian packages.
struct ModelDirectories {
    QString lexicon;
    QString dictionary;

    /// Where the packages put them.
    static ModelDirectories installed();
};

/// All that is known of English. Immutable; any thread.
class EnglishModel
{
public:
    /// Throws LinguisticTaggerError, whose message names the package that is missing.
    static std::shared_ptr<const EnglishModel> load(const ModelDirectories &directories);

    /// The installed data, read once a process.
    static std::shared_ptr<const EnglishModel> shared();

    const TagTransitions &transitions() const { return m_transitions; }
    const Dictionary &dictionary() const { return m_dictionary; }
    const Lexicon &lexicon() const { return m_lexicon; }

    EnglishModel(TagTransitions transitions, Dictionary dictionary, Lexicon lexicon);

private:
    TagTransitions m_transitions;
    Dictionary m_dictionary;
    Lexicon m_lexicon;
};

} // namespace Tavrin::English
