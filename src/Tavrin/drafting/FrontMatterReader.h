// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/drafting/PrintedPages.h>
#include <Tavrin/pdf/CachingPDFDocument.h>

/// What a document's information and its first pages say of the document as a whole.
namespace Tavrin::FrontMatterReader
{

/// The title of the document information, if it is one and not a file's name; else the largest
/// print of the first page that has text if that is larger than the body: one line or several of
/// that size. Empty if there is none.
QString title(const CachingPDFDocument &document, const PrintedPages &pages);

/// What stands behind "Version", "Revision", "Edition" and the like in the title, or in a line of
/// the first three pages that begins so; "1" if nothing does.
QString revision(const QString &title, const PrintedPages &pages);

/// The catalog's language ("en-US"), empty if it names none.
QString language(const CachingPDFDocument &document);

} // namespace Tavrin::FrontMatterReader
