// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/PDFNumber.h>

#include <Tavrin/platform/DecimalForm.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

PDFNumber::PDFNumber(double value) : PDFObject(Internal(value)), m_value(value) {}

QString PDFNumber::description() const
{
    return u"PDFNumber("_s + decimalForm(m_value) + u')';
}

} // namespace Tavrin
