// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <gmock/gmock.h>

/// Windows are tested without a display, in a fixed locale and in the one style that comes with
/// every Qt.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Tavrin"));
    QCoreApplication::setApplicationName(QStringLiteral("InterfaceTest"));
    // What windows remember, they don't remember of the user who runs the tests.
    const QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    return RUN_ALL_TESTS();
}
