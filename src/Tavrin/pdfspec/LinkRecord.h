// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// A link of a page to a named destination. Made by PDFSpecification::readLinks. What it stands for
/// in the document, PDFSpecification::linkDestinationMapping tells.
struct LinkRecord {
    /// The destination's name.
    QString label;
    /// In page space.
    Rect bounds;

    friend bool operator==(const LinkRecord &, const LinkRecord &) = default;
};

} // namespace Tavrin
