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

// Why a file could not be written; names the folder that is the reason.
std::string reasonOf(const FileFailure& failure) {
    if (failure.folder.empty()) return failure.message;
    return "the folder " + escapeControlCharacters(failure.folder.native()) + ": " +
           failure.message;
}

// Reports how a file was replaced, as far as that is more than the user asked for.
bool reportReplacing(Environment& environment, const std::string& file,
                     const ReplaceResult& result) {
    const std::string kept = escapeControlCharacters(result.backup.native());
    if (result.failure) {
        report(environment, file, reasonOf(*result.failure));
        // Not even that could be undone.
        if (!kept.empty()) report(environment, file, "damaged; its old content is kept as " + kept);
        return false;
    }
    if (result.writtenOver)
        report(environment, file, "note: written over; its old content is kept as " + kept);
    if (result.unsynced) {
        report(environment, file,
               "note: saved, but a power cut may undo it: " + reasonOf(*result.unsynced));
    }
    return true;
}

// Nobody misses an empty file. True when all went well.
bool replace(Environment& environment, const std::string& file, std::span<const std::uint8_t> bytes,
             const FileContent& source) {
    const auto old = fileStamp(file);
    const bool isSame = old && old->size == bytes.size() &&
                        std::ranges::equal(bytes, readFile(file, bytes.size()).bytes());
    if (isSame && isSameFile(source.stamp, old)) return true;
    const bool isKept = old && old->size > 0 && !isSame;
    const OldFile oldFile = isKept ? OldFile::KeepAsBackup : OldFile::Drop;
    return reportReplacing(environment, file, replaceFile(file, bytes, oldFile));
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
                                     std::size_t maxBytes, Input input) {
    FileContent content = file == standardStream ? readDescriptor(environment.input, maxBytes)
                          : input == Input::RegularFile ? readRegularFile(file, maxBytes)
                                                        : readFile(file, maxBytes);
    if (!content.failure) return content;
    report(environment, file, content.failure->message);
    return std::nullopt;
}

std::optional<SourceScript> readScriptInput(Environment& environment, const std::string& file,
                                            Input input) {
    // One byte over the limit shows that there is more.
    auto content = readInput(environment, file, maxScriptFileSize + 1, input);
    if (!content) return std::nullopt;
    ReadResult read = readScript(content->storage, content->size);
    if (read.refusal) {
        report(environment, file, withOffset(describe(*read.refusal), 0));
        return std::nullopt;
    }
    return SourceScript{std::move(*content), std::move(read)};
}

std::optional<SourceScript> readWholeScript(Environment& environment, const std::string& file) {
    auto content = readInput(environment, file, maxScriptFileSize + 1);
    if (!content) return std::nullopt;
    auto read = wholeScriptOf(environment, file, *content);
    if (!read) return std::nullopt;
    return SourceScript{std::move(*content), std::move(*read)};
}

std::optional<ReadResult> wholeScriptOf(Environment& environment, const std::string& file,
                                        const FileContent& content) {
    ReadResult read = readScript(content.storage, content.size);
    if (read.refusal) {
        report(environment, file, withOffset(describe(*read.refusal), 0));
        return std::nullopt;
    }
    if (!reportReading(environment, file, read)) return std::nullopt;
    return read;
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
    if (!isStreamFile(file)) return replace(environment, file, bytes, source);
    const auto failure = writeToStream(file, bytes);
    if (!failure || failure->code == EPIPE) return true;
    report(environment, file, failure->message);
    return false;
}

bool replaceSource(Environment& environment, const std::string& file,
                   std::span<const std::uint8_t> bytes, const FileContent& source) {
    if (fileStamp(file) != source.stamp) {
        report(environment, file, "the file was changed by another program meanwhile");
        return false;
    }
    return writeOutput(environment, file, bytes, source);
}

bool writeMerged(Environment& environment, const std::string& file,
                 std::span<const std::uint8_t> bytes, const FileContent& ours) {
    if (file == standardStream || isStreamFile(file)) {
        return writeOutput(environment, file, bytes, ours);
    }
    const bool isOurs = isSameFile(ours.stamp, fileStamp(file));
    if (isOurs && std::ranges::equal(bytes, ours.bytes())) return true;
    return reportReplacing(environment, file, replaceFile(file, bytes, OldFile::Drop));
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
