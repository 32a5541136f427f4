// JSON as text: parsing what anyone may have written, and printing it.
#pragma once

#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <span>
#include <string>

namespace quendra {

/// A parsed text, or why it was refused, with the place.
struct ParsedJson {
    std::unique_ptr<nlohmann::ordered_json> value;
    std::string refusal;
};

/// Parses a text of any bytes. Refused is what is not valid JSON in UTF-8, an object with two
/// fields of one name, and what is nested deeper or holds more values than any script. Refusals
/// never quote the text, which may be secret.
[[nodiscard]] ParsedJson parseJson(std::span<const std::uint8_t> text);

/// The value over several lines, in UTF-8 without raw control characters.
[[nodiscard]] std::string printJson(const nlohmann::ordered_json& value);

}  // namespace quendra
