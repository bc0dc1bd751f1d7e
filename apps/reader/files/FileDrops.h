// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QUrl>

#include <vector>

class QWidget;

namespace Tavrin
{
class FileDropOverlay;
}

namespace Tavrin::Reader
{

/// Takes PDFs that are dropped on a window, and shows over it that they can be.
class FileDrops : public QObject
{
    Q_OBJECT

public:
    explicit FileDrops(QWidget &window);

Q_SIGNALS:
    /// Once whoever the files were dragged from is told that they came.
    void dropped(const std::vector<QUrl> &files);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(bool shown);

    FileDropOverlay *m_overlay;
};

} // namespace Tavrin::Reader
