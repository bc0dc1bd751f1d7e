// SPDX-License-Identifier: Apache-2.0
// The link of an entry: taken apart, printed, and resolved in a document.
#include "Fuzzing.h"

#include <Tavrin/pdfspec/InternalLink.h>
#include <support/PDFBuilder.h>

#include <cmath>

using namespace Tavrin;
using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;

namespace
{

std::shared_ptr<PDFSpecification> boundSpecification()
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, u"Scope"_s);
    pdf.addPage().text(72, 700, u"Terms"_s);
    pdf.outline({{u"Scope"_s, Dest::xyz(0, 72, 700)}});
    pdf.namedDestination("section.4.2", Dest::xyz(1, 72, 700));
    auto result = Fuzzing::specification();
    result->loadPDFStructure(CachingPDFDocument::open(pdf.build()));
    return result;
}

struct Reprint {
    QString operator()(const InternalLink::Outline &link) const
    {
        return InternalLink::printOutline(link.label);
    }
    QString operator()(const InternalLink::Place &link) const
    {
        Fuzzing::require(std::isfinite(link.point.x) && std::isfinite(link.point.y),
                         "a parsed place is finite");
        return InternalLink::printPlace(link.page, link.point);
    }
    QString operator()(const InternalLink::Rects &link) const
    {
        return InternalLink::printRects(link.rects);
    }
    QString operator()(const InternalLink::Named &link) const { return link.name; }
    QString operator()(const InternalLink::Malformed & /*link*/) const { return {}; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const auto specification = boundSpecification();
    const QString text = Fuzzing::text(data, size);
    const auto link = InternalLink::parse(text);
    if (!std::holds_alternative<InternalLink::Malformed>(link)) {
        const QString printed = std::visit(Reprint(), link);
        const auto again = InternalLink::parse(printed);
        Fuzzing::require(again.index() == link.index(), "a printed link keeps its form");
        Fuzzing::require(std::visit(Reprint(), again) == printed, "a printed link stays the same");
    }
    PDFSpecification::PageRects rects;
    const auto place = specification->destinationForLink(text, &rects);
    if (place)
        specification->internalLink(*place);
    return 0;
}
