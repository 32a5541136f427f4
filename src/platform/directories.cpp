#include "platform/directories.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace quendra {

namespace fs = std::filesystem;

void makeDirectoryPath(const fs::path& path) {
    std::error_code ignored;
    fs::create_directories(path, ignored);
}

void makeDirectory(const fs::path& path) {
    std::error_code ignored;
    fs::create_directory(path, ignored);
}

bool makePrivateDirectoryPath(const fs::path& path) {
    if (::mkdir(path.c_str(), 0700) == 0 || errno == EEXIST) return true;
    if (errno != ENOENT || !path.has_relative_path()) return false;
    return makePrivateDirectoryPath(path.parent_path()) &&
           (::mkdir(path.c_str(), 0700) == 0 || errno == EEXIST);
}

bool canMakeFilesIn(const fs::path& directory) {
    std::string pattern = directory / "qdtXXXXXX";
    const int descriptor = ::mkstemp(pattern.data());
    if (descriptor < 0) return false;
    const bool closed = ::close(descriptor) == 0;
    const bool removed = ::unlink(pattern.c_str()) == 0;
    return closed && removed;
}

bool mayMakeFilesIn(const fs::path& directory) {
    std::error_code error;
    fs::path there = fs::absolute(directory, error);
    while (!error && !fs::exists(there, error) && there.has_relative_path())
        there = there.parent_path();
    return !error && ::access(there.c_str(), W_OK | X_OK) == 0;
}

}  // namespace quendra
