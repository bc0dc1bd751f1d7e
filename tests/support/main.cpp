// SPDX-License-Identifier: Apache-2.0
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

/// Tests run without a display and in a fixed locale, wherever they are started, and leave the
/// files of the user alone.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    const QTemporaryDir userData;
    qputenv("XDG_DATA_HOME", QFile::encodeName(userData.path()));
    testing::InitGoogleMock(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
