// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/enhance/PDFXMLEnhancer.h>

/// Which link belongs to which entry, told by nothing but the order of both.
namespace Tavrin::LinkPairing
{

/// What the names of links are told apart by; see PDFXMLEnhancer.
struct Markers {
    const QMap<QString, SpecificationEntryType> &types;
    const QStringList &ignored;
    const QStringList &required;
};

/// Gives the n-th link of a kind to the n-th entry of that kind by number; sections and chapters
/// are one kind. Links that are too many or of no kind, and entries left over, are told on
/// standard error.
PDFXMLEnhancer::LabelLinkMapping
pair(const EntryTable &entries,
     const std::vector<std::vector<PDFXMLEnhancer::NamedPlace>> &linksByPage,
     const Markers &markers);

} // namespace Tavrin::LinkPairing
