// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdf/PDFObject.h>

namespace Tavrin
{

/// A name or a string of the file; which of the two it was is not kept.
///
/// A string is decoded as a text string (ISO 32000-1, 7.9.2.2), a name as UTF-8 without its slash.
/// Immutable; equal if the values are.
class TAVRIN_CORE_EXPORT PDFString : public PDFObject
{
public:
    /// Of no file; PDFObjectFactory makes those of one.
    explicit PDFString(const QString &value);

    const QString &value() const { return m_value; }
    QString description() const override;

    friend bool operator==(const PDFString &a, const PDFString &b)
    {
        return a.m_value == b.m_value;
    }

private:
    QString m_value;
};

} // namespace Tavrin
