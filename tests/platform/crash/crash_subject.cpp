// A program that crashes on demand, with the reporter of the real editor:
//     crash_subject WAY DUMP-FOLDER
#include "app/command_handlers.h"
#include "app/crash_reporter.h"
#include "app/main_window.h"
#include "app/script_editor.h"
#include "dialogs/parameter_dialogs.h"
#include "platform/crash/crash_canaries.h"
#include "platform/crash/handler.h"
#include "platform/secret_memory.h"
#include "session/application_life.h"
#include "widgets/ui_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <barrier>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <map>
#include <thread>

// Where the debugger has to find the faults, by these names.
extern "C" {

int faultByReading(const volatile int* place);
void faultByWriting(volatile int* place);
void faultByInstruction();
int faultByRecursion(int depth);

// The sanitizers would report the fault in place of the signal.
__attribute__((noinline, no_sanitize("undefined"))) int faultByReading(const volatile int* place) {
    return *place;
}

__attribute__((noinline)) void faultByWriting(volatile int* place) {
    *place = 1;
}

__attribute__((noinline)) void faultByInstruction() {
    __builtin_trap();
}

__attribute__((noinline)) int faultByRecursion(int depth) {
    volatile char frame[4096] = {};
    frame[depth % 4096] = 1;
    // A compiler that sees through this would refuse it.
    int (*volatile again)(int) = faultByRecursion;
    return again(depth + 1) + frame[(depth + 1) % 4096];
}

}  // extern "C"

namespace quendra::test {
namespace {

int* nowhere(std::uintptr_t address = 0) {
    volatile std::uintptr_t place = address;
    return reinterpret_cast<int*>(place);
}

void fault() {
    faultByReading(nowhere());
}

// Both at once, the one that comes second while the first report is under way.
void faultInTwoThreads() {
    std::barrier start(2);
    const auto meetAndFault = [&start] {
        useOwnSignalStack();
        start.arrive_and_wait();
        fault();
    };
    std::thread first(meetAndFault);
    std::thread second(meetAndFault);
    first.join();
    second.join();
}

// What the search of the test has to find, in both encodings, and must not.
void keepCanaries() {
    static std::string bytes;
    static QString units;
    static const SecretPages secret(4096);
    static ScriptEntry entry;
    for (std::size_t i = 0; i < canaryLength; ++i) {
        bytes += canaryCharacter(Canary::Kept, i);
        units += QLatin1Char(canaryCharacter(Canary::Kept, i));
        secret.data()[i] = static_cast<std::uint8_t>(canaryCharacter(Canary::Hidden, i));
        entry.text[i] = canaryCharacter(Canary::Hidden, i);
    }
}

// Copies such as a toolkit leaves behind: given back, or left by a block that had to move.
void dropCanariesAndFault() {
    for (const std::size_t size : {100U, 1000U, 60000U}) {
        char* blocks[3] = {};
        for (char*& block : blocks)
            block = static_cast<char*>(std::malloc(size));
        for (char* block : blocks)
            for (std::size_t i = 0; i < canaryLength; ++i)
                block[size / 2 + i] = canaryCharacter(Canary::Hidden, i);
        // Its neighbour is in the way.
        blocks[0] = static_cast<char*>(std::realloc(blocks[0], 8 * size));
        ::explicit_bzero(blocks[0], 8 * size);
        for (char* block : blocks)
            std::free(block);
    }
    fault();
}

// What calls that have returned left on the stack, and in registers that hardly any code uses.
__attribute__((noinline)) void leaveCanariesOnStack() {
    volatile char left[4096];
    for (std::size_t i = 0; i < canaryLength; ++i)
        left[sizeof(left) / 2 + i] = canaryCharacter(Canary::Hidden, i);
}

void leaveCanariesAndFault() {
    leaveCanariesOnStack();
#if defined(__x86_64__)
    static const SecretPages secret(4096);
    for (std::size_t i = 0; i < canaryLength; ++i)
        secret.data()[i] = static_cast<std::uint8_t>(canaryCharacter(Canary::Hidden, i));
    asm volatile("movdqu (%0), %%xmm14\n movdqu 16(%0), %%xmm15"
                 :
                 : "r"(secret.data())
                 : "xmm14", "xmm15");
#endif
    fault();
}

// In the dialog of a new Type entry: types the canary as a hidden text.
void typeHiddenText(bool hideFirst) {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog) std::_Exit(3);
    auto* hide = dialog->findChild<QCheckBox*>(QStringLiteral("hide"));
    auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("text"));
    if (hideFirst) hide->click();
    for (std::size_t i = 0; i < canaryLength; ++i) {
        const QString character{QLatin1Char(canaryCharacter(Canary::Hidden, i))};
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, character, Qt::NoModifier);
    }
    if (!hideFirst) hide->click();
    QApplication::processEvents();
    if (edit->text().size() != static_cast<int>(canaryLength)) std::_Exit(4);
}

// In the editor with its real window and dialogs. By a signal that somebody sends, or a fault.
void typeAndFault(const std::filesystem::path& folder, bool hideFirst, bool inDialog,
                  int signal = 0) {
    StartupSettings settings;
    settings.programDir = pathFromQt(QCoreApplication::applicationDirPath());
    settings.workingDir = settings.installDir = settings.configDir = folder;
    ApplicationState state;
    static_cast<void>(loadApplication(state, settings, {}));
    MainWindow window(state);
    ScriptEditor editor(state, window, editParameters);
    const CommandHandlers handlers(state, window, editor);
    window.show();
    QApplication::setActiveWindow(&window);
    auto* palette = window.findChild<QListView*>(QStringLiteral("scriptEventsPalette"));
    const auto type = std::ranges::find(scriptEvents(), CommandCode::Type, &ScriptEventInfo::code);
    const auto row = static_cast<int>(type - scriptEvents().begin());
    palette->setCurrentIndex(palette->model()->index(row, 0));
    QTimer::singleShot(0, palette, [&] {
        typeHiddenText(hideFirst);
        if (signal != 0) ::kill(::getpid(), signal);
        if (inDialog) fault();
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    window.runCommand(EditorCommand::InsertScriptEvent);
    if (state.script.entryCount() != 1) std::_Exit(5);
    QApplication::processEvents();
    fault();
}

const std::map<std::string, std::function<void(const std::filesystem::path&)>> ways = {
    {"read", [](const auto&) { fault(); }},
    {"write", [](const auto&) { faultByWriting(nowhere(0x10)); }},
    {"noncanonical", [](const auto&) { faultByReading(nowhere(0x8000000000000000)); }},
    {"instruction", [](const auto&) { faultByInstruction(); }},
    {"abort", [](const auto&) { std::abort(); }},
    {"recursion", [](const auto&) { faultByRecursion(0); }},
    {"sent", [](const auto&) { ::kill(::getpid(), SIGSEGV); }},
    {"threads", [](const auto&) { faultInTwoThreads(); }},
    {"dropped", [](const auto&) { dropCanariesAndFault(); }},
    {"left", [](const auto&) { leaveCanariesAndFault(); }},
    {"typed", [](const auto& folder) { typeAndFault(folder, true, false); }},
    {"hiddenLater", [](const auto& folder) { typeAndFault(folder, false, false); }},
    {"dialog", [](const auto& folder) { typeAndFault(folder, true, true); }},
    {"quit", [](const auto& folder) { typeAndFault(folder, true, true, SIGQUIT); }},
    {"processorTime", [](const auto& folder) { typeAndFault(folder, true, true, SIGXCPU); }},
    {"fileSize", [](const auto& folder) { typeAndFault(folder, true, true, SIGXFSZ); }},
    {"trap", [](const auto& folder) { typeAndFault(folder, true, true, SIGTRAP); }},
    {"systemCall", [](const auto& folder) { typeAndFault(folder, true, true, SIGSYS); }},
};

}  // namespace
}  // namespace quendra::test

int main(int argc, char** argv) {
    if (const auto status = quendra::reportCrash(argc, argv)) return *status;
    if (argc != 3) return 2;
    const auto way = quendra::test::ways.find(argv[1]);
    if (way == quendra::test::ways.end()) return 2;
    const QApplication application(argc, argv);
    quendra::installCrashReporter(argv[0], argv[2]);
    quendra::test::keepCanaries();
    way->second(argv[2]);
    return 1;
}
