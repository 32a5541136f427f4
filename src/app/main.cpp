// The desktop editor's start: what has to be known before the window, the window, and the end.
#include "app/command_handlers.h"
#include "app/crash_reporter.h"
#include "app/font_search.h"
#include "app/main_window.h"
#include "app/screenshot.h"
#include "app/script_editor.h"
#include "app/script_review.h"
#include "app/window_activation.h"
#include "help/editor_help.h"
#include "platform/editor_windows.h"
#include "platform/end_signals.h"
#include "platform/files.h"
#include "session/application_life.h"
#include "session/command_line.h"
#include "session/document.h"
#include "settings/startup.h"
#include "settings/user_state.h"
#include "text/text_ids.h"
#include "widgets/appearance.h"
#include "widgets/message_box.h"
#include "widgets/symbol_icon.h"
#include "widgets/toolkit_language.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <clocale>
#include <cstdio>
#include <optional>
#include <utility>

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

void comeToFront(const ShownWindow& shown, const std::string& token) {
    if (shown.window) return shown.window->comeToFront(token);
    // A message at start-up stands in for the window that is to come.
    if (QWidget* message = QApplication::activeModalWidget()) bringToFront(*message, token);
}

// `script` is what the window will show.
EditorWindow describeWindow(const ShownWindow& shown, const std::string& className,
                            const std::filesystem::path& script) {
    return {className,
            [&shown, script] { return shown.state ? shown.state->document.fileName : script; },
            [&shown](const std::string& token) { comeToFront(shown, token); }};
}

// Answers other editors from the event loop, as long as the result lives. `listener` may be null.
std::unique_ptr<QSocketNotifier> answerOthers(EditorListener* listener) {
    if (!listener || listener->descriptor() < 0) return nullptr;
    auto asked = std::make_unique<QSocketNotifier>(listener->descriptor(), QSocketNotifier::Read);
    QObject::connect(asked.get(), &QSocketNotifier::activated, asked.get(),
                     [listener] { listener->serve(); });
    return asked;
}

void showNotices(const std::vector<StartupNotice>& notices) {
    for (const StartupNotice& notice : notices) {
        QApplication::setWindowIcon(programIcon());
        if (notice.beep) QApplication::beep();
        showMessage(nullptr, {notice.text, notice.caption, MessageIcon::Exclamation,
                              MessageButtons::Ok, false});
    }
}

// A failing cipher may show while a list is painted, where no box can be opened.
void tellCipherFailures(ApplicationState& state) {
    state.cipher.reportTo([&state](const CipherFailure& failure) {
        const Message message{libraryText(state.language, textid::cipherFails, {failure.reason}),
                              cipherFailureTitle(failure.step), MessageIcon::Stop};
        QTimer::singleShot(0, qApp, [message] { showMessage(nullptr, message); });
    });
}

// A picture shows the editor as its user has it, and leaves that as it is.
UserState readUserState(const Environment& environment, const PictureOptions& picture) {
    const auto file = userStateFile(environment);
    if (!file) return {};
    return UserState(*file, picture.file.isEmpty() ? UserState::Access::ReadAndWrite
                                                   : UserState::Access::ReadOnly);
}

// Before there is a window, so that it is built for the script that it is going to show.
std::optional<OpenOutcome> applyCommandLine(ApplicationState& state, const CommandLine& line) {
    if (line.hostType) state.currentHostType = *line.hostType;
    if (line.script.empty()) return std::nullopt;
    return openDocumentAtStart(state, tidyPath(line.script));
}

// The run from the first window to the last.
int runWindow(ApplicationState& state, ShownWindow& shown, const CommandLine& line,
              const PictureOptions& picture, const FontSettings& fontSettings,
              const EditorListener* listener) {
    const std::optional<OpenOutcome> opening = applyCommandLine(state, line);
    MainWindow window(state, [&fontSettings] { fontSettings.wait(); });
    ScriptEditor editor(state, window, editParameters);
    EditorHelp help(state);
    const CommandHandlers handlers(state, window, editor, &help);
    if (listener) {
        window.setRaiser([listener](const auto& script) { return listener->raiseOther(script); });
    }
    shown = {&state, &window};
    bool ended = false;
    const EndSignals endSignals([&] {
        ended = true;
        window.endSession();
        QApplication::exit();
    });
    if (picture.file.isEmpty()) {
        window.show();
    } else {
        showForPicture(window, picture, MainWindow::firstSize);
    }
    if (opening) window.showOpened(*opening);
    int status = 0;
    if (!picture.file.isEmpty()) {
        status = savePicture(window, picture) ? 0 : 1;
    } else if (!ended) {
        status = QApplication::exec();
    }
    shown = {};
    return status;
}

// Shows the two scripts of a comparison; neither can be changed there.
int runComparison(ApplicationState& state, const CommandLine::Compared& compared,
                  const PictureOptions& picture) {
    ComparedScripts read = readComparedScripts(state, compared.left, compared.right);
    bool isRefused = false;
    for (const OtherScript* side : {&read.left, &read.right}) {
        if (!side->refusal) continue;
        QApplication::setWindowIcon(programIcon());
        showMessage(nullptr, *side->refusal);
        isRefused = true;
    }
    if (isRefused) return 1;
    EditorHelp help(state);
    ReviewWindow window(state);
    window.compare(sideOfFile(compared.left, std::move(read.left)),
                   sideOfFile(compared.right, std::move(read.right)));
    if (!picture.file.isEmpty()) {
        showForPicture(window, picture, window.size());
        return savePicture(window, picture) ? 0 : 1;
    }
    const EndSignals endSignals([] { QApplication::exit(); });
    window.present();
    return QApplication::exec();
}

int runEditor(int& argc, char** argv, const CommandLine& line, const PictureOptions& picture) {
    const StartupInputs inputs = processStartupInputs();
    ShownWindow shown;
    EditorAdmission admission;
    // Whoever only wants a picture neither disturbs an open editor nor answers for one.
    if (picture.file.isEmpty() && !line.compared) {
        const std::string className = readProgramSettings(inputs).windowClassName;
        admission = admitEditor(editorSocketFolder(inputs.environment), line.script,
                                describeWindow(shown, className, line.script),
                                activationToken(inputs.environment));
        if (admission.raisedOther) return 0;
    }
    if (!picture.file.isEmpty()) answerUnseenMessages();
    prepareToolkit(inputs.environment, picture);
    // As the application object is going to, but before another thread is there to notice.
    std::setlocale(LC_ALL, "");
    const FontSettings fontSettings;
    QApplication application(argc, argv);
    const auto asked = answerOthers(admission.listener.get());
    QGuiApplication::setDesktopFileName(QStringLiteral("quendra-script-editor"));
    const FontSearch fonts(fontSettings);
    applyAppearance(picture.appearance);

    const StartupSettings settings = readStartupSettings(inputs);
    installCrashReporter(inputs.programFile, settings.workingDir);
    ApplicationState state;
    state.userState = readUserState(inputs.environment, picture);
    const auto notices = loadApplication(state, settings, inputs.environment);
    useToolkitLanguage(state.language.language());
    showNotices(notices);
    if (picture.file.isEmpty()) tellCipherFailures(state);
    int status = 0;
    if (line.compared) {
        fontSettings.wait();
        status = runComparison(state, *line.compared, picture);
    } else {
        status = runWindow(state, shown, line, picture, fontSettings, admission.listener.get());
    }
    wipeApplication(state);
    return status;
}

int start(int& argc, char** argv) {
    if (const auto status = reportCrash(argc, argv)) return *status;
    ignoreSizeLimitSignal();
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
