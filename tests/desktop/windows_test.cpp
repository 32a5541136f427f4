// Several editors beside each other, and the ways in which a window closes.
#include "desktop/editor_process.h"
#include "support/editor_fixture.h"

#include <QImage>

#include <chrono>
#include <cstdlib>
#include <xcb/xcb.h>

namespace quendra::test {
namespace {

class WindowsTest : public EditorProcessTest {
  protected:
    WindowsTest() {
        writeBytes(pathOf("a.qds"), commentFile(3));
        writeBytes(pathOf("b.qds"), commentFile(1));
    }

    // Cuts the first entry, which stands for any change.
    void change() const { pressUntil({"Home", "ctrl+x"}, titleOf("a.qds", true)); }
    void expectScript(const std::string& script, const Bytes& bytes) const {
        EXPECT_EQ(readBytes(pathOf(script)), bytes);
    }
    const Bytes cut = scriptFile("QDMDSCR=", {commentRecord("2"), commentRecord("3")});
};

TEST_F(WindowsTest, SecondStartRaisesTheWindowThatShowsTheScriptMinimisedOrWithADialog) {
    const auto first = open("a.qds");
    act({"getactivewindow", "windowminimize"});
    waitUntil([&] { return activeTitle() != titleOf("a.qds"); }, "the window is minimised");
    EXPECT_EQ(start("a.qds")->exitCodeAtEnd(), 0);
    waitForTitle(titleOf("a.qds"));
    pressUntil({"Home", "Return"}, "Comment");
    const auto other = open("b.qds");
    EXPECT_EQ(start("a.qds")->exitCodeAtEnd(), 0);
    waitForTitle("Comment");
    pressUntil({"=new", "Return"}, titleOf("a.qds", true));
    const std::string titles = windowTitles();
    EXPECT_NE(titles.find(titleOf("b.qds")), std::string::npos);
    EXPECT_EQ(titles.find(titleOf("a.qds")), titles.rfind(titleOf("a.qds")));
    EXPECT_TRUE(first->runs() && other->runs());
}

// Hears what is asked of the window manager.
class ManagersEar {
  public:
    ManagersEar() {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server_)).data->root;
        const std::uint32_t requests = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        const auto asked =
            xcb_change_window_attributes_checked(server_, root, XCB_CW_EVENT_MASK, &requests);
        EXPECT_EQ(xcb_request_check(server_, asked), nullptr);
    }
    ~ManagersEar() { xcb_disconnect(server_); }
    ManagersEar(const ManagersEar&) = delete;
    ManagersEar& operator=(const ManagersEar&) = delete;

    /// A request of a window's that tells this time has come.
    [[nodiscard]] bool hears(std::uint32_t time) {
        while (xcb_generic_event_t* event = xcb_poll_for_event(server_)) {
            const auto& message = reinterpret_cast<xcb_client_message_event_t&>(*event);
            heard_ = heard_ || ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE &&
                                message.data.data32[1] == time);
            std::free(event);
        }
        return heard_;
    }

  private:
    xcb_connection_t* server_ = xcb_connect(nullptr, nullptr);
    bool heard_ = false;
};

TEST_F(WindowsTest, ASecondStartsTokenReachesTheWindowManager) {
    const auto shows = open("a.qds");
    const auto other = open("b.qds");
    ManagersEar ear;
    const auto click = std::chrono::steady_clock::now().time_since_epoch();
    const auto time = static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(click).count());
    qputenv("DESKTOP_STARTUP_ID", "launcher_TIME" + QByteArray::number(time));
    EXPECT_EQ(start("a.qds")->exitCodeAtEnd(), 0);
    qunsetenv("DESKTOP_STARTUP_ID");
    waitUntil([&] { return ear.hears(time); }, "the manager is asked with the time of the click");
    waitForTitle(titleOf("a.qds"));
}

TEST_F(WindowsTest, APictureMayBeLargerThanTheScreenAndWaitsForNobody) {
    writeBytes(pathOf("letter.qds"), bytesOf("dear all"));
    for (const char* script : {"a.qds", "letter.qds"}) {
        const auto drawn = start(script, {"--screenshot", pathOf("p.png"), "--size", "2000x1500"});
        EXPECT_EQ(drawn->exitCodeAtEnd(), 0);
        EXPECT_EQ(QImage(QString::fromStdString(pathOf("p.png"))).size(), QSize(2000, 1500));
    }
}

TEST_F(WindowsTest, KilledEditorLeavesNothingInTheWay) {
    const auto killed = open("a.qds");
    change();
    killed->kill();
    EXPECT_EQ(killed->exitCodeAtEnd(), -1);
    const auto next = open("a.qds");
    change();
    pressUntil({"ctrl+s"}, titleOf("a.qds"));
    expectScript("a.qds", cut);
    EXPECT_EQ(start("a.qds")->exitCodeAtEnd(), 0) << "it answers in place of the killed one";
}

TEST_F(WindowsTest, ClosingWithChangesAsksAndDoesWhatIsAnswered) {
    constexpr const char* question = "Exit Script Editor";
    const auto editor = open("a.qds");
    change();
    for (const Words& cancel : {Words{"Escape"}, {"Tab*2", "Return"}}) {
        pressUntil({"alt+F4"}, question);
        pressUntil(cancel, titleOf("a.qds", true));
    }
    pressUntil({"ctrl+q"}, question);
    press({"alt+n"});
    EXPECT_EQ(editor->exitCodeAtEnd(), 0);
    expectScript("a.qds", commentFile(3));
    const auto second = open("a.qds");
    change();
    pressUntil({"alt+F4"}, question);
    press({"Return"});
    EXPECT_EQ(second->exitCodeAtEnd(), 0);
    expectScript("a.qds", cut);
    const auto untitled = open();
    pressUntil({"Tab", "Home", "Return"}, titleOf("", true));
    pressUntil({"alt+F4"}, question);
    pressUntil({"alt+y"}, "Save Script As");
    press({"=made", "Return"});
    EXPECT_EQ(untitled->exitCodeAtEnd(), 0);
    expectScript("made.qds", scriptFile("QDMDSCR=", {Bytes{4}}));
}

TEST_F(WindowsTest, EndOfTheSessionKeepsTheChangesBesideTheScript) {
    const auto editor = open("a.qds");
    change();
    editor->terminate();
    EXPECT_EQ(editor->exitCodeAtEnd(), 0);
    expectScript("a.qds", commentFile(3));
    expectScript("a (unsaved).qds", cut);
}

TEST_F(WindowsTest, UndoFindTheClipboardAndOpenAnswerToTheirKeysAlsoWithCapsLock) {
    const auto editor = open("a.qds");
    press({"Caps_Lock"});
    const std::string changed = titleOf("a.qds", true);
    change();
    pressUntil({"ctrl+z"}, titleOf("a.qds"));
    pressUntil({"ctrl+shift+z"}, changed);
    pressUntil({"ctrl+z"}, titleOf("a.qds"));
    // What is found is selected: cutting it tells which entry that was.
    pressUntil({"ctrl+f", "=2", "Escape", "ctrl+x"}, changed);
    pressUntil({"End", "ctrl+v", "ctrl+s"}, titleOf("a.qds"));
    expectScript("a.qds", scriptFile("QDMDSCR=",
                                     {commentRecord("1"), commentRecord("3"), commentRecord("2")}));
    pressUntil({"ctrl+a", "Delete"}, "Confirm Delete");
    pressUntil({"alt+y"}, changed);
    pressUntil({"ctrl+z"}, titleOf("a.qds"));
    // In the script's folder.
    pressUntil({"ctrl+o"}, "Open Script");
    press({"Caps_Lock"});
    pressUntil({"=b.qds", "Return"}, titleOf("b.qds"));
}

}  // namespace
}  // namespace quendra::test
