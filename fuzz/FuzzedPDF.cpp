// SPDX-License-Identifier: Apache-2.0
#include "FuzzedPDF.h"

#include "Fuzzing.h"

#include <Tavrin/platform/HostPDFError.h>

namespace Tavrin::Fuzzing
{

std::shared_ptr<CachingPDFDocument> openPDF(const std::uint8_t *data, std::size_t size)
{
    try {
        return CachingPDFDocument::open(bytes(data, size));
    } catch (const HostPDFError &) {
        return nullptr;
    }
}

} // namespace Tavrin::Fuzzing

/// The engine's repair loses references of its own (MuPDF 1.21), a few bytes for a broken object.
extern "C" const char *__lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier)
{
    return "leak:pdf_repair_trailer\n";
}
