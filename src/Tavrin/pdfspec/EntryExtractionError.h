// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Why the text of an entry could not be cut out of the pages. Carries what a person needs to find
/// the fault in the map.
class TAVRIN_CORE_EXPORT EntryExtractionError : public std::runtime_error
{
public:
    enum class Kind {
        /// No heading with the title stands at the entry's place; `text` is how its page begins.
        EntryTitleNotFound,
        /// The heading stands on the page but not in what is left of it without running heads,
        /// figures and tables; `text` is how that begins.
        TitleNotFoundInFilteredText,
        /// There is no page to take text from. Carries nothing.
        UnableToGeneratePresentationText,
    };

    explicit EntryExtractionError(Kind kind, const QString &title = {}, int page = -1,
                                  const QString &text = {});

    Kind kind;
    QString title;
    /// From 0.
    int page;
    QString text;
};

} // namespace Tavrin
