// File transfer settings in the JSON form.
#pragma once

#include "forms/object_reader.h"
#include "model/file_transfer_settings.h"

#include <nlohmann/json_fwd.hpp>

namespace quendra::cli {

/// Every field by its name, flags as true or false. Bytes that the fields do not tell (behind the
/// NUL of a text, or of a text without one) are kept by the whole block in a further field,
/// "block".
[[nodiscard]] nlohmann::ordered_json jsonOfTransferSettings(const FileTransferSettings& settings);

/// Takes the settings out of an object. Fields left out are those of "block", or of a new transfer
/// where there is none.
[[nodiscard]] FileTransferSettings transferSettingsOfJson(ObjectReader& object);

}  // namespace quendra::cli
