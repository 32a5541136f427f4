#include "cli/environment.h"

#include "cli/command_line.h"
#include "platform/registry.h"
#include "platform/standard_streams.h"
#include "scriptfile/script_files.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <cerrno>
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

bool isSameFile(const FileStamp& source, const std::optional<FileStamp>& target) {
    return target && target->device == source.device && target->inode == source.inode;
}

// Nobody misses an empty file.
std::optional<FileFailure> replace(const std::string& file, std::span<const std::uint8_t> bytes,
                                   const FileContent& source) {
    const auto old = fileStamp(file);
    const bool isSame = old && old->size == bytes.size() &&
                        std::ranges::equal(bytes, readFile(file, bytes.size()).bytes());
    if (isSame && isSameFile(source.stamp, old)) return std::nullopt;
    const bool isKept = old && old->size > 0 && !isSame;
    return replaceFile(file, bytes, isKept ? OldFile::KeepAsBackup : OldFile::Drop).failure;
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

std::string whyIncomplete(const ReadResult& read) {
    if (read.isWhole()) return {};
    const std::size_t count = read.script.entryCount();
    return withOffset(describe(read.stop) + ", after " + std::to_string(count) +
                          (count == 1 ? " entry" : " entries"),
                      read.stopOffset);
}

bool reportReading(Environment& environment, const std::string& file, const ReadResult& read) {
    if (read.isWhole()) return true;
    report(environment, file, whyIncomplete(read));
    return false;
}

bool writeOutput(Environment& environment, const std::string& file,
                 std::span<const std::uint8_t> bytes, const FileContent& source) {
    if (file == standardStream) {
        environment.out.write(reinterpret_cast<const char*>(bytes.data()),
                              static_cast<std::streamsize>(bytes.size()));
        return true;
    }
    const auto failure =
        isStreamFile(file) ? writeToStream(file, bytes) : replace(file, bytes, source);
    if (!failure || failure->code == EPIPE) return true;
    report(environment, file, failure->message);
    return false;
}

UserCipher::UserCipher(Environment& environment) : cipher(userIdentity()) {
    cipher.reportTo([this, &environment](const CipherFailure& failure) {
        hasFailed = true;
        report(environment, cipherFailureTitle(failure.step), failure.reason);
    });
}

EntryNames::EntryNames(Environment& environment, NamesFor reader) {
    LanguageFolders folders = environment.languages;
    // The default is the English one.
    if (reader == NamesFor::JsonForm) folders.configDir.clear();
    const auto notice = library.load(folders);
    if (notice) report(environment, notice->text, notice->caption);
    isLoaded = !notice;
    luFunctions = buildLuCatalogues(library.textSource());
    menuCommands = buildMenuCommandCatalogue(library.textSource());
}

}  // namespace quendra::cli
