// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <Tavrin/drafting/MapDraft.h>
#include <Tavrin/pdf/CachingPDFDocument.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

/// Makes a first map out of a PDF that has none.
///
/// \snippet making-maps/main.cpp draft
namespace Tavrin::MapDrafter
{

/// Chapters and sections from the outline, failing that from the printed table of contents, and
/// in either case the numbered headings of the pages that neither lists; each with its printed
/// number, the title as printed and the place of the heading itself; figures and tables by their
/// captions. The body column is measured,
/// so that running heads and feet can be left out.
///
/// `fallbackTitle`, the file's name for example, serves a document that states none. Reads the text
/// of every page; what could not be told is in the draft's remarks. Never fails: a document without
/// text gives a draft without entries. Takes as long as reading every page does. Any thread; the
/// draft keeps nothing of the document, which must not be null.
TAVRIN_CORE_EXPORT MapDraft draft(const std::shared_ptr<CachingPDFDocument> &document,
                                  const QString &fallbackTitle = {});

/// The draft as a specification bound to the document, for writing it as a map: entries with
/// explicit links, and the requirement that recognises the document by the words of its first
/// page. Throws PDFSpecification::ParseError for a document that no map can be bound to.
///
/// It keeps the document and is in no manager. Of two entries with one label the first is taken.
TAVRIN_CORE_EXPORT std::shared_ptr<PDFSpecification>
specification(const MapDraft &draft, const std::shared_ptr<CachingPDFDocument> &document);

} // namespace Tavrin::MapDrafter
