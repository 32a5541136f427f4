#include "forms/transfer_json.h"

#include "forms/base64.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace quendra::cli {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* blockName = "block";

// The one-byte fields are flags, but for these three.
bool isFlag(const TransferField& field) {
    return field.kind == TransferFieldKind::Byte && field.name != transfer::packetSizeIndex.name &&
           field.name != transfer::recordFormat.name && field.name != transfer::spaceUnit.name;
}

Json jsonOfNumber(const TransferField& field, std::uint32_t value) {
    return isFlag(field) && value <= 1 ? Json(value == 1) : Json(value);
}

void readText(ObjectReader& object, const TransferField& field, FileTransferSettings& settings) {
    const auto text = object.text(field.name, field.size);
    // A text that says what the block says already leaves the bytes behind it alone.
    if (!text || *text == transferText(settings, field)) return;
    if (text->size() >= field.size) {
        object.fail(field.name, "is longer than " + std::to_string(field.size - 1) + " characters");
    } else if (text->find('\0') != std::string::npos) {
        object.fail(field.name, "holds a NUL");
    } else {
        setTransferText(settings, field, *text);
    }
}

void readNumber(ObjectReader& object, const TransferField& field, FileTransferSettings& settings) {
    std::uint32_t number = transferNumber(settings, field);
    auto byte = static_cast<std::uint8_t>(number);
    if (isFlag(field)) {
        object.flag(field.name, byte);
        number = byte;
    } else if (field.kind == TransferFieldKind::Byte) {
        object.number(field.name, byte);
        number = byte;
    } else {
        object.number(field.name, number);
    }
    setTransferNumber(settings, field, number);
}

}  // namespace

Json jsonOfTransferSettings(const FileTransferSettings& settings) {
    Json object;
    FileTransferSettings told;
    for (const TransferField& field : transferFields()) {
        const std::string name(field.name);
        if (field.kind == TransferFieldKind::Text) {
            object[name] = utf8FromWindows1252(transferText(settings, field));
            setTransferText(told, field, transferText(settings, field));
        } else {
            object[name] = jsonOfNumber(field, transferNumber(settings, field));
            setTransferNumber(told, field, transferNumber(settings, field));
        }
    }
    if (told != settings) object[blockName] = base64Of(settings.bytes);
    return object;
}

FileTransferSettings transferSettingsOfJson(ObjectReader& object) {
    FileTransferSettings settings = defaultTransferSettings();
    if (const auto block = object.bytes(blockName)) {
        if (block->size() == settings.bytes.size()) {
            std::ranges::copy(*block, settings.bytes.begin());
        } else {
            object.fail(blockName, "must have 933 bytes");
        }
    }
    for (const TransferField& field : transferFields()) {
        if (field.kind == TransferFieldKind::Text) {
            readText(object, field, settings);
        } else {
            readNumber(object, field, settings);
        }
    }
    object.finish();
    return settings;
}

}  // namespace quendra::cli
