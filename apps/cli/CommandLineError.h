// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

namespace Tavrin::Cli
{

/// Arguments that can't be understood; what() says which and why.
class CommandLineError : public std::runtime_error
{
public:
    explicit CommandLineError(const QString &message);
};

} // namespace Tavrin::Cli
