// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QUrl>

#include <optional>

#include <Tavrin/pdf/HostPDFDestination.h>

namespace Tavrin
{

/// An annotation of a page, as far as a reader of specifications needs it. PDFSpecification may
/// take fewer of them for links between entries: see PDFReadingPolicy.
struct HostPDFAnnotation {
    /// The file's own name of the kind: "Link", "Text", "Highlight".
    QString type;
    /// In page space.
    Rect bounds;
    /// The text of a note; often empty.
    QString contents;
    /// Where a link leads inside the document; absent for everything else.
    std::optional<HostPDFDestination> destination;
    /// Where a link leads outside; empty if it doesn't. It is the file's word: a host checks the
    /// scheme before it opens one.
    QUrl url;
};

} // namespace Tavrin
