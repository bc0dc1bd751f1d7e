// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <variant>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/PDFObjectParser.h>

namespace Tavrin
{

/// A low-level array or dictionary together with the parser that reads it. Keeps the document
/// open, so an object tree can outlive whoever made it.
///
/// The parser is made to share the document's life:
///
///     const std::shared_ptr<const PDFObjectParser> parser(document, &document->objects());
struct PDFLowLevelObject {
    PDFObjectHandle handle;
    std::shared_ptr<const PDFObjectParser> parser;

    friend bool operator==(const PDFLowLevelObject &, const PDFLowLevelObject &) = default;
};

/// A read-only object of a PDF file.
///
/// Objects are wrapped when they are first asked for: a huge file costs what is touched of it,
/// and a cycle in the file costs nothing until somebody walks it. A tree is used by one thread
/// at a time.
///
/// What a host meets is one of PDFArray, PDFBool, PDFDictionary, PDFNumber and PDFString, held by
/// std::shared_ptr. Hosts need these for what the library does not read of a file.
class TAVRIN_CORE_EXPORT PDFObject
{
public:
    /// What the object was made from: the decoded value, or the low-level handle.
    using Internal = std::variant<std::monostate, bool, double, QString, PDFLowLevelObject>;

    /// PDFObjectFactory makes the right class for an object of a file.
    explicit PDFObject(Internal internal = {});
    virtual ~PDFObject();
    PDFObject(const PDFObject &) = delete;
    PDFObject &operator=(const PDFObject &) = delete;

    const Internal &internalObj() const { return m_internalObj; }
    /// The handle of an array or a dictionary; null for everything else.
    const PDFLowLevelObject *lowLevelObject() const;

    /// For diagnostics: one line for everything but arrays.
    virtual QString description() const;
    /// For diagnostics: what an array or a dictionary holds, one level deep.
    virtual QString debugDescription() const;
    /// The form in which the object stands inside the debug form of another. Arrays and
    /// dictionaries print their count there, so no diagnostic walks a cycle or grows with the file.
    virtual QString nestedDescription() const;

private:
    Internal m_internalObj;
};

using PDFObjectPtr = std::shared_ptr<PDFObject>;

} // namespace Tavrin
