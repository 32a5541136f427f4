// How the dialogs look, in each language: no mnemonic twice, nothing cut off, nothing empty; and
// pictures of all of them for those who want to see.
#include "dialogs/dialog_fixture.h"
#include "dialogs/look_checks.h"

#include <QApplication>

namespace quendra::test {
namespace {

using Code = CommandCode;

/// A dialog as it opens on `entry`, and what is then done in it.
struct LookRow {
    const char* name;
    Code code;
    std::uint32_t commandId = 0;
    bool isFilled = false;
    /// Presses this, or types this into it.
    const char* field = nullptr;
    const char* text = nullptr;
    Slot slot = Slot::Entry;
    /// The then action is chosen for this one.
    ActionOwner chooses = ActionOwner::None;
};

void fill(ScriptEntry& entry) {
    for (const Slot slot : {Slot::Entry, Slot::Then}) {
        setText(slotFields(entry, slot), "TSO LOGON");
    }
    entry.hasTimeout = 1;
    entry.timeoutSeconds = 30;
    entry.secondOperandKind = 2;
    if (entry.thenCode == Code::None) entry.thenCode = Code::Goto;
    entry.elseCode = Code::Message;
    setText(slotFields(entry, Slot::Else),
            "The host did not answer within half a minute & the script goes on without it.");
}

constexpr LookRow lookRows[] = {
    {"Comment", Code::Comment, 0, true},
    {"Goto", Code::Goto, 0, true},
    {"Label", Code::Label, 0, true},
    {"Message", Code::Message, 0, true},
    {"Type", Code::Type, 0, true},
    {"TypeHidden", Code::Type, 0, true, "hide"},
    {"ExpressLogon", Code::ExpressLogon, 0, true},
    {"Wait", Code::Wait},
    {"WaitReady", Code::WaitReady},
    {.name = "WaitElse", .code = Code::Wait, .slot = Slot::Else},
    {.name = "WaitReadyElse", .code = Code::WaitReady, .slot = Slot::Else},
    {"Run", Code::Run, 0, true},
    {"Menu202", Code::MenuCommand, 202, true},
    {"Menu204", Code::MenuCommand, 204, true},
    {"Menu219", Code::MenuCommand, 219, true},
    {"Menu254", Code::MenuCommand, 254, true},
    {"Menu257", Code::MenuCommand, 257, true},
    {"SetCursor", Code::SetCursor},
    {"Copy", Code::Copy},
    {"CopyEntireScreen", Code::Copy, 0, false, "entireScreen"},
    {"Paste", Code::Paste},
    {"Input", Code::Input, 0, false, "prompt", "Code of the day.\nIt has six digits.\u4e2d"},
    {"WaitUntil", Code::WaitUntil, 0, false, "hasTime"},
    {"WaitForNew", Code::WaitFor},
    {"WaitFor", Code::WaitFor, 0, true},
    {"WaitForFault", Code::WaitFor, 0, true, "row", "70"},
    {.name = "WatchedWaitFor", .code = Code::WaitFor, .isFilled = true, .slot = Slot::Then},
    {"IfInputIsNew", Code::IfInputIs},
    {"IfInputIs", Code::IfInputIs, 0, true},
    {"WatchForNew", Code::WatchFor},
    {"WatchFor", Code::WatchFor, 0, true},
    {.name = "ActionNew", .code = Code::WaitFor, .chooses = ActionOwner::WaitForOrWatchFor},
    {"Action", Code::IfInputIs, 0, true, nullptr, nullptr, {}, ActionOwner::IfInputIs},
};

class DialogLook : public SearchDialogTest,
                   public ::testing::WithParamInterface<std::tuple<LookRow, std::string>> {
  protected:
    DialogLook() : SearchDialogTest(std::get<std::string>(GetParam())) {}

    /// Runs the dialog, and looks at it before Cancel.
    void show(const std::function<void(QDialog&)>& look) {
        const LookRow& row = std::get<LookRow>(GetParam());
        startWith(row.code, row.slot, row.commandId);
        if (row.isFilled) fill(entry);
        if (row.slot == Slot::Then) entry.commandCode = Code::WatchFor;
        steps.in(anyDialog, [&](const OpenDialog& d) {
            if (row.field && row.text) d.retype(row.field, row.text);
            if (row.field && !row.text) d.click(row.field);
            QCoreApplication::processEvents();
            look(*d.dialog);
            d.click("cancel");
        });
        EXPECT_FALSE(row.chooses == ActionOwner::None ? run(row.slot)
                                                      : choose(Slot::Then, row.chooses));
    }
};

TEST_P(DialogLook, EveryTextIsWholeAndEveryMnemonicWorks) {
    show([](QDialog& dialog) {
        expectWholeTexts(dialog, "thenLine elseLine");
        EXPECT_FALSE(dialog.property("helpPage").toString().isEmpty());
        const QSize room = dialog.isSizeGripEnabled() ? QSize(1024, 768) : QSize(640, 460);
        EXPECT_EQ(dialog.size().boundedTo(room), dialog.size());
        expectMnemonicsThatWork(dialog);
    });
}

TEST_P(DialogLook, CanBeSeenInPictures) {
    if (!wantsPictures()) GTEST_SKIP() << "QUENDRA_PICTURES names no folder";
    forLightAndDark([this](const std::string& appearance) {
        show([&](QDialog& dialog) {
            const auto& [row, language] = GetParam();
            savePicture(dialog, std::string(row.name) + '-' + language + '-' + appearance);
        });
    });
}

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogLook,
                         ::testing::Combine(::testing::ValuesIn(lookRows),
                                            ::testing::Values("qdstring", "qdstring_de")),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name) + '_' +
                                    std::get<1>(row.param);
                         });

}  // namespace
}  // namespace quendra::test
