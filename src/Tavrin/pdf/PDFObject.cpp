// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/PDFObject.h>

#include <Tavrin/platform/DecimalForm.h>

#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

struct Printer {
    QString operator()(std::monostate) const { return u"nil"_s; }
    QString operator()(bool value) const { return value ? u"true"_s : u"false"_s; }
    QString operator()(double value) const { return decimalForm(value); }
    QString operator()(const QString &value) const { return value; }
    QString operator()(const PDFLowLevelObject &) const { return u"object"_s; }
};

} // namespace

PDFObject::PDFObject(Internal internal) : m_internalObj(std::move(internal)) {}

PDFObject::~PDFObject() = default;

const PDFLowLevelObject *PDFObject::lowLevelObject() const
{
    return std::get_if<PDFLowLevelObject>(&m_internalObj);
}

QString PDFObject::description() const
{
    return u"PDFObject("_s + std::visit(Printer{}, m_internalObj) + u')';
}

QString PDFObject::debugDescription() const
{
    return description();
}

QString PDFObject::nestedDescription() const
{
    return description();
}

} // namespace Tavrin
