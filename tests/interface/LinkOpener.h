// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

namespace Tavrin::Testing
{

/// Stands in for what opens links of these schemes on the desktop.
class LinkOpener : public QObject
{
    Q_OBJECT

public:
    explicit LinkOpener(QStringList schemes) : m_schemes(std::move(schemes))
    {
        for (const QString &scheme : m_schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~LinkOpener() override
    {
        for (const QString &scheme : m_schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QStringList opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened += url.toString(); }

private:
    QStringList m_schemes;
};

} // namespace Tavrin::Testing
