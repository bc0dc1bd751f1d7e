// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

#include <Tavrin/model/Specification.h>

namespace Tavrin::Cli
{

/// Whether a map that its DTD finds valid means what it says.
namespace MapCheck
{

/// What is wrong, a line each: labels that stand twice, related entries that do not exist, and
/// labels that no spec URL leads to. The specification's table has to be loaded. Reads the map
/// again, since the table keeps one entry a label, and throws what reading throws.
QStringList faults(Specification &specification);

} // namespace MapCheck

} // namespace Tavrin::Cli
