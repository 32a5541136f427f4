// Whole files: read at once, replaced at once.
#pragma once

#include "platform/file_failure.h"
#include "platform/secret_memory.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>

namespace quendra {

/// What tells one state of a file on disk from another. Equal stamps: nobody has written the file
/// in between.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t changedSeconds = 0;
    std::int64_t changedNanoseconds = 0;

    bool operator==(const FileStamp&) const = default;
};

/// The content of a file, or why it could not be read.
struct FileContent {
    /// Shared, so that what is made of the bytes can own them where they lie.
    std::shared_ptr<const SecretPages> storage;
    std::size_t size = 0;
    FileStamp stamp;
    std::optional<FileFailure> failure;

    [[nodiscard]] std::span<const std::uint8_t> bytes() const {
        if (!storage) return {};
        return {storage->data(), size};
    }
};

/// Reads a file from its start, at most `maxBytes` of it. A pipe is read as it is, also if that
/// takes as long as its writer.
[[nodiscard]] FileContent readFile(const std::filesystem::path& path, std::size_t maxBytes);
/// The same for a regular file only: never waits for another program.
[[nodiscard]] FileContent readRegularFile(const std::filesystem::path& path, std::size_t maxBytes);
/// The same from a descriptor that is already open, such as standard input; it stays open.
[[nodiscard]] FileContent readDescriptor(int descriptor, std::size_t maxBytes);

/// The stamp of the file that is at `path` now; none when there is none or it cannot be asked.
[[nodiscard]] std::optional<FileStamp> fileStamp(const std::filesystem::path& path);

/// Whether there is a file at `path` that holds no bytes, or the system's null device.
[[nodiscard]] bool holdsNothing(const std::filesystem::path& path);

/// What to do with the bytes of a file that is about to be replaced.
enum class OldFile : std::uint8_t { Drop, KeepAsBackup };

/// Who may do what with a file that was not there before.
enum class NewFile : std::uint8_t { AsInItsFolder, OwnerOnly };

struct ReplaceResult {
    /// Why the file has its old bytes still. Where even they could not be put back, `backup` has
    /// them.
    std::optional<FileFailure> failure;
    /// The new bytes are in place, but a power cut may undo that, and why.
    std::optional<FileFailure> unsynced;
    /// Where the old file is kept now; empty when there was none or it was dropped.
    std::filesystem::path backup;
    /// The file could not be replaced by another and was written over.
    bool writtenOver = false;
    /// The new file as it is on disk.
    FileStamp stamp;
};

/// Puts `bytes` at `path` so that at every moment, a power cut included, either the whole old file
/// or the whole new one is there: a temporary file in the same folder is written, synchronised and
/// renamed. Nobody gains or loses a right to the file: owner, group, access control list, extended
/// attributes and mode stay. A symbolic link stays a link, and its target is made or replaced. A
/// kept old file is called NAME.bak, or NAME.bak2 and so on when that exists.
///
/// A file that cannot be replaced so (its folder takes no file, its owner could not be kept) but
/// may be written is written over where it lies, after its old bytes are kept in any case: beside
/// it, or in `quendra/kept` of the user's state folder. A file that the user may not write, and
/// anything but a regular file, is refused. On failure nothing is left behind.
[[nodiscard]] ReplaceResult replaceFile(const std::filesystem::path& path,
                                        std::span<const std::uint8_t> bytes, OldFile oldFile,
                                        NewFile newFile = NewFile::AsInItsFolder);

/// Puts a copy of the file `from`, with its rights, at `to` by the same way. None when it is there;
/// also when both are the same file, which is left alone.
[[nodiscard]] std::optional<FileFailure> copyFile(const std::filesystem::path& from,
                                                  const std::filesystem::path& to);

/// For the beginning of main(): a limit on the size of files is a failed write from now on, as a
/// full disk is, and no signal that ends the process.
void ignoreSizeLimitSignal();

}  // namespace quendra
