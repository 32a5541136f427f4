#include "platform/file_bytes.h"

#include "platform/descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace quendra {

FileStamp stampOf(const struct stat& state) {
    return {state.st_dev, state.st_ino, static_cast<std::uint64_t>(state.st_size),
            state.st_mtim.tv_sec, state.st_mtim.tv_nsec};
}

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

bool writeAll(int descriptor, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

bool copyBytes(int source, int target, std::uint64_t most) {
    std::array<std::uint8_t, 65536> buffer{};
    while (most > 0) {
        const std::size_t next = std::min<std::uint64_t>(buffer.size(), most);
        const ssize_t got = readFully(source, buffer.data(), next);
        if (got <= 0) return got == 0;
        if (!writeAll(target, std::span(buffer).first(static_cast<std::size_t>(got)))) return false;
        most -= static_cast<std::uint64_t>(got);
    }
    return true;
}

int openRegular(const std::filesystem::path& path, int flags) {
    // Asked before, for opening a device may do something; and after, for names change owners.
    struct stat state {};
    if (::stat(path.c_str(), &state) != 0) return -1;
    Descriptor file;
    if (S_ISREG(state.st_mode)) {
        file = Descriptor(::open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        if (!file.isOpen() || ::fstat(file.get(), &state) != 0) return -1;
    }
    if (S_ISREG(state.st_mode)) return file.release();
    errno = S_ISDIR(state.st_mode) ? EISDIR : notRegularFile;
    return -1;
}

bool syncFolder(const std::filesystem::path& folder) {
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return descriptor.isOpen() && ::fsync(descriptor.get()) == 0;
}

}  // namespace quendra
