// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Why the text of an entry could not be cut out of the pages. Carries what a person needs to find
/// the fault in the map. PDFSpecification::extractText throws it. Entries catch it: their summary
/// is absent then, and the fault is told on standard error.
class TAVRIN_CORE_EXPORT EntryExtractionError : public std::runtime_error
{
public:
    /// How far the extraction came.
    enum class Kind {
        /// No heading with the title stands at the entry's place; `text` is how its page begins.
        EntryTitleNotFound,
        /// The heading stands on the page but not in what is left of it without running heads,
        /// figures and tables; `text` is how that begins.
        TitleNotFoundInFilteredText,
        /// There is no page to take text from. Carries nothing.
        UnableToGeneratePresentationText,
    };

    /// what() puts all of it into a sentence.
    explicit EntryExtractionError(Kind kind, const QString &title = {}, int page = -1,
                                  const QString &text = {});

    Kind kind;
    /// Of the entry, as the map has it.
    QString title;
    /// From 0. -1 where there is none.
    int page;
    /// Of the page, cut to its beginning.
    QString text;
};

} // namespace Tavrin
