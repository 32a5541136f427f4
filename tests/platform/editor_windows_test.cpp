// Editors that look for each other's windows: real processes, killed ones and hostile ones.
#include "platform/editor_windows.h"

#include "platform/editor_messages.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* className = "Quendra Script Editor";

std::size_t filesIn(const fs::path& folder, std::string_view prefix) {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(folder))
        count += entry.path().filename().native().starts_with(prefix) ? 1 : 0;
    return count;
}

void serveForever(EditorListener& listener) {
    pollfd waiting = {listener.descriptor(), POLLIN, 0};
    while (::poll(&waiting, 1, -1) > 0)
        listener.serve();
}

// Another process; gone at the end of the test whatever happens.
class OtherProcess {
  public:
    template <typename Body>
    explicit OtherProcess(Body body) : pid_(::fork()) {
        if (pid_ != 0) return;
        body();
        ::_exit(0);
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    ~OtherProcess() { kill(); }

    void kill() {
        if (pid_ <= 0) return;
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
        pid_ = -1;
    }
    void stop() const {
        ::kill(pid_, SIGSTOP);
        ::waitpid(pid_, nullptr, WUNTRACED);
    }

  private:
    pid_t pid_;
};

EditorWindow windowOf(
    const std::string& windowClass, const fs::path& shown,
    const std::function<void()>& raise = [] {}) {
    return {windowClass, [shown] { return shown; }, raise};
}

// An editor in a process of its own. It writes "l" when it listens and "r" for each raise.
class OtherEditor {
  public:
    OtherEditor(const fs::path& folder, const fs::path& shown,
                const std::string& windowClass = className)
        : process_([&] {
              EditorListener listener(folder, windowOf(windowClass, shown, [&] { note('r'); }));
              if (listener.failure()) return;
              note('l');
              serveForever(listener);
          }) {
        char first = 0;
        pollfd waiting = {notes_[0], POLLIN, 0};
        EXPECT_EQ(::poll(&waiting, 1, 5000), 1);
        EXPECT_EQ(::read(notes_[0], &first, 1), 1);
        EXPECT_EQ(first, 'l');
    }
    OtherEditor(const OtherEditor&) = delete;
    OtherEditor& operator=(const OtherEditor&) = delete;
    ~OtherEditor() {
        ::close(notes_[0]);
        ::close(notes_[1]);
    }

    OtherProcess& process() { return process_; }
    // How often it was raised since the last call.
    [[nodiscard]] int raises() const {
        std::array<char, 64> notes{};
        return std::max(static_cast<int>(::read(notes_[0], notes.data(), notes.size())), 0);
    }

  private:
    static std::array<int, 2> makePipe() {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_NONBLOCK) != 0) ADD_FAILURE() << "no pipe";
        return ends;
    }
    void note(char what) const { EXPECT_EQ(::write(notes_[1], &what, 1), 1); }

    std::array<int, 2> notes_ = makePipe();
    OtherProcess process_;
};

class EditorWindowsTest : public testing::Test {
  protected:
    EditorWindowsTest() : folder(scratch / "sockets"), script(scratch / "login.qds") {
        fs::create_directory(folder);
        std::ofstream(script) << "x";
    }

    [[nodiscard]] bool raise(const fs::path& path, const char* windowClass = className) const {
        return raiseEditorShowing(folder, path, windowClass);
    }

    // A socket, and what the system call makes of the address of this name in the folder.
    [[nodiscard]] Descriptor socketAt(const fs::path& name, decltype(&::connect) call) const {
        Descriptor socket(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
        const auto address = socketAddress(folder / name);
        EXPECT_EQ(call(socket.get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address),
                  0);
        return socket;
    }
    // A socket in the folder that nobody answers on.
    [[nodiscard]] Descriptor deafSocket(const char* name) const {
        Descriptor socket = socketAt(name, ::bind);
        EXPECT_EQ(::listen(socket.get(), 4), 0);
        return socket;
    }
    [[nodiscard]] Descriptor connectToTheOnlyEditor() const {
        return socketAt(fs::directory_iterator(folder)->path().filename(), ::connect);
    }

    const TemporaryFolder scratch;
    const fs::path folder;
    const fs::path script;
};

TEST_F(EditorWindowsTest, TheOneThatShowsTheScriptIsRaised) {
    std::ofstream(scratch / "other.qds") << "x";
    fs::create_symlink(script, scratch / "link.qds");
    const OtherEditor untitled(folder, "");
    const OtherEditor other(folder, scratch / "other.qds");
    const OtherEditor unwritten(folder, scratch / "new.qds");
    const OtherEditor shows(folder, script);
    for (const fs::path& name : {script, scratch / "link.qds", scratch / "sockets/../login.qds",
                                 fs::relative(script), scratch / "./new.qds"})
        EXPECT_TRUE(raise(name)) << name;
    EXPECT_EQ(shows.raises(), 4);
    EXPECT_EQ(unwritten.raises(), 1);
    EXPECT_EQ(other.raises() + untitled.raises(), 0);
    EXPECT_FALSE(raise(scratch / "third.qds")) << "another script gives another window";
    EXPECT_FALSE(raise(scratch / "login.qd"));
    const OtherEditor second(folder, script);
    EXPECT_TRUE(raise(script));
    EXPECT_EQ(shows.raises() + second.raises(), 1) << "one of two windows";
}

TEST_F(EditorWindowsTest, AClassNameFindsTheWindowsWhoseClassContainsIt) {
    const OtherEditor strict(folder, script, "Quendra Script Editor 6.1");
    EXPECT_TRUE(raise(script, "Quendra Script Editor"));
    EXPECT_TRUE(raise(script, "Quendra Script Editor 6.1"));
    EXPECT_FALSE(raise(script, "Quendra Script Editor 6.2"));
    EXPECT_EQ(strict.raises(), 2);
}

TEST_F(EditorWindowsTest, EditorsThatAreGoneLeaveNothingInTheWay) {
    OtherEditor killed(folder, script);
    killed.process().kill();
    ASSERT_EQ(filesIn(folder, editorSocketPrefix), 1U);
    EXPECT_FALSE(raise(script));
    EXPECT_EQ(filesIn(folder, ""), 0U);
    {
        const EditorListener listener(folder, windowOf(className, ""));
        EXPECT_EQ(filesIn(folder, editorSocketPrefix), 1U);
    }
    EXPECT_EQ(filesIn(folder, ""), 0U) << "one that ends removes its socket";
    const OtherEditor next(folder, script);
    EXPECT_TRUE(raise(script));
}

TEST_F(EditorWindowsTest, PeersThatHangOrLieStandInNobodysWay) {
    OtherEditor stopped(folder, script);
    stopped.process().stop();
    const Descriptor deaf = deafSocket("editor-deaf");
    const Descriptor liar = deafSocket("editor-liar");
    const OtherProcess lying([&] {
        while (true) {
            const Descriptor connection(::accept(liar.get(), nullptr, nullptr));
            static_cast<void>(sendPacket(connection.get(), "maybe, yes"));
        }
    });
    const Descriptor hanging = deafSocket("editor-yes");
    const OtherProcess halfway([&] {
        const Descriptor connection(::accept(hanging.get(), nullptr, nullptr));
        static_cast<void>(sendPacket(connection.get(), editorSaysYes));
        ::pause();
    });
    EXPECT_FALSE(raise(script));
    EXPECT_EQ(filesIn(folder, editorSocketPrefix), 4U) << "they live, if badly";
    const OtherEditor honest(folder, script);
    const Descriptor again = deafSocket("editor-again");
    EXPECT_TRUE(raise(script)) << "an honest one is heard among them";
}

TEST_F(EditorWindowsTest, OtherFilesInTheFolderStay) {
    std::ofstream(folder / "editor-file") << "x";
    std::ofstream(scratch / "outside") << "x";
    fs::create_symlink(scratch / "outside", folder / "editor-link");
    { const Descriptor dead = socketAt("other-dead", ::bind); }
    EXPECT_FALSE(raise(script));
    EXPECT_EQ(filesIn(folder, ""), 3U);
    EXPECT_TRUE(fs::exists(scratch / "outside"));
}

TEST_F(EditorWindowsTest, AListenerOutlastsGarbage) {
    const OtherEditor editor(folder, script);
    const std::string path = script;
    const std::string packets[] = {
        "",
        std::string(3, '\0'),
        std::string(100'000, 'A'),
        "shows",
        packetOf({EditorVerb::Raise, className, ""}),
        packetOf({EditorVerb::Raise, className, "login.qds"}),
        packetOf({EditorVerb::Raise, className, path + '\0'}),
        "kill" + packetOf({EditorVerb::Raise, className, path}).substr(5),
        packetOf({EditorVerb::Raise, std::string(9000, 'c'), path}),
    };
    for (const std::string& packet : packets) {
        const Descriptor connection = connectToTheOnlyEditor();
        EXPECT_TRUE(sendPacket(connection.get(), packet));
        std::array<char, 16> answer{};
        EXPECT_LE(::recv(connection.get(), answer.data(), answer.size(), 0), 0)
            << "answered " << packet.substr(0, 40);
    }
    std::vector<Descriptor> silent;
    for (int i = 0; i < 100; ++i)
        silent.push_back(connectToTheOnlyEditor());
    EXPECT_TRUE(raise(script));
    EXPECT_EQ(editor.raises(), 1);
}

// How each of several editors fares that start at the same moment for one script: 'l' listens, 'r'
// has raised another.
std::string startAtOnce(int count, const fs::path& folder, const fs::path& script) {
    std::array<int, 2> gate{};
    std::array<int, 2> notes{};
    EXPECT_EQ(::pipe(gate.data()) + ::pipe(notes.data()), 0);
    const auto startOne = [&] {
        char opened = 0;
        ::close(gate[1]);
        if (::read(gate[0], &opened, 1) < 0) return;
        const EditorAdmission admission = admitEditor(folder, script, windowOf(className, script));
        const char note = admission.raisedOther ? 'r' : admission.listener ? 'l' : '?';
        if (::write(notes[1], &note, 1) == 1 && admission.listener)
            serveForever(*admission.listener);
    };
    std::vector<std::unique_ptr<OtherProcess>> editors;
    for (int i = 0; i < count; ++i)
        editors.push_back(std::make_unique<OtherProcess>(startOne));
    ::close(gate[1]);

    std::string heard;
    pollfd waiting = {notes[0], POLLIN, 0};
    for (char note = 0; static_cast<int>(heard.size()) < count; heard += note)
        if (::poll(&waiting, 1, 10'000) != 1 || ::read(notes[0], &note, 1) != 1) break;
    for (const int end : {gate[0], notes[0], notes[1]})
        ::close(end);
    std::ranges::sort(heard);
    return heard;
}

TEST_F(EditorWindowsTest, OfManyThatStartAtOnceOneGetsTheScript) {
    for (int round = 0; round < 5; ++round)
        EXPECT_EQ(startAtOnce(8, folder, script), "lrrrrrrr");
}

TEST_F(EditorWindowsTest, StartingWithoutAScriptOrAFolderAsksNobody) {
    const OtherEditor untitled(folder, "");
    const auto listens = [&](const std::optional<fs::path>& at, const fs::path& shown) {
        const EditorAdmission admission = admitEditor(at, shown, windowOf(className, ""));
        EXPECT_FALSE(admission.raisedOther);
        return admission.listener != nullptr;
    };
    EXPECT_TRUE(listens(folder, ""));
    EXPECT_FALSE(listens(std::nullopt, script));
    EXPECT_FALSE(listens(scratch / "not-there", script));
}

TEST(EditorSocketFolder, IsOneThatOnlyTheUserEnters) {
    const TemporaryFolder scratch;
    const fs::path fallback = scratch / ("quendra-script-editor-" + std::to_string(::geteuid()));
    const auto folderFor = [&](const fs::path& runtime) {
        return editorSocketFolder({{"XDG_RUNTIME_DIR", runtime}}, scratch.path());
    };
    fs::create_directories(scratch / "good");
    fs::create_directories(scratch / "open/quendra-script-editor");
    fs::permissions(scratch / "open/quendra-script-editor", fs::perms(0755));
    fs::create_directories(scratch / "linked");
    fs::create_directory_symlink(scratch / "good", scratch / "linked/quendra-script-editor");
    const fs::path deep = scratch / std::string(60, 'd');
    fs::create_directories(deep);

    EXPECT_EQ(folderFor(scratch / "good"), scratch / "good/quendra-script-editor");
    EXPECT_EQ(folderFor(scratch / "good"), scratch / "good/quendra-script-editor") << "again";
    EXPECT_EQ(folderFor(scratch / "open"), fallback);
    EXPECT_EQ(folderFor(scratch / "linked"), fallback);
    EXPECT_EQ(folderFor(scratch / "missing"), fallback);
    EXPECT_EQ(folderFor(deep), fallback) << "no room for a socket's address";
    EXPECT_EQ(folderFor("relative"), fallback);
    EXPECT_EQ(editorSocketFolder({}, scratch.path()), fallback);
    EXPECT_EQ(fs::status(fallback).permissions(), fs::perms(0700));
    fs::permissions(fallback, fs::perms(0770));
    EXPECT_FALSE(editorSocketFolder({}, scratch.path())) << "open to a group";
}

}  // namespace
}  // namespace quendra::test
