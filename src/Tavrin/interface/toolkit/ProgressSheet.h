// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/interface/toolkit/Sheet.h>

class QProgressBar;

namespace Tavrin
{

/// A sheet with a bar, over a window whose work goes on elsewhere.
///
/// It can't be cancelled and has no button to press. Whoever begins the work ends it, and holds it
/// in a QPointer, since it goes with its window.
///
///     m_sheet = ProgressSheet::begin(*this, text, ProgressSheet::Kind::Determinate);
///     connect(work, &Work::progressed, m_sheet, &ProgressSheet::setValue);
///     connect(work, &Work::finished, m_sheet, [sheet = m_sheet] { sheet->end(1); });
class TAVRIN_WIDGETS_EXPORT ProgressSheet : public Sheet
{
    Q_OBJECT

public:
    /// How the bar moves.
    enum class Kind {
        /// From 0.0 to 1.0.
        Determinate,
        /// Moves until the end.
        Indeterminate
    };

    /// Shows one. Never null; it deletes itself when it has ended. `window` may be any widget of
    /// the window.
    static ProgressSheet *begin(QWidget &window, const QString &message, Kind kind);

    /// From 0.0 to 1.0, clamped. Main thread; from a background thread it is called through
    /// QMetaObject::invokeMethod, queued.
    void setValue(double value);
    double value() const;

Q_SIGNALS:
    /// Once, when it is on the screen for the first time. Work that holds up the event loop begins
    /// then.
    void painted();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ProgressSheet(QWidget &window, const QString &message, Kind kind);

    QProgressBar *m_bar;
    bool m_wasPainted = false;
};

} // namespace Tavrin
