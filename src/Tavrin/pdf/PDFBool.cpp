// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/PDFBool.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

PDFBool::PDFBool(bool value) : PDFObject(Internal(value)), m_value(value) {}

QString PDFBool::description() const
{
    return u"PDFBool("_s + (m_value ? u"true"_s : u"false"_s) + u')';
}

} // namespace Tavrin
