#include "platform/failing_calls.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <dlfcn.h>
#include <map>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quendra::test {
namespace {

std::vector<FailingCall> wanted;
std::map<std::string_view, int> counts;

bool fails(std::string_view name) {
    if (wanted.empty()) return false;
    const int count = ++counts[name];
    for (const FailingCall& call : wanted) {
        if (call.name != name || (call.which != 0 && call.which != count)) continue;
        if (call.error == stopsHere) return ::raise(SIGSTOP) != 0;
        errno = call.error;
        return true;
    }
    return false;
}

template <typename... Arguments>
int callUnlessItFails(const char* name, Arguments... arguments) {
    if (fails(name)) return -1;
    return reinterpret_cast<int (*)(Arguments...)>(::dlsym(RTLD_NEXT, name))(arguments...);
}

}  // namespace

FailingCalls::FailingCalls(const std::vector<FailingCall>& calls) {
    counts.clear();
    wanted = calls;
}

FailingCalls::~FailingCalls() {
    wanted.clear();
}

}  // namespace quendra::test

using quendra::test::callUnlessItFails;

// The names of the library's own parameters are reserved.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

int fchmod(int file, mode_t mode) noexcept {
    return callUnlessItFails("fchmod", file, mode);
}
int fsetxattr(int file, const char* name, const void* value, size_t size, int flags) noexcept {
    return callUnlessItFails("fsetxattr", file, name, value, size, flags);
}
int fsync(int file) {
    return callUnlessItFails("fsync", file);
}
int ftruncate(int file, off_t size) noexcept {
    return callUnlessItFails("ftruncate", file, size);
}
int link(const char* from, const char* to) noexcept {
    return callUnlessItFails("link", from, to);
}
int rename(const char* from, const char* to) noexcept {
    return callUnlessItFails("rename", from, to);
}
int stat(const char* path, struct stat* state) noexcept {
    return callUnlessItFails("stat", path, state);
}
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
