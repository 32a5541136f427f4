// One JSON object whose fields are taken by name, with checks on type and range.
#pragma once

#include "forms/json_text.h"

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// What is wrong with a form, and the way to it.
struct FormRefusal {
    std::string what;
    JsonPath path;
};

/// Takes fields out of an object. The first thing that is wrong fills the refusal, which all
/// readers of one form share, and what is taken from then on means nothing; so a form is read to
/// its end and tested once. A refusal names the place and the field, never the value.
class ObjectReader {
  public:
    using Json = nlohmann::ordered_json;

    /// The value, to which `path` leads, and the refusal outlive the reader. A value that is no
    /// object is refused.
    ObjectReader(const Json& value, JsonPath path, FormRefusal& refusal);

    [[nodiscard]] bool ok() const { return refusal_.what.empty(); }
    [[nodiscard]] JsonPath pathOf(std::string_view name) const;
    [[nodiscard]] FormRefusal& refusal() const { return refusal_; }

    /// The value of a field, or none when it was left out. From here on the field is known.
    [[nodiscard]] const Json* find(std::string_view name);

    /// Refuses a field, or the object for an empty name.
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
    JsonPath path_;
    FormRefusal& refusal_;
    std::vector<std::string_view> known_;
};

}  // namespace quendra
