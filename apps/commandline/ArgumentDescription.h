// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ValueDescription.h"

namespace Tavrin::CommandLine
{

/// A positional argument of a command.
struct ArgumentDescription {
    enum class Count { One, AtMostOne, OneOrMore, Any };

    ValueDescription value;
    QString help;
    Count count = Count::One;

    bool isRepeated() const { return count == Count::OneOrMore || count == Count::Any; }
    /// As a line of usage has it: "FILE…", "[DOC.pdf]".
    QString syntax() const
    {
        const QString name = isRepeated() ? value.name + u'…' : value.name;
        const bool isOptional = count == Count::AtMostOne || count == Count::Any;
        return isOptional ? u'[' + name + u']' : name;
    }
};

} // namespace Tavrin::CommandLine
