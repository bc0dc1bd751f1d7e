// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdf/PDFObject.h>

namespace Tavrin
{

/// A boolean of the file.
///
/// Immutable; equal if the values are.
class TAVRIN_CORE_EXPORT PDFBool : public PDFObject
{
public:
    /// Of no file; PDFObjectFactory makes those of one.
    explicit PDFBool(bool value);

    bool value() const { return m_value; }
    QString description() const override;

    friend bool operator==(const PDFBool &a, const PDFBool &b) { return a.m_value == b.m_value; }

private:
    bool m_value;
};

} // namespace Tavrin
