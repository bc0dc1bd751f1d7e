// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <vector>

#include <Tavrin/interface/toolkit/ViewController.h>

class QAbstractButton;
class QStackedWidget;

namespace Tavrin
{

/// Shows one of its children at a time, chosen by a row of buttons above; remembers which from one
/// launch to the next.
///
/// Children are to be added before the view is loaded, in the order of the buttons. What the user
/// defaults hold that is no tab counts as nothing stored. Main thread.
class HighlightTabViewController : public ViewController
{
    Q_OBJECT

public:
    /// The key of the user defaults: the index of the tab.
    static const char *const selectedTabKey;

    using ViewController::ViewController;

    // Null or absent before the view is loaded.

    /// The pages.
    QStackedWidget *tabView() const { return m_tabView; }
    /// What holds the buttons.
    QWidget *tabSelectorView() const { return m_tabSelectorView; }
    /// In the order in which one reads them.
    const std::optional<std::vector<QAbstractButton *>> &tabButtons() const { return m_tabButtons; }

    /// Shows a tab and remembers it. An index that no button has ends the process.
    void selectTab(int index);

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;

private:
    void collectButtons();
    void updateButtons(int index);
    std::optional<int> storedTab() const;

    QStackedWidget *m_tabView = nullptr;
    QWidget *m_tabSelectorView = nullptr;
    std::optional<std::vector<QAbstractButton *>> m_tabButtons;
    bool m_isSelecting = false;
};

} // namespace Tavrin
