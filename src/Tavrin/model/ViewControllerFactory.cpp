// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/ViewControllerFactory.h>

#include <utility>

namespace Tavrin
{

namespace
{

std::unique_ptr<ViewControllerFactory> &factory()
{
    static std::unique_ptr<ViewControllerFactory> installed;
    return installed;
}

} // namespace

ViewControllerFactory::~ViewControllerFactory() = default;

void ViewControllerFactory::setManager(ViewController &, SpecificationManager &) {}

void ViewControllerFactory::documentBound(const std::shared_ptr<Specification> &) {}

ViewControllerFactory *ViewControllerFactory::installed()
{
    return factory().get();
}

void ViewControllerFactory::install(std::unique_ptr<ViewControllerFactory> made)
{
    factory() = std::move(made);
}

} // namespace Tavrin
