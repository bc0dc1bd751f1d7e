// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/pdf/PDFObject.h>

namespace Tavrin
{

/// An array of the file, wrapped without being read.
///
/// Elements that have no class here (nulls, streams) take no position: those behind them move
/// forward.
///
/// In a file's coordinates, [0 0 595 842] for example, the elements are PDFNumber.
class TAVRIN_CORE_EXPORT PDFArray : public PDFObject
{
public:
    /// The handle has to be one of an array, and the parser not null.
    explicit PDFArray(PDFLowLevelObject array);

    /// The elements; read on first use, one level deep. None is null. Valid as long as the array.
    const std::vector<PDFObjectPtr> &objects() const;

    /// The file's own count as long as nothing was read, so it can be greater than that of
    /// objects().
    qsizetype count() const;

    /// Throws std::out_of_range beyond objects().
    const PDFObjectPtr &operator[](std::size_t index) const { return objects().at(index); }
    auto begin() const { return objects().begin(); }
    auto end() const { return objects().end(); }

    QString description() const override;
    QString nestedDescription() const override;

private:
    mutable std::vector<PDFObjectPtr> m_objects;
};

} // namespace Tavrin
