// Editors that look for each other's windows: well-behaved ones, dead ones and hostile ones. Each
// is a thread here; tests/desktop has real ones, also killed.
#include "platform/editor_windows.h"

#include "platform/editor_messages.h"
#include "support/temporary_folder.h"

#include <atomic>
#include <fstream>
#include <gtest/gtest.h>
#include <latch>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* className = "Quendra Script Editor";

bool isReadable(int descriptor) {
    pollfd waiting = {descriptor, POLLIN, 0};
    return ::poll(&waiting, 1, 10) > 0;
}

void serve(EditorListener& listener, const std::stop_token& stop) {
    while (!stop.stop_requested())
        if (isReadable(listener.descriptor())) listener.serve();
}

EditorWindow windowOf(const fs::path& shown) {
    return {className, [shown] { return shown; }, [](const std::string&) {}};
}

class OtherEditor {
  public:
    OtherEditor(const fs::path& folder, const fs::path& shown, const char* windowClass = className)
        : listener_(folder, {windowClass, [shown] { return shown; },
                             [this](const std::string& with) {
                                 token = with;
                                 ++raises;
                             }}),
          thread_([this](const std::stop_token& stop) { serve(listener_, stop); }) {}

    std::atomic<int> raises = 0;
    /// Of the last one that asked, whose answer came after it was set.
    std::string token;

  private:
    EditorListener listener_;
    const std::jthread thread_;
};

class EditorWindowsTest : public testing::Test {
  protected:
    EditorWindowsTest() {
        fs::create_directory(folder);
        std::ofstream(script) << "x";
    }

    [[nodiscard]] bool raise(const fs::path& path) const {
        return raiseEditorShowing(folder, path, className);
    }
    [[nodiscard]] std::ptrdiff_t filesInFolder() const {
        return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
    }
    // A socket, and what the system call makes of the address of this name in the folder.
    [[nodiscard]] Descriptor socketAt(const fs::path& name, decltype(&::connect) call) const {
        Descriptor socket(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
        const auto address = socketAddress(folder / name);
        const auto* const where = reinterpret_cast<const sockaddr*>(&*address);
        EXPECT_EQ(call(socket.get(), where, sizeof *address), 0);
        return socket;
    }
    // A socket in the folder that nobody answers on.
    [[nodiscard]] Descriptor deafPeer(const fs::path& name) const {
        Descriptor socket = socketAt(name, ::bind);
        EXPECT_EQ(::listen(socket.get(), 16), 0);
        return socket;
    }
    // One that gives everyone this answer at once, and no other.
    [[nodiscard]] std::jthread peerSaying(std::string_view answer, const fs::path& name) const {
        return std::jthread([answer, socket = deafPeer(name)](const std::stop_token& stop) {
            std::vector<Descriptor> connections;
            while (!stop.stop_requested()) {
                if (!isReadable(socket.get())) continue;
                connections.emplace_back(::accept(socket.get(), nullptr, nullptr));
                static_cast<void>(sendPacket(connections.back().get(), answer));
            }
        });
    }

    const TemporaryFolder scratch;
    const fs::path folder = scratch / "sockets";
    const fs::path script = scratch / "login.qds";
};

TEST_F(EditorWindowsTest, TheOneThatShowsTheScriptAndHasTheClassIsRaised) {
    fs::create_symlink(script, scratch / "link.qds");
    const OtherEditor untitled(folder, "");
    const OtherEditor other(folder, scratch / "other.qds");
    const OtherEditor unwritten(folder, scratch / "new.qds");
    const OtherEditor shows(folder, script, "Quendra Script Editor 6.1");
    for (const fs::path& name : {script, scratch / "link.qds", scratch / "sockets/../login.qds",
                                 fs::relative(script), scratch / "./new.qds"})
        EXPECT_TRUE(raise(name)) << name;
    EXPECT_EQ(shows.raises, 4);
    EXPECT_EQ(shows.token, "");
    {
        const EditorListener self(folder, {className, [this] { return script; }, {}});
        EXPECT_TRUE(self.raiseOther(script));
        EXPECT_FALSE(self.raiseOther(scratch / "third.qds"));
        EXPECT_EQ(shows.raises, 5);
    }
    const Environment launched = {{"DESKTOP_STARTUP_ID", "host_TIME42"}};
    EXPECT_TRUE(
        admitEditor(folder, script, windowOf(script), activationToken(launched)).raisedOther);
    EXPECT_EQ(shows.token, "host_TIME42");
    const std::string endless(maxEditorQuestion, 't');
    EXPECT_TRUE(raiseEditorShowing(folder, script, className, endless));
    EXPECT_EQ(shows.token, "") << "too long to be one";
    EXPECT_EQ(unwritten.raises, 1);
    EXPECT_EQ(other.raises + untitled.raises, 0);
    EXPECT_FALSE(raise(scratch / "third.qds")) << "another script gives another window";
    EXPECT_FALSE(raiseEditorShowing(folder, script, "Quendra Script Editor 6.2"));
    const OtherEditor second(folder, script);
    EXPECT_TRUE(raise(script));
    EXPECT_EQ(shows.raises + second.raises, 8) << "one of two windows";
}

TEST_F(EditorWindowsTest, EditorsThatAreGoneLeaveNothingInTheWayAndOtherFilesStay) {
    { const OtherEditor ended(folder, script); }
    EXPECT_EQ(filesInFolder(), 0) << "one that ends removes its socket";
    { const Descriptor killed = socketAt("editor-killed", ::bind); }
    { const Descriptor foreign = socketAt("other-dead", ::bind); }
    std::ofstream(folder / "editor-file") << "x";
    fs::create_symlink(script, folder / "editor-link");
    EXPECT_FALSE(raise(script));
    EXPECT_FALSE(fs::exists(folder / "editor-killed"));
    EXPECT_EQ(filesInFolder(), 3);
    EXPECT_TRUE(fs::exists(script));
}

TEST_F(EditorWindowsTest, PeersThatHangOrLieStandInNobodysWay) {
    const Descriptor deaf = deafPeer("editor-deaf");
    const std::jthread liar = peerSaying("maybe, yes", "editor-liar");
    {
        const std::jthread halfway = peerSaying(editorSaysYes, "editor-yes");
        EXPECT_FALSE(raise(script));
        EXPECT_EQ(filesInFolder(), 3) << "they live, if badly";
    }
    const OtherEditor honest(folder, script);
    EXPECT_TRUE(raise(script)) << "an honest one is heard among them";
}

TEST_F(EditorWindowsTest, AListenerOutlastsGarbage) {
    const OtherEditor editor(folder, script);
    const auto socketName = fs::directory_iterator(folder)->path().filename();
    const std::string path = script;
    const std::string packets[] = {
        "",
        std::string(100'000, 'A'),
        packetOf({EditorVerb::Raise, className, "login.qds"}),
        packetOf({EditorVerb::Raise, className, path + '\0'}),
        "kill" + packetOf({EditorVerb::Raise, className, path}).substr(5),
        packetOf({EditorVerb::Raise, std::string(9000, 'c'), path}),
    };
    for (const std::string& packet : packets) {
        const Descriptor connection = socketAt(socketName, ::connect);
        EXPECT_TRUE(sendPacket(connection.get(), packet));
        char answer = 0;
        EXPECT_LE(::recv(connection.get(), &answer, 1, 0), 0) << packet.substr(0, 40);
    }
    std::vector<Descriptor> silent;
    for (int i = 0; i < 100; ++i)
        silent.push_back(socketAt(socketName, ::connect));
    EXPECT_TRUE(raise(script));
    EXPECT_EQ(editor.raises, 1);
}

TEST_F(EditorWindowsTest, OfManyThatStartAtOnceOneGetsTheScript) {
    // While the first one waits for it, all others have started.
    const Descriptor deaf = deafPeer("editor-deaf");
    constexpr int count = 8;
    std::latch admitted(count);
    std::atomic<int> listening = 0;
    std::atomic<int> raising = 0;
    std::vector<std::jthread> editors;
    for (int i = 0; i < count; ++i) {
        editors.emplace_back([&](const std::stop_token& stop) {
            const EditorAdmission admission = admitEditor(folder, script, windowOf(script));
            raising += admission.raisedOther ? 1 : 0;
            listening += admission.listener ? 1 : 0;
            admitted.count_down();
            if (admission.listener) serve(*admission.listener, stop);
        });
    }
    admitted.wait();
    editors.clear();
    EXPECT_EQ(listening, 1);
    EXPECT_EQ(raising, count - 1);
}

TEST_F(EditorWindowsTest, StartingWithoutAScriptOrAFolderAsksNobody) {
    const OtherEditor untitled(folder, "");
    EXPECT_TRUE(admitEditor(folder, "", windowOf("")).listener);
    EXPECT_FALSE(admitEditor(std::nullopt, script, windowOf(script)).listener);
    EXPECT_FALSE(admitEditor(scratch / "not-there", script, windowOf(script)).listener);
}

TEST(EditorSocketFolder, IsOneThatOnlyTheUserEnters) {
    const TemporaryFolder scratch;
    const fs::path fallback = scratch / ("quendra-script-editor-" + std::to_string(::geteuid()));
    const fs::path deep = std::string(60, 'd');
    for (const fs::path& runtime : {fs::path("good"), fs::path("linked"), deep})
        fs::create_directories(scratch / runtime);
    fs::create_directories(scratch / "open/quendra-script-editor");
    fs::permissions(scratch / "open/quendra-script-editor", fs::perms(0755));
    fs::create_directory_symlink(scratch / "good", scratch / "linked/quendra-script-editor");
    const auto folderFor = [&](const fs::path& runtime) {
        return editorSocketFolder({{"XDG_RUNTIME_DIR", runtime}}, scratch.path());
    };
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(folderFor(scratch / "good"), scratch / "good/quendra-script-editor");
    for (const fs::path& bad :
         {scratch / "open", scratch / "linked", scratch / "missing", scratch / deep, deep})
        EXPECT_EQ(folderFor(bad), fallback) << bad;
    EXPECT_EQ(fs::status(fallback).permissions(), fs::perms(0700));
    fs::permissions(fallback, fs::perms(0770));
    EXPECT_FALSE(editorSocketFolder({}, scratch.path())) << "open to a group";
}

}  // namespace
}  // namespace quendra::test
