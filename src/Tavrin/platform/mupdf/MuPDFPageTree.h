// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>

#include <Tavrin/platform/PageGeometry.h>
#include <Tavrin/platform/mupdf/MuPDFSession.h>

namespace Tavrin::MuPDFPageTree
{

/// Makes the page tree of a freshly opened session one that the engine can be trusted with, and
/// gives the number of its pages.
///
/// The engine believes the counts in the file, and follows its references as deep as they go. So
/// the tree is walked here first, each node once, and replaced in memory by a sound one over the
/// same pages. Linear in the size of the tree.
int repair(const MuPDFSession &session);

/// The dictionary of a page; null if it can't be had. Valid as long as the session.
pdf_obj *pageObject(const MuPDFSession &session, int page);

/// For a call group: loads a page, which the caller drops. In place of the engine's own loading,
/// which leaks the page's dictionary.
pdf_page *loadPage(fz_context *context, pdf_document *document, int page);

/// Boxes and rotation, inherited where the page itself has none.
std::optional<PageGeometry> geometry(const MuPDFSession &session, int page);

} // namespace Tavrin::MuPDFPageTree
