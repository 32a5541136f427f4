#include "settings/user_state.h"

#include "platform/directories.h"
#include "platform/files.h"
#include "platform/shell_folders.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view flagOn = "yes";
constexpr std::string_view flagOff = "no";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

bool isPlain(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20 && byte != 0x7F && c != '%';
}

// On one line.
std::string escapedForState(std::string_view text) {
    std::string value;
    for (const char c : text) {
        if (isPlain(c)) {
            value += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            value += '%';
            value += hexDigits[byte >> 4];
            value += hexDigits[byte & 15];
        }
    }
    return value;
}

// None for what escapedForState() does not make.
std::optional<std::string> unescaped(std::string_view value) {
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        if (value[at] != '%') {
            text += value[at];
            continue;
        }
        if (at + 2 >= value.size()) return std::nullopt;
        const auto high = hexDigits.find(value[at + 1]);
        const auto low = hexDigits.find(value[at + 2]);
        if (high == std::string_view::npos || low == std::string_view::npos || high + low == 0)
            return std::nullopt;
        text += static_cast<char>(high << 4 | low);
        at += 2;
    }
    return text;
}

char lowerLetter(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isNamed(std::string_view name, std::string_view wanted) {
    return std::ranges::equal(name, wanted, {}, lowerLetter, lowerLetter);
}

void setValue(Profile& profile, const std::string& section, const std::string& name,
              const std::optional<std::string>& value) {
    for (ProfileSection& candidate : profile.sections) {
        if (!isNamed(candidate.name, section)) continue;
        std::erase_if(candidate.entries,
                      [&](const ProfileEntry& entry) { return isNamed(entry.key, name); });
    }
    if (!value) return;
    const auto place = std::ranges::find_if(
        profile.sections, [&](const ProfileSection& s) { return isNamed(s.name, section); });
    if (place != profile.sections.end()) {
        place->entries.push_back({name, *value});
    } else {
        profile.sections.push_back({section, {{name, *value}}});
    }
}

std::string fileOf(const Profile& profile) {
    std::string text;
    for (const ProfileSection& section : profile.sections) {
        if (section.entries.empty()) continue;
        text += '[' + section.name + "]\n";
        // In quotes, for the file's form drops blanks at the ends of a value.
        for (const ProfileEntry& entry : section.entries)
            text += entry.key + "=\"" + entry.value + "\"\n";
    }
    return text;
}

// Whoever else could read the file before can do so no more: names of scripts are the user's own.
void restrictToOwner(const fs::path& file) {
    std::error_code ignored;
    if (!fs::is_regular_file(file, ignored)) return;
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write, ignored);
}

std::string listName(const StateKey& key, std::size_t number) {
    return std::string(key.name) + std::to_string(number);
}

}  // namespace

std::optional<fs::path> userStateFile(const Environment& environment) {
    const auto folder = stateFolder(environment);
    if (!folder) return std::nullopt;
    return *folder / "quendra" / "state.ini";
}

UserState::UserState(fs::path file, Access access)
    : values_(readProfileFile(file).value_or(Profile())) {
    if (access == Access::ReadAndWrite) file_ = std::move(file);
}

std::optional<std::string> UserState::stored(const StateKey& key) const {
    return lookup(values_, key.section, key.name);
}

bool UserState::flag(const StateKey& key, bool otherwise) const {
    const auto value = stored(key);
    if (value == flagOn) return true;
    return value == flagOff ? false : otherwise;
}

std::optional<int> UserState::number(const StateKey& key, int least, int most) const {
    const auto value = stored(key);
    if (!value) return std::nullopt;
    int number = 0;
    const char* const end = value->data() + value->size();
    const auto [stop, fault] = std::from_chars(value->data(), end, number);
    if (fault != std::errc() || stop != end || number < least || number > most) return std::nullopt;
    return number;
}

std::optional<std::string> UserState::text(const StateKey& key) const {
    const auto value = stored(key);
    return value ? unescaped(*value) : std::nullopt;
}

std::vector<std::string> UserState::texts(const StateKey& key) const {
    std::vector<std::string> all;
    while (all.size() < mostTexts) {
        const auto next = text({key.section, listName(key, all.size() + 1)});
        if (!next) break;
        all.push_back(*next);
    }
    return all;
}

void UserState::setFlag(const StateKey& key, bool value) {
    set({{std::string(key.section), std::string(key.name), std::string(value ? flagOn : flagOff)}});
}

void UserState::setNumber(const StateKey& key, int value) {
    set({{std::string(key.section), std::string(key.name), std::to_string(value)}});
}

void UserState::setText(const StateKey& key, std::string_view value) {
    set({{std::string(key.section), std::string(key.name), escapedForState(value)}});
}

void UserState::setTexts(const StateKey& key, const std::vector<std::string>& values) {
    // Another window may have made the list longer, and what is taken out must not come back.
    const Profile there = file_.empty() ? Profile() : readProfileFile(file_).value_or(Profile());
    std::vector<Change> changes;
    for (std::size_t i = 0; i < mostTexts; ++i) {
        const std::string name = listName(key, i + 1);
        if (const auto other = lookup(there, key.section, name);
            other && !stored({key.section, name}))
            setValue(values_, std::string(key.section), name, other);
        std::optional<std::string> value;
        if (i < values.size()) value = escapedForState(values[i]);
        if (value || stored({key.section, name})) {
            changes.push_back({std::string(key.section), name, std::move(value)});
        }
    }
    set(changes);
}

void UserState::set(const std::vector<Change>& changes) {
    const bool changesNothing = std::ranges::all_of(changes, [this](const Change& change) {
        return stored({change.section, change.name}) == change.value;
    });
    if (changesNothing) return;
    for (const Change& change : changes)
        setValue(values_, change.section, change.name, change.value);
    if (!file_.empty()) write(changes);
}

void UserState::write(const std::vector<Change>& changes) const {
    // Writing over a file in a folder that takes none would leave a copy of it elsewhere.
    if (!makePrivateDirectoryPath(file_.parent_path()) || !mayMakeFilesIn(file_.parent_path()))
        return;
    Profile profile = readProfileFile(file_).value_or(Profile());
    for (const Change& change : changes)
        setValue(profile, change.section, change.name, change.value);
    const std::string text = fileOf(profile);
    restrictToOwner(file_);
    // What is not remembered is shown as at first.
    static_cast<void>(replaceFile(file_,
                                  {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()},
                                  OldFile::Drop, NewFile::OwnerOnly));
}

}  // namespace quendra
