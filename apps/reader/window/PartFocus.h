// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace Tavrin::Reader
{

class ControllerPane;
class SidePane;

/// Takes the focus round the parts of the window: field, summary, recent places, and the parts of
/// what is on show beside them.
class PartFocus
{
public:
    PartFocus(SidePane &side, ControllerPane &detail);

    void next() const { move(1); }
    void previous() const { move(-1); }

private:
    void move(int step) const;

    SidePane &m_side;
    ControllerPane &m_detail;
};

} // namespace Tavrin::Reader
