// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// A range of lines that a text does not have.
///
/// StyledTextEditing::trimToLines throws it.
class TAVRIN_CORE_EXPORT LineTrimmingError : public std::runtime_error
{
public:
    /// What is wrong with it. There is one kind.
    enum class Kind { LineRangeOutOfBounds };

    LineTrimmingError() : std::runtime_error("line range out of bounds") {}

    Kind kind = Kind::LineRangeOutOfBounds;
};

} // namespace Tavrin
