#include "platform/environment.h"

#include <unistd.h>

namespace quendra {

namespace {

constexpr int maxReplacements = 32;
constexpr std::size_t maxExpandedLength = 4096;
constexpr std::size_t maxNameLength = 260;

// The first `preferred` from `start` on, or the first `other` where there is none.
std::size_t findMarker(std::string_view path, std::size_t start, char preferred, char other) {
    const std::size_t found = path.find(preferred, start);
    return found != std::string_view::npos ? found : path.find(other, start);
}

bool expandFirstName(std::string& path, const Environment& environment) {
    const std::size_t open = findMarker(path, 0, '%', '<');
    if (open == std::string::npos) return false;
    const std::size_t close = findMarker(path, open + 1, '%', '>');
    if (close == std::string::npos || close - open - 1 > maxNameLength) return false;
    const auto name = std::string_view(path).substr(open + 1, close - open - 1);
    const auto value = variable(environment, name);
    if (!value || path.size() + value->size() > maxExpandedLength) return false;
    path.replace(open, close - open + 1, *value);
    return true;
}

}  // namespace

Environment processEnvironment() {
    Environment environment;
    for (char** entry = environ; entry && *entry; ++entry) {
        const std::string_view text = *entry;
        const std::size_t equals = text.find('=');
        if (equals == std::string_view::npos) continue;
        environment.emplace(text.substr(0, equals), text.substr(equals + 1));
    }
    return environment;
}

std::optional<std::string> variable(const Environment& environment, std::string_view name) {
    const auto found = environment.find(name);
    if (found == environment.end() || found->second.empty()) return std::nullopt;
    return found->second;
}

std::optional<std::filesystem::path> folderVariable(const Environment& environment,
                                                    std::string_view name) {
    const auto value = variable(environment, name);
    if (!value || value->front() != '/') return std::nullopt;
    return std::filesystem::path(*value);
}

std::string expandEnvironmentNames(std::string path, const Environment& environment) {
    for (int done = 0; done < maxReplacements; ++done) {
        if (!expandFirstName(path, environment)) break;
    }
    return path;
}

}  // namespace quendra
