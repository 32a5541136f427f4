// The fields of every command, in one table: what each is called, what it holds, and where it lies.
//
// Whatever goes over the fields of an entry is a visitor of this table and has no list of its own:
//
//     for (const Slot slot : slotsOf(entry))
//         for (const EntryField& field : fieldsOf(entry, slot))
//             print(fieldPath(slot, field), fieldValue(entry, slot, field));
//
// The bytes of a record have their own description (scriptfile/record_layout.h), since these differ
// by version and host type.
#pragma once

#include "model/number_range.h"
#include "model/script_entry.h"

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace quendra {

/// What a field holds. The first four are texts, the others numbers.
enum class FieldKind : std::uint8_t {
    Text,
    FileName,
    /// The text of a Type, a secret when isHiddenText() says so; `kept` belongs to it.
    TypedText,
    Password,
    Number,
    /// A row or a column on the host's screen.
    Position,
    /// One of the eight numbers of a date.
    DatePart,
    /// 1 is yes, 0 is no.
    Flag,
    /// One of a few, counted from 0.
    Choice,
    /// One of inputVariableNames.
    Variable,
    /// Group or number of an LU function, which has a name only as a pair.
    KeyPart,
    MenuCode,
    /// Packed as by packArea().
    Area,
};

[[nodiscard]] bool isText(FieldKind kind);
/// True for texts and numbers that a user reads as such: no secret, flag, choice, name or packed
/// value. A TypedText may still be hidden: isSecret() knows.
[[nodiscard]] bool isSearchable(FieldKind kind);

/// Which of the texts of a step or its entry.
enum class TextPlace : std::uint8_t { Own, Prompt, Compare };

/// Where a field lies: in the step, in the entry, in the step's date or transfer settings, or which
/// text it is.
using FieldPlace = std::variant<std::uint8_t StepFields::*, std::uint32_t StepFields::*,
                                std::uint8_t EntryOptions::*, std::uint16_t DateTime::*,
                                const TransferField*, TextPlace>;

struct EntryField {
    /// What it is called in every form of a script.
    std::string_view name;
    FieldKind kind;
    FieldPlace place;
    /// What the dialogs accept: of a number its values, of a text its lengths in bytes. A record
    /// may hold more, as foreign files show: largestStored().
    NumberRange range = {0, 255};
    /// 0 is accepted too, where `range` begins above.
    bool orZero = false;
    /// What a number of a new entry starts with; initialValue() knows the others too.
    std::uint32_t initial = 0;
    /// The field that this one is a part of; mostly none.
    std::string_view group = {};
    /// A script of host type VT stores the field too.
    bool inVt = true;
};

/// The fields that have parts.
inline constexpr std::string_view waitUntilGroup = "waitUntil";
inline constexpr std::string_view transferSettingsGroup = "transferSettings";

/// The ranges of the dialogs' numbers.
inline constexpr NumberRange positionRange = {0, 255};
/// The seconds of a Wait, and the restores of a Wait_Ready.
inline constexpr NumberRange waitRange = {0, std::numeric_limits<std::uint32_t>::max()};
inline constexpr NumberRange timeoutRange = {0, 255};
inline constexpr NumberRange searchRowRange = {1, 62};
inline constexpr NumberRange searchColumnRange = {1, 160};
/// 0, apart from it, is a single character.
inline constexpr NumberRange inputLengthRange = {2, 255};

/// A number, or the windows-1252 bytes of a text, valid as long as the entry is unchanged.
using FieldValue = std::variant<std::uint32_t, std::string_view>;

/// The slots that an entry uses, itself first. A Wait_For without timeout has no actions.
[[nodiscard]] std::span<const Slot> slotsOf(const ScriptEntry& entry);

/// The fields that the command of a slot uses, in the order of every form. Which ones these are
/// depends on some of them (the code of a menu command, hasTimeout); a field comes after those
/// that it depends on, so that who sets one after the other may ask again after each. None for a
/// foreign action, which has a record instead.
[[nodiscard]] std::span<const EntryField> fieldsOf(const ScriptEntry& entry, Slot slot);

/// "then" and "else"; empty for the entry itself.
[[nodiscard]] std::string_view slotName(Slot slot);
/// The whole name of a field in an entry: "text", "else.transferSettings.hostFileName".
[[nodiscard]] std::string fieldPath(Slot slot, const EntryField& field);

[[nodiscard]] FieldValue fieldValue(const ScriptEntry& entry, Slot slot, const EntryField& field);
/// True when the value is not to be printed, logged or compared in sight.
[[nodiscard]] bool isSecret(const ScriptEntry& entry, Slot slot, const EntryField& field);
/// True when both would be stored alike: what is kept of a text that could not be deciphered
/// counts, and so do the bytes behind the end of a transfer's text.
[[nodiscard]] bool sameField(const ScriptEntry& left, Slot leftSlot, const ScriptEntry& right,
                             Slot rightSlot, const EntryField& field);

/// The largest number, or the longest text, that a record holds for the field. A hidden text has
/// less room than one in clear.
[[nodiscard]] std::uint32_t largestStored(const ScriptEntry& entry, Slot slot,
                                          const EntryField& field);
/// True when the dialogs would accept the value as the field's.
[[nodiscard]] bool isInRange(const EntryField& field, const FieldValue& value);

/// Why a value was not set. Ranges of the dialogs are no reason: see isInRange().
enum class FieldRefusal : std::uint8_t {
    None,
    /// A number for a text, or a text for a number.
    WrongType,
    /// Above largestStored().
    TooLarge,
    /// A NUL would end a hidden text or a text of a transfer.
    HoldsNul,
};

/// Sets a field, or leaves it as it was.
[[nodiscard]] FieldRefusal setField(ScriptEntry& entry, Slot slot, const EntryField& field,
                                    const FieldValue& value);

/// Gives a field of one entry to the other, with everything that is stored of it; the commands of
/// both slots have the field.
void copyField(const ScriptEntry& from, ScriptEntry& to, Slot slot, const EntryField& field);

/// True when the field would be stored as that of a new entry or action is.
[[nodiscard]] bool isInitialField(const ScriptEntry& entry, Slot slot, const EntryField& field);

/// What is stored behind the end of a transfer's text; nothing for other fields.
[[nodiscard]] std::span<const std::uint8_t> bytesBehindText(const ScriptEntry& entry, Slot slot,
                                                            const EntryField& field);

/// What a field of a new entry or action starts with.
[[nodiscard]] FieldValue initialValue(const EntryField& field);
/// Gives a field what a new entry or action starts with.
void setInitialField(ScriptEntry& entry, Slot slot, const EntryField& field);

}  // namespace quendra
