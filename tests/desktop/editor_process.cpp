#include "desktop/editor_process.h"

#include <fstream>
#include <iostream>

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
    if (HasFailure()) std::cout << "on the screen:\n" << windowTitles();
}

std::unique_ptr<ChildProcess> EditorProcessTest::start(const std::string& script,
                                                       const Words& options) {
    auto editor = std::make_unique<ChildProcess>();
    editor->setVariable("HOME", home_.path());
    editor->setVariable("XDG_CONFIG_HOME", home_ / "config");
    editor->setVariable("XDG_DATA_HOME", home_ / "data");
    editor->setVariable("XDG_CONFIG_DIRS", home_ / "etc");
    editor->setVariable("XDG_RUNTIME_DIR", home_ / "runtime");
    // A program that lies in the temporary folder works in another one.
    editor->setVariable("TMPDIR", home_.path());
    editor->setVariable("LC_ALL", "C.UTF-8");
    editor->setWorkingDirectory(QString::fromStdString(home_.path()));
    editor->setProcessChannelMode(QProcess::ForwardedChannels);
    Words command = {QUENDRA_EDITOR};
    command.insert(command.end(), options.begin(), options.end());
    if (!script.empty()) command.push_back(pathOf(script));
    editor->startAs(command);
    return editor;
}

std::unique_ptr<ChildProcess> EditorProcessTest::open(const std::string& script) {
    auto editor = start(script);
    waitForTitle(titleOf(script));
    return editor;
}

std::string EditorProcessTest::titleOf(const std::string& script, bool modified) const {
    return "Quendra Script Editor  -  " + (script.empty() ? "Untitled" : pathOf(script).string()) +
           (modified ? " *" : "");
}

}  // namespace quendra::test
