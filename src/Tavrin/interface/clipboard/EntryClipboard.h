// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <Tavrin/WidgetsExport.h>

class QMimeData;

namespace Tavrin
{

class SpecificationEntry;

/// An entry as other programs paste it: in plain text its kind, number and title above its spec
/// URL; the URL alone where links are wanted; and the title as a link where text has style. The URL
/// names the specification, if that has an identifier, and no revision. Main thread. The text of
/// the entry is not copied.
class TAVRIN_WIDGETS_EXPORT EntryClipboard
{
public:
    /// For a drag, or a clipboard of the host's choice. Never null.
    static std::unique_ptr<QMimeData> mimeData(const SpecificationEntry &entry);
    /// Puts the data on the clipboard of the system.
    static void copy(const SpecificationEntry &entry);
};

} // namespace Tavrin
