// SPDX-License-Identifier: Apache-2.0
// A PDF that has no map: drafted, written, and read back by the shipped grammar.
#include "FuzzedPDF.h"
#include "Fuzzing.h"

#include <Tavrin/drafting/MapDrafter.h>
#include <support/MapBuilder.h>

using namespace Tavrin;
using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;

namespace
{

void writeAndReadBack(const MapDraft &draft, const std::shared_ptr<CachingPDFDocument> &document)
{
    static const TemporaryFiles files;
    static const QUrl grammar = files.write(u"spec.dtd"_s, MapBuilder::grammar());
    std::shared_ptr<PDFSpecification> specification;
    try {
        specification = MapDrafter::specification(draft, document);
    } catch (const PDFSpecification::ParseError &) {
        return;
    }
    const QString map = specification->writeSpecToXMLString(grammar);
    // The grammar asks for an entry, which not every document yields.
    if (draft.entries.empty())
        return;
    const auto again =
        Specification::make<PDFSpecification>(files.write(u"map.xml"_s, map.toUtf8()));
    again->loadStructure();
    Fuzzing::require(again->entryCount() == static_cast<qsizetype>(draft.entries.size()),
                     "a drafted map has the entries of its draft");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto document = Fuzzing::openPDF(data, size);
    if (!document)
        return 0;
    const MapDraft draft = MapDrafter::draft(document, u"fuzzed"_s);
    Fuzzing::require(!draft.title.isEmpty(), "a draft has a title");
    writeAndReadBack(draft, document);
    return 0;
}
