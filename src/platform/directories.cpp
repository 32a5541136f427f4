#include "platform/directories.h"

#include <cstdlib>
#include <string>
#include <unistd.h>

namespace quendra {

namespace fs = std::filesystem;

// The result is asked of the disk at the end: creation reports "nothing made" for a path with a
// separator at its end and when another process was faster.
bool makeDirectoryPath(const fs::path& path) {
    std::error_code error;
    fs::create_directories(path, error);
    return fs::is_directory(path, error);
}

bool makeDirectory(const fs::path& path) {
    std::error_code error;
    fs::create_directory(path, error);
    return fs::is_directory(path, error);
}

bool canMakeFilesIn(const fs::path& directory) {
    std::string pattern = directory / "qdtXXXXXX";
    const int descriptor = ::mkstemp(pattern.data());
    if (descriptor < 0) return false;
    const bool closed = ::close(descriptor) == 0;
    const bool removed = ::unlink(pattern.c_str()) == 0;
    return closed && removed;
}

}  // namespace quendra
