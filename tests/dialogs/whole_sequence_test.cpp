// A hidden text on the real window with its real dialog: from the palette to the file and back.
#include "support/dialog_fixture.h"

#include <algorithm>

namespace quendra::test {
namespace {

using enum EditorCommand;

class WholeSequenceTest : public EditorTest {
  protected:
    /// Runs a menu command that opens the dialog of a Type, and does `work` in that.
    void runWithDialog(EditorCommand command, const std::function<void(const OpenDialog&)>& work) {
        ModalSteps steps;
        steps.in("textDialog", work);
        toDialogs = {[&](ScriptEntry& entry) {
            return steps.run([&] { return editParameters({state, &window}, {entry}); });
        }};
        run(command);
    }
};

TEST_F(WholeSequenceTest, AHiddenTypeStaysHiddenInTheFileAndWhenItIsEditedAgain) {
    constexpr int typeRow = 14;
    const auto path = open("a.qds", commentFile(2));
    select({1}, 1);
    choosePaletteRow("scriptEventsPalette", typeRow);
    runWithDialog(InsertScriptEvent, [](const OpenDialog& d) {
        d.click("hide");
        d.retype("text", "secret");
        d.press(Qt::Key_Return);
    });
    expectScript("1|2|Type \"******\" (H)", {2}, 2);
    run(Save);
    const Bytes file = readBytes(path);
    EXPECT_TRUE(std::ranges::search(file, bytesOf("secret")).empty());
    run(NewScript);
    run(Open, path);
    select({2}, 2);
    runWithDialog(EditEntry, [](const OpenDialog& d) {
        EXPECT_FALSE(d.has("hide"));
        EXPECT_EQ(d.shown("text"), "******");
        d.type("longer");
        d.click("ok");
    });
    EXPECT_EQ(lines(), "1|2|Type \"******\" (H)");
}

}  // namespace
}  // namespace quendra::test
