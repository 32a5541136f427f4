// One JSON object whose fields are taken by name, with checks on type and range.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// Takes fields out of an object. The first thing that is wrong fills the refusal, which all
/// readers of one form share, and what is taken from then on means nothing; so a form is read to
/// its end and tested once. A refusal names the place and the field, never the value.
class ObjectReader {
  public:
    using Json = nlohmann::ordered_json;

    /// `place` begins every refusal: "entry 3, then action"; may be empty. The value and the
    /// refusal outlive the reader. A value that is no object is refused.
    ObjectReader(const Json& value, std::string place, std::string& refusal);

    [[nodiscard]] bool ok() const { return refusal_.empty(); }
    [[nodiscard]] const std::string& place() const { return place_; }
    [[nodiscard]] std::string& refusal() const { return refusal_; }

    /// The value of a field, or none when it was left out. From here on the field is known.
    [[nodiscard]] const Json* find(std::string_view name);

    void fail(std::string_view name, std::string_view what);

    /// A whole number up to `highest`, or with `isFlag` true or false for 1 or 0; none when the
    /// field was left out.
    [[nodiscard]] std::optional<std::uint32_t> number(std::string_view name, std::uint32_t highest,
                                                      bool isFlag = false);

    /// The windows-1252 bytes of a string; none when the field was left out or is refused.
    [[nodiscard]] std::optional<std::string> text(std::string_view name, std::size_t longest);

    /// The bytes of a base64 string; none when the field was left out or is refused.
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> bytes(std::string_view name);

    /// A number from 0 to `highest`, which is not a field of its own.
    [[nodiscard]] std::uint32_t wholeNumber(std::string_view name, const Json& value,
                                            std::uint32_t highest, bool isFlag = false);

    /// Refuses fields that nobody asked for.
    void finish();

  private:
    const Json& object_;
    std::string place_;
    std::string& refusal_;
    std::vector<std::string_view> known_;
};

}  // namespace quendra
