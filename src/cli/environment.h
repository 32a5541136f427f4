// What a run of qds reads from and writes to, and what all its commands share.
#pragma once

#include "hosts/lu_catalogue.h"
#include "model/menu_commands.h"
#include "platform/files.h"
#include "scriptfile/hidden_text.h"
#include "scriptfile/script_reader.h"
#include "text/language_library.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

namespace quendra::cli {

/// Injected, so that tests run commands in their own process. The streams outlive it.
struct Environment {
    /// Descriptor that "-" reads; it stays open.
    int input = 0;
    std::ostream& out;
    std::ostream& err;
    /// Where the language library is found, and which one the user has set for the editor.
    LanguageFolders languages;
    /// Somebody looks at standard error while the command runs.
    bool errIsTerminal = false;
    /// And at standard output.
    bool outIsTerminal = false;
};

/// What messages and headings call a file: its name with control characters escaped, or "standard
/// input".
[[nodiscard]] std::string shownName(std::string_view file);

/// Writes "qds: FILE: what" to standard error.
void report(Environment& environment, std::string_view file, std::string_view what);

/// "what (byte offset 12)".
[[nodiscard]] std::string withOffset(std::string_view what, std::size_t offset);

/// What may be read as a file. A pipe or a device cannot be replaced by what comes of it.
enum class Input : std::uint8_t { AnyFile, RegularFile };

/// Reads a file, or standard input for "-". When it cannot be read that is reported, and the result
/// is none.
[[nodiscard]] std::optional<FileContent> readInput(Environment& environment,
                                                   const std::string& file, std::size_t maxBytes,
                                                   Input input = Input::AnyFile);

/// A script file with its bytes.
struct SourceScript {
    FileContent content;
    ReadResult read;
};

/// Reads a script file. What cannot be read or was refused is reported and gives none. Reading that
/// stopped early is left to the caller to report, below what it prints of the file.
[[nodiscard]] std::optional<SourceScript> readScriptInput(Environment& environment,
                                                          const std::string& file,
                                                          Input input = Input::AnyFile);

/// Why and where reading stopped, after how many entries; empty when the file was read whole.
[[nodiscard]] std::string whyIncomplete(const ReadResult& read);

/// Reports that a file was not read whole. True when it was.
bool reportReading(Environment& environment, const std::string& file, const ReadResult& read);

/// Reads a script that has to be whole; none otherwise, which was reported.
[[nodiscard]] std::optional<SourceScript> readWholeScript(Environment& environment,
                                                          const std::string& file);
/// The same of bytes that were read already.
[[nodiscard]] std::optional<ReadResult> wholeScriptOf(Environment& environment,
                                                      const std::string& file,
                                                      const FileContent& content);

/// Writes a file, or standard output for "-". A regular file is replaced whole or not at all, and
/// the old one kept as a backup when it has other bytes; when it is the very file that the bytes
/// came from (`source`) and has them already, nothing happens. Reports a failure, and what else
/// there is to know of the writing; true when there was no failure. A pipe whose reader has gone is
/// none, and what became of standard output shows when the program ends.
[[nodiscard]] bool writeOutput(Environment& environment, const std::string& file,
                               std::span<const std::uint8_t> bytes, const FileContent& source);

/// Writes the file that a script was read from, as above, unless somebody else has changed it
/// since.
[[nodiscard]] bool replaceSource(Environment& environment, const std::string& file,
                                 std::span<const std::uint8_t> bytes, const FileContent& source);

/// Writes what a merge gave, over `file` or a new one, without a backup: version control keeps all
/// sides. Nothing happens where these are its bytes already.
[[nodiscard]] bool writeMerged(Environment& environment, const std::string& file,
                               std::span<const std::uint8_t> bytes, const FileContent& ours);

/// The cipher of the user who runs the program. Reports each step of it that fails.
struct UserCipher {
    explicit UserCipher(Environment& environment);
    UserCipher(const UserCipher&) = delete;
    UserCipher& operator=(const UserCipher&) = delete;
    ~UserCipher() = default;

    HiddenTextCipher cipher;
    bool hasFailed = false;
};

/// The user's language, or that of the names in the JSON form, which anybody can read and build.
enum class NamesFor : std::uint8_t { User, JsonForm };
/// The texts of the language library and the names that entries show. Without a library they are
/// empty and `isLoaded` is false; that has been reported then.
struct EntryNames {
    EntryNames(Environment& environment, NamesFor reader);

    LanguageLibrary library;
    bool isLoaded = false;
    LuCatalogues luFunctions;
    MenuCommandCatalogue menuCommands;
};

}  // namespace quendra::cli
