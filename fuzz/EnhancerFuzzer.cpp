// SPDX-License-Identifier: Apache-2.0
// A PDF from nothing to a whole map: drafted, every section and figure read, enhanced by the links
// that the draft gave and by those that are looked for anew, and read back.
#include "FuzzedPDF.h"
#include "Fuzzing.h"

#include <Tavrin/drafting/MapDrafter.h>
#include <Tavrin/enhance/PDFDestinationApproximator.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <support/MapBuilder.h>

using namespace Tavrin;
using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;

namespace
{

const TemporaryFiles &files()
{
    static const TemporaryFiles theFiles;
    return theFiles;
}

const QUrl &grammar()
{
    static const QUrl url = files().write(u"spec.dtd"_s, MapBuilder::grammar());
    return url;
}

/// The drafted map in a file; nothing where a document yields none.
std::optional<QUrl> skeleton(const std::shared_ptr<CachingPDFDocument> &document)
{
    const MapDraft draft = MapDrafter::draft(document, u"fuzzed"_s);
    if (draft.entries.empty())
        return std::nullopt;
    try {
        const auto drafted = MapDrafter::specification(draft, document);
        return files().write(u"skeleton.xml"_s, drafted->writeSpecToXMLString(grammar()).toUtf8());
    } catch (const PDFSpecification::ParseError &) {
        return std::nullopt;
    }
}

void readBack(const PDFXMLEnhancer &enhancer)
{
    const QString map = enhancer.writeSpecToXMLString(grammar());
    const auto again =
        Specification::make<PDFSpecification>(files().write(u"map.xml"_s, map.toUtf8()));
    again->loadStructure();
    Fuzzing::require(again->entryCount() == enhancer.entryCount(),
                     "a whole map has the entries of its skeleton");
    for (const auto &entry : enhancer.entries()) {
        const auto read = again->entries().value(entry->label());
        Fuzzing::require(read && read->keywords() == entry->keywords(),
                         "keywords come back as they were written");
    }
}

template <class Enhancer>
void enhance(const QUrl &map, const std::shared_ptr<CachingPDFDocument> &document)
{
    const auto enhancer = Specification::make<Enhancer>(map, {}, {}, [](Enhancer &one) {
        one.setReadingPolicy(PDFReadingPolicy::Common);
        one.setRequiredLinkMarkers({});
    });
    enhancer->loadStructure();
    try {
        enhancer->loadPDFStructure(document);
    } catch (const std::runtime_error &) {
        // Neither links nor pages, which a broken document may well have none of.
        return;
    }
    readBack(*enhancer);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto document = Fuzzing::openPDF(data, size);
    if (!document)
        return 0;
    if (const auto map = skeleton(document)) {
        enhance<PDFXMLEnhancer>(*map, document);
        enhance<PDFDestinationApproximator>(*map, document);
    }
    return 0;
}
