// The sheet of the transfer settings, open on the working settings.
#pragma once

#include "dialogs/transfer/transfer_sheet_page.h"
#include "model/file_transfer_settings.h"
#include "support/dialog_fixture.h"
#include "text/text_encoding.h"

namespace quendra::test {

inline constexpr int settingsPage = 0;
inline constexpr int advancedPage = 1;

class TransferSheetTest : public DialogContextTest {
  protected:
    using DialogContextTest::DialogContextTest;

    /// Opens the sheet on `host` and lets `work` do something with it; a sheet that is still open
    /// behind that is cancelled. Gives the result, and the host system in `host`.
    bool open(const std::function<void(const OpenDialog&)>& work) {
        steps.in("transferSheet", [&work](const OpenDialog& d) {
            work(d);
            if (d.dialog->isVisible()) d.dialog->reject();
        });
        return steps.run(
            [this] { return editTransferSettings(state, nullptr, host, TransferDirection::Send); });
    }
    [[nodiscard]] std::string stored(const TransferField& field) const {
        return utf8FromWindows1252(transferText(settings, field));
    }
    [[nodiscard]] std::uint32_t number(const TransferField& field) const {
        return transferNumber(settings, field);
    }

    FileTransferSettings& settings = state.workingTransfer.settings;
    std::uint8_t host = transferHostVmCms;
};

}  // namespace quendra::test
