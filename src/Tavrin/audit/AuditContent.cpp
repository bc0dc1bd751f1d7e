// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditContent.h>

#include <Tavrin/audit/AuditOutline.h>
#include <Tavrin/model/PrintedNumber.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin::AuditContent
{

using namespace Qt::StringLiterals;

QString name(const SpecificationEntry &entry)
{
    const QString printed = PrintedNumber::name(entry);
    const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
    const auto range = pdfEntry ? pdfEntry->lineRange() : std::nullopt;
    return range ? printed + localized(", lines %1 to %2", "behind a number")
                                 .arg(range->lower + 1)
                                 .arg(range->upper)
                 : printed;
}

QString page(const SpecificationEntry &entry)
{
    const HostPDFDestination *place = placeOf(entry);
    if (!place)
        return {};
    const QString counted = QString::number(place->page()->index() + 1);
    const QString printed = place->page()->label();
    return printed == counted ? counted
                              : localized("%1 (printed %2)", "page number").arg(counted, printed);
}

QString url(const SpecificationEntry &entry)
{
    const auto specification = entry.specification();
    return specification ? specification->generateURL(entry, true, true) : QString();
}

bool isShown(const AuditReport &report)
{
    return report.specification->allowsPreviews();
}

std::optional<StyledText> summary(const SpecificationEntry &entry)
{
    const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
    return pdfEntry && isTextual(entry.type()) ? pdfEntry->summaryText() : std::nullopt;
}

QString plainSummary(const SpecificationEntry &entry)
{
    const auto text = summary(entry);
    return text ? text->string() : QString();
}

QImage picture(const SpecificationEntry &entry, double scale)
{
    const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
    const auto specification = std::dynamic_pointer_cast<PDFSpecification>(entry.specification());
    if (!pdfEntry || !specification || isTextual(entry.type()))
        return {};
    return specification->extractImage(*pdfEntry, scale);
}

} // namespace Tavrin::AuditContent
