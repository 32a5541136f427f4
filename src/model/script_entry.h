// One step of a script with all parameters that any command can have, and the view of one slot of
// it.
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
#include <type_traits>
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
/// enciphered bytes of a hidden text that the present key does not open, or the whole record of a
/// command that no action should be. Setting a new text or a new command code drops it.
using KeptBytes = std::optional<std::vector<std::uint8_t>>;

/// The plain fields of a ScriptEntry, apart from it so that a new entry gets them as one block: one
/// by one it takes four times as long.
struct EntryFields {
    CommandCode commandCode = CommandCode::None;
    std::uint8_t textLength = 0;
    TextField text = {};
    std::uint8_t row = 0;
    std::uint8_t column = 0;
    std::uint32_t number = 0;
    std::uint32_t commandId = 0;
    std::uint32_t commandData = 0;
    std::uint8_t transferHost = 0;
    FileTransferSettings transferSettings = {};
    DateTime waitUntil = {};

    CommandCode thenCode = CommandCode::None;
    std::uint8_t thenTextLength = 0;
    TextField thenText = {};
    DateTime thenWaitUntil = {};

    std::uint8_t maxLength = 0;
    std::uint8_t hidden = 0;
    PromptField prompt = {};

    std::uint8_t searchRow = 0;
    std::uint8_t searchColumn = 0;
    std::uint8_t exactPosition = 0;
    std::uint8_t caseSensitive = 0;
    std::uint8_t hasTimeout = 0;
    std::uint8_t timeoutSeconds = 0;

    CommandCode elseCode = CommandCode::None;
    std::uint8_t elseTextLength = 0;
    TextField elseText = {};
    std::uint8_t elseRow = 0;
    std::uint8_t elseColumn = 0;
    std::uint32_t elseNumber = 0;
    std::uint32_t elseCommandId = 0;
    std::uint32_t elseCommandData = 0;
    /// Screen area of a Copy or Paste else action, apart from `commandData`: the then action's
    /// second menu word lives there, and the file stores both.
    std::uint32_t elseArea = 0;
    std::uint8_t elseTransferHost = 0;
    FileTransferSettings elseTransferSettings = {};
    DateTime elseWaitUntil = {};
    std::uint8_t elseMaxLength = 0;
    std::uint8_t elseHidden = 0;
    PromptField elsePrompt = {};

    std::uint8_t inputVariable = 0;
    std::uint8_t elseInputVariable = 0;
    std::uint8_t compareTextLength = 0;
    TextField compareText = {};
    /// Operand kinds of If_Input_Is, apart from `row` and `column`: its then action keeps a key or
    /// a cursor position there, and the file stores both.
    std::uint8_t firstOperandKind = 0;
    std::uint8_t secondOperandKind = 0;

    bool operator==(const EntryFields&) const = default;
};

inline constexpr EntryFields emptyFields;

/// All parameters of one entry. The then action shares most of them with the entry, the else action
/// has its own: read and write them through slotFields(), which alone knows the sharing rule. Wiped
/// when it goes, and left out of crash dumps wherever it lies.
struct ScriptEntry : EntryFields {
    KeptBytes kept;
    KeptBytes thenKept;
    KeptBytes elseKept;

    ScriptEntry() : EntryFields(emptyFields) {}
    ScriptEntry(const ScriptEntry&) = default;
    ScriptEntry& operator=(const ScriptEntry&) = default;
    ~ScriptEntry();

    bool operator==(const ScriptEntry&) const = default;

  private:
    SecretMark mark_{this, sizeof(ScriptEntry)};
};

/// Which part of an entry is meant: the entry itself, its then action or its else action.
enum class Slot : std::uint8_t { Entry, Then, Else };

/// References to the fields of one slot. `area` is the packed screen area of Copy and Paste. Const
/// when E is.
template <class E>
struct BasicSlotFields {
    template <class T>
    using Ref = std::conditional_t<std::is_const_v<E>, const T&, T&>;

    Ref<CommandCode> code;
    Ref<std::uint8_t> textLength;
    Ref<TextField> text;
    Ref<std::uint8_t> row;
    Ref<std::uint8_t> column;
    Ref<std::uint32_t> number;
    Ref<std::uint32_t> commandId;
    Ref<std::uint32_t> commandData;
    Ref<std::uint32_t> area;
    Ref<std::uint8_t> transferHost;
    Ref<FileTransferSettings> transferSettings;
    Ref<DateTime> waitUntil;
    Ref<std::uint8_t> maxLength;
    Ref<std::uint8_t> hidden;
    Ref<PromptField> prompt;
    Ref<std::uint8_t> inputVariable;
    Ref<KeptBytes> kept;

    /// A view to write through serves wherever one to read from is asked for.
    // NOLINTNEXTLINE(google-explicit-constructor): it must be tacit, as for a pointer
    operator BasicSlotFields<const E>() const requires(!std::is_const_v<E>) {
        return {code,
                textLength,
                text,
                row,
                column,
                number,
                commandId,
                commandData,
                area,
                transferHost,
                transferSettings,
                waitUntil,
                maxLength,
                hidden,
                prompt,
                inputVariable,
                kept};
    }
};

using SlotFields = BasicSlotFields<ScriptEntry>;
using ConstSlotFields = BasicSlotFields<const ScriptEntry>;

/// The fields of a slot by the sharing rule: the then action has its own code, text, date-time and
/// kept bytes and shares the rest with the entry; the else action has everything to itself. E is
/// ScriptEntry or const ScriptEntry, and the view is valid as long as the entry.
template <class E>
[[nodiscard]] BasicSlotFields<E> slotFields(E& e, Slot slot) {
    switch (slot) {
        case Slot::Then:
            return {e.thenCode,  e.thenTextLength, e.thenText,         e.row,
                    e.column,    e.number,         e.commandId,        e.commandData,
                    e.commandId, e.transferHost,   e.transferSettings, e.thenWaitUntil,
                    e.maxLength, e.hidden,         e.prompt,           e.inputVariable,
                    e.thenKept};
        case Slot::Else:
            return {e.elseCode,
                    e.elseTextLength,
                    e.elseText,
                    e.elseRow,
                    e.elseColumn,
                    e.elseNumber,
                    e.elseCommandId,
                    e.elseCommandData,
                    e.elseArea,
                    e.elseTransferHost,
                    e.elseTransferSettings,
                    e.elseWaitUntil,
                    e.elseMaxLength,
                    e.elseHidden,
                    e.elsePrompt,
                    e.elseInputVariable,
                    e.elseKept};
        case Slot::Entry: break;
    }
    return {e.commandCode,      e.textLength, e.text,        e.row,       e.column,
            e.number,           e.commandId,  e.commandData, e.commandId, e.transferHost,
            e.transferSettings, e.waitUntil,  e.maxLength,   e.hidden,    e.prompt,
            e.inputVariable,    e.kept};
}

/// The text of a field by its length; it may hold NUL bytes when it comes from a foreign file.
[[nodiscard]] std::string_view textOf(const ConstSlotFields& fields);
[[nodiscard]] std::string_view promptOf(const ConstSlotFields& fields);
[[nodiscard]] std::string_view compareTextOf(const ScriptEntry& entry);

/// Stores the first 255 (prompt: 1023) bytes of `value` with the length and zeros behind. A new
/// text drops what was kept of the old one; the same text again does not, so that a dialog left
/// with OK and nothing changed gives back somebody else's hidden text as it was.
void setText(const SlotFields& fields, std::string_view value);
void setPrompt(const SlotFields& fields, std::string_view value);
void setCompareText(ScriptEntry& entry, std::string_view value);
/// Sets the command of a slot; a changed code drops what was kept.
void setCode(const SlotFields& fields, CommandCode code);

/// True when the slot is a Type whose text is stored enciphered and shown as asterisks.
[[nodiscard]] bool isHiddenText(const ConstSlotFields& fields);

/// The four bytes of a packed screen area. Paste uses the first two.
struct ScreenArea {
    std::uint8_t startRow = 0;
    std::uint8_t startColumn = 0;
    std::uint8_t endRow = 0;
    std::uint8_t endColumn = 0;

    bool operator==(const ScreenArea&) const = default;
};
[[nodiscard]] ScreenArea unpackArea(std::uint32_t packed);
[[nodiscard]] std::uint32_t packArea(const ScreenArea& area);

/// The picture of an entry: the bitmap of its kind; 0 for an empty entry and for a menu command
/// that there is not.
[[nodiscard]] int bitmapIdOf(CommandCode code, std::uint32_t commandId);

}  // namespace quendra
