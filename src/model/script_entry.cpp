#include "model/script_entry.h"

#include "model/menu_commands.h"
#include "platform/secret_memory.h"

#include <algorithm>
#include <cstddef>

namespace quendra {

namespace {

template <std::size_t Size>
std::size_t assign(std::array<char, Size>& field, std::string_view value) {
    const std::size_t length = std::min(value.size(), Size - 1);
    std::copy_n(value.begin(), length, field.begin());
    std::fill(field.begin() + static_cast<std::ptrdiff_t>(length), field.end(), '\0');
    return length;
}

constexpr std::size_t secretsStart = offsetof(StepFields, text);
constexpr std::size_t secretsEnd =
    offsetof(StepFields, transferSettings) + sizeof(FileTransferSettings);
static_assert(secretsEnd - secretsStart == sizeof(TextField) + sizeof(FileTransferSettings));

}  // namespace

Step::~Step() {
    auto* fields = reinterpret_cast<std::uint8_t*>(static_cast<StepFields*>(this));
    wipeMemory(fields + secretsStart, secretsEnd - secretsStart);
}

ScriptEntry::~ScriptEntry() {
    wipeMemory(compareText.data(), compareText.size());
}

std::string_view textOf(const Step& fields) {
    return {fields.text.data(), fields.textLength};
}

std::string_view promptOf(const Step& fields) {
    return {fields.prompt.data(), std::min<std::size_t>(fields.number, maxPromptLength)};
}

std::string_view compareTextOf(const ScriptEntry& entry) {
    return {entry.compareText.data(), entry.compareTextLength};
}

void setText(Step& fields, std::string_view value) {
    const std::string_view stored = value.substr(0, maxTextLength);
    if (textOf(fields) == stored) return;
    fields.textLength = static_cast<std::uint8_t>(assign(fields.text, stored));
    fields.kept.reset();
}

void setPrompt(Step& fields, std::string_view value) {
    fields.number = static_cast<std::uint32_t>(assign(fields.prompt, value));
}

void setCompareText(ScriptEntry& entry, std::string_view value) {
    entry.compareTextLength = static_cast<std::uint8_t>(assign(entry.compareText, value));
}

void setCode(Step& fields, CommandCode code) {
    if (fields.code == code) return;
    fields.code = code;
    fields.kept.reset();
}

bool isHiddenText(const Step& fields) {
    return fields.code == CommandCode::Type && fields.hidden == 1;
}

ScreenArea unpackArea(std::uint32_t packed) {
    return {static_cast<std::uint8_t>(packed), static_cast<std::uint8_t>(packed >> 8),
            static_cast<std::uint8_t>(packed >> 16), static_cast<std::uint8_t>(packed >> 24)};
}

int bitmapIdOf(CommandCode code, std::uint32_t commandId) {
    if (code == CommandCode::LuFunction) return luFunctionBitmapId;
    if (code == CommandCode::MenuCommand) {
        return findMenuCommand(commandId) != nullptr ? static_cast<int>(commandId) : 0;
    }
    return isScriptEvent(code) ? static_cast<int>(code) + 106 : 0;
}

}  // namespace quendra
