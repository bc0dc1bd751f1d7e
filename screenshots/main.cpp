// SPDX-License-Identifier: Apache-2.0
// Makes pictures of the windows in their states, for people to look at.
#include <QApplication>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTextStream>

#include "Studio.h"

using namespace Tavrin::Testing;

namespace
{

const std::pair<const char *, Studio::Pictures> sets[] = {
    {"audit", takeAuditPictures},     {"citing", takeCitingPictures},
    {"detail", takeDetailPictures},   {"files", takeFilesPictures},
    {"reader", takeReaderPictures},   {"sidebar", takeSidebarPictures},
    {"summary", takeSummaryPictures}, {"viewer", takeViewerPictures},
};

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tavrin_screenshots"));
    // Windows remember how they were left; pictures begin with nothing.
    const QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        QTextStream(stderr) << "usage: tavrin_screenshots FOLDER CORPUS [WINDOW...]\n";
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Studio studio(arguments[1], arguments[2]);
    for (const auto &[window, pictures] : sets) {
        if (arguments.size() == 3 || arguments.contains(QLatin1String(window)))
            studio.takeAll(pictures);
    }
    return 0;
}
