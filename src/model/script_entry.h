// One entry of a script with all parameters that any command can have: a step and its two actions.
//
// A ScriptEntry is the working form: dialogs, display and the command line read and write it. The
// script itself keeps the far smaller stored form (entry_handle.h); scriptfile/entry_codec.h turns
// one into the other.
#pragma once

#include "model/command_catalogue.h"
#include "model/file_transfer_settings.h"
#include "platform/secret_memory.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace quendra {

/// A text field: windows-1252 bytes, ended by a NUL that the separate length does not count.
using TextField = std::array<char, 256>;
using PromptField = std::array<char, 1024>;

inline constexpr std::size_t maxTextLength = 255;
inline constexpr std::size_t maxPromptLength = 1023;
/// The longest text whose enciphered form still fits the one length byte of a Type record.
inline constexpr std::size_t maxHiddenTextLength = 246;

/// A date and time; all zero means "unset". The day of week (0 = Sunday) is stored and never shown.
struct DateTime {
    std::uint16_t year = 0;
    std::uint16_t month = 0;
    std::uint16_t dayOfWeek = 0;
    std::uint16_t day = 0;
    std::uint16_t hour = 0;
    std::uint16_t minute = 0;
    std::uint16_t second = 0;
    std::uint16_t milliseconds = 0;

    bool operator==(const DateTime&) const = default;
};

/// What a slot holds that cannot be taken apart, kept so that saving gives it back unchanged: the
/// enciphered bytes of a hidden text that the present key does not open, or what follows the code
/// of an action as no editor makes it. Setting a new text or a new command code drops it.
using KeptBytes = std::optional<std::vector<std::uint8_t>>;

/// The plain fields of a step, apart from it and without values of their own, so that a new step is
/// zeroed as one block: field by field it takes four times as long.
struct StepFields {  // NOLINT(cppcoreguidelines-pro-type-member-init): Step zeroes them
    CommandCode code;
    std::uint8_t textLength;
    /// Set_Cursor, and the two bytes of a key.
    std::uint8_t row;
    std::uint8_t column;
    std::uint8_t transferHost;
    std::uint8_t maxLength;
    std::uint8_t hidden;
    std::uint8_t inputVariable;
    std::uint32_t number;
    std::uint32_t commandId;
    std::uint32_t commandData;
    /// The packed screen area of Copy and Paste.
    std::uint32_t area;
    DateTime waitUntil;
    /// Its length is `number`.
    PromptField prompt;
    /// These two may hold secrets, and lie together to be wiped in one go.
    TextField text;
    FileTransferSettings transferSettings;

    bool operator==(const StepFields&) const = default;
};

/// A command with all parameters that any command can have: an entry of the script, or one of its
/// actions. Made as part of an entry only, which marks and wipes it.
struct Step : StepFields {
    KeptBytes kept;

    Step() : StepFields() {}
    /// Explicit, for `auto step = slotFields(...)` would be a copy where a reference was meant.
    explicit Step(const Step&) = default;  // NOLINT(google-explicit-constructor)
    Step& operator=(const Step&) = default;
    ~Step();

    bool operator==(const Step&) const = default;
};

/// What only an entry has, and no action.
struct EntryOptions {
    std::uint8_t searchRow = 0;
    std::uint8_t searchColumn = 0;
    std::uint8_t exactPosition = 0;
    std::uint8_t caseSensitive = 0;
    std::uint8_t hasTimeout = 0;
    std::uint8_t timeoutSeconds = 0;

    /// Operands of If_Input_Is: a kind counts where the literal (`text`, `compareText`) is empty.
    std::uint8_t firstOperandKind = 0;
    std::uint8_t secondOperandKind = 0;
    std::uint8_t compareTextLength = 0;
    TextField compareText = {};

    bool operator==(const EntryOptions&) const = default;
};

/// All parameters of one entry: a step, the options, and its two actions. Every slot has all fields
/// to itself, as the file has a record for each, but for the search options: a Wait_For that a
/// Watch_For runs has those of its owner, which uses none. Wiped when it goes, and left out of
/// crash dumps wherever it lies.
struct ScriptEntry : Step, EntryOptions {
    Step thenAction;
    Step elseAction;

    ScriptEntry() = default;
    ScriptEntry(const ScriptEntry&) = default;
    ScriptEntry& operator=(const ScriptEntry&) = default;
    ~ScriptEntry();

    bool operator==(const ScriptEntry&) const = default;

  private:
    SecretMark mark_{this, sizeof(ScriptEntry)};
};

/// Which part of an entry is meant: the entry itself, its then action or its else action.
enum class Slot : std::uint8_t { Entry, Then, Else };

/// The fields of a slot, valid as long as the entry.
[[nodiscard]] inline const Step& slotFields(const ScriptEntry& entry, Slot slot) {
    switch (slot) {
        case Slot::Then: return entry.thenAction;
        case Slot::Else: return entry.elseAction;
        case Slot::Entry: break;
    }
    return entry;
}
[[nodiscard]] inline Step& slotFields(ScriptEntry& entry, Slot slot) {
    return const_cast<Step&>(slotFields(std::as_const(entry), slot));
}

/// True for an action slot that holds a command which no action should be. Its record is carried
/// whole, in `kept`, not taken apart. (That of a watched Wait_For with a timeout is both.)
[[nodiscard]] inline bool isForeignAction(const ScriptEntry& entry, Slot slot) {
    return slot != Slot::Entry && !mayBeAction(slotFields(entry, slot).code, entry.code);
}

/// The text of a field by its length; it may hold NUL bytes when it comes from a foreign file.
[[nodiscard]] std::string_view textOf(const Step& fields);
[[nodiscard]] std::string_view promptOf(const Step& fields);
[[nodiscard]] std::string_view compareTextOf(const ScriptEntry& entry);

/// Stores the first 255 (prompt: 1023) bytes of `value` with the length and zeros behind. A new
/// text drops what was kept of the old one; the same text again does not, so that a dialog left
/// with OK and nothing changed gives back somebody else's hidden text as it was.
void setText(Step& fields, std::string_view value);
void setPrompt(Step& fields, std::string_view value);
void setCompareText(ScriptEntry& entry, std::string_view value);
/// Sets the command of a slot; a changed code drops what was kept.
void setCode(Step& fields, CommandCode code);

/// True when the slot is a Type whose text is stored enciphered and shown as asterisks: its hidden
/// byte is 1. Any other byte, which only foreign files hold, is kept, and the text is stored and
/// shown in clear. Whatever treats hidden texts in a way of their own asks here.
[[nodiscard]] bool isHiddenText(const Step& fields);

/// The four bytes of a packed screen area. Paste uses the first two.
struct ScreenArea {
    std::uint8_t startRow = 0;
    std::uint8_t startColumn = 0;
    std::uint8_t endRow = 0;
    std::uint8_t endColumn = 0;

    bool operator==(const ScreenArea&) const = default;
};
[[nodiscard]] ScreenArea unpackArea(std::uint32_t packed);
[[nodiscard]] constexpr std::uint32_t packArea(const ScreenArea& area) {
    return std::uint32_t{area.startRow} | std::uint32_t{area.startColumn} << 8 |
           std::uint32_t{area.endRow} << 16 | std::uint32_t{area.endColumn} << 24;
}

/// The picture of an entry: the bitmap of its kind; 0 for an empty entry and for a menu command
/// that there is not.
[[nodiscard]] int bitmapIdOf(CommandCode code, std::uint32_t commandId);

}  // namespace quendra
