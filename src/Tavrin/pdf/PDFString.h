// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdf/PDFObject.h>

namespace Tavrin
{

/// A name or a string of the file; which of the two it was is not kept.
class TAVRIN_CORE_EXPORT PDFString : public PDFObject
{
public:
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
