#include "cli/environment.h"

#include "cli/command_line.h"
#include "platform/registry.h"
#include "scriptfile/script_files.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <fstream>
#include <utility>

namespace quendra::cli {

namespace {

namespace fs = std::filesystem;

// A device or a pipe cannot be replaced by a file; it is written to.
bool isStreamFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    return fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
}

void put(std::ostream& stream, std::span<const std::uint8_t> bytes) {
    stream.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    stream.flush();
}

bool isSameFile(const FileStamp& source, const std::optional<FileStamp>& target) {
    return target && target->device == source.device && target->inode == source.inode;
}

}  // namespace

std::string shownName(std::string_view file) {
    return file == standardStream ? "standard input" : escapeControlCharacters(file);
}

void report(Environment& environment, std::string_view file, std::string_view what) {
    environment.err << "qds: " << shownName(file) << ": " << what << std::endl;
}

std::string withOffset(std::string_view what, std::size_t offset) {
    return std::string(what) + " (byte offset " + std::to_string(offset) + ")";
}

std::optional<FileContent> readInput(Environment& environment, const std::string& file,
                                     std::size_t maxBytes) {
    FileContent content = file == standardStream ? readDescriptor(environment.input, maxBytes)
                                                 : readFile(file, maxBytes);
    if (!content.failure) return content;
    report(environment, file, content.failure->message);
    return std::nullopt;
}

std::optional<SourceScript> readScriptInput(Environment& environment, const std::string& file) {
    // One byte over the limit shows that there is more.
    auto content = readInput(environment, file, maxScriptFileSize + 1);
    if (!content) return std::nullopt;
    ReadResult read = readScript(content->storage, content->size);
    if (read.refusal) {
        report(environment, file, withOffset(describe(*read.refusal), 0));
        return std::nullopt;
    }
    return SourceScript{std::move(*content), std::move(read)};
}

bool reportReading(Environment& environment, const std::string& file, const ReadResult& read) {
    for (const std::size_t index : read.droppedActions) {
        report(environment, file,
               "note: entry " + std::to_string(index + 1) +
                   ": the timeout and the actions of its watched Wait_For were dropped");
    }
    if (read.isWhole()) return true;
    const std::size_t count = read.script.entryCount();
    report(environment, file,
           withOffset(describe(read.stop) + ", after " + std::to_string(count) +
                          (count == 1 ? " entry" : " entries"),
                      read.stopOffset));
    return false;
}

bool writeOutput(Environment& environment, const std::string& file,
                 std::span<const std::uint8_t> bytes, const FileContent& source) {
    if (file == standardStream) {
        // A failure shows when the program ends.
        put(environment.out, bytes);
        return environment.out.good();
    }
    if (isStreamFile(file)) {
        std::ofstream stream(file, std::ios::binary);
        put(stream, bytes);
        stream.close();
        if (!stream) report(environment, file, "cannot be written");
        return stream.good();
    }
    const bool isSource = isSameFile(source.stamp, fileStamp(file));
    if (isSource && std::ranges::equal(bytes, source.bytes())) return true;
    const auto result = replaceFile(file, bytes, isSource ? OldFile::KeepAsBackup : OldFile::Drop);
    if (result.failure) report(environment, file, result.failure->message);
    return !result.failure;
}

UserCipher::UserCipher(Environment& environment) : cipher(userIdentity()) {
    cipher.reportTo([this, &environment](const CipherFailure& failure) {
        hasFailed = true;
        report(environment, cipherFailureTitle(failure.step), failure.reason);
    });
}

EntryNames::EntryNames(Environment& environment) {
    const fs::path& folder = environment.programFolder;
    const auto notice = library.load({folder, folder, folder});
    if (notice) report(environment, notice->text, notice->caption);
    isLoaded = !notice;
    luFunctions = buildLuCatalogues(library.textSource());
    menuCommands = buildMenuCommandCatalogue(library.textSource());
}

}  // namespace quendra::cli
