// Editors that look for each other's windows: real processes, killed ones and hostile ones.
#include "platform/editor_windows.h"

#include "platform/editor_messages.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

namespace quendra::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* className = "Quendra Script Editor";

std::size_t filesIn(const fs::path& folder, std::string_view prefix) {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        count += entry.path().filename().native().starts_with(prefix) ? 1 : 0;
    }
    return count;
}

void serveFor(EditorListener& listener, std::chrono::milliseconds time) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) {
        pollfd waiting = {listener.descriptor(), POLLIN, 0};
        if (::poll(&waiting, 1, 20) > 0) listener.serve();
    }
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

// An editor in a process of its own. It writes "l" when it listens and "r" for each raise.
class OtherEditor {
  public:
    OtherEditor(const fs::path& folder, const std::string& windowClass, const fs::path& shown)
        : process_([&] {
              EditorListener listener(folder,
                                      {windowClass, [&] { return shown; }, [&] { note('r'); }});
              if (listener.failure()) return;
              note('l');
              serveFor(listener, std::chrono::minutes(1));
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
        const ssize_t count = ::read(notes_[0], notes.data(), notes.size());
        return count > 0 ? static_cast<int>(count) : 0;
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

    // A socket in the folder that nobody answers on, or that nobody listens on any more.
    [[nodiscard]] Descriptor bindSocket(const char* name, bool listens) const {
        Descriptor socket(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
        const auto address = socketAddress(folder / name);
        EXPECT_EQ(
            ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address), 0);
        EXPECT_TRUE(!listens || ::listen(socket.get(), 4) == 0);
        return socket;
    }

    // A connection to the only editor in the folder.
    [[nodiscard]] Descriptor connectToEditor() const {
        for (const auto& entry : fs::directory_iterator(folder)) {
            Descriptor socket(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
            const auto address = socketAddress(entry.path());
            if (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&*address),
                          sizeof *address) == 0) {
                return socket;
            }
        }
        return Descriptor();
    }

    const TemporaryFolder scratch;
    const fs::path folder;
    const fs::path script;
};

TEST_F(EditorWindowsTest, TheOneThatShowsTheScriptIsRaised) {
    std::ofstream(scratch / "other.qds") << "x";
    fs::create_symlink(script, scratch / "link.qds");
    const OtherEditor untitled(folder, className, "");
    const OtherEditor other(folder, className, scratch / "other.qds");
    const OtherEditor shows(folder, className, script);
    EXPECT_TRUE(raise(script));
    EXPECT_TRUE(raise(scratch / "link.qds")) << "by another name";
    EXPECT_TRUE(raise(scratch / "sockets/../login.qds"));
    EXPECT_TRUE(raise(fs::relative(script)));
    EXPECT_EQ(shows.raises(), 4);
    EXPECT_EQ(other.raises() + untitled.raises(), 0);
    EXPECT_FALSE(raise(scratch / "third.qds")) << "another script gives another window";
    EXPECT_FALSE(raise(scratch / "login.qd"));
}

TEST_F(EditorWindowsTest, AScriptThatIsNotWrittenYetIsFoundToo) {
    const OtherEditor shows(folder, className, scratch / "new.qds");
    EXPECT_TRUE(raise(scratch / "./new.qds"));
    EXPECT_EQ(shows.raises(), 1);
}

TEST_F(EditorWindowsTest, OnlyOneOfTwoWindowsIsRaised) {
    const OtherEditor first(folder, className, script);
    const OtherEditor second(folder, className, script);
    EXPECT_TRUE(raise(script));
    EXPECT_EQ(first.raises() + second.raises(), 1);
}

TEST_F(EditorWindowsTest, AClassNameFindsTheWindowsWhoseClassContainsIt) {
    const OtherEditor strict(folder, "Quendra Script Editor 6.1", script);
    EXPECT_TRUE(raise(script, "Quendra Script Editor"));
    EXPECT_TRUE(raise(script, "Quendra Script Editor 6.1"));
    EXPECT_FALSE(raise(script, "Quendra Script Editor 6.2"));
    EXPECT_EQ(strict.raises(), 2);
}

TEST_F(EditorWindowsTest, AKilledEditorLeavesNothingInTheWay) {
    OtherEditor killed(folder, className, script);
    killed.process().kill();
    ASSERT_EQ(filesIn(folder, editorSocketPrefix), 1U);
    EXPECT_FALSE(raise(script));
    EXPECT_EQ(filesIn(folder, ""), 0U);
    const OtherEditor next(folder, className, script);
    EXPECT_TRUE(raise(script));
}

TEST_F(EditorWindowsTest, AnEditorThatEndsRemovesItsSocket) {
    {
        const EditorListener listener(folder, {className, [] { return ""; }, [] {}});
        EXPECT_EQ(filesIn(folder, editorSocketPrefix), 1U);
    }
    EXPECT_EQ(filesIn(folder, ""), 0U);
}

TEST_F(EditorWindowsTest, PeersThatHangOrLieCostABoundedTime) {
    OtherEditor stopped(folder, className, script);
    stopped.process().stop();
    const Descriptor deaf = bindSocket("editor-deaf", true);
    const Descriptor liar = bindSocket("editor-liar", true);
    const OtherProcess lying([&] {
        while (true) {
            const Descriptor connection(::accept(liar.get(), nullptr, nullptr));
            static_cast<void>(sendPacket(connection.get(), "maybe, yes"));
        }
    });
    const Descriptor hanging = bindSocket("editor-yes", true);
    const OtherProcess halfway([&] {
        const Descriptor connection(::accept(hanging.get(), nullptr, nullptr));
        static_cast<void>(sendPacket(connection.get(), editorSaysYes));
        ::pause();
    });
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_FALSE(raise(script));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(2500));
    EXPECT_EQ(filesIn(folder, editorSocketPrefix), 4U) << "they live, if badly";

    const OtherEditor honest(folder, className, script);
    const Descriptor again = bindSocket("editor-again", true);
    const auto secondBegin = std::chrono::steady_clock::now();
    EXPECT_TRUE(raise(script)) << "an honest one is heard among them";
    EXPECT_LT(std::chrono::steady_clock::now() - secondBegin, std::chrono::milliseconds(500));
}

TEST_F(EditorWindowsTest, OtherFilesInTheFolderStay) {
    std::ofstream(folder / "editor-file") << "x";
    std::ofstream(scratch / "outside") << "x";
    fs::create_symlink(scratch / "outside", folder / "editor-link");
    { const Descriptor dead = bindSocket("other-dead", false); }
    EXPECT_FALSE(raise(script));
    EXPECT_EQ(filesIn(folder, ""), 3U);
    EXPECT_TRUE(fs::exists(scratch / "outside"));
}

TEST_F(EditorWindowsTest, AListenerOutlastsGarbage) {
    const OtherEditor editor(folder, className, script);
    const std::string path = script;
    const std::string packets[] = {
        "",
        "x",
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
        const Descriptor connection = connectToEditor();
        ASSERT_TRUE(connection.isOpen());
        EXPECT_TRUE(sendPacket(connection.get(), packet));
        std::array<char, 16> answer{};
        EXPECT_LE(::recv(connection.get(), answer.data(), answer.size(), 0), 0)
            << "answered " << packet.substr(0, 40);
    }
    std::vector<Descriptor> silent;
    for (int i = 0; i < 100; ++i) {
        silent.push_back(connectToEditor());
        ASSERT_TRUE(silent.back().isOpen());
    }
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
        const EditorAdmission admission =
            admitEditor(folder, script, {className, [&] { return script; }, [] {}});
        const char note = admission.raisedOther ? 'r' : admission.listener ? 'l' : '?';
        if (::write(notes[1], &note, 1) == 1 && admission.listener) {
            serveFor(*admission.listener, std::chrono::minutes(1));
        }
    };
    std::vector<std::unique_ptr<OtherProcess>> editors;
    for (int i = 0; i < count; ++i)
        editors.push_back(std::make_unique<OtherProcess>(startOne));
    ::close(gate[1]);

    std::string heard;
    pollfd waiting = {notes[0], POLLIN, 0};
    for (char note = 0; static_cast<int>(heard.size()) < count; heard += note) {
        if (::poll(&waiting, 1, 10'000) != 1 || ::read(notes[0], &note, 1) != 1) break;
    }
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
    const OtherEditor untitled(folder, className, "");
    const EditorWindow window = {className, [] { return ""; }, [] {}};
    const EditorAdmission second = admitEditor(folder, "", window);
    EXPECT_FALSE(second.raisedOther);
    EXPECT_NE(second.listener, nullptr);
    const EditorAdmission alone = admitEditor(std::nullopt, script, window);
    EXPECT_FALSE(alone.raisedOther);
    EXPECT_EQ(alone.listener, nullptr);
    const EditorAdmission nowhere = admitEditor(scratch / "not-there", script, window);
    EXPECT_FALSE(nowhere.raisedOther);
    EXPECT_EQ(nowhere.listener, nullptr);
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
