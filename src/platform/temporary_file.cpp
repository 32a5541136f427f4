#include "platform/temporary_file.h"

#include "platform/file_bytes.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/random.h>
#include <unistd.h>

namespace quendra {

namespace {

namespace fs = std::filesystem;

std::string hexadecimal(std::uint64_t value) {
    std::array<char, 17> text{};
    std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(value));
    return text.data();
}

// What the names of all temporary files for a target begin with: its own name would make them too
// long. The hash (FNV-1a) is the same in every version of the program.
std::string namePrefix(const fs::path& target) {
    const std::string name = target.filename();
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char character : name) {
        hash ^= static_cast<unsigned char>(character);
        hash *= 0x100000001b3;
    }
    return ".quendra-" + hexadecimal(hash) + "-";
}

std::string newName(const std::string& prefix) {
    std::uint64_t number = 0;
    if (::getrandom(&number, sizeof number, 0) != sizeof number) return {};
    return prefix + hexadecimal(number);
}

bool lock(int descriptor, int operation) {
    int result = 0;
    do {
        result = ::flock(descriptor, operation);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

void removeUnlessHeld(const fs::path& path) {
    const Descriptor file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat state {};
    if (!file.isOpen() || ::fstat(file.get(), &state) != 0 || !S_ISREG(state.st_mode)) return;
    if (lock(file.get(), LOCK_EX | LOCK_NB)) ::unlink(path.c_str());
}

// Where the folder cannot be listed, they stay.
void removeAbandoned(const fs::path& folder, const std::string& prefix) {
    const std::size_t length = prefix.size() + hexadecimal(0).size();
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const std::string name = at->path().filename();
        if (name.size() == length && name.starts_with(prefix)) removeUnlessHeld(at->path());
    }
}

}  // namespace

TemporaryFile::TemporaryFile(const fs::path& target, mode_t mode) : target_(target) {
    removeAbandoned(target.parent_path(), namePrefix(target));
    for (int attempt = 0; attempt < 100 && !make(mode); ++attempt) {
        if (errno != EEXIST) break;
    }
}

TemporaryFile::~TemporaryFile() {
    const int error = errno;
    if (!path_.empty()) ::unlink(path_.c_str());
    errno = error;
}

bool TemporaryFile::make(mode_t mode) {
    const std::string name = newName(namePrefix(target_));
    if (name.empty()) return false;
    const fs::path path = target_.parent_path() / name;
    Descriptor file(::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
    if (!file.isOpen()) return false;
    // A file system without locks lets nobody else have one either.
    static_cast<void>(lock(file.get(), LOCK_EX));
    struct stat state {};
    if (::fstat(file.get(), &state) == 0 && state.st_nlink == 0) {
        // Another save came before the lock, and took it for an abandoned one.
        errno = EEXIST;
        return false;
    }
    path_ = path;
    file_ = std::move(file);
    return true;
}

bool TemporaryFile::finish(FileStamp& stamp) {
    struct stat state {};
    if (::fsync(file_.get()) != 0 || ::fstat(file_.get(), &state) != 0) return false;
    stamp = stampOf(state);
    lock_ = Descriptor(::fcntl(file_.get(), F_DUPFD_CLOEXEC, 0));
    return lock_.isOpen() && file_.close();
}

bool TemporaryFile::takePlace() {
    if (::rename(path_.c_str(), target_.c_str()) != 0) return false;
    path_.clear();
    return true;
}

}  // namespace quendra
