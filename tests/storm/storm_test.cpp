// Random gestures on the real window with its real dialogs, and what holds after each of them.
//
// QUENDRA_STORM_SEED is the first seed (1), QUENDRA_STORM_SEEDS how many follow each other (4),
// QUENDRA_STORM_GESTURES how many gestures one seed makes (150), and QUENDRA_STORM_MINUTES ends a
// long run: no seed begins after so many minutes. The same seed makes the same gestures.
#include "scriptfile/script_writer.h"
#include "storm/storm_gestures.h"

#include <chrono>
#include <iostream>
#include <limits>

namespace quendra::test {
namespace {

unsigned int fromEnvironment(const char* name, unsigned int otherwise) {
    bool isNumber = false;
    const unsigned int number = qEnvironmentVariable(name).toUInt(&isNumber);
    return isNumber ? number : otherwise;
}

// Scripts of every kind that Open and Insert Script may meet.
std::vector<std::filesystem::path> makeFiles(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    const auto add = [&](const char* name, const Bytes& bytes) {
        files.push_back(folder / name);
        writeBytes(files.back(), bytes);
    };
    for (const Case& frozen : frozenCases())
        if (frozen.name.starts_with("kinds")) add((frozen.name + ".qds").c_str(), frozen.file);
    Bytes cut = commentFile(20);
    cut.pop_back();
    add("cut.qds", cut);
    add("refused.qds", bytesOf("dear all"));
    add("full.qds", commentFile(4096));
    add("nearlyFull.qds", commentFile(4091));
    files.insert(files.end(), {folder / "new.qds", folder / "missing/new.qds"});
    return files;
}

// A script as the steps of its history lead to it, and the bytes that it had when it was there.
struct Milestone {
    explicit Milestone(const ApplicationState& state)
        : script(state.script),
          hostType(state.currentHostType),
          bytes(writeScript(script, hostType)) {}

    [[nodiscard]] bool isReachedBy(const Script& other) const {
        return other == script && writeScript(other, hostType) == bytes;
    }

    Script script;
    HostType hostType;
    Bytes bytes;
};

class Storm {
  public:
    explicit Storm(unsigned int seed)
        : chance_(seed),
          hands_(chance_),
          files_(makeFiles(editor_.folder.path())),
          window_(editor_.state),
          scriptEditor_(editor_.state, window_, editParameters),
          handlers_(editor_.state, window_, scriptEditor_),
          gestures_(chance_, window_, files_),
          start_(editor_.state) {
        editor_.state.cipher = HiddenTextCipher(frozenIdentity());
        dialogsBefore_ = replaceFileDialogHandler(
            [this](QWidget*, const FileDialogRequest&) { return gestures_.chooseFile(); });
        window_.show();
        QApplication::setActiveWindow(&window_);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
        // A refused one is told of in a box.
        hands_.during([this] {
            window_.showOpened(
                openDocumentAtStart(editor_.state, files_[chance_.below(files_.size())]));
        });
        start_ = Milestone(editor_.state);
    }
    ~Storm() { replaceFileDialogHandler(std::move(dialogsBefore_)); }
    Storm(const Storm&) = delete;
    Storm& operator=(const Storm&) = delete;

    void gesture() {
        hands_.during([this] { made_ += "\n  " + gestures_.make(); });
        // New and Open begin a history, with the script that is then the saved one.
        const ApplicationState& state = editor_.state;
        if (state.history.canUndo() || state.history.canRedo()) return;
        if (state.script == state.document.saved) start_ = Milestone(state);
    }

    [[nodiscard]] int touches() const { return hands_.touches(); }
    [[nodiscard]] const std::string& gestures() const { return made_; }

    void expectSound() {
        const ApplicationState& state = editor_.state;
        ASSERT_LE(state.script.entryCount(), maxEntries);
        const auto& list = *window_.findChild<PaneList*>(QStringLiteral("scriptList"));
        ASSERT_EQ(static_cast<std::size_t>(list.model()->rowCount()), state.script.entryCount());
        ASSERT_EQ(state.document.modified, state.script != state.document.saved);
        ASSERT_EQ(window_.windowTitle().endsWith(QStringLiteral(" *")), state.document.modified);
        ASSERT_LT(state.currentIndex, static_cast<int>(state.script.entryCount()));
        const int focused = window_.pane().focusedEntry();
        ASSERT_TRUE(focused < 0 || state.currentIndex == focused);
        ASSERT_FALSE(state.dropPending);
        ASSERT_FALSE(state.editing);
        expectCommandsFit();
        expectQuiet();
        expectHistoryLeadsBackAndForth();
    }

    // The same through the window.
    void expectUndoLeadsBack() {
        const Milestone end(editor_.state);
        std::size_t steps = 0;
        for (; editor_.state.history.canUndo(); ++steps)
            window_.runCommand(EditorCommand::Undo);
        EXPECT_TRUE(start_.isReachedBy(editor_.state.script));
        for (; steps > 0; --steps)
            window_.runCommand(EditorCommand::Redo);
        EXPECT_TRUE(end.isReachedBy(editor_.state.script));
        expectSound();
    }

  private:
    void expectCommandsFit() {
        const ApplicationState& state = editor_.state;
        const bool selected = !window_.pane().selectedEntries().empty();
        ASSERT_EQ(enabled(EditorCommand::Save), state.script.entryCount() > 0);
        ASSERT_EQ(enabled(EditorCommand::Cut), selected);
        ASSERT_EQ(enabled(EditorCommand::Paste), !state.entryClipboard.empty());
        ASSERT_EQ(enabled(EditorCommand::DeleteEntries), selected);
        ASSERT_EQ(enabled(EditorCommand::Undo), state.history.canUndo());
        ASSERT_EQ(enabled(EditorCommand::Redo), state.history.canRedo());
    }

    // Nothing is left of a drag, a dialog or a menu.
    void expectQuiet() {
        ASSERT_EQ(QApplication::activeModalWidget(), nullptr);
        ASSERT_EQ(QApplication::activePopupWidget(), nullptr);
        ASSERT_EQ(QApplication::overrideCursor(), nullptr);
        ASSERT_EQ(QWidget::mouseGrabber(), nullptr);
        ASSERT_EQ(window_.findChild<QWidget*>(QStringLiteral("dragImage")), nullptr);
        ASSERT_TRUE(window_.isEnabled());
    }

    // On copies, which cost handles only.
    void expectHistoryLeadsBackAndForth() {
        const Milestone now(editor_.state);
        UndoHistory history = editor_.state.history;
        Script script = now.script;
        std::size_t steps = 0;
        while (history.undo(script))
            ++steps;
        ASSERT_TRUE(start_.isReachedBy(script)) << "after " << steps << " steps back";
        for (; steps > 0; --steps)
            ASSERT_TRUE(history.redo(script));
        ASSERT_TRUE(now.isReachedBy(script));
    }

    [[nodiscard]] bool enabled(EditorCommand command) const {
        return window_.findChild<QAction*>(actionName(command))->isEnabled();
    }

    Chance chance_;
    ModalHands hands_;
    EditorState editor_;
    std::vector<std::filesystem::path> files_;
    MainWindow window_;
    ScriptEditor scriptEditor_;
    CommandHandlers handlers_;
    Gestures gestures_;
    Milestone start_;
    FileDialogHandler dialogsBefore_;
    std::string made_;
};

// Gives how much was done in dialogs.
void runSeed(unsigned int seed, unsigned int gestures, int& touches) {
    Storm storm(seed);
    for (unsigned int step = 1; step <= gestures; ++step) {
        storm.gesture();
        ASSERT_NO_FATAL_FAILURE(storm.expectSound())
            << "seed " << seed << ", gesture " << step << storm.gestures();
    }
    ASSERT_NO_FATAL_FAILURE(storm.expectUndoLeadsBack()) << "seed " << seed;
    touches += storm.touches();
}

TEST(GestureStorm, LeavesEveryScriptSoundAndAllOfItCanBeUndone) {
    const unsigned int first = fromEnvironment("QUENDRA_STORM_SEED", 1);
    const unsigned int gestures = fromEnvironment("QUENDRA_STORM_GESTURES", 150);
    const std::chrono::minutes time{fromEnvironment("QUENDRA_STORM_MINUTES", 0)};
    const bool timed = time.count() > 0;
    const unsigned int seeds =
        timed ? std::numeric_limits<int>::max() : fromEnvironment("QUENDRA_STORM_SEEDS", 4);
    const auto begin = std::chrono::steady_clock::now();
    int touches = 0;
    for (unsigned int done = 0; done < seeds; ++done) {
        if (timed && std::chrono::steady_clock::now() - begin > time) break;
        ASSERT_NO_FATAL_FAILURE(runSeed(first + done, gestures, touches));
        if (!timed) continue;
        std::cout << "seed " << first + done << ": " << (done + 1) * gestures << " gestures, "
                  << touches << " acts in dialogs" << std::endl;
    }
    EXPECT_GT(touches, 0) << "gestures that open no dialog";
}

}  // namespace
}  // namespace quendra::test
