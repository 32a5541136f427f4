// What the editor remembers from one run to the next, apart from settings: what is shown, sizes,
// lists of names. Losing it costs nobody any work, so nothing here ever fails aloud.
#pragma once

#include "platform/environment.h"
#include "platform/profile_file.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// `quendra/state.ini` in the user's state folder; none where there is no such folder.
[[nodiscard]] std::optional<std::filesystem::path> userStateFile(const Environment& environment);

/// Where a value stands in the file. Both are plain names; case counts for nothing.
struct StateKey {
    std::string_view section;
    std::string_view name;
};

/// Values by key. They are read once; what is set counts at once and is written at once. Of a file
/// that somebody else has changed meanwhile, such as another window, all other values stay.
///
/// A missing file, one that cannot be read and a value of another kind are as good as none.
class UserState {
  public:
    enum class Access : std::uint8_t { ReadAndWrite, ReadOnly };

    /// Remembers as long as it lives, and nothing longer.
    UserState() = default;
    explicit UserState(std::filesystem::path file, Access access = Access::ReadAndWrite);

    [[nodiscard]] bool flag(const StateKey& key, bool otherwise) const;
    /// None when the number is not within the limits.
    [[nodiscard]] std::optional<int> number(const StateKey& key, int least, int most) const;
    /// Any bytes but NUL, such as a path or UTF-8.
    [[nodiscard]] std::optional<std::string> text(const StateKey& key) const;
    /// A list in its order: `name` followed by 1, 2, 3 ...
    [[nodiscard]] std::vector<std::string> texts(const StateKey& key) const;

    void setFlag(const StateKey& key, bool value);
    void setNumber(const StateKey& key, int value);
    void setText(const StateKey& key, std::string_view value);
    /// At most mostTexts of them.
    void setTexts(const StateKey& key, const std::vector<std::string>& values);

    static constexpr std::size_t mostTexts = 99;

  private:
    /// A value of the file's form; none takes the key away.
    struct Change {
        std::string section;
        std::string name;
        std::optional<std::string> value;
    };
    [[nodiscard]] std::optional<std::string> stored(const StateKey& key) const;
    void set(const std::vector<Change>& changes);
    void write(const std::vector<Change>& changes) const;

    std::filesystem::path file_;
    Profile values_;
};

}  // namespace quendra
