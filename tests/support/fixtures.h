// The frozen script files and small makers of bytes and entries.
#pragma once

#include "analysis/entry_display.h"
#include "hosts/host_type.h"
#include "hosts/lu_catalogue.h"
#include "model/file_transfer_settings.h"
#include "model/menu_commands.h"
#include "model/script.h"
#include "scriptfile/hidden_text.h"

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendra::test {

using Bytes = std::vector<std::uint8_t>;

/// A script file with what must come out of it: the file after saving, and the display lines.
struct Case {
    std::string name;
    HostType hostType;
    char version;
    Bytes file;
    Bytes expected;
    std::vector<std::string> lines;
    /// Rows whose text is ours to choose.
    std::vector<std::size_t> openRows;
};
[[nodiscard]] const std::vector<Case>& frozenCases();
[[nodiscard]] const Case& frozenCase(std::string_view name);
/// The identity under which the hidden texts of the frozen cases are enciphered.
[[nodiscard]] std::string frozenIdentity();

[[nodiscard]] Bytes readBytes(const std::filesystem::path& path);
void writeBytes(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);

/// Bytes of a text, and of pieces one behind the other.
[[nodiscard]] Bytes bytesOf(std::string_view text);
[[nodiscard]] Bytes joined(std::initializer_list<Bytes> pieces);
/// The lines of a text, without their ends.
[[nodiscard]] std::vector<std::string> linesOfText(const std::string& text);
/// A text with its length byte.
[[nodiscard]] Bytes counted(std::string_view text);
[[nodiscard]] Bytes word(std::uint32_t value);
/// A Comment record with this text, as a file holds it, and one of a menu command without
/// parameters.
[[nodiscard]] Bytes commentRecord(std::string_view text);
[[nodiscard]] Bytes menuRecord(std::uint32_t commandId);
/// The records of a hidden Type and of a file transfer.
[[nodiscard]] Bytes hiddenTypeRecord(std::string_view text, const std::string& identity);
[[nodiscard]] Bytes transferRecord(const FileTransferSettings& settings, std::uint32_t command,
                                   std::uint32_t data = 0, std::uint8_t host = 0);
/// A current file: signature and records.
[[nodiscard]] Bytes scriptFile(std::string_view signature, std::initializer_list<Bytes> records);
/// A current Mainframe file with so many Comments "1", "2", ...
[[nodiscard]] Bytes commentFile(std::size_t count);

/// The text that numbered names have for an id: the id in braces, "{12159}".
[[nodiscard]] std::string numberedName(StringId id);

/// Catalogues of numbered names.
struct NumberedNames {
    NumberedNames();
    [[nodiscard]] DisplayNames of(HostType type) const;

    LuCatalogues luFunctions;
    MenuCommandCatalogue menuCommands;
};

/// The display lines of a script under numbered names.
[[nodiscard]] std::vector<std::string> linesOf(const Script& script, HostType type,
                                               const HiddenTextCipher& cipher);

}  // namespace quendra::test
