// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/model/SpecificationEntryType.h>
#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// A heading or caption of a document, as a map will name it. A host may change, add and drop
/// entries before it turns the draft into a map.
struct DraftEntry {
    /// Of headings, the uppermost level of the document is Chapter.
    SpecificationEntryType type = SpecificationEntryType::Section;
    /// Sorts in document order. Letters have no place in it: appendix A of a document with eight
    /// chapters is [9].
    std::vector<int> index;
    /// The number as printed ("4.2.1", "A.3"), of figures and tables with the kind ("Figure 3-7"),
    /// else a word made of the title. Unique.
    QString label;
    /// As it stands on the page, where it was found there.
    QString title;
    /// From 0; -1 for an entry whose place nothing tells.
    int page = -1;
    /// In page space: the left end of the heading, at a whole number of points just above it.
    Point place;
};

/// What a document tells of itself, enough for a first map of it. All of it may be changed before
/// MapDrafter::specification is called. `identifier` and `revision` end up in spec URLs, which
/// hosts store: settle them before the map is shipped.
struct MapDraft {
    /// Never empty.
    QString title;
    /// The title, at first.
    QString shortTitle;
    /// Made of the title, in small letters and digits with hyphens between words. Never empty.
    QString identifier;
    /// As the title or the first pages have it, behind a word such as "version"; "1" where they
    /// don't.
    QString revision;
    /// Empty where the document names none.
    QString language;
    /// Chapters and sections, then figures and tables.
    std::vector<DraftEntry> entries;
    /// The pages without running heads and feet, in page space; absent without readable pages.
    std::optional<Rect> pageBounds;
    /// What could not be told, one sentence each, summed up over the entries.
    QStringList remarks;
};

} // namespace Tavrin
