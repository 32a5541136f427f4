// Runs the tests on a desktop of their own, those with windows of this process and the others.
#include "desktop/virtual_desktop.h"
#include "widgets/appearance.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Who only asks for their names needs none.
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const quendra::test::TemporaryFolder home;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().string().c_str());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_QPA_PLATFORMTHEME", "none");
    const quendra::test::VirtualDesktop desktop;
    QApplication application(argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // A busy machine is slow to make the second click of a double-click.
    QApplication::setDoubleClickInterval(5000);
    quendra::applyAppearance(quendra::Appearance::Light);
    return RUN_ALL_TESTS();
}
