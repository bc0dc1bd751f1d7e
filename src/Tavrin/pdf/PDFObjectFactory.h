// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdf/PDFObject.h>

namespace Tavrin
{

/// Turns low-level objects into the classes of the object tree.
class TAVRIN_CORE_EXPORT PDFObjectFactory
{
public:
    /// The object for a handle; null for a low-level null, a stream, and a value that can't be
    /// decoded. Arrays and dictionaries are wrapped, not read.
    static PDFObjectPtr object(const PDFLowLevelObject &source);
};

} // namespace Tavrin
