#include "dialogs/other_dialogs.h"

#include "transfer/transfer_sheet_page.h"

namespace quendra {

namespace test {

OtherDialogs& otherDialogs() {
    static OtherDialogs dialogs;
    return dialogs;
}

namespace {

bool opened(const char* name) {
    otherDialogs().opened.emplace_back(name);
    return otherDialogs().answer;
}

}  // namespace
}  // namespace test

bool editTransferSettings(const DialogContext& context, std::uint8_t& host,
                          TransferDirection direction) {
    auto& dialogs = test::otherDialogs();
    dialogs.transfer = {context.state.workingTransfer.settings, host, direction};
    if (dialogs.inTransferSheet) dialogs.inTransferSheet(context.state, host);
    return test::opened("transfer");
}

bool editWaitFor(const DialogContext&, ScriptEntry&) {
    return test::opened("Wait_For");
}

bool editIfInputIs(const DialogContext&, ScriptEntry&) {
    return test::opened("If_Input_Is");
}

bool editWatchFor(const DialogContext&, ScriptEntry&) {
    return test::opened("Watch_For");
}

bool editWatchedWaitFor(const DialogContext&, ScriptEntry&) {
    return test::opened("watched Wait_For");
}

}  // namespace quendra
