// SPDX-License-Identifier: Apache-2.0
// The grammar of a map: attached to a map without one, named by a map, and written with a map.
#include "Fuzzing.h"

#include <Tavrin/model/XMLError.h>
#include <support/MapBuilder.h>

using namespace Tavrin;
using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;

namespace
{

QByteArray mapWithoutGrammar()
{
    return MapBuilder(u"fuzzed"_s, u"1"_s)
        .file(u"pdf"_s, u"a,page"_s)
        .entry({.label = u"4.2"_s, .index = u"4.2"_s, .name = u"Scope"_s})
        .xml();
}

QByteArray mapNamingGrammar()
{
    return mapWithoutGrammar().replace("<spec ", "<!DOCTYPE spec SYSTEM \"fuzzed.dtd\">\n<spec ");
}

void read(const QUrl &map, const std::optional<QUrl> &dtd)
{
    try {
        const auto specification = Specification::withStructureFile(map, dtd);
        specification->loadStructure();
        specification->writeSpecToXMLString(dtd);
    } catch (const HostXMLError &) {
    } catch (const XMLError &) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const TemporaryFiles files;
    static const QUrl plain = files.write(u"plain.xml"_s, mapWithoutGrammar());
    static const QUrl naming = files.write(u"naming.xml"_s, mapNamingGrammar());
    const QUrl dtd = files.write(u"fuzzed.dtd"_s, Fuzzing::bytes(data, size));
    read(plain, dtd);
    read(naming, std::nullopt);
    return 0;
}
