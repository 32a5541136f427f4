// How the dialog of a file transfer starts and ends.
#include "dialogs/dialog_fixture.h"
#include "transfer/command_builder.h"

namespace quendra::test {
namespace {

FileTransferSettings settingsWith(std::string_view hostFile) {
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::hostFileName, hostFile);
    return settings;
}

TEST_F(SearchDialogTest, ATransferStartsFromItsOwnSettingsOrElseFromTheWorkingOnes) {
    const struct {
        const char* name;
        std::uint32_t commandId;
        Slot slot;
        bool editing;
        bool hasOwn;
        const char* shown;
    } rows[] = {
        {"a new entry", sendFileCommand, Slot::Entry, false, false, "WORKING"},
        {"an entry with settings", receiveFileCommand, Slot::Entry, true, true, "OWN"},
        {"an entry shows that it has none", receiveFileCommand, Slot::Entry, true, false, ""},
        {"an action with settings", receiveFileCommand, Slot::Else, false, true, "OWN"},
        {"an action without settings", sendFileCommand, Slot::Else, true, false, "WORKING"},
    };
    for (const auto& row : rows) {
        for (const bool ok : {true, false}) {
            SCOPED_TRACE(row.name + std::string(ok ? " ends with OK" : " is cancelled"));
            state.editing = row.editing;
            state.workingTransfer = {settingsWith("WORKING"), transferHostVmCms, {}};
            startWith(CommandCode::MenuCommand, row.slot, row.commandId);
            const SlotFields fields = slotFields(entry, row.slot);
            if (row.hasOwn) fields.transferSettings = settingsWith("OWN");
            fields.transferHost = transferHostCics;
            const ScriptEntry before = entry;
            steps.in("transferSheet", [&](const OpenDialog& d) {
                EXPECT_EQ(d.shown("hostFileName"), row.shown);
                EXPECT_TRUE(d.isChecked("transferHost2"));
                d.retype("hostFileName", "EDITED");
                d.click("transferHost1");
                d.click(ok ? "ok" : "cancel");
            });
            EXPECT_EQ(run(row.slot), ok);
            const auto& working = state.workingTransfer;
            EXPECT_EQ(working.direction == TransferDirection::Send,
                      row.commandId == sendFileCommand);
            EXPECT_EQ(transferText(working.settings, transfer::hostFileName), "EDITED")
                << "edits stay with the working settings";
            if (ok) {
                EXPECT_EQ(fields.transferSettings, working.settings);
                EXPECT_EQ(fields.transferHost, transferHostTso);
                EXPECT_EQ(working.host, transferHostTso);
            } else {
                EXPECT_EQ(entry, before);
            }
        }
    }
}

}  // namespace
}  // namespace quendra::test
