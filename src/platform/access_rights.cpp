#include "platform/access_rights.h"

#include <cerrno>
#include <cstring>
#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace quendra {

namespace {

namespace fs = std::filesystem;

// What systems answer to a change that they, the file system or a container does not know or leave
// to another user.
bool isUnknownHere(int error) {
    return error == EPERM || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
}

bool passed(int result) {
    return result == 0 || isUnknownHere(errno);
}

bool takeOverOwners(int file, const struct stat& old) {
    constexpr auto unchanged = static_cast<uid_t>(-1);
    if (::fchown(file, old.st_uid, old.st_gid) == 0) return true;
    if (!isUnknownHere(errno)) return false;
    // The group first: whoever has given a file away no longer has a say over it.
    return passed(::fchown(file, unchanged, old.st_gid)) &&
           passed(::fchown(file, old.st_uid, unchanged));
}

// The bytes that `ask` gives; it is asked for their number first. They may grow in between.
template <typename Ask>
bool readAttribute(Ask ask, std::vector<char>& bytes) {
    for (;;) {
        const ssize_t size = ask(nullptr, std::size_t{0});
        if (size < 0) return false;
        bytes.resize(static_cast<std::size_t>(size));
        if (size == 0) return true;
        const ssize_t got = ask(bytes.data(), bytes.size());
        if (got < 0 && errno == ERANGE) continue;
        if (got < 0) return false;
        bytes.resize(static_cast<std::size_t>(got));
        return true;
    }
}

bool readAttribute(const fs::path& from, const char* name, std::vector<char>& bytes) {
    return readAttribute(
        [&](char* buffer, std::size_t size) {
            return ::getxattr(from.c_str(), name, buffer, size);
        },
        bytes);
}

// An access control list as the kernel gives it: a version of four bytes, then eight for each
// entry, its kind and its rights in little-endian words and whom it is for.
struct AccessList {
    // The rights of the owning group; null where the list is none that we know.
    char* groupRights() {
        constexpr char owningGroup = 0x04;
        for (std::size_t at = 4; at + 8 <= bytes.size(); at += 8) {
            if (bytes[at] == owningGroup && bytes[at + 1] == 0) return &bytes[at + 2];
        }
        return nullptr;
    }

    std::vector<char> bytes;
};

mode_t withoutGroup(mode_t mode) {
    return mode & ~static_cast<mode_t>(S_IRWXG | S_ISGID);
}

// The mode of a file that has an access control list shows the list's mask as the rights of the
// group. Where the list cannot be had, that would give the group what others were meant to have.
mode_t modeWithoutList(mode_t mode, AccessList& list) {
    const char* group = list.groupRights();
    const auto rights = static_cast<mode_t>(group ? *group : 0);
    return mode & ~static_cast<mode_t>(S_IRWXG & ~(rights << 3));
}

// A folder gives new files its default list: it must not stay where the old file had none.
bool removeAccessList(int file) {
    return ::fremovexattr(file, accessListName) == 0 || errno == ENODATA || isUnknownHere(errno);
}

bool takeOverAccessList(int file, const fs::path& from, bool keepsGroup, mode_t& mode) {
    AccessList list;
    if (!readAttribute(from, accessListName, list.bytes)) {
        if (errno != ENODATA && !isUnknownHere(errno)) return false;
        if (!keepsGroup) mode = withoutGroup(mode);
        return removeAccessList(file);
    }
    if (!keepsGroup) {
        mode &= ~static_cast<mode_t>(S_ISGID);
        if (char* group = list.groupRights()) *group = 0;
    }
    if (::fsetxattr(file, accessListName, list.bytes.data(), list.bytes.size(), 0) == 0)
        return true;
    if (!isUnknownHere(errno)) return false;
    mode = modeWithoutList(mode, list);
    return removeAccessList(file);
}

bool takeOverAttributes(int file, const fs::path& from) {
    std::vector<char> names;
    const auto list = [&](char* buffer, std::size_t size) {
        return ::listxattr(from.c_str(), buffer, size);
    };
    if (!readAttribute(list, names)) return isUnknownHere(errno);
    std::vector<char> value;
    for (const char* name = names.data(); name < names.data() + names.size();
         name += std::strlen(name) + 1) {
        if (std::string_view(name) == accessListName) continue;
        if (!readAttribute(from, name, value)) {
            if (errno == ENODATA || isUnknownHere(errno)) continue;
            return false;
        }
        if (!passed(::fsetxattr(file, name, value.data(), value.size(), 0))) return false;
    }
    return true;
}

}  // namespace

Rights takeOverRights(int file, const fs::path& from, const struct stat& old) {
    struct stat now {};
    if (::fstat(file, &now) != 0) return Rights::Failed;
    if (now.st_uid != old.st_uid || now.st_gid != old.st_gid) {
        if (!takeOverOwners(file, old) || ::fstat(file, &now) != 0) return Rights::Failed;
    }
    const bool keepsOwner = now.st_uid == old.st_uid;
    mode_t mode = old.st_mode & 07777;
    if (!keepsOwner) mode &= ~static_cast<mode_t>(S_ISUID);
    // The mode last: a change of the owner takes bits from it, one of the list changes it.
    if (!takeOverAccessList(file, from, now.st_gid == old.st_gid, mode) ||
        !takeOverAttributes(file, from) || !passed(::fchmod(file, mode))) {
        return Rights::Failed;
    }
    return keepsOwner ? Rights::All : Rights::AllButOwner;
}

}  // namespace quendra
