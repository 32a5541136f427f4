// The new file while it is written: beside the one whose place it takes, under a name of its own.
#pragma once

#include "platform/descriptor.h"
#include "platform/files.h"

#include <filesystem>
#include <sys/types.h>

namespace quendra {

/// A temporary file in the folder of its target, removed again unless it takes the target's place.
/// Its name has a fixed length, so that any name can be saved that the folder holds. It is locked
/// while its process lives: what a killed one left behind for this target is known by that, and
/// goes when the next is made. Where a function fails, errno says why.
class TemporaryFile {
  public:
    /// `mode` is what open() takes: umask or the folder's default list have their say.
    TemporaryFile(const std::filesystem::path& target, mode_t mode);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] bool isOpen() const { return file_.isOpen(); }
    /// To write to, until it is finished.
    [[nodiscard]] int descriptor() const { return file_.get(); }
    /// Ends the writing: what was written is on the disk then. Gives the file's stamp.
    [[nodiscard]] bool finish(FileStamp& stamp);
    /// Puts the finished file in the place of the target.
    [[nodiscard]] bool takePlace();

  private:
    bool make(mode_t mode);

    std::filesystem::path target_;
    /// Empty when there is nothing to remove.
    std::filesystem::path path_;
    Descriptor file_;
    /// Holds the lock when the file is closed already.
    Descriptor lock_;
};

}  // namespace quendra
