#include "platform/registry.h"

#include "platform/files.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <unistd.h>
#include <utility>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr const char* fileInFolder = "quendra/registry.ini";

std::optional<fs::path> userFile(const Environment& environment) {
    if (const auto config = folderVariable(environment, "XDG_CONFIG_HOME")) {
        return *config / fileInFolder;
    }
    if (const auto home = folderVariable(environment, "HOME")) {
        return *home / ".config" / fileInFolder;
    }
    return std::nullopt;
}

std::vector<fs::path> machineFiles(const Environment& environment) {
    std::vector<fs::path> files;
    const std::string list = variable(environment, "XDG_CONFIG_DIRS").value_or("/etc/xdg");
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = std::min(list.find(':', start), list.size());
        if (list[start] == '/')
            files.push_back(list.substr(start, end - start) / fs::path(fileInFolder));
        start = end + 1;
    }
    return files;
}

void addProfile(std::vector<Profile>& profiles, const fs::path& file) {
    if (auto profile = readProfileFile(file)) profiles.push_back(std::move(*profile));
}

const std::vector<Profile>& profilesOf(const Registry& registry, RegistryRoot root) {
    return root == RegistryRoot::CurrentUser ? registry.currentUser : registry.localMachine;
}

// Digits up to the end of the text, at most 255.
std::optional<std::uint8_t> parseByte(std::string_view digits, int base) {
    std::uint8_t value = 0;
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value, base);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return value;
}

}  // namespace

Registry readRegistry(const Environment& environment) {
    Registry registry;
    if (const auto file = userFile(environment)) addProfile(registry.currentUser, *file);
    for (const fs::path& file : machineFiles(environment))
        addProfile(registry.localMachine, file);
    return registry;
}

std::optional<std::string> registryText(const Registry& registry, RegistryRoot root,
                                        std::string_view key, std::string_view value) {
    for (const Profile& profile : profilesOf(registry, root)) {
        if (auto text = lookup(profile, key, value)) return text;
    }
    return std::nullopt;
}

std::optional<std::uint8_t> registryByte(const Registry& registry, RegistryRoot root,
                                         std::string_view key, std::string_view value) {
    const auto text = registryText(registry, root, key, value);
    if (!text) return std::nullopt;
    const std::string_view digits = *text;
    for (const std::string_view prefix : {"hex:", "0x", "0X"}) {
        if (digits.starts_with(prefix)) return parseByte(digits.substr(prefix.size()), 16);
    }
    return parseByte(digits, 10);
}

bool registryHasKey(const Registry& registry, RegistryRoot root, std::string_view key) {
    return std::ranges::any_of(profilesOf(registry, root),
                               [&](const Profile& profile) { return hasSection(profile, key); });
}

bool userRegistryUsable(const Environment& environment) {
    const auto file = userFile(environment);
    if (!file) return false;
    std::error_code error;
    if (fs::exists(*file, error)) {
        return fs::is_regular_file(*file, error) && ::access(file->c_str(), R_OK) == 0;
    }
    // What would have to be made begins below the nearest folder that is there.
    fs::path folder = file->parent_path();
    while (::access(folder.c_str(), F_OK) != 0 && folder.has_relative_path()) {
        folder = folder.parent_path();
    }
    return fs::is_directory(folder, error) && ::access(folder.c_str(), W_OK | X_OK) == 0;
}

std::string userIdentity(const Registry& registry) {
    return registryText(registry, RegistryRoot::CurrentUser, "Identities", "Default User ID")
        .value_or("");
}

std::string userIdentity() {
    return userIdentity(readRegistry(processEnvironment()));
}

std::function<std::string()> userIdentitySource(const Environment& environment) {
    const auto file = userFile(environment);
    return [file, seen = std::optional<FileStamp>()]() mutable -> std::string {
        const auto stamp = file ? fileStamp(*file) : std::nullopt;
        if (!stamp || stamp == seen) return {};
        Registry registry;
        addProfile(registry.currentUser, *file);
        std::string identity = userIdentity(registry);
        if (identity.empty() && !registry.currentUser.empty()) seen = stamp;
        return identity;
    };
}

std::optional<fs::path> unreadableUserRegistry(const Environment& environment) {
    auto file = userFile(environment);
    if (!file) return std::nullopt;
    std::error_code error;
    const bool isMissing = fs::status(*file, error).type() == fs::file_type::not_found;
    return isMissing || readProfileFile(*file) ? std::nullopt : std::move(file);
}

}  // namespace quendra
