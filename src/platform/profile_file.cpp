#include "platform/profile_file.h"

#include <algorithm>

namespace quendra {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// The C locale decides what std::tolower folds; names fold ASCII letters and nothing else.
char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lowerAscii, lowerAscii);
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\v\f";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view unquoted(std::string_view value) {
    if (value.size() < 2 || value.front() != value.back()) return value;
    if (value.front() != '"' && value.front() != '\'') return value;
    return value.substr(1, value.size() - 2);
}

void parseLine(std::string_view line, Profile& profile) {
    if (line.empty() || line.front() == ';') return;
    if (line.front() == '[') {
        // A header that lost its bracket still ends the section before it; its keys must not join
        // that one.
        const auto end = std::min(line.rfind(']'), line.size());
        profile.sections.push_back({std::string(trimmed(line.substr(1, end - 1))), {}});
        return;
    }
    const auto equals = line.find('=');
    if (equals == std::string_view::npos || profile.sections.empty()) return;
    const auto key = trimmed(line.substr(0, equals));
    const auto value = unquoted(trimmed(line.substr(equals + 1)));
    profile.sections.back().entries.push_back({std::string(key), std::string(value)});
}

}  // namespace

Profile parseProfile(std::string_view text) {
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    Profile profile;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        parseLine(trimmed(text.substr(0, end)), profile);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return profile;
}

std::optional<std::string> lookup(const Profile& profile, std::string_view section,
                                  std::string_view key) {
    for (const auto& candidate : profile.sections) {
        if (!sameName(candidate.name, section)) continue;
        for (const auto& entry : candidate.entries) {
            if (sameName(entry.key, key)) return entry.value;
        }
    }
    return std::nullopt;
}

bool hasSection(const Profile& profile, std::string_view section) {
    return std::ranges::any_of(profile.sections,
                               [&](const auto& s) { return sameName(s.name, section); });
}

std::optional<Profile> readProfileFile(const std::filesystem::path& path, WrittenBy writer) {
    const auto text = readSettingsFile(path, writer);
    return text ? std::optional(parseProfile(*text)) : std::nullopt;
}

}  // namespace quendra
