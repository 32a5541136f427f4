// JSON as text: parsing what anyone may have written, and printing it.
#pragma once

#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// A parsed text, or why it was refused, with the place.
struct ParsedJson {
    std::unique_ptr<nlohmann::ordered_json> value;
    std::string refusal;
};

/// Parses a text of any bytes. Refused is what is not valid JSON in UTF-8, an object with two
/// fields of one name, and what is nested deeper or holds more values than any script. Refusals
/// name the entry and the field as far as there are any and never quote a value, which may be
/// secret.
[[nodiscard]] ParsedJson parseJson(std::span<const std::uint8_t> text);

/// The way to a value: names of fields, and steps into lists: "entries", "3.", "text".
using JsonPath = std::vector<std::string>;
/// The step to an element of a list: "3." for the one with index 2.
[[nodiscard]] std::string listStep(std::size_t index);

/// What a refusal begins with, control characters escaped: "entry 3, then action: text: ". The
/// object may be the whole form, and no field in particular may be meant: empty for both.
[[nodiscard]] std::string placeHeading(const JsonPath& object, std::string_view field);

/// Where a value stands in a text that was parsed, a field where its name does: "at line 2, column
/// 3 (byte offset 14)". Of what is not there, where the last begins that is on the way to it.
[[nodiscard]] std::string placeInJson(std::span<const std::uint8_t> text, const JsonPath& path);

/// The value over several lines, in UTF-8 without raw control characters.
[[nodiscard]] std::string printJson(const nlohmann::ordered_json& value);

}  // namespace quendra
