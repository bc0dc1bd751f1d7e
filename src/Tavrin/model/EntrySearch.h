// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <vector>

#include <Tavrin/model/SearchOptions.h>

namespace Tavrin
{

class Specification;
class SpecificationEntry;

/// Search over the table of a specification. Linear in entries, terms and texts; there is no
/// index.
namespace EntrySearch
{

using EntryPtr = std::shared_ptr<SpecificationEntry>;

/// The share of the text that the term covers: whole where the term starts a word, half inside a
/// word, a third where it is found once blanks and punctuation are taken out of the text. Lengths
/// are counted in grapheme clusters.
float relevance(const QString &term, const QString &text);

std::vector<EntryPtr> search(const Specification &specification, const QString &text,
                             SearchOptions options);

std::vector<EntryPtr> mostSimilar(const Specification &specification, const QString &text,
                                  int resultCount);

} // namespace EntrySearch

} // namespace Tavrin
