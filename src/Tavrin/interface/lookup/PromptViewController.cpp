// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/lookup/PromptViewController.h>

#include <utility>

namespace Tavrin
{

namespace
{

class Caller : public SpecErrorViewControllerDelegate
{
public:
    explicit Caller(std::function<void()> pressed) : m_pressed(std::move(pressed)) {}

    void specErrorViewControllerButtonPressed(SpecErrorViewController & /*controller*/) override
    {
        m_pressed();
    }

private:
    std::function<void()> m_pressed;
};

} // namespace

PromptViewController::PromptViewController(std::function<void()> pressed)
    : m_caller(std::make_shared<Caller>(std::move(pressed)))
{
    setDelegate(m_caller);
}

PromptViewController::~PromptViewController() = default;

} // namespace Tavrin
