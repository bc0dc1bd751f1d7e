// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// A range of lines that a text does not have.
class TAVRIN_CORE_EXPORT LineTrimmingError : public std::runtime_error
{
public:
    enum class Kind { LineRangeOutOfBounds };

    LineTrimmingError() : std::runtime_error("line range out of bounds") {}

    Kind kind = Kind::LineRangeOutOfBounds;
};

} // namespace Tavrin
