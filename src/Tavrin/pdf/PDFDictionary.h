// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>

#include <Tavrin/pdf/PDFObject.h>

namespace Tavrin
{

/// A dictionary of the file, wrapped without being read.
class TAVRIN_CORE_EXPORT PDFDictionary : public PDFObject
{
public:
    explicit PDFDictionary(PDFLowLevelObject dictionary);

    /// All keys whose value has a class here; read on first use, one level deep.
    const QMap<QString, PDFObjectPtr> &dict() const;

    /// The file's own count as long as nothing was read.
    qsizetype count() const;

    /// One value, or null. A single look-up fills nothing, so a walk along "Parent" can't loop
    /// by itself.
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
