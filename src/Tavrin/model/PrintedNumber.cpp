// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/PrintedNumber.h>

#include <QRegularExpression>

namespace Tavrin::PrintedNumber
{

using namespace Qt::StringLiterals;

QString number(const SpecificationEntry &entry)
{
    static const QRegularExpression lettered(
        u"^(?:[A-Z][a-z]+ )?(?:[A-Z]|[IVXL]+)(?:[.-](?:\\d+|[A-Z]))*$"_s);
    return lettered.match(entry.label()).hasMatch() ? entry.label() : entry.number();
}

QString name(const SpecificationEntry &entry)
{
    const QString printed = number(entry);
    // "Part II" brings its own word.
    return printed.contains(u' ') ? printed
                                  : (description(entry.type()) + u' ' + printed).trimmed();
}

} // namespace Tavrin::PrintedNumber
