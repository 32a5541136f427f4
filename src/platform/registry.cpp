#include "platform/registry.h"

#include "platform/profile_file.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <vector>

namespace quendra {

namespace {

namespace fs = std::filesystem;

// An environment variable that is set and not empty.
std::optional<std::string> environment(const char* name) {
    const char* value = std::getenv(name);
    if (!value || !*value) return std::nullopt;
    return value;
}

std::vector<fs::path> rootFolders(RegistryRoot root) {
    if (root == RegistryRoot::CurrentUser) {
        if (const auto config = environment("XDG_CONFIG_HOME")) return {*config};
        if (const auto home = environment("HOME")) return {fs::path(*home) / ".config"};
        return {};
    }
    std::vector<fs::path> folders;
    const std::string list = environment("XDG_CONFIG_DIRS").value_or("/etc/xdg");
    for (std::size_t start = 0; start <= list.size();) {
        const std::size_t end = std::min(list.find(':', start), list.size());
        if (end > start) folders.emplace_back(list.substr(start, end - start));
        start = end + 1;
    }
    return folders;
}

// The profiles of a root that exist, most important first.
std::vector<Profile> profilesOf(RegistryRoot root) {
    std::vector<Profile> profiles;
    for (const fs::path& folder : rootFolders(root)) {
        if (auto profile = readProfileFile(folder / "quendra" / "registry.ini")) {
            profiles.push_back(std::move(*profile));
        }
    }
    return profiles;
}

}  // namespace

std::optional<std::string> registryText(RegistryRoot root, std::string_view key,
                                        std::string_view value) {
    for (const Profile& profile : profilesOf(root)) {
        if (auto text = lookup(profile, key, value)) return text;
    }
    return std::nullopt;
}

bool registryHasKey(RegistryRoot root, std::string_view key) {
    for (const Profile& profile : profilesOf(root)) {
        if (hasSection(profile, key)) return true;
    }
    return false;
}

std::string userIdentity() {
    return registryText(RegistryRoot::CurrentUser, "Identities", "Default User ID").value_or("");
}

}  // namespace quendra
