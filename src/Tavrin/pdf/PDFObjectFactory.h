// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdf/PDFObject.h>

namespace Tavrin
{

/// Turns low-level objects into the classes of the object tree. Whoever goes down a tree asks
/// PDFDictionary::object and PDFArray::objects, which ask this.
class TAVRIN_CORE_EXPORT PDFObjectFactory
{
public:
    /// The object for a handle; null for a low-level null, a stream, and a value that can't be
    /// decoded. Arrays and dictionaries are wrapped, not read.
    ///
    /// The parser must not be null.
    static PDFObjectPtr object(const PDFLowLevelObject &source);
};

} // namespace Tavrin
