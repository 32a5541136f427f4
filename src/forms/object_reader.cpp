#include "forms/object_reader.h"

#include "text/base64.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

const ObjectReader::Json noFields = ObjectReader::Json::object();

}  // namespace

ObjectReader::ObjectReader(const Json& value, JsonPath path, FormRefusal& refusal)
    : object_(value.is_object() ? value : noFields), path_(std::move(path)), refusal_(refusal) {
    if (!value.is_object()) fail("", "must be an object");
}

const ObjectReader::Json* ObjectReader::find(std::string_view name) {
    known_.push_back(name);
    const auto found = object_.find(std::string(name));
    return found == object_.end() ? nullptr : &*found;
}

void ObjectReader::fail(std::string_view name, std::string_view what) {
    if (!ok()) return;
    refusal_.what = placeHeading(path_, name).append(what);
    refusal_.path = name.empty() ? path_ : pathOf(name);
}

JsonPath ObjectReader::pathOf(std::string_view name) const {
    JsonPath path = path_;
    path.emplace_back(name);
    return path;
}

std::uint32_t ObjectReader::wholeNumber(std::string_view name, const Json& value,
                                        std::uint32_t highest, bool isFlag) {
    if (isFlag && value.is_boolean()) return value.get<bool>() ? 1 : 0;
    if (value.is_number_unsigned() && value.get<std::uint64_t>() <= highest) {
        return value.get<std::uint32_t>();
    }
    fail(name, std::string(isFlag ? "must be true, false or" : "must be") +
                   " a whole number from 0 to " + std::to_string(highest));
    return 0;
}

std::optional<std::uint32_t> ObjectReader::number(std::string_view name, std::uint32_t highest,
                                                  bool isFlag) {
    const Json* value = find(name);
    if (!value) return std::nullopt;
    return wholeNumber(name, *value, highest, isFlag);
}

std::optional<std::string> ObjectReader::text(std::string_view name, std::size_t longest) {
    const Json* value = find(name);
    if (!value) return std::nullopt;
    if (!value->is_string()) {
        fail(name, "must be a string");
        return std::nullopt;
    }
    auto bytes = windows1252FromUtf8(value->get_ref<const std::string&>());
    if (!bytes) {
        fail(name, "holds a character that windows-1252 lacks");
    } else if (bytes->size() > longest) {
        fail(name, "is longer than " + std::to_string(longest) + " characters");
        bytes.reset();
    }
    return bytes;
}

std::optional<std::vector<std::uint8_t>> ObjectReader::bytes(std::string_view name) {
    const Json* value = find(name);
    if (!value) return std::nullopt;
    auto decoded =
        value->is_string() ? bytesOfBase64(value->get_ref<const std::string&>()) : std::nullopt;
    if (!decoded) fail(name, "must be a base64 string");
    return decoded;
}

void ObjectReader::finish() {
    for (const auto& [name, value] : object_.items()) {
        if (std::ranges::find(known_, name) == known_.end()) fail(name, "unknown field here");
    }
}

}  // namespace quendra
