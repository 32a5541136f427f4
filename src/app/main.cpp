// The desktop editor's start: what has to be known before the window, the window, and the end.
#include "app/appearance.h"
#include "app/application_life.h"
#include "app/command_line.h"
#include "app/commands.h"
#include "app/main_window.h"
#include "app/message_box.h"
#include "app/screenshot.h"
#include "app/script_editor.h"
#include "app/startup.h"
#include "app/toolkit_language.h"
#include "platform/editor_windows.h"

#include <QApplication>
#include <QSocketNotifier>

#include <cstdio>

namespace quendra {

namespace {

constexpr int wrongUsage = 2;

// What the toolkit reads from the environment when it starts. A picture needs no screen.
void prepareToolkit(const Environment& environment, const PictureOptions& picture) {
    if (!picture.scale.empty()) qputenv("QT_SCALE_FACTOR", picture.scale.c_str());
    const bool hasScreen = variable(environment, "DISPLAY") ||
                           variable(environment, "WAYLAND_DISPLAY") ||
                           variable(environment, "QT_QPA_PLATFORM");
    if (!picture.file.isEmpty() && !hasScreen) qputenv("QT_QPA_PLATFORM", "offscreen");
}

// The window that other editors may ask about; none while it is not there.
struct ShownWindow {
    ApplicationState* state = nullptr;
    MainWindow* window = nullptr;
};

EditorWindow describeWindow(const ShownWindow& shown, const std::string& className) {
    return {
        className,
        [&shown] { return shown.state ? shown.state->document.fileName : std::filesystem::path(); },
        [&shown] {
            if (shown.window) shown.window->comeToFront();
        }};
}

void showNotices(const std::vector<StartupNotice>& notices) {
    for (const StartupNotice& notice : notices) {
        if (notice.beep) QApplication::beep();
        showMessage(nullptr, {notice.text, notice.caption, MessageIcon::Exclamation,
                              MessageButtons::Ok, false});
    }
}

void applyCommandLine(MainWindow& window, const CommandLine& line) {
    if (line.hostType) window.runCommand(hostTypeInfo(*line.hostType).modeCommand);
    if (!line.script.empty()) window.openAtStart(std::filesystem::absolute(line.script));
}

// The run from the first window to the last. `listener` may be null.
int runWindow(ApplicationState& state, ShownWindow& shown, EditorListener* listener,
              const CommandLine& line, const PictureOptions& picture) {
    MainWindow window(state);
    const ScriptEditor editor(state, window, editParameters);
    shown = {&state, &window};
    std::unique_ptr<QSocketNotifier> asked;
    if (listener && listener->descriptor() >= 0) {
        asked = std::make_unique<QSocketNotifier>(listener->descriptor(), QSocketNotifier::Read);
        QObject::connect(asked.get(), &QSocketNotifier::activated, &window,
                         [listener] { listener->serve(); });
    }
    window.show();
    applyCommandLine(window, line);
    const int status =
        picture.file.isEmpty() ? QApplication::exec() : (savePicture(window, picture) ? 0 : 1);
    shown = {};
    return status;
}

int runEditor(int& argc, char** argv, const CommandLine& line, const PictureOptions& picture) {
    const StartupInputs inputs = processStartupInputs();
    ShownWindow shown;
    EditorAdmission admission;
    // Whoever only wants a picture neither disturbs an open editor nor answers for one.
    if (picture.file.isEmpty()) {
        const std::string className = readProgramSettings(inputs).windowClassName;
        admission = admitEditor(editorSocketFolder(inputs.environment), line.script,
                                describeWindow(shown, className));
        if (admission.raisedOther) return 0;
    }
    prepareToolkit(inputs.environment, picture);
    QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("quendra-script-editor"));
    applyAppearance(picture.appearance);

    const StartupSettings settings = readStartupSettings(inputs);
    useToolkitLanguage(settings.configDir);
    ApplicationState state;
    showNotices(loadApplication(state, settings, inputs.environment));
    const int status = runWindow(state, shown, admission.listener.get(), line, picture);
    wipeApplication(state);
    return status;
}

int start(int& argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto picture = takePictureOptions(arguments);
    if (!picture) {
        std::fputs("quendra-script-editor: an option lacks its value or has a wrong one\n", stderr);
        return wrongUsage;
    }
    const CommandLine line = parseCommandLine(arguments);
    if (!line.error.empty()) {
        std::fprintf(stderr, "quendra-script-editor: %s\n", line.error.c_str());
        return wrongUsage;
    }
    if (line.help || line.version) {
        std::fputs((line.help ? commandLineHelp() : versionText()).c_str(), stdout);
        return 0;
    }
    return runEditor(argc, argv, line, *picture);
}

}  // namespace

}  // namespace quendra

int main(int argc, char** argv) {
    return quendra::start(argc, argv);
}
