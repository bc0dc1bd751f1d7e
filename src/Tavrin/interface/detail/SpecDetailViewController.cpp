// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/SpecDetailViewController.h>

namespace Tavrin
{

SpecDetailViewControllerDelegate::~SpecDetailViewControllerDelegate() = default;

SpecDetailViewController::SpecDetailViewController(QObject *parent) : ViewController(parent) {}

SpecDetailViewController::~SpecDetailViewController() = default;

} // namespace Tavrin
