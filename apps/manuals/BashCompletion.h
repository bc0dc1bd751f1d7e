// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <commandline/ProgramDescription.h>

namespace Tavrin::Manuals
{

/// What bash reads to complete a program's command line. Labels come from `tavrin list --labels`.
QString bashCompletion(const CommandLine::ProgramDescription &program);

} // namespace Tavrin::Manuals
