// Runs tests with windows: without a screen unless one is asked for, and in a home folder that
// holds nothing of the user's.
#include "support/temporary_folder.h"
#include "widgets/appearance.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const quendra::test::TemporaryFolder home;
    const auto set = [&home](const char* name, const char* folder) {
        qputenv(name, (home / folder).string().c_str());
    };
    set("HOME", "home");
    set("XDG_CONFIG_HOME", "home/.config");
    set("XDG_DATA_HOME", "home/.local/share");
    set("XDG_CONFIG_DIRS", "etc");
    qputenv("XDG_RUNTIME_DIR", home.path().string().c_str());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "none");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QApplication application(argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    quendra::applyAppearance(quendra::Appearance::Light);
    return RUN_ALL_TESTS();
}
