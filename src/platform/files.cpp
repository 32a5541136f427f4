#include "platform/files.h"

#include "platform/descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace quendra {

namespace {

namespace fs = std::filesystem;

FileFailure lastFailure() {
    const int code = errno;
    return {code, std::generic_category().message(code)};
}

FileStamp stampOf(const struct stat& state) {
    return {state.st_dev, state.st_ino, static_cast<std::uint64_t>(state.st_size),
            state.st_mtim.tv_sec, state.st_mtim.tv_nsec};
}

bool writeAll(int descriptor, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

// Reads until the buffer is full or the file ends; the number of bytes, or -1.
ssize_t readFully(int descriptor, std::uint8_t* buffer, std::size_t size) {
    std::size_t filled = 0;
    while (filled < size) {
        const ssize_t got = ::read(descriptor, buffer + filled, size - filled);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return -1;
        if (got == 0) break;
        filled += static_cast<std::size_t>(got);
    }
    return static_cast<ssize_t>(filled);
}

// Grows a buffer as long as it comes back full: for pipes, which have no size, and files that grow
// meanwhile.
bool readGrowing(int descriptor, std::size_t firstSize, std::size_t maxBytes,
                 FileContent& content) {
    std::size_t capacity = std::min(firstSize, maxBytes);
    content.storage = std::make_shared<const SecretPages>(capacity);
    content.storage->makePresent();
    for (;;) {
        const ssize_t got =
            readFully(descriptor, content.storage->data() + content.size, capacity - content.size);
        if (got < 0) return false;
        content.size += static_cast<std::size_t>(got);
        if (content.size < capacity || capacity == maxBytes) return true;
        const std::size_t larger = std::min(capacity * 2, maxBytes);
        auto storage = std::make_shared<const SecretPages>(larger);
        std::memcpy(storage->data(), content.storage->data(), content.size);
        content.storage = std::move(storage);
        capacity = larger;
    }
}

// The temporary file beside its target; removed again unless it was renamed.
struct TemporaryFile {
    explicit TemporaryFile(const fs::path& target)
        : path(target.parent_path() /
               std::string(".").append(target.filename().string()).append(".XXXXXX")),
          descriptor(::mkstemp(path.data())) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!path.empty() && opened) ::unlink(path.c_str());
    }

    std::string path;
    Descriptor descriptor;
    bool opened = descriptor.isOpen();
};

mode_t newFileMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// The new file gets what the old one had. Changing the owner is for root alone, so its failure is
// none of ours; the mode comes after it, because a change of owner takes some mode bits away.
bool takeOverAttributes(int descriptor, const std::optional<struct stat>& old) {
    if (!old) return ::fchmod(descriptor, newFileMode()) == 0;
    if (::fchown(descriptor, old->st_uid, old->st_gid) != 0 && errno != EPERM) return false;
    return ::fchmod(descriptor, old->st_mode & 07777) == 0;
}

bool syncFolder(const fs::path& folder) {
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Some file systems cannot synchronise a folder and say so; the rename itself has happened.
    return descriptor.isOpen() && (::fsync(descriptor.get()) == 0 || errno == EINVAL);
}

bool copyBytes(int source, int target) {
    std::array<std::uint8_t, 65536> buffer{};
    ssize_t got = 0;
    while ((got = readFully(source, buffer.data(), buffer.size())) > 0) {
        if (!writeAll(target, std::span(buffer).first(static_cast<std::size_t>(got)))) return false;
    }
    return got == 0;
}

bool copyNew(const fs::path& from, const fs::path& to, mode_t mode) {
    const Descriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    if (!source.isOpen()) return false;
    Descriptor target(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode & 0777));
    if (!target.isOpen()) return false;
    bool done = copyBytes(source.get(), target.get()) && ::fsync(target.get()) == 0;
    done = target.close() && done;
    if (!done) {
        const int error = errno;
        ::unlink(to.c_str());
        errno = error;
    }
    return done;
}

// Gives the old file a second name that is free. A hard link is the old file itself, so it cannot
// be half written.
std::optional<fs::path> keepBackup(const fs::path& target, mode_t mode) {
    for (int number = 1; number < 10'000; ++number) {
        fs::path backup = target;
        backup += number == 1 ? std::string(".bak") : ".bak" + std::to_string(number);
        if (::link(target.c_str(), backup.c_str()) == 0) return backup;
        if (errno == EEXIST) continue;
        if (copyNew(target, backup, mode)) return backup;
        if (errno != EEXIST) return std::nullopt;
    }
    errno = EEXIST;
    return std::nullopt;
}

// Where a chain of symbolic links ends, so that the link stays and its target is replaced.
// Absolute: a bare name of a file that is not there yet would have no folder to synchronise.
fs::path linkTarget(const fs::path& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    if (error) return path;
    fs::path target = fs::weakly_canonical(absolute, error);
    return error ? absolute : target;
}

}  // namespace

FileContent readDescriptor(int descriptor, std::size_t maxBytes) {
    FileContent content;
    struct stat state {};
    if (::fstat(descriptor, &state) != 0) {
        content.failure = lastFailure();
        return content;
    }
    content.stamp = stampOf(state);
    // One byte more than the file has, so that its end shows in the first round.
    const std::size_t firstSize =
        S_ISREG(state.st_mode) ? static_cast<std::size_t>(state.st_size) + 1 : 65536;
    if (!readGrowing(descriptor, firstSize, maxBytes, content)) content.failure = lastFailure();
    return content;
}

FileContent readFile(const fs::path& path, std::size_t maxBytes) {
    const Descriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!descriptor.isOpen()) {
        FileContent content;
        content.failure = lastFailure();
        return content;
    }
    return readDescriptor(descriptor.get(), maxBytes);
}

std::optional<FileStamp> fileStamp(const fs::path& path) {
    struct stat state {};
    if (::stat(path.c_str(), &state) != 0) return std::nullopt;
    return stampOf(state);
}

ReplaceResult replaceFile(const fs::path& path, std::span<const std::uint8_t> bytes,
                          OldFile oldFile) {
    ReplaceResult result;
    const auto fail = [&result]() -> ReplaceResult& {
        result.failure = lastFailure();
        if (!result.backup.empty()) ::unlink(result.backup.c_str());
        result.backup.clear();
        return result;
    };

    const fs::path target = linkTarget(path);
    std::optional<struct stat> old;
    struct stat state {};
    if (::stat(target.c_str(), &state) == 0) old = state;
    if (old && !S_ISREG(old->st_mode)) {
        errno = S_ISDIR(old->st_mode) ? EISDIR : EINVAL;
        return fail();
    }
    // Renaming needs no right to the file itself, but its user has said that it shall not change.
    if (old && ::access(target.c_str(), W_OK) != 0) return fail();

    TemporaryFile temporary(target);
    if (!temporary.opened) return fail();
    const int descriptor = temporary.descriptor.get();
    if (!writeAll(descriptor, bytes) || !takeOverAttributes(descriptor, old) ||
        ::fsync(descriptor) != 0 || ::fstat(descriptor, &state) != 0 ||
        !temporary.descriptor.close()) {
        return fail();
    }
    if (old && oldFile == OldFile::KeepAsBackup) {
        const auto backup = keepBackup(target, old->st_mode);
        if (!backup) return fail();
        result.backup = *backup;
    }
    if (::rename(temporary.path.c_str(), target.c_str()) != 0) return fail();
    temporary.path.clear();
    result.stamp = stampOf(state);
    // From here on the new file is in place: a folder that cannot be synchronised is reported,
    // nothing is undone.
    if (!syncFolder(target.parent_path())) result.failure = lastFailure();
    return result;
}

std::optional<FileFailure> copyFile(const fs::path& from, const fs::path& to) {
    const Descriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat old {};
    struct stat state {};
    if (!source.isOpen() || ::fstat(source.get(), &old) != 0) return lastFailure();
    const fs::path target = linkTarget(to);
    if (::stat(target.c_str(), &state) == 0 && state.st_dev == old.st_dev &&
        state.st_ino == old.st_ino) {
        return std::nullopt;
    }
    TemporaryFile temporary(target);
    if (!temporary.opened) return lastFailure();
    const int descriptor = temporary.descriptor.get();
    if (!copyBytes(source.get(), descriptor) || ::fchmod(descriptor, old.st_mode & 0777) != 0 ||
        ::fsync(descriptor) != 0 || !temporary.descriptor.close() ||
        ::rename(temporary.path.c_str(), target.c_str()) != 0) {
        return lastFailure();
    }
    temporary.path.clear();
    if (!syncFolder(target.parent_path())) return lastFailure();
    return std::nullopt;
}

OwnerOnly::OwnerOnly() : before_(::umask(S_IRWXG | S_IRWXO)) {}

OwnerOnly::~OwnerOnly() {
    ::umask(before_);
}

}  // namespace quendra
