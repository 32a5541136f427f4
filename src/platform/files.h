// Whole files: read at once, replaced at once.
#pragma once

#include "platform/secret_memory.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>

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

/// The system's error number and its words for it.
struct FileFailure {
    int code = 0;
    std::string message;
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

/// Reads a file from its start, at most `maxBytes` of it.
[[nodiscard]] FileContent readFile(const std::filesystem::path& path, std::size_t maxBytes);
/// The same from a descriptor that is already open, such as standard input; it stays open.
[[nodiscard]] FileContent readDescriptor(int descriptor, std::size_t maxBytes);

/// The stamp of the file that is at `path` now; none when there is none or it cannot be asked.
[[nodiscard]] std::optional<FileStamp> fileStamp(const std::filesystem::path& path);

/// What to do with the bytes of a file that is about to be replaced.
enum class OldFile : std::uint8_t { Drop, KeepAsBackup };

struct ReplaceResult {
    std::optional<FileFailure> failure;
    /// Where the old file is kept now; empty when there was none or it was dropped.
    std::filesystem::path backup;
    /// The new file as it is on disk.
    FileStamp stamp;
};

/// Puts `bytes` at `path` so that at every moment, a power cut included, either the whole old file
/// or the whole new one is there: a temporary file in the same folder is written, synchronised and
/// renamed. Mode and, where allowed, owner of the old file stay; a symbolic link stays a link and
/// its target is replaced. A kept old file is called NAME.bak, or NAME.bak2 and so on when that
/// exists. A file that the user may not write is not replaced. On failure nothing has changed and
/// nothing is left behind.
[[nodiscard]] ReplaceResult replaceFile(const std::filesystem::path& path,
                                        std::span<const std::uint8_t> bytes, OldFile oldFile);

/// New files that this process makes while one lives can be read and written by their owner only.
class OwnerOnly {
  public:
    OwnerOnly();
    ~OwnerOnly();
    OwnerOnly(const OwnerOnly&) = delete;
    OwnerOnly& operator=(const OwnerOnly&) = delete;

  private:
    unsigned before_;
};

/// Puts a copy of the file `from`, with its mode, at `to` by the same way. None when it is there;
/// also when both are the same file, which is left alone.
[[nodiscard]] std::optional<FileFailure> copyFile(const std::filesystem::path& from,
                                                  const std::filesystem::path& to);

}  // namespace quendra
