// SPDX-License-Identifier: Apache-2.0
#include "EntryReport.h"

#include <QJsonArray>
#include <QStringList>

#include <Tavrin/model/PrintedNumber.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "Console.h"

namespace Tavrin::Cli::EntryReport
{

using namespace Qt::StringLiterals;

namespace
{

/// Null unless the entry has a place on a page.
const HostPDFDestination *destination(const SpecificationEntry &entry)
{
    const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
    const bool hasPlace = pdfEntry && pdfEntry->destination() && pdfEntry->destination()->page();
    return hasPlace ? &*pdfEntry->destination() : nullptr;
}

bool isBound(const SpecificationEntry &entry)
{
    const auto specification = std::dynamic_pointer_cast<PDFSpecification>(entry.specification());
    return specification && specification->document();
}

QString coordinate(double value)
{
    return QString::number(value, 'f', 0);
}

std::optional<StyledTextEditing::LineRange> lineRange(const SpecificationEntry &entry)
{
    const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
    return pdfEntry ? pdfEntry->lineRange() : std::nullopt;
}

/// ", lines 3 to 5" for a part of an entry.
QString lines(const SpecificationEntry &entry)
{
    const auto range = lineRange(entry);
    return range ? localized(", lines %1 to %2", "behind a number")
                       .arg(range->lower + 1)
                       .arg(range->upper)
                 : QString();
}

} // namespace

QString heading(const SpecificationEntry &entry)
{
    return PrintedNumber::name(entry) + lines(entry) + u"  "_s + entry.title();
}

QString place(const SpecificationEntry &entry)
{
    const HostPDFDestination *target = destination(entry);
    if (!target)
        return isBound(entry) ? localized("no place in the PDF", "place of an entry")
                              : localized("no PDF bound", "a specification");
    const QString counted = QString::number(target->page()->index() + 1);
    const QString printed = target->page()->label();
    const QString page = printed == counted
                             ? counted
                             : localized("%1 (printed %2)", "page number").arg(counted, printed);
    return localized("page %1 at %2, %3", "place of an entry")
        .arg(page, coordinate(target->point().x), coordinate(target->point().y));
}

QString url(const SpecificationEntry &entry)
{
    const auto specification = entry.specification();
    return specification ? specification->generateURL(entry, true, true) : QString();
}

void print(const SpecificationEntry &entry)
{
    const auto specification = entry.specification();
    Console::print(Console::strong(heading(entry)));
    Console::print(u"    "_s + place(entry) + u"  ·  "_s +
                   (specification ? specification->shortTitle() : QString()));
    Console::print(u"    "_s + Console::faint(url(entry)));
}

QJsonObject json(const SpecificationEntry &entry)
{
    QJsonArray index;
    for (const int number : entry.index())
        index.append(number);
    QJsonObject object{{u"label"_s, entry.label()}, {u"kind"_s, textForm(entry.type())},
                       {u"index"_s, index},         {u"number"_s, PrintedNumber::number(entry)},
                       {u"title"_s, entry.title()}, {u"url"_s, url(entry)}};
    if (const auto specification = entry.specification()) {
        object[u"specification"_s] = specification->identifier();
        object[u"revision"_s] = specification->revision();
    }
    if (const auto range = lineRange(entry))
        object[u"lineRange"_s] = QJsonArray{range->lower, range->upper};
    if (const HostPDFDestination *target = destination(entry)) {
        object[u"page"_s] = target->page()->index();
        object[u"pageLabel"_s] = target->page()->label();
        object[u"x"_s] = target->point().x;
        object[u"y"_s] = target->point().y;
    }
    return object;
}

} // namespace Tavrin::Cli::EntryReport
