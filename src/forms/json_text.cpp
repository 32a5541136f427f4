#include "forms/json_text.h"

#include "model/script.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

namespace quendra {

namespace {

using Json = nlohmann::ordered_json;

// Script, entries, entry, action, transfer settings: five levels, and some to say what is wrong.
constexpr int maxDepth = 8;
// No entry with two actions has a hundred values.
constexpr std::size_t maxValues = maxEntries * 100;
constexpr std::size_t maxFields = 100;

// Where in the text the parser is, which it does not tell.
struct CountedBytes {
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    const char* next;
    const char** taken;

    reference operator*() const { return *next; }
    CountedBytes& operator++() {
        *taken = ++next;
        return *this;
    }
    bool operator==(const CountedBytes& other) const { return next == other.next; }
};

// Walks through a text, and knows the way to what is being read.
class JsonWalk : public nlohmann::json_sax<Json> {
  public:
    explicit JsonWalk(std::string_view text) : text_(text), taken_(text.data()) {}

    /// True when it went to the end.
    bool walk() {
        const char* const end = text_.data() + text_.size();
        return Json::sax_parse(CountedBytes{text_.data(), &taken_}, CountedBytes{end, &taken_},
                               this);
    }

    bool null() override { return nextValue(); }
    bool boolean(bool) override { return nextValue(); }
    bool number_integer(number_integer_t) override { return nextValue(); }
    bool number_unsigned(number_unsigned_t) override { return nextValue(); }
    bool number_float(number_float_t, const string_t&) override { return nextValue(); }
    bool string(string_t&) override { return nextValue(); }
    bool binary(binary_t&) override { return nextValue(); }
    bool start_object(std::size_t) override { return open(false); }
    bool start_array(std::size_t) override { return open(true); }
    bool key(string_t& name) override {
        levels_.back().field = name;
        return atField(name);
    }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

  protected:
    /// A value begins, to which the way is path(); false ends the walk.
    virtual bool atValue() = 0;
    virtual bool atField(const std::string& name) = 0;
    virtual void opened(bool /*isList*/) {}
    virtual void closed(bool /*isList*/) {}

    [[nodiscard]] std::size_t depth() const { return levels_.size(); }
    [[nodiscard]] JsonPath path() const {
        JsonPath path;
        for (const Level& level : levels_)
            if (level.isBegun()) path.push_back(level.step());
        return path;
    }
    /// True when the way goes along the first steps of `target`.
    [[nodiscard]] bool isOnTheWayTo(const JsonPath& target) const {
        return levels_.size() <= target.size() &&
               std::ranges::equal(levels_, std::span(target).first(levels_.size()),
                                  [](const Level& level, const std::string& step) {
                                      return level.step() == step;
                                  });
    }
    /// Where that begins which was read last: one character, or a text, number or word.
    [[nodiscard]] std::size_t lastOffset() const {
        const auto taken = static_cast<std::size_t>(taken_ - text_.data());
        std::size_t start = std::max<std::size_t>(1, taken) - 1;
        if (start >= text_.size()) return text_.size();
        if (isOpening(text_[start])) return start;
        if (text_[start] == '"') return start - lengthOfText(start);
        // To know that a number ends, the parser has looked at what stands behind it.
        if (start > 0 && !isOfWord(text_[start])) --start;
        while (start > 0 && isOfWord(text_[start - 1]))
            --start;
        return start;
    }
    [[nodiscard]] static bool isOpening(char character) {
        return character == '{' || character == '[';
    }
    [[nodiscard]] std::string_view text() const { return text_; }

  private:
    struct Level {
        bool isList;
        // Of the elements that have begun.
        std::size_t count = 0;
        std::optional<std::string> field;

        [[nodiscard]] bool isBegun() const { return isList ? count > 0 : field.has_value(); }
        [[nodiscard]] std::string step() const {
            return isList ? listStep(count - 1) : field.value_or("");
        }
    };

    static bool isOfWord(char character) {
        constexpr std::string_view signs = "+-.";
        return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'z') ||
               character == 'E' || signs.find(character) != std::string_view::npos;
    }
    // From its first quote, which has no backslash before it that counts, to its last.
    [[nodiscard]] std::size_t lengthOfText(std::size_t last) const {
        std::size_t first = last;
        bool isEscaped = true;
        while (first > 0 && isEscaped) {
            first = text_.rfind('"', first - 1);
            if (first == std::string_view::npos) return 0;
            const auto before = text_.substr(0, first).find_last_not_of('\\');
            isEscaped = (first - (before == std::string_view::npos ? 0 : before + 1)) % 2 == 1;
        }
        return last - first;
    }
    bool nextValue() {
        if (!levels_.empty() && levels_.back().isList) ++levels_.back().count;
        return atValue();
    }
    bool open(bool isList) {
        if (!nextValue()) return false;
        levels_.push_back({isList, 0, std::nullopt});
        opened(isList);
        return true;
    }
    bool close() {
        closed(levels_.back().isList);
        levels_.pop_back();
        return true;
    }

    std::string_view text_;
    const char* taken_;
    std::vector<Level> levels_;
};

std::string placeOf(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, offset);
    const auto line = std::ranges::count(before, '\n') + 1;
    const std::size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    return "at line " + std::to_string(line) + ", column " + std::to_string(column) +
           " (byte offset " + std::to_string(offset) + ")";
}

// Reads the text through before a tree of it is made, which for a few megabytes of brackets would
// take a gigabyte, and of two fields with one name would keep one.
class JsonGuard final : public JsonWalk {
  public:
    using JsonWalk::JsonWalk;

    [[nodiscard]] const std::string& refusal() const { return refusal_; }

    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& error) override {
        if (dynamic_cast<const Json::parse_error*>(&error) == nullptr) {
            return refuse(path(), "a number is out of range", lastOffset());
        }
        // Counted from 1, and one further at the end.
        const std::size_t offset = std::max<std::size_t>(1, position) - 1;
        return refuse({}, "not valid JSON", std::min(text().size(), offset));
    }

  protected:
    bool atValue() override {
        if (depth() >= maxDepth && isOpening(text()[lastOffset()]))
            return refuse(path(), "nested too deep", lastOffset());
        return ++values_ <= maxValues ||
               refuse(path(), "the JSON form holds more than any script has", lastOffset());
    }
    bool atField(const std::string& name) override {
        auto& fields = fieldsOfOpen_.back();
        if (!fields.insert(name).second)
            return refuse(path(), "the field is there twice", lastOffset());
        return fields.size() <= maxFields || refuse(path(), "one field too many", lastOffset());
    }
    void opened(bool isList) override {
        if (!isList) fieldsOfOpen_.emplace_back();
    }
    void closed(bool isList) override {
        if (!isList) fieldsOfOpen_.pop_back();
    }

  private:
    bool refuse(JsonPath object, const std::string& what, std::size_t offset) {
        std::string field;
        while (object.size() > 2 && object.back().ends_with('.'))
            object.pop_back();
        if (!object.empty() && !object.back().ends_with('.')) {
            field = std::move(object.back());
            object.pop_back();
        }
        refusal_ = placeHeading(object, field) + what + ' ' + placeOf(text(), offset);
        return false;
    }

    std::string refusal_;
    std::size_t values_ = 0;
    std::vector<std::set<std::string>> fieldsOfOpen_;
};

// Goes as far towards a value as there is a way.
class JsonSearch final : public JsonWalk {
  public:
    JsonSearch(std::string_view text, const JsonPath& target) : JsonWalk(text), target_(target) {}

    [[nodiscard]] std::size_t offset() const { return offset_; }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

  protected:
    bool atValue() override { return look(); }
    bool atField(const std::string&) override { return look(); }

  private:
    // The value of a field, which comes behind its name, goes no further.
    bool look() {
        if (depth() <= found_ || !isOnTheWayTo(target_)) return true;
        found_ = depth();
        offset_ = lastOffset();
        return found_ < target_.size();
    }

    const JsonPath& target_;
    std::size_t found_ = 0;
    std::size_t offset_ = 0;
};

std::string_view charactersOf(std::span<const std::uint8_t> text) {
    return {reinterpret_cast<const char*>(text.data()), text.size()};
}

}  // namespace

ParsedJson parseJson(std::span<const std::uint8_t> text) {
    const std::string_view characters = charactersOf(text);
    JsonGuard guard(characters);
    if (!guard.walk()) return {nullptr, guard.refusal()};
    return {std::make_unique<Json>(Json::parse(characters)), ""};
}

std::string listStep(std::size_t index) {
    return std::to_string(index + 1) + '.';
}

std::string placeHeading(const JsonPath& object, std::string_view field) {
    std::string name;
    for (std::size_t i = 0; i < object.size(); ++i) {
        const bool isAction = object[i] == "then" || object[i] == "else";
        if (!object[i].ends_with('.')) {
            name += (name.empty() ? "" : ", ") + object[i] + (isAction ? " action" : "");
        } else if (i == 1 && object[0] == "entries") {
            name = "entry " + object[i].substr(0, object[i].size() - 1);
        }
    }
    if (!name.empty()) name += ": ";
    if (!field.empty()) name.append(field) += ": ";
    return escapeControlCharacters(name);
}

std::string placeInJson(std::span<const std::uint8_t> text, const JsonPath& path) {
    const std::string_view characters = charactersOf(text);
    JsonSearch search(characters, path);
    static_cast<void>(search.walk());
    return placeOf(characters, search.offset());
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
