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

std::vector<FailingCall>& wanted() {
    static std::vector<FailingCall> calls;
    return calls;
}

std::map<std::string_view, int>& counts() {
    static std::map<std::string_view, int> made;
    return made;
}

bool fails(std::string_view name) {
    if (wanted().empty()) return false;
    const int count = ++counts()[name];
    for (const FailingCall& call : wanted()) {
        if (call.name != name || (call.which != 0 && call.which != count)) continue;
        if (call.error == stopsHere) return ::raise(SIGSTOP) != 0;
        errno = call.error;
        return true;
    }
    return false;
}

template <typename... Arguments>
int callReal(const char* name, Arguments... arguments) {
    using Call = int(Arguments...);
    return reinterpret_cast<Call*>(::dlsym(RTLD_NEXT, name))(arguments...);
}

}  // namespace

FailingCalls::FailingCalls(const std::vector<FailingCall>& calls) {
    counts().clear();
    wanted() = calls;
}

FailingCalls::~FailingCalls() {
    wanted().clear();
}

}  // namespace quendra::test

using quendra::test::callReal;
using quendra::test::fails;

extern "C" {

int fchown(int file, uid_t user, gid_t group) noexcept {
    return fails("fchown") ? -1 : callReal("fchown", file, user, group);
}

int fchmod(int file, mode_t mode) noexcept {
    return fails("fchmod") ? -1 : callReal("fchmod", file, mode);
}

int fsetxattr(int file, const char* name, const void* value, size_t size, int flags) noexcept {
    return fails("fsetxattr") ? -1 : callReal("fsetxattr", file, name, value, size, flags);
}

int fsync(int file) {
    return fails("fsync") ? -1 : callReal("fsync", file);
}

int ftruncate(int file, off_t size) noexcept {
    return fails("ftruncate") ? -1 : callReal("ftruncate", file, size);
}

int link(const char* from, const char* to) noexcept {
    return fails("link") ? -1 : callReal("link", from, to);
}

int rename(const char* from, const char* to) noexcept {
    return fails("rename") ? -1 : callReal("rename", from, to);
}

}  // extern "C"
