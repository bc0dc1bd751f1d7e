// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include <Tavrin/pdf/CachingPDFDocument.h>

namespace Tavrin::Fuzzing
{

/// The input as an open document; null if it is refused.
std::shared_ptr<CachingPDFDocument> openPDF(const std::uint8_t *data, std::size_t size);

} // namespace Tavrin::Fuzzing
