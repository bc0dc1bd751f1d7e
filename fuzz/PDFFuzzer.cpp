// SPDX-License-Identifier: Apache-2.0
// A PDF: bound to a map by either reading policy, and its first pages read.
#include "FuzzedPDF.h"
#include "Fuzzing.h"

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/LineTrimmingError.h>
#include <Tavrin/platform/StyledTextEditing.h>

#include <algorithm>

using namespace Tavrin;
using namespace Qt::StringLiterals;

namespace
{

void bind(const std::shared_ptr<CachingPDFDocument> &document, PDFReadingPolicy policy)
{
    const auto specification = Fuzzing::specification();
    specification->setReadingPolicy(policy);
    try {
        specification->loadPDFStructure(document);
    } catch (const PDFSpecification::ParseError &) {
        return;
    }
    Fuzzing::require(specification->pageDictionaries().size() ==
                         static_cast<std::size_t>(document->pageCount()),
                     "every page has its dictionary");
    for (const auto &dictionary : specification->pageDictionaries())
        dictionary->debugDescription();
    specification->documentOutline();
    specification->generateAuxiliaryFileRequirementXMLNodes();
    for (const auto &destination : specification->linkDestinationMapping())
        Fuzzing::require(destination.page() != nullptr, "a destination has a page");
}

void edit(StyledText text)
{
    if (const auto font = StyledTextEditing::primaryFont(text))
        StyledTextEditing::setPrimaryFont(text, *font);
    try {
        StyledTextEditing::trimToLines(text, {1, 2});
    } catch (const LineTrimmingError &) {
    }
}

void readPage(const CachingPDFDocument &document, const HostPDFPage &page)
{
    const QString text = document.textFor(page).value_or(QString());
    for (const auto &lines : {document.linesFor(page), page.visualLines()}) {
        for (const TextRange line : lines) {
            Fuzzing::require(line.location >= 0 && line.length >= 0 &&
                                 line.location + line.length <= text.size(),
                             "a line is a range of the page's text");
            page.selection(line);
        }
    }
    if (const auto styled = document.attributedTextFor(page))
        edit(*styled);
    const Rect bounds = page.bounds(PDFBox::Crop);
    page.selection(bounds);
    page.selectionForLine(bounds.center());
    page.selectionForWord(bounds.center());
    page.annotations();
    page.label();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr int enough = 3;
    const auto document = Fuzzing::openPDF(data, size);
    if (!document)
        return 0;
    document->documentAttributes();
    bind(document, PDFReadingPolicy::Strict);
    bind(document, PDFReadingPolicy::Common);
    for (int index = 0; index < std::min(document->pageCount(), enough); ++index) {
        if (const auto page = document->page(index))
            readPage(*document, *page);
    }
    return 0;
}
