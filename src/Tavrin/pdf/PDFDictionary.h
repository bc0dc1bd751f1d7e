// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>

#include <Tavrin/pdf/PDFObject.h>

namespace Tavrin
{

/// A dictionary of the file, wrapped without being read.
///
/// The structure of a document is a tree of these, from the catalog on:
///
///     const std::shared_ptr<const PDFObjectParser> parser(document, &document->objects());
///     if (const auto root = parser->catalog())
///         const auto pages = PDFDictionary({*root, parser}).object<PDFDictionary>("Pages");
class TAVRIN_CORE_EXPORT PDFDictionary : public PDFObject
{
public:
    /// The handle has to be one of a dictionary, and the parser not null.
    explicit PDFDictionary(PDFLowLevelObject dictionary);

    /// All keys whose value has a class here; read on first use, one level deep. Keys have no
    /// slash. Valid as long as the dictionary.
    const QMap<QString, PDFObjectPtr> &dict() const;

    /// The file's own count as long as nothing was read. After that it is that of dict(), which
    /// leaves out nulls and streams.
    qsizetype count() const;

    /// One value, or null. A single look-up fills nothing, so a walk along "Parent" can't loop by
    /// itself. A value that isn't in dict() yet is a new object at each call.
    PDFObjectPtr object(const char *key) const;

    /// The value if it is of the class asked for, else null.
    template <class Object>
    std::shared_ptr<Object> object(const char *key) const
    {
        return std::dynamic_pointer_cast<Object>(object(key));
    }

    /// Whether both stand for the same dictionary of the same file.
    bool isSameObject(const PDFDictionary &other) const;

    QString description() const override;
    QString debugDescription() const override;

private:
    mutable QMap<QString, PDFObjectPtr> m_dict;
};

using PDFDictionaryPtr = std::shared_ptr<PDFDictionary>;

} // namespace Tavrin
