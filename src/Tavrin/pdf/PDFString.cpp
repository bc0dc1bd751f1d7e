// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/PDFString.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

PDFString::PDFString(const QString &value) : PDFObject(Internal(value)), m_value(value) {}

QString PDFString::description() const
{
    return u"PDFString("_s + m_value + u')';
}

} // namespace Tavrin
