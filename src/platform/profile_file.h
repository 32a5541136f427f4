// Profile files: the ini files of the program and the files that stand in for the registry.
//
// A file is sections, "[Name]", with lines "Key = Value" below them. Names are compared without
// regard to ASCII case. A line that begins with ';' is a comment; a ';' further on is part of the
// value, since paths may hold one. Whitespace around names and values is dropped, then one pair of
// quotes (" or ') around the value, which is how a value keeps blanks at its ends; there are no
// escapes. Keys above the first section, and lines that are neither, are passed over: nothing in
// such a file is an error.
#pragma once

#include "platform/settings_file.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

struct ProfileEntry {
    std::string key;
    std::string value;
};

struct ProfileSection {
    std::string name;
    std::vector<ProfileEntry> entries;
};

// The sections of a file in its order; a name that occurs twice gives two sections.
struct Profile {
    std::vector<ProfileSection> sections;
};

// Lines may end in LF or CRLF, and a UTF-8 byte order mark is passed over. Values keep the bytes of
// the file.
[[nodiscard]] Profile parseProfile(std::string_view text);

// The value of the first matching key among all sections of that name; a key without text gives the
// empty text, which is not the same as none.
[[nodiscard]] std::optional<std::string> lookup(const Profile& profile, std::string_view section,
                                                std::string_view key);

// Whether the section occurs, with or without keys.
[[nodiscard]] bool hasSection(const Profile& profile, std::string_view section);

// None when there is no regular file at `path`, it cannot be read, or somebody whose word is not
// taken may have written it. Read up to the limit for settings files.
[[nodiscard]] std::optional<Profile> readProfileFile(const std::filesystem::path& path,
                                                     WrittenBy writer = WrittenBy::Anybody);

}  // namespace quendra
