// SPDX-License-Identifier: Apache-2.0
#include "CommandLineError.h"

namespace Tavrin::Cli
{

CommandLineError::CommandLineError(const QString &message)
    : std::runtime_error(message.toStdString())
{
}

} // namespace Tavrin::Cli
