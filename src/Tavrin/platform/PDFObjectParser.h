// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <functional>
#include <optional>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// What an object of the file is (ISO 32000-1, 7.3). Streams and null are Other.
enum class PDFObjectType { Boolean, Integer, Real, Name, String, Array, Dictionary, Other };

/// A low-level object of an open document, references already followed.
///
/// Owned by the document and valid while it is open. Two references to one object in the file
/// give equal handles, so a page is recognised by comparing handles.
struct PDFObjectHandle {
    quintptr id = 0;

    friend bool operator==(PDFObjectHandle, PDFObjectHandle) = default;
};

/// For hashes of Qt.
inline size_t qHash(PDFObjectHandle handle, size_t seed = 0)
{
    return ::qHash(handle.id, seed);
}

/// Typed reads of the objects of one PDF file, one level deep at a time.
///
/// A read of the wrong type, of a missing element or of something the file has broken gives no
/// value. Nothing here walks the file, so a cycle costs nothing. Safe to call from any thread:
/// the implementation serialises reads of one document.
///
/// The classes derived from PDFObject are easier to use; this is the way past them, and what an
/// engine has to offer.
class TAVRIN_CORE_EXPORT PDFObjectParser
{
public:
    virtual ~PDFObjectParser();

    /// The document catalog, or nothing in a file without a readable one.
    virtual std::optional<PDFObjectHandle> catalog() const = 0;

    /// Other for a handle that stands for nothing.
    virtual PDFObjectType type(PDFObjectHandle object) const = 0;
    /// The value of a boolean.
    virtual std::optional<bool> boolean(PDFObjectHandle object) const = 0;
    /// The value of an integer or a real.
    virtual std::optional<double> number(PDFObjectHandle object) const = 0;
    /// The bytes of a name, without the slash.
    virtual std::optional<QByteArray> name(PDFObjectHandle object) const = 0;
    /// A string, decoded as a text string (ISO 32000-1, 7.9.2.2).
    virtual std::optional<QString> text(PDFObjectHandle object) const = 0;

    /// How many elements an array has, nulls included; 0 for anything else.
    virtual qsizetype arrayCount(PDFObjectHandle array) const = 0;
    /// The element at a position from 0.
    virtual std::optional<PDFObjectHandle> arrayElement(PDFObjectHandle array,
                                                        qsizetype index) const = 0;
    /// An element that is a boolean.
    virtual std::optional<bool> arrayBoolean(PDFObjectHandle array, qsizetype index) const = 0;
    /// An element that is a number.
    virtual std::optional<double> arrayNumber(PDFObjectHandle array, qsizetype index) const = 0;

    /// How many keys a dictionary has; 0 for anything else.
    virtual qsizetype dictionaryCount(PDFObjectHandle dictionary) const = 0;
    /// The value of a key, which is given without the slash.
    virtual std::optional<PDFObjectHandle> dictionaryValue(PDFObjectHandle dictionary,
                                                           const char *key) const = 0;
    /// The value of a key, if it is a boolean.
    virtual std::optional<bool> dictionaryBoolean(PDFObjectHandle dictionary,
                                                  const char *key) const = 0;
    /// The value of a key, if it is a number.
    virtual std::optional<double> dictionaryNumber(PDFObjectHandle dictionary,
                                                   const char *key) const = 0;

    /// `context` is what enumerateDictionary() was given. It may not throw: an engine may stand
    /// between.
    using Enumerator = void (*)(const QByteArray &key, PDFObjectHandle value, void *context);
    /// Calls back for every key and value, in the order of the file.
    virtual void enumerateDictionary(PDFObjectHandle dictionary, Enumerator callback,
                                     void *context) const = 0;
};

} // namespace Tavrin
