// Why something with a file failed, as a value to be shown.
#pragma once

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

namespace quendra {

/// The error number of a file that is a pipe, a device or a socket where a regular one is wanted;
/// the system has none for that.
constexpr int notRegularFile = -1;

/// The system's error number and its words for it.
struct FileFailure {
    int code = 0;
    std::string message;
    /// The folder that is the reason, where it is not the file itself; else empty.
    std::filesystem::path folder = {};
};

/// The failure of an error number.
[[nodiscard]] inline FileFailure failureOf(int code) {
    if (code == notRegularFile) return {code, "not a regular file"};
    return {code, std::generic_category().message(code)};
}

/// That of the system call that failed last.
[[nodiscard]] inline FileFailure lastFailure() {
    return failureOf(errno);
}

/// The same where its reason is this folder.
[[nodiscard]] inline FileFailure lastFailure(const std::filesystem::path& folder) {
    FileFailure failure = lastFailure();
    failure.folder = folder;
    return failure;
}

}  // namespace quendra
