// Several editors beside each other, and the ways in which a window closes.
#include "desktop/editor_process.h"

#include <algorithm>
#include <csignal>

namespace quendra::test {
namespace {

Bytes comments(std::initializer_list<std::string_view> texts) {
    Bytes file = bytesOf("QDMDSCR=");
    for (const std::string_view text : texts)
        file = joined({file, Bytes{6}, counted(text)});
    return file;
}

class WindowsTest : public EditorProcessTest {
  protected:
    WindowsTest() {
        write("a.qds", comments({"1", "2", "3"}));
        write("b.qds", comments({"4"}));
    }

    // Cuts the first entry, which stands for any change.
    void change(const std::string& script) const { pressUntil({"Home", "ctrl+x"}, script, true); }
    void pressUntil(const std::vector<std::string>& keys, const std::string& script,
                    bool modified = false) const {
        press(keys);
        waitForTitle(titleOf(script, modified));
    }
    // In the window that comes up.
    static void answer(const std::string& toCome, const std::string& title,
                       const std::vector<std::string>& keys) {
        press({toCome});
        waitForTitle(title);
        press(keys);
    }
    void expectScript(const std::string& script, const Bytes& bytes) const {
        EXPECT_EQ(readBytes(pathOf(script)), bytes);
    }
};

TEST_F(WindowsTest, SecondStartRaisesTheWindowThatShowsTheScript) {
    const auto first = open("a.qds");
    const auto other = open("b.qds");
    const auto second = start("a.qds");
    EXPECT_EQ(second->exitCode(), 0);
    waitForTitle(titleOf("a.qds"));
    const auto titles = windowTitles();
    EXPECT_EQ(std::ranges::count(titles, titleOf("a.qds")), 1);
    EXPECT_EQ(std::ranges::count(titles, titleOf("b.qds")), 1);
    EXPECT_TRUE(first->runs());
    EXPECT_TRUE(other->runs());
}

TEST_F(WindowsTest, RaisingReachesAMinimisedWindowAndOneWithAnOpenDialog) {
    const auto first = open("a.qds");
    minimiseActiveWindow();
    waitUntil([&] { return activeTitle() != titleOf("a.qds"); }, "the window is minimised");
    EXPECT_EQ(start("a.qds")->exitCode(), 0);
    waitForTitle(titleOf("a.qds"));
    press({"Home", "Return"});
    waitForTitle("Comment");
    const auto other = open("b.qds");
    EXPECT_EQ(start("a.qds")->exitCode(), 0);
    waitForTitle("Comment");
    press({"=new", "Return"});
    waitForTitle(titleOf("a.qds", true));
}

TEST_F(WindowsTest, KilledEditorLeavesNothingInTheWay) {
    const auto killed = open("a.qds");
    change("a.qds");
    killed->signal(SIGKILL);
    EXPECT_EQ(killed->exitCode(), -SIGKILL);
    const auto next = open("a.qds");
    change("a.qds");
    pressUntil({"ctrl+s"}, "a.qds");
    expectScript("a.qds", comments({"2", "3"}));
    EXPECT_EQ(start("a.qds")->exitCode(), 0) << "it answers in place of the killed one";
}

TEST_F(WindowsTest, ClosingWithChangesAsksAndDoesWhatIsAnswered) {
    constexpr const char* question = "Exit Script Editor";
    const auto editor = open("a.qds");
    change("a.qds");
    for (const std::vector<std::string>& cancel :
         {std::vector<std::string>{"Escape"}, {"Tab", "Tab", "Return"}}) {
        answer("alt+F4", question, cancel);
        waitForTitle(titleOf("a.qds", true));
    }
    answer("ctrl+q", question, {"alt+n"});
    EXPECT_EQ(editor->exitCode(), 0);
    expectScript("a.qds", comments({"1", "2", "3"}));
    const auto second = open("a.qds");
    change("a.qds");
    answer("alt+F4", question, {"Return"});
    EXPECT_EQ(second->exitCode(), 0);
    expectScript("a.qds", comments({"2", "3"}));
    const auto untitled = open();
    pressUntil({"Tab", "Home", "Return"}, "", true);
    press({"alt+F4"});
    waitForTitle(question);
    answer("alt+y", "Save Script As", {"=made", "Return"});
    EXPECT_EQ(untitled->exitCode(), 0);
    expectScript("made.qds", joined({bytesOf("QDMDSCR="), Bytes{4}}));
}

TEST_F(WindowsTest, UndoFindAndTheClipboardAnswerToTheirKeys) {
    const auto editor = open("a.qds");
    change("a.qds");
    pressUntil({"ctrl+z"}, "a.qds");
    pressUntil({"ctrl+shift+z"}, "a.qds", true);
    pressUntil({"ctrl+z"}, "a.qds");
    // What is found is selected: cutting it tells which entry that was.
    pressUntil({"ctrl+f", "=2", "Escape", "ctrl+x"}, "a.qds", true);
    pressUntil({"End", "ctrl+v", "ctrl+s"}, "a.qds");
    expectScript("a.qds", comments({"1", "3", "2"}));
    press({"ctrl+a"});
    answer("Delete", "Confirm Delete", {"alt+y"});
    waitForTitle(titleOf("a.qds", true));
    pressUntil({"ctrl+z"}, "a.qds");
}

TEST_F(WindowsTest, OpenDialogStartsInTheScriptsFolder) {
    const auto editor = open("a.qds");
    answer("ctrl+o", "Open Script", {"=b.qds", "Return"});
    waitForTitle(titleOf("b.qds"));
    answer("ctrl+o", "Open Script", {"Escape"});
    waitForTitle(titleOf("b.qds"));
}

}  // namespace
}  // namespace quendra::test
