// SPDX-License-Identifier: Apache-2.0
// A map: read with the shipped grammar beside it and without one, looked up, searched, written.
#include "Fuzzing.h"

#include <Tavrin/model/ReferenceResolver.h>
#include <Tavrin/model/XMLError.h>
#include <support/MapBuilder.h>

#include <algorithm>

using namespace Tavrin;
using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;

namespace
{

QStringList sortedLabels(const Specification &specification)
{
    QStringList labels;
    for (const auto &entry : specification.entries())
        labels += entry->label();
    labels.sort();
    return labels;
}

void lookUp(const std::shared_ptr<Specification> &specification)
{
    constexpr qsizetype enough = 8;
    const ReferenceResolver resolver(*specification);
    qsizetype seen = 0;
    for (const auto &entry : specification->entries()) {
        if (++seen > enough)
            break;
        Fuzzing::require(specification->entry(entry->label()) != nullptr ||
                             entry->label().startsWith(u"spec://"_s),
                         "an entry is found by its own label");
        entry->displayItems();
        resolver.resolve(entry->indexString());
        specification->generateURL(*entry, true, true);
        specification->searchEntries(entry->title(), {});
        specification->mostSimilarEntries(entry->title(), 3);
    }
}

/// What is read by the shipped grammar alone can be written, and reads back the same.
void writeAndReadBack(const Specification &specification, const TemporaryFiles &files,
                      const QUrl &grammar)
{
    const QUrl copy =
        files.write(u"copy.xml"_s, specification.writeSpecToXMLString(grammar).toUtf8());
    const auto again = Specification::make<PDFSpecification>(copy);
    again->loadStructure();
    Fuzzing::require(sortedLabels(*again) == sortedLabels(specification),
                     "a map that was written has the entries that were read");
}

std::shared_ptr<Specification> read(const QUrl &map, const std::optional<QUrl> &grammar)
{
    try {
        auto specification = Specification::withStructureFile(map, grammar);
        specification->loadStructure();
        return specification;
    } catch (const HostXMLError &) {
    } catch (const XMLError &) {
    }
    return nullptr;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const TemporaryFiles files;
    static const QUrl grammar = files.write(u"beside/spec.dtd"_s, MapBuilder::grammar());
    const QByteArray map = Fuzzing::bytes(data, size);
    if (const auto alone = read(files.write(u"alone/map.xml"_s, map), std::nullopt))
        lookUp(alone);
    if (const auto beside = read(files.write(u"beside/map.xml"_s, map), grammar)) {
        lookUp(beside);
        const bool bringsGrammar = map.contains("DOCTYPE");
        if (!bringsGrammar)
            writeAndReadBack(*beside, files, grammar);
    }
    return 0;
}
