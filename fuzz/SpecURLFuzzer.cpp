// SPDX-License-Identifier: Apache-2.0
// A spec URL that a host was given: taken apart and looked up; and any text as a label of one.
#include "Fuzzing.h"

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/platform/DecimalForm.h>

using namespace Tavrin;

namespace
{

/// A range of lines that ends before it begins ends the process; hosts are told not to ask for one.
bool namesBackwardRange(const QString &url)
{
    const auto components = SpecURL::components(url);
    if (!components || components->size() < 5)
        return false;
    const auto lower = parseInteger((*components)[3]);
    const auto upper = parseInteger((*components)[4]);
    return lower && upper && *upper < *lower;
}

void lookUp(const QString &url)
{
    const auto specification = Fuzzing::specification();
    const auto found = specification->entry(url);
    if (found)
        specification->generateURL(*found, true, true);
    specification->destination(url);
}

void printAndParse(const QString &label)
{
    const QString base = SpecURL::shortForm(label);
    const auto alone = SpecURL::components(base);
    Fuzzing::require(alone && alone->join(u'/') == label, "a label survives in a spec URL");
    if (!SpecURL::isValidBase(base))
        return;
    const auto whole = SpecURL::components(SpecURL::appending(base, label));
    Fuzzing::require(whole && whole->join(u'/') == label + u'/' + label,
                     "components survive in a spec URL");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = Fuzzing::text(data, size);
    if (!namesBackwardRange(text))
        lookUp(text);
    printAndParse(text);
    return 0;
}
