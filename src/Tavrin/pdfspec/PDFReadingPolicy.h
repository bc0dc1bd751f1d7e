// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace Tavrin
{

/// Which of a PDF's ways to write a place are read. A host that ships maps of its own documents
/// chooses what reads them right; one whose users bring documents of all producers chooses Common,
/// before it registers maps:
///
///     PDFSpecification::registerType(PDFReadingPolicy::Common);
///     manager.loadSpecInformation(maps);
enum class PDFReadingPolicy {
    /// Destinations of mode XYZ with both coordinates, in the name tree only as a dictionary with
    /// "D", on links and outline items only as "Dest". Maps for such documents know what they get.
    Strict,
    /// What most producers write as well: bare arrays and the old catalog dictionary as named
    /// destinations, every fit mode with what coordinates it gives (a missing y is the top of the
    /// page's box, a missing x its left), and GoTo actions on links and outline items.
    Common,
};

} // namespace Tavrin
