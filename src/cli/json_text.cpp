#include "cli/json_text.h"

#include "model/script.h"
#include "platform/text_encoding.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <set>
#include <string_view>
#include <vector>

namespace quendra::cli {

namespace {

using Json = nlohmann::ordered_json;

// Script, entries, entry, action, transfer settings: five levels, and some to say what is wrong.
constexpr int maxDepth = 8;
// No entry with two actions has a hundred values.
constexpr std::size_t maxValues = maxEntries * 100;

struct Refusal {
    std::string what;
};

// Watches the parser, which by itself would take a gigabyte for a few megabytes of brackets and the
// last of two fields with one name.
class ParseGuard {
  public:
    bool operator()(int depth, Json::parse_event_t event, const Json& parsed) {
        if (depth > maxDepth) throw Refusal{"the JSON form is nested too deep"};
        if (++values_ > maxValues) throw Refusal{"the JSON form holds more than any script has"};
        if (event == Json::parse_event_t::object_start) openObjects_.emplace_back();
        if (event == Json::parse_event_t::object_end) openObjects_.pop_back();
        if (event == Json::parse_event_t::key) noteKey(parsed.get_ref<const std::string&>());
        return true;
    }

  private:
    void noteKey(const std::string& key) {
        if (openObjects_.back().insert(key).second) return;
        throw Refusal{"an object has two fields called " + escapeControlCharacters(key)};
    }

    std::size_t values_ = 0;
    std::vector<std::set<std::string>> openObjects_;
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
    try {
        ParseGuard guard;
        Json value = Json::parse(characters, std::ref(guard));
        return {std::make_unique<Json>(std::move(value)), ""};
    } catch (const Json::parse_error& error) {
        const std::size_t offset = std::min(text.size(), error.byte > 0 ? error.byte - 1 : 0);
        return {nullptr, "not valid JSON " + placeOf(characters, offset)};
    } catch (const Json::exception&) {
        return {nullptr, "a number in the JSON form is out of range"};
    } catch (const Refusal& refusal) {
        return {nullptr, refusal.what};
    }
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

}  // namespace quendra::cli
