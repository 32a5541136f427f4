#include "scriptfile/format_version.h"

#include <algorithm>

namespace quendra {

namespace {

char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Three commands came into the menu below 212, and with each version a few more further up.
std::uint32_t insertedBelow(std::uint32_t id, std::initializer_list<std::uint32_t> laterOnes) {
    if (id < 209) return id;
    if (id <= 210) return id + 1;
    const auto passed =
        std::ranges::count_if(laterOnes, [id](std::uint32_t place) { return id > place; });
    return id + 3 + static_cast<std::uint32_t>(passed);
}

std::uint32_t renumberMenuCommand(std::uint32_t id, const RecordFormat& format) {
    switch (format.version) {
        case '2': return insertedBelow(id, {214, 216, 238, 241});
        case '3': return insertedBelow(id, {217, 239, 242});
        case '4': return insertedBelow(id, {217});
        case '5': return insertedBelow(id, {});
        case '6':
        case '7': return !format.vt && id >= 212 ? id + 2 : id;
        default: return id;
    }
}

}  // namespace

std::optional<Signature> recogniseSignature(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < signatureSize) return std::nullopt;
    const char version = static_cast<char>(bytes[signatureSize - 1]);
    for (const HostType type : allHostTypes) {
        const HostTypeInfo& info = hostTypeInfo(type);
        const bool samePrefix =
            std::ranges::equal(info.signaturePrefix, bytes.first(signatureSize - 1),
                               [](char expected, std::uint8_t byte) {
                                   return expected == upperCase(static_cast<char>(byte));
                               });
        if (samePrefix && version >= info.oldestVersion && version <= currentVersion) {
            return Signature{type, version};
        }
    }
    return std::nullopt;
}

std::array<std::uint8_t, signatureSize> signatureBytes(const Signature& signature) {
    std::array<std::uint8_t, signatureSize> bytes{};
    std::ranges::copy(hostTypeInfo(signature.hostType).signaturePrefix, bytes.begin());
    bytes.back() = static_cast<std::uint8_t>(signature.version);
    return bytes;
}

std::size_t RecordFormat::storedTransferSettings() const {
    if (version <= '4') return 926;
    if (version <= '7') return 927;
    if (version <= ';') return 928;
    return 933;
}

RecordFormat recordFormat(const Signature& signature) {
    return {signature.hostType == HostType::VT, signature.version};
}

std::uint32_t oldCommandCode(std::uint8_t stored, const RecordFormat& format) {
    if (format.version < '7' && stored >= 17) {
        switch (stored) {
            case 17: return 19;
            case 18: return 20;
            case 19: return 18;
            default: return stored;
        }
    }
    return stored >= 14 ? stored + 1u : stored;
}

std::uint32_t menuCommandFromFile(std::uint32_t stored, const RecordFormat& format) {
    const std::uint32_t id = renumberMenuCommand(stored, format);
    if (!format.vt) return id;
    if (id == 267) return 212;
    return id > 211 ? id + 2 : id;
}

std::uint32_t menuCommandToFile(std::uint32_t commandId, const RecordFormat& format) {
    if (!format.vt) return commandId;
    if (commandId == 212) return 267;
    return commandId > 211 ? commandId - 2 : commandId;
}

bool vtStoresMenuCommand(std::uint32_t commandId) {
    constexpr RecordFormat vtFile = {true, currentVersion};
    return menuCommandFromFile(menuCommandToFile(commandId, vtFile), vtFile) == commandId;
}

std::uint8_t luNumberFromFile(std::uint8_t stored, const RecordFormat& format) {
    const bool renumbered = format.vt && format.version < '8' && stored > 66;
    return static_cast<std::uint8_t>(renumbered ? stored + 3 : stored);
}

}  // namespace quendra
