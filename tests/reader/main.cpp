// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <gmock/gmock.h>

/// Without a display, in a fixed locale, in the one style that comes with every Qt, and with
/// settings and data of its own.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("ReaderTest"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    return RUN_ALL_TESTS();
}
