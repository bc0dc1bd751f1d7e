// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <vector>

#include <Tavrin/WidgetsExport.h>

class QToolButton;

namespace Tavrin
{

/// A row of small buttons that belong together, each with an action of its own.
///
/// For the keyboard it is one stop: the arrow keys go from segment to segment, as they lie on the
/// screen, Space and Return press. Main thread.
class TAVRIN_WIDGETS_EXPORT SegmentedControl : public QWidget
{
    Q_OBJECT

public:
    explicit SegmentedControl(QWidget *parent = nullptr);

    /// Adds one at the end. `label` is drawn, a sign for example; `name` says what it does, as tool
    /// tip and to assistive technology. Segments count from 0. Both texts are in the user's
    /// language.
    void addSegment(const QString &label, const QString &name);
    int segmentCount() const { return static_cast<int>(m_segments.size()); }
    /// Null if there is none of that index.
    QToolButton *segment(int index) const;

    /// All are enabled at first. An index that there is none of is passed over.
    void setSegmentEnabled(int index, bool enabled);

    /// The one that was pressed last; -1 at first.
    int selectedSegment() const { return m_selectedSegment; }

Q_SIGNALS:
    /// selectedSegment() says which, too. By mouse or key.
    void pressed(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void press(int index);
    void moveFocus(int from, int step);
    /// Makes one segment the stop of the Tab key.
    void updateTabStop(int preferred);

    std::vector<QToolButton *> m_segments;
    int m_selectedSegment = -1;
    int m_tabStop = 0;
};

} // namespace Tavrin
