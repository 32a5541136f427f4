#include "platform/files.h"

#include "platform/descriptor.h"
#include "platform/file_bytes.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace quendra {

namespace {

namespace fs = std::filesystem;

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

FileContent readOpened(const Descriptor& descriptor, std::size_t maxBytes) {
    if (descriptor.isOpen()) return readDescriptor(descriptor.get(), maxBytes);
    FileContent content;
    content.failure = lastFailure();
    return content;
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
    return readOpened(Descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC)), maxBytes);
}

FileContent readRegularFile(const fs::path& path, std::size_t maxBytes) {
    return readOpened(Descriptor(openRegular(path, O_RDONLY)), maxBytes);
}

bool holdsNothing(const fs::path& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) return false;
    if (S_ISREG(status.st_mode)) return status.st_size == 0;
    struct stat null = {};
    // std::filesystem does not compare devices.
    return S_ISCHR(status.st_mode) && ::stat("/dev/null", &null) == 0 &&
           status.st_rdev == null.st_rdev;
}

std::optional<FileStamp> fileStamp(const fs::path& path) {
    struct stat state {};
    if (::stat(path.c_str(), &state) != 0) return std::nullopt;
    return stampOf(state);
}

void ignoreSizeLimitSignal() {
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace quendra
