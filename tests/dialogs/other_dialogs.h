// Stand-ins for the dialogs that editParameters opens and that have tests of their own. The linker
// takes these in their place.
#pragma once

#include "dialogs/parameter_dialogs.h"
#include "transfer/command_builder.h"

#include <functional>
#include <string>
#include <vector>

namespace quendra::test {

struct OtherDialogs {
    /// Which were opened, in order.
    std::vector<std::string> opened;
    bool answer = true;
    /// What the transfer sheet was opened with, and what is done in it.
    TransferInputs transfer;
    std::function<void(ApplicationState&, std::uint8_t& host)> inTransferSheet;
};

/// The record of the running test; emptied by the test that uses it.
[[nodiscard]] OtherDialogs& otherDialogs();

}  // namespace quendra::test
