// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdf/PDFObject.h>

namespace Tavrin
{

/// An integer or a real of the file; both are read as a double. Immutable; equal if the values are.
class TAVRIN_CORE_EXPORT PDFNumber : public PDFObject
{
public:
    /// Of no file; PDFObjectFactory makes those of one.
    explicit PDFNumber(double value);

    double value() const { return m_value; }
    QString description() const override;

    friend bool operator==(const PDFNumber &a, const PDFNumber &b)
    {
        return a.m_value == b.m_value;
    }

private:
    double m_value;
};

} // namespace Tavrin
