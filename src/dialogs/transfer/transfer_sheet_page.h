// The file transfer settings: a sheet with the pages Settings and Advanced over the working
// settings.
#pragma once

#include "session/application_state.h"

#include <cstdint>

class QWidget;

namespace quendra {

/// Opens the sheet on the state's working settings and the given host system. Every change goes
/// into the working settings at once and stays there after Cancel; `direction` becomes theirs. True
/// on OK; then `host` is the host system chosen. A sheet that cannot be made is reported to the
/// user and gives false.
[[nodiscard]] bool editTransferSettings(ApplicationState& state, QWidget* window,
                                        std::uint8_t& host, TransferDirection direction);

}  // namespace quendra
