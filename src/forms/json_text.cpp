#include "forms/json_text.h"

#include "model/script.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <set>
#include <string_view>
#include <vector>

namespace quendra {

namespace {

using Json = nlohmann::ordered_json;

// Script, entries, entry, action, transfer settings: five levels, and some to say what is wrong.
constexpr int maxDepth = 8;
// No entry with two actions has a hundred values.
constexpr std::size_t maxValues = maxEntries * 100;
constexpr std::size_t maxFields = 100;

// Reads the text through before a tree of it is made, which for a few megabytes of brackets would
// take a gigabyte, and of two fields with one name would keep one.
class JsonGuard final : public nlohmann::json_sax<Json> {
  public:
    [[nodiscard]] const std::string& refusal() const { return refusal_; }
    /// Where the text stops being JSON, counted from 1, if that is what is wrong.
    [[nodiscard]] std::optional<std::size_t> errorPosition() const { return errorPosition_; }

    bool null() override { return countValue(); }
    bool boolean(bool) override { return countValue(); }
    bool number_integer(number_integer_t) override { return countValue(); }
    bool number_unsigned(number_unsigned_t) override { return countValue(); }
    bool number_float(number_float_t, const string_t&) override { return countValue(); }
    bool string(string_t&) override { return countValue(); }
    bool binary(binary_t&) override { return countValue(); }
    bool start_object(std::size_t) override {
        fieldsOfOpen_.emplace_back();
        return open();
    }
    bool key(string_t& name) override {
        auto& fields = fieldsOfOpen_.back();
        if (!fields.insert(name).second) {
            return refuse("an object has two fields called " + escapeControlCharacters(name));
        }
        return fields.size() <= maxFields || refuse("an object has too many fields");
    }
    bool end_object() override {
        fieldsOfOpen_.pop_back();
        return close();
    }
    bool start_array(std::size_t) override { return open(); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& error) override {
        if (dynamic_cast<const Json::parse_error*>(&error) == nullptr) {
            return refuse("a number is out of range");
        }
        errorPosition_ = position;
        return false;
    }

  private:
    bool refuse(const std::string& what) {
        refusal_ = what;
        return false;
    }
    bool countValue() {
        return ++values_ <= maxValues || refuse("the JSON form holds more than any script has");
    }
    bool open() {
        if (++depth_ > maxDepth) return refuse("the JSON form is nested too deep");
        return countValue();
    }
    bool close() {
        --depth_;
        return true;
    }

    std::string refusal_;
    std::optional<std::size_t> errorPosition_;
    std::size_t values_ = 0;
    int depth_ = 0;
    std::vector<std::set<std::string>> fieldsOfOpen_;
};

std::string placeOf(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, offset);
    const auto line = std::ranges::count(before, '\n') + 1;
    const std::size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    return "at line " + std::to_string(line) + ", column " + std::to_string(column) +
           " (byte offset " + std::to_string(offset) + ")";
}

}  // namespace

ParsedJson parseJson(std::span<const std::uint8_t> text) {
    const std::string_view characters(reinterpret_cast<const char*>(text.data()), text.size());
    JsonGuard guard;
    if (Json::sax_parse(characters, &guard)) {
        return {std::make_unique<Json>(Json::parse(characters)), ""};
    }
    if (!guard.errorPosition()) return {nullptr, guard.refusal()};
    const std::size_t position = std::max<std::size_t>(1, *guard.errorPosition());
    return {nullptr, "not valid JSON " + placeOf(characters, std::min(text.size(), position - 1))};
}

std::string printJson(const nlohmann::ordered_json& value) {
    // The printer leaves DEL and the C1 controls as they are. They only occur inside strings.
    std::string printed;
    const std::string dumped = value.dump(2);
    printed.reserve(dumped.size());
    for (std::size_t i = 0; i < dumped.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(dumped[i]);
        const auto next =
            i + 1 < dumped.size() ? static_cast<std::uint8_t>(dumped[i + 1]) : std::uint8_t{0};
        if (byte == 0x7F) {
            printed += "\\u007f";
        } else if (byte == 0xC2 && next < 0xA0) {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u%04x", next);
            printed += escape.data();
            ++i;
        } else {
            printed += dumped[i];
        }
    }
    return printed;
}

}  // namespace quendra
