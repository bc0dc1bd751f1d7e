// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <Tavrin/interface/summary/SpecErrorViewController.h>

namespace Tavrin
{

/// An error view whose button calls a function. It keeps its delegate itself.
class PromptViewController : public SpecErrorViewController
{
    Q_OBJECT

public:
    explicit PromptViewController(std::function<void()> pressed);
    ~PromptViewController() override;

private:
    std::shared_ptr<SpecErrorViewControllerDelegate> m_caller;
};

} // namespace Tavrin
