// How a file gets new bytes: a new file takes the place of the old one, or, where that is
// impossible, the old one is written over.
#include "platform/access_rights.h"
#include "platform/descriptor.h"
#include "platform/file_bytes.h"
#include "platform/files.h"
#include "platform/kept_bytes.h"
#include "platform/temporary_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr mode_t forOwner = S_IRUSR | S_IWUSR;
constexpr mode_t forAll = forOwner | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;

ReplaceResult failed(FileFailure failure) {
    ReplaceResult result;
    result.failure = std::move(failure);
    return result;
}

// Where a chain of symbolic links ends, whether that is there or not: the link stays, and its
// target is written. Absolute, so that there is a folder to synchronise. None, with the reason in
// errno, for a circle and where it cannot be followed.
std::optional<fs::path> linkTarget(const fs::path& path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    fs::path target = fs::absolute(path, error);
    for (int links = 0; !error; ++links) {
        if (!fs::is_symlink(fs::symlink_status(target, error))) break;
        errno = ELOOP;
        if (links == mostLinks) return std::nullopt;
        target = target.parent_path() / fs::read_symlink(target, error);
    }
    if (error && error != std::errc::no_such_file_or_directory) {
        errno = error.value();
        return std::nullopt;
    }
    const fs::path folder = fs::canonical(target.parent_path(), error);
    return error ? target : folder / target.filename();
}

// What a folder answers that takes no new file, or whose names are not to be changed.
bool refusesFiles(int error) {
    return error == EACCES || error == EPERM || error == EROFS;
}

// What is renamed is in place, whatever becomes of the folder.
ReplaceResult inPlace(const fs::path& target, const FileStamp& stamp) {
    ReplaceResult result;
    result.stamp = stamp;
    const fs::path folder = target.parent_path();
    if (!syncFolder(folder)) result.unsynced = lastFailure(folder);
    return result;
}

ReplaceResult makeNew(const fs::path& target, std::span<const std::uint8_t> bytes, mode_t mode) {
    TemporaryFile file(target, mode);
    if (!file.isOpen())
        return failed(refusesFiles(errno) ? lastFailure(target.parent_path()) : lastFailure());
    FileStamp stamp;
    if (!writeAll(file.descriptor(), bytes) || !file.finish(stamp) || !file.takePlace())
        return failed(lastFailure());
    return inPlace(target, stamp);
}

// None when the file cannot be replaced by another one, but may well be written over.
std::optional<ReplaceResult> replaceOld(const fs::path& target, const struct stat& old,
                                        std::span<const std::uint8_t> bytes, OldFile oldFile) {
    TemporaryFile file(target, forOwner);
    if (!file.isOpen()) {
        if (refusesFiles(errno)) return std::nullopt;
        return failed(lastFailure());
    }
    if (!writeAll(file.descriptor(), bytes)) return failed(lastFailure());
    const Rights rights = takeOverRights(file.descriptor(), target, old);
    if (rights == Rights::AllButOwner) return std::nullopt;
    FileStamp stamp;
    if (rights == Rights::Failed || !file.finish(stamp)) return failed(lastFailure());

    KeptBytes kept;
    if (oldFile == OldFile::KeepAsBackup) kept = keepUnderOtherName(target);
    if (kept.failure) return failed(*kept.failure);
    if (!file.takePlace()) {
        const FileFailure failure = lastFailure();
        if (!kept.path.empty()) ::unlink(kept.path.c_str());
        // Busy: the file is mounted by itself.
        if (refusesFiles(failure.code) || failure.code == EBUSY) return std::nullopt;
        return failed(failure);
    }
    ReplaceResult result = inPlace(target, stamp);
    result.backup = kept.path;
    if (!result.unsynced) result.unsynced = kept.unsynced;
    return result;
}

// Gives a file back its old bytes, of which the first `changed` are others now.
bool restore(int file, const fs::path& kept, off_t size, off_t changed) {
    const Descriptor old(openRegular(kept, O_RDONLY));
    const auto lost = static_cast<std::uint64_t>(std::min(size, changed));
    return old.isOpen() && ::lseek(file, 0, SEEK_SET) == 0 && copyBytes(old.get(), file, lost) &&
           ::ftruncate(file, size) == 0 && ::fsync(file) == 0;
}

ReplaceResult writeOver(const fs::path& target, std::span<const std::uint8_t> bytes) {
    Descriptor file(openRegular(target, O_RDWR | O_NOFOLLOW));
    struct stat state {};
    if (!file.isOpen() || ::fstat(file.get(), &state) != 0) return failed(lastFailure());
    const KeptBytes kept = keepCopy(target, file.get());
    if (kept.failure) return failed(*kept.failure);
    const auto fail = [&](off_t changed) {
        ReplaceResult result = failed(lastFailure());
        if (restore(file.get(), kept.path, state.st_size, changed)) {
            ::unlink(kept.path.c_str());
        } else {
            result.backup = kept.path;
        }
        return result;
    };

    if (::lseek(file.get(), 0, SEEK_SET) != 0) return fail(0);
    if (!writeAll(file.get(), bytes)) return fail(::lseek(file.get(), 0, SEEK_CUR));
    const off_t oldSize = state.st_size;
    if (::ftruncate(file.get(), static_cast<off_t>(bytes.size())) != 0 ||
        ::fsync(file.get()) != 0 || ::fstat(file.get(), &state) != 0) {
        state.st_size = oldSize;
        return fail(oldSize);
    }
    ReplaceResult result;
    if (!file.close()) result.unsynced = lastFailure();
    if (!result.unsynced) result.unsynced = kept.unsynced;
    result.backup = kept.path;
    result.writtenOver = true;
    result.stamp = stampOf(state);
    return result;
}

}  // namespace

ReplaceResult replaceFile(const fs::path& path, std::span<const std::uint8_t> bytes,
                          OldFile oldFile, NewFile newFile) {
    const auto target = linkTarget(path);
    if (!target) return failed(lastFailure());
    struct stat old {};
    // By the name that was given: the system may forbid to follow its links.
    if (::stat(path.c_str(), &old) != 0) {
        if (errno != ENOENT) return failed(lastFailure());
        return makeNew(*target, bytes, newFile == NewFile::OwnerOnly ? forOwner : forAll);
    }
    if (!S_ISREG(old.st_mode))
        return failed(failureOf(S_ISDIR(old.st_mode) ? EISDIR : notRegularFile));
    // Renaming needs no right to the file itself, but its user has said that it shall not change.
    if (!Descriptor(openRegular(*target, O_WRONLY)).isOpen()) return failed(lastFailure());
    if (auto result = replaceOld(*target, old, bytes, oldFile)) return *std::move(result);
    return writeOver(*target, bytes);
}

std::optional<FileFailure> copyFile(const fs::path& from, const fs::path& to) {
    const Descriptor source(openRegular(from, O_RDONLY));
    struct stat old {};
    if (!source.isOpen() || ::fstat(source.get(), &old) != 0) return lastFailure();
    const auto target = linkTarget(to);
    if (!target) return lastFailure();
    struct stat state {};
    if (::stat(target->c_str(), &state) == 0) {
        if (state.st_dev == old.st_dev && state.st_ino == old.st_ino) return std::nullopt;
        if (!S_ISREG(state.st_mode)) return failureOf(notRegularFile);
    }
    TemporaryFile file(*target, forOwner);
    FileStamp stamp;
    if (!file.isOpen() || !copyBytes(source.get(), file.descriptor()) ||
        takeOverRights(file.descriptor(), from, old) == Rights::Failed || !file.finish(stamp) ||
        !file.takePlace()) {
        return lastFailure();
    }
    return inPlace(*target, stamp).unsynced;
}

}  // namespace quendra
