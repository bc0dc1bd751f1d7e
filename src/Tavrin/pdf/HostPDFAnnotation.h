// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QUrl>

#include <optional>

#include <Tavrin/pdf/HostPDFDestination.h>

namespace Tavrin
{

/// An annotation of a page, as far as a reader of specifications needs it.
struct HostPDFAnnotation {
    /// The file's own name of the kind: "Link", "Text", "Highlight".
    QString type;
    /// In page space.
    Rect bounds;
    QString contents;
    /// Where a link leads inside the document, and outside it.
    std::optional<HostPDFDestination> destination;
    QUrl url;
};

} // namespace Tavrin
