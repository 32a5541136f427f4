// Runs the tests without a screen, in a home folder that holds nothing of the user's.
#include "support/temporary_folder.h"
#include "widgets/appearance.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const quendra::test::TemporaryFolder home;
    for (const char* name :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CONFIG_DIRS", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().c_str());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "none");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QApplication application(argc, argv);
    quendra::applyAppearance(quendra::Appearance::Light);
    return RUN_ALL_TESTS();
}
