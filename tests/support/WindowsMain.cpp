// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <gmock/gmock.h>

/// Windows are tested without a display, in a fixed locale, in the one style that comes with every
/// Qt, and with settings and data of their own.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    return RUN_ALL_TESTS();
}
