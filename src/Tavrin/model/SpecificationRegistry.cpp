// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/SpecificationRegistry.h>

namespace Tavrin
{

SpecificationRegistry::~SpecificationRegistry() = default;

} // namespace Tavrin
