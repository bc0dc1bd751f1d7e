// SPDX-License-Identifier: Apache-2.0
#include <reader/files/FileDrops.h>

#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include <algorithm>
#include <iterator>

#include <Tavrin/interface/files/FileDropOverlay.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

bool isPDF(const QUrl &url)
{
    return url.isLocalFile() && url.path().endsWith(".pdf"_L1, Qt::CaseInsensitive);
}

std::vector<QUrl> pdfsOf(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    std::vector<QUrl> pdfs;
    std::copy_if(urls.begin(), urls.end(), std::back_inserter(pdfs), isPDF);
    return pdfs;
}

} // namespace

FileDrops::FileDrops(QWidget &window) : QObject(&window), m_overlay(new FileDropOverlay(window))
{
    m_overlay->hide();
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DragLeave)
        show(false);
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto &drag = *static_cast<QDropEvent *>(event);
    const auto files = pdfsOf(*drag.mimeData());
    drag.setDropAction(Qt::CopyAction);
    drag.setAccepted(!files.empty());
    show(event->type() == QEvent::DragEnter && !files.empty());
    // The source of the drag waits for a drop to return.
    if (event->type() == QEvent::Drop && !files.empty()) {
        QMetaObject::invokeMethod(
            this, [this, files] { Q_EMIT dropped(files); }, Qt::QueuedConnection);
    }
    return true;
}

void FileDrops::show(bool shown)
{
    m_overlay->setHint(shown ? localized("Drop to import", "drop target") : QString());
    m_overlay->setHighlighted(shown);
    m_overlay->setVisible(shown);
}

} // namespace Tavrin::Reader
