// The desktop editor's start.
#include "app/appearance.h"
#include "app/main_window.h"
#include "app/screenshot.h"
#include "app/script_editor.h"
#include "app/symbol_icon.h"
#include "app/ui_text.h"
#include "platform/registry.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv) {
    using namespace quendra;
    std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto picture = takePictureOptions(arguments);
    if (!picture) {
        std::fputs("quendra-script-editor: wrong value of an option\n", stderr);
        return 2;
    }
    if (!picture->scale.empty()) qputenv("QT_SCALE_FACTOR", picture->scale.c_str());
    QApplication application(argc, argv);
    applyAppearance(application, picture->appearance);

    ApplicationState state;
    state.settings.programDir = pathFromQt(QCoreApplication::applicationDirPath());
    const auto notice = state.language.load(
        {state.settings.programDir, state.settings.configDir, state.settings.installDir});
    if (notice) {
        showMessage(nullptr, {notice->text, notice->caption, MessageIcon::Exclamation,
                              MessageButtons::Ok, false});
    }
    state.luCatalogues = buildLuCatalogues(state.language.textSource());
    state.menuCommands = buildMenuCommandCatalogue(state.language.textSource());
    state.cipher = HiddenTextCipher(userIdentity());
    MainWindow window(state);
    const ScriptEditor editor(state, window, {});
    window.show();
    if (!arguments.empty()) window.openAtStart(std::filesystem::absolute(arguments.front()));
    if (!picture->file.isEmpty()) return savePicture(window, *picture) ? 0 : 1;
    return QApplication::exec();
}
