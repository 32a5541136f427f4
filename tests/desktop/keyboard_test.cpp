// The log-on script of the examples, built from an empty window by keys alone.
#include "desktop/editor_process.h"
#include "model/command_catalogue.h"
#include "model/menu_commands.h"

#include <algorithm>

namespace quendra::test {
namespace {

// What is pressed while the window of this title has the focus.
struct Step {
    std::string window;
    Words keys;
};

std::string downTo(std::size_t row) {
    return "Down*" + std::to_string(row);
}
std::string downTo(CommandCode code) {
    const auto found = std::ranges::find(scriptEvents(), code, &ScriptEventInfo::code);
    return downTo(static_cast<std::size_t>(found - scriptEvents().begin()));
}
std::string downToEnter() {
    return downTo(NumberedNames().luFunctions.of(HostType::Mainframe).rowOf({4, 0}).value());
}

class KeyboardTest : public EditorProcessTest {
  protected:
    // List 0 is the script, then come the palettes.
    void insert(int list, const std::string& toRow, const std::vector<Step>& steps = {}) {
        const std::string times = "*" + std::to_string(std::abs(list - list_));
        press({(list > list_ ? "Tab" : "shift+Tab") + times, "Home", toRow, "Return"});
        list_ = list;
        for (const Step& step : steps) {
            waitForTitle(step.window);
            press(step.keys);
        }
        waitForTitle(titleOf("", true));
    }
    void event(CommandCode code, const std::vector<Step>& steps = {}) {
        insert(1, downTo(code), steps);
    }
    // Its only parameter is a text.
    void event(CommandCode code, const std::string& text) {
        event(code, {{std::string(commandKeyword(code)), {"=" + text, "Return"}}});
    }
    // `variable` counts among those that an Input can fill.
    void input(const std::string& prompt, const std::string& hide, std::size_t variable) {
        event(CommandCode::Input, {{"Input",
                                    {"=TSO logon", "alt+p", "=" + prompt, "alt+m", "=8", hide,
                                     "alt+o", "Home", downTo(variable), "Return"}}});
    }
    void enter() { insert(2, enterRow_); }

    void buildFirstHalf();
    void buildSecondHalf();
    void expectSaved(const char* key, const char* typed, const char* script) const {
        pressUntil({key}, "Save Script As");
        pressUntil({typed, "Return"}, titleOf(script));
        EXPECT_EQ(readBytes(pathOf(script)), readBytes(QUENDRA_EXAMPLES "/tso-logon.qds"));
    }

  private:
    int list_ = 0;
    const std::string enterRow_ = downToEnter();
};

void KeyboardTest::buildFirstHalf() {
    const std::string toGoto = downTo(CommandCode::Goto);
    event(CommandCode::Comment,
          "Logs on to TSO, opens the editor and fetches last night's report.");
    event(CommandCode::WaitFor, {{"Wait_For", {"=ENTER USERID", "alt+m", "Tab", "=30", "alt+n"}},
                                 {"Wait_For Not Found Action", {"Home", toGoto, "Return"}},
                                 {"Goto", {"=NoHost", "Return"}},
                                 {"Wait_For", {"Return"}}});
    input("Your TSO user id:", "alt+m", 2);
    event(CommandCode::Type, "VarUserId");
    enter();
    event(CommandCode::WaitReady, {{"Wait_Ready", {"Return"}}});
    event(CommandCode::Label, "AskPassword");
    input("Your password (not shown):", "alt+h", 1);
    event(CommandCode::IfInputIs,
          {{"If_Input_Is", {"ctrl+a", "=VarPassword", "Tab", "ctrl+a", "=quit", "alt+e"}},
           {"If_Input_Is Equal Action", {"Home", toGoto, "Return"}},
           {"Goto", {"=Leave", "Return"}},
           {"If_Input_Is", {"Return"}}});
    event(CommandCode::SetCursor, {{"Set_Cursor", {"=8", "Tab", "=20", "Return"}}});
    event(CommandCode::Type, "VarPassword");
    enter();
    event(CommandCode::WaitFor,
          {{"Wait_For", {"=PASSWORD NOT AUTHORIZED", "alt+r", "=2", "alt+m", "Tab", "=3", "alt+f"}},
           {"Wait_For Found Action", {"Home", toGoto, "Return"}},
           {"Goto", {"=AskPassword", "Return"}},
           {"Wait_For", {"Return"}}});
}

void KeyboardTest::buildSecondHalf() {
    event(CommandCode::WatchFor, {{"Watch_For", {"=***", "Tab*2", "Home", enterRow_, "Return"}}});
    event(CommandCode::WaitFor,
          {{"Wait_For", {"=READY", "alt+m", "Tab", "=60", "alt+f"}},
           {"Wait_For Found Action", {"Home", downTo(CommandCode::ClearWatch), "Return"}},
           {"Wait_For", {"alt+n"}},
           {"Wait_For Not Found Action", {"Home", downTo(CommandCode::Message), "Return"}},
           {"Message", {"=TSO did not become ready within a minute.", "Return"}},
           {"Wait_For", {"Return"}}});
    insert(3, downTo(237 - firstMenuCommand),
           {{"File Transfer Settings",
             {"alt+t", "alt+f", "='OPS.NIGHTLY.REPORT'", "alt+m", "=SUMMARY", "alt+n",
              "=C:\\Reports\\summary.txt", "Return"}}});
    event(CommandCode::WaitReady, {{"Wait_Ready", {"Return"}}});
    event(CommandCode::Type, "EDIT");
    enter();
    event(CommandCode::Return);
    event(CommandCode::Label, "NoHost");
    event(CommandCode::Beep);
    event(CommandCode::Message, "The host does not answer. Is the line up?");
    event(CommandCode::Label, "Leave");
    insert(3, downTo(207 - firstMenuCommand));
}

TEST_F(KeyboardTest, BuildsTheLogOnScriptAndASecondStartReadsWhatWasSaved) {
    {
        const auto editor = open();
        buildFirstHalf();
        buildSecondHalf();
        expectSaved("ctrl+s", "=logon", "logon.qds");
        press({"alt+F4"});
        EXPECT_EQ(editor->exitCodeAtEnd(), 0);
    }
    const auto again = open("logon.qds");
    expectSaved("ctrl+shift+s", "=again.qds", "again.qds");
    press({"ctrl+q"});
    EXPECT_EQ(again->exitCodeAtEnd(), 0);
}

}  // namespace
}  // namespace quendra::test
