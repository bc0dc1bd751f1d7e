// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/WidgetsExport.h>

namespace Tavrin
{

class SpecEntrySelectionViewController;

/// Hears how choosing an entry ended, before the sheet goes. Told once. Escape and the window's
/// frame end it, too, as cancelled.
class TAVRIN_WIDGETS_EXPORT SpecEntrySelectionViewControllerDelegate
{
public:
    virtual ~SpecEntrySelectionViewControllerDelegate();
    /// 1 for the entry that the controller has selected, 0 for none.
    virtual void specEntrySelectionViewController(SpecEntrySelectionViewController &controller,
                                                  int endedWithResult) = 0;
};

} // namespace Tavrin
