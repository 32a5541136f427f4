#include "desktop/editor_process.h"

#include <fstream>

namespace quendra::test {

namespace fs = std::filesystem;

EditorProcessTest::EditorProcessTest() {
    for (const char* folder : {"config/quendra", "runtime", "etc"})
        fs::create_directories(home_ / folder);
    fs::permissions(home_ / "runtime", fs::perms::owner_all);
    std::ofstream(home_ / "config/quendra/registry.ini")
        << "[Identities]\nDefault User ID=" << frozenIdentity() << "\n";
}

EditorProcessTest::~EditorProcessTest() {
    if (!HasFailure()) return;
    for (const std::string& title : windowTitles())
        std::cout << "on the screen: " << title << "\n";
    if (std::ifstream log(home_ / "editor.log"); log.peek() != EOF) std::cout << log.rdbuf();
}

std::unique_ptr<ChildProcess> EditorProcessTest::start(const std::string& script) {
    Command command = {QUENDRA_EDITOR};
    if (!script.empty()) command.push_back(pathOf(script));
    const ChildProcess::Variables variables = {{"HOME", home_.path()},
                                               {"XDG_CONFIG_HOME", home_ / "config"},
                                               {"XDG_DATA_HOME", home_ / "data"},
                                               {"XDG_CONFIG_DIRS", home_ / "etc"},
                                               {"XDG_RUNTIME_DIR", home_ / "runtime"},
                                               {"QT_QPA_PLATFORM", "xcb"},
                                               {"QT_QPA_PLATFORMTHEME", "none"},
                                               {"LC_ALL", "C.UTF-8"}};
    return std::make_unique<ChildProcess>(command, variables, home_.path(), home_ / "editor.log");
}

std::unique_ptr<ChildProcess> EditorProcessTest::open(const std::string& script) {
    auto editor = start(script);
    waitForTitle(titleOf(script));
    return editor;
}

std::string EditorProcessTest::titleOf(const std::string& script, bool modified) const {
    return titleStart + (script.empty() ? "Untitled" : pathOf(script).string()) +
           (modified ? " *" : "");
}

void EditorProcessTest::write(const std::string& script, const Bytes& bytes) const {
    writeBytes(pathOf(script), bytes);
}

}  // namespace quendra::test
