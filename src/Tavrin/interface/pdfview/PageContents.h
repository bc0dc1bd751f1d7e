// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <vector>

#include <Tavrin/pdf/HostPDFPage.h>
#include <Tavrin/pdf/PageText.h>

namespace Tavrin
{

/// What a view wants to know of a page beside its picture, read off the main thread. Immutable.
struct PageContents {
    /// Null if the page can't be read.
    std::shared_ptr<const PageText> text;
    std::vector<HostPDFAnnotation> annotations;
    /// The printed page number.
    QString label;
};

using PageContentsPtr = std::shared_ptr<const PageContents>;

} // namespace Tavrin
