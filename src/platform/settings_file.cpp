#include "platform/settings_file.h"

#include "platform/access_rights.h"
#include "platform/descriptor.h"
#include "platform/file_bytes.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t nameBufferSize = std::size_t{16} * 1024;

// Many systems give each user a group of the same name and let it write all that the user makes.
bool isOwnersOwnGroup(uid_t owner, gid_t group) {
    std::vector<char> userNames(nameBufferSize);
    std::vector<char> groupNames(nameBufferSize);
    passwd user = {};
    struct group members = {};
    passwd* foundUser = nullptr;
    struct group* foundGroup = nullptr;
    if (::getpwuid_r(owner, &user, userNames.data(), userNames.size(), &foundUser) != 0 ||
        ::getgrgid_r(group, &members, groupNames.data(), groupNames.size(), &foundGroup) != 0 ||
        !foundUser || !foundGroup) {
        return false;
    }
    const std::string_view name = user.pw_name;
    if (name != members.gr_name) return false;
    for (char** member = members.gr_mem; *member; ++member) {
        if (name != *member) return false;
    }
    return true;
}

bool onlyUserOrRootWrites(int descriptor) {
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0) return false;
    if (status.st_uid != ::geteuid() && status.st_uid != 0) return false;
    if ((status.st_mode & S_IWOTH) != 0) return false;
    if ((status.st_mode & S_IWGRP) == 0) return true;
    // With an access control list these bits tell of everybody whom that names.
    const bool hasList = ::fgetxattr(descriptor, accessListName, nullptr, 0) > 0;
    return !hasList && isOwnersOwnGroup(status.st_uid, status.st_gid);
}

bool isTrustedFolder(const fs::path& folder) {
    const fs::path named = folder.empty() ? fs::path(".") : folder;
    const Descriptor opened(::open(named.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return opened.isOpen() && onlyUserOrRootWrites(opened.get());
}

// The file is looked at where it is open already: what its name leads to may change any time.
bool isTrusted(const fs::path& path, int descriptor) {
    std::error_code error;
    const fs::path itself = fs::canonical(path, error);
    return !error && onlyUserOrRootWrites(descriptor) && isTrustedFolder(path.parent_path()) &&
           isTrustedFolder(itself.parent_path());
}

// One piece over the limit shows that there is more.
bool readAll(int descriptor, std::string& text) {
    std::array<char, 8192> piece{};
    while (text.size() <= maxSettingsSize) {
        const ssize_t got = ::read(descriptor, piece.data(), piece.size());
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return got == 0;
        text.append(piece.data(), static_cast<std::size_t>(got));
    }
    return true;
}

// Half a line could mean something else.
void cutToWholeLines(std::string& text) {
    if (text.size() <= maxSettingsSize) return;
    const auto last = text.rfind('\n', maxSettingsSize - 1);
    text.resize(last == std::string::npos ? 0 : last + 1);
}

}  // namespace

std::optional<std::string> readSettingsFile(const fs::path& path, WrittenBy writer) {
    const Descriptor file(openRegular(path, O_RDONLY));
    if (!file.isOpen()) return std::nullopt;
    if (writer == WrittenBy::UserOrRoot && !isTrusted(path, file.get())) return std::nullopt;
    std::string text;
    if (!readAll(file.get(), text)) return std::nullopt;
    cutToWholeLines(text);
    return text;
}

bool isTrusted(const fs::path& path) {
    const Descriptor file(openRegular(path, O_RDONLY));
    return file.isOpen() && isTrusted(path, file.get());
}

}  // namespace quendra
