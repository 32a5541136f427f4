#include "model/entry_fields.h"

#include "model/menu_commands.h"

#include <algorithm>
#include <array>

namespace quendra {

namespace {

using enum FieldKind;

constexpr NumberRange wholeByte = {0, 255};
constexpr NumberRange wholeWord = {0, std::numeric_limits<std::uint32_t>::max()};
constexpr NumberRange yesOrNo = {0, 1};
constexpr NumberRange variables = {0, inputVariableNames.size() - 1};
constexpr NumberRange neededLength = {1, maxTextLength};

constexpr EntryField textField(FieldKind kind = Text, NumberRange lengths = neededLength) {
    return {"text", kind, TextPlace::Own, lengths};
}

constexpr EntryField flag(std::string_view name, FieldPlace place, std::uint32_t initial = 0) {
    return {name, Flag, place, yesOrNo, false, initial};
}

constexpr EntryField datePart(std::string_view name, std::uint16_t DateTime::*part,
                              NumberRange range) {
    return {name, DatePart, part, range, true, 0, waitUntilGroup};
}

constexpr FieldKind kindOf(const TransferField& field) {
    if (field.kind == TransferFieldKind::Text) {
        return field.offset == transfer::hostFilePassword.offset ? Password : Text;
    }
    if (field.kind == TransferFieldKind::Byte) return field.largest == 1 ? Flag : Choice;
    return field.largest < transfer::largestSevenDigits ? Choice : Number;
}

constexpr EntryField transferField(const TransferField& field) {
    const bool isText = field.kind == TransferFieldKind::Text;
    const NumberRange range = {0, isText ? field.size - 1U : field.largest};
    return {field.name, kindOf(field), &field, range, false, 0, transferSettingsGroup, false};
}

constexpr std::array text = {textField()};
constexpr std::array fileName = {textField(FileName)};
constexpr std::array luFunction = {
    EntryField{"group", KeyPart, &StepFields::row, wholeByte},
    EntryField{"number", KeyPart, &StepFields::column, wholeByte},
};
constexpr std::array setCursor = {
    EntryField{"row", Position, &StepFields::row, positionRange},
    EntryField{"column", Position, &StepFields::column, positionRange},
};
constexpr std::array type = {textField(TypedText), flag("hidden", &StepFields::hidden)};
constexpr std::array wait = {
    EntryField{"number", Number, &StepFields::number, waitRange, false, 3}};
constexpr std::array waitReady = {
    EntryField{"number", Number, &StepFields::number, waitRange, false, 1}};
constexpr std::array copy = {
    EntryField{"commandId", Area, &StepFields::area, wholeWord, false, packArea({1, 1, 24, 80})},
    flag("number", &StepFields::number),
};
constexpr std::array paste = {
    EntryField{"commandId", Area, &StepFields::area, wholeWord, false, packArea({1, 1, 0, 0})},
    flag("number", &StepFields::number),
};
constexpr std::array input = {
    textField(),
    EntryField{"prompt", Text, TextPlace::Prompt, {0, maxPromptLength}},
    EntryField{"maxLength", Number, &StepFields::maxLength, inputLengthRange, true, 255},
    flag("hidden", &StepFields::hidden),
    EntryField{"inputVariable", Variable, &StepFields::inputVariable, variables},
};
constexpr std::array ifInputIs = {
    textField(Text, {0, maxTextLength}),
    EntryField{"firstOperandKind", Variable, &EntryOptions::firstOperandKind, variables},
    EntryField{"compareText", Text, TextPlace::Compare, {0, maxTextLength}},
    EntryField{"secondOperandKind", Variable, &EntryOptions::secondOperandKind, variables},
};
constexpr std::array waitUntil = {
    datePart("year", &DateTime::year, {1601, 9999}),
    datePart("month", &DateTime::month, {1, 12}),
    datePart("dayOfWeek", &DateTime::dayOfWeek, {0, 6}),
    datePart("day", &DateTime::day, {1, 31}),
    datePart("hour", &DateTime::hour, {0, 23}),
    datePart("minute", &DateTime::minute, {0, 59}),
    datePart("second", &DateTime::second, {0, 59}),
    datePart("milliseconds", &DateTime::milliseconds, {0, 999}),
};

// Watched for by a Watch_For it has the first five, without timeout six.
constexpr std::size_t watchedWaitForFields = 5;
constexpr std::size_t endlessWaitForFields = 6;
constexpr std::array waitFor = {
    textField(),
    EntryField{"searchRow", Position, &EntryOptions::searchRow, searchRowRange, false, 1},
    EntryField{"searchColumn", Position, &EntryOptions::searchColumn, searchColumnRange, false, 1},
    flag("exactPosition", &EntryOptions::exactPosition),
    flag("caseSensitive", &EntryOptions::caseSensitive, 1),
    flag("hasTimeout", &EntryOptions::hasTimeout),
    EntryField{"timeoutSeconds", Number, &EntryOptions::timeoutSeconds, timeoutRange},
};

// Two words, and then what the kind of the menu command's parameters asks for.
constexpr std::array menuCommandWithFile = {
    EntryField{"commandId", MenuCode, &StepFields::commandId, {201, 268}},
    EntryField{"commandData", Number, &StepFields::commandData, wholeWord},
    textField(FileName),
};
constexpr std::size_t menuCommandFields = 2;
constexpr auto menuCommandWithTransfer = [] {
    std::array<EntryField, menuCommandFields + 1 + transfer::allFields.size()> fields = {
        menuCommandWithFile[0], menuCommandWithFile[1],
        EntryField{"transferHost", Choice, &StepFields::transferHost, {0, transferHostCics}}};
    fields[menuCommandFields].inVt = false;
    std::ranges::transform(transfer::allFields, fields.begin() + menuCommandFields + 1,
                           transferField);
    return fields;
}();

std::span<const EntryField> menuCommand(std::uint32_t commandId) {
    if (isFileTransfer(commandId)) return menuCommandWithTransfer;
    const std::span<const EntryField> fields = menuCommandWithFile;
    return takesFileName(commandId) ? fields : fields.first(menuCommandFields);
}

std::span<const EntryField> waitForFields(const ScriptEntry& entry, Slot slot) {
    const std::span<const EntryField> fields = waitFor;
    if (slot != Slot::Entry) return fields.first(watchedWaitForFields);
    return entry.hasTimeout == 0 ? fields.first(endlessWaitForFields) : fields;
}

// Calls `use` with the number at the field's place, whatever its width.
template <class E, class Use>
auto withNumber(E& entry, Slot slot, const FieldPlace& place, Use use) {
    auto& step = slotFields(entry, slot);
    if (const auto* byte = std::get_if<std::uint8_t StepFields::*>(&place)) return use(step.**byte);
    if (const auto* part = std::get_if<std::uint16_t DateTime::*>(&place)) {
        return use(step.waitUntil.**part);
    }
    if (const auto* byte = std::get_if<std::uint8_t EntryOptions::*>(&place)) {
        return use(entry.**byte);
    }
    return use(step.*std::get<std::uint32_t StepFields::*>(place));
}

const TransferField* transferPlace(const EntryField& field) {
    const auto* place = std::get_if<const TransferField*>(&field.place);
    return place ? *place : nullptr;
}

std::string_view textValue(const ScriptEntry& entry, Slot slot, const EntryField& field) {
    const Step& step = slotFields(entry, slot);
    if (const auto* transfer = transferPlace(field)) {
        return transferText(step.transferSettings, *transfer);
    }
    switch (std::get<TextPlace>(field.place)) {
        case TextPlace::Prompt: return promptOf(step);
        case TextPlace::Compare: return compareTextOf(entry);
        case TextPlace::Own: break;
    }
    return textOf(step);
}

std::uint32_t numberValue(const ScriptEntry& entry, Slot slot, const EntryField& field) {
    if (const auto* transfer = transferPlace(field)) {
        return transferNumber(slotFields(entry, slot).transferSettings, *transfer);
    }
    return withNumber(entry, slot, field.place, [](std::uint32_t number) { return number; });
}

void storeText(ScriptEntry& entry, Slot slot, const EntryField& field, std::string_view value) {
    Step& step = slotFields(entry, slot);
    if (const auto* transfer = transferPlace(field)) {
        return setTransferText(step.transferSettings, *transfer, value);
    }
    switch (std::get<TextPlace>(field.place)) {
        case TextPlace::Prompt: return setPrompt(step, value);
        case TextPlace::Compare: return setCompareText(entry, value);
        case TextPlace::Own: return setText(step, value);
    }
}

void storeNumber(ScriptEntry& entry, Slot slot, const EntryField& field, std::uint32_t value) {
    if (const auto* transfer = transferPlace(field)) {
        return setTransferNumber(slotFields(entry, slot).transferSettings, *transfer, value);
    }
    withNumber(entry, slot, field.place,
               [value]<class Number>(Number& number) { number = static_cast<Number>(value); });
}

// All that is stored of a field of a transfer, what is behind the end of a text included.
auto transferBytes(auto& settings, const TransferField& field) {
    return std::span(settings.bytes).subspan(field.offset, field.size);
}

// A NUL would end it where it is stored.
bool endsAtNul(const ScriptEntry& entry, Slot slot, const EntryField& field) {
    if (field.kind == TypedText) return isHiddenText(slotFields(entry, slot));
    return transferPlace(field) != nullptr;
}

}  // namespace

bool isText(FieldKind kind) {
    return kind <= Password;
}

bool isSearchable(FieldKind kind) {
    switch (kind) {
        case Text:
        case FileName:
        case TypedText:
        case Number:
        case Position:
        case DatePart: return true;
        case Password:
        case Flag:
        case Choice:
        case Variable:
        case KeyPart:
        case MenuCode:
        case Area: break;
    }
    return false;
}

std::span<const Slot> slotsOf(const ScriptEntry& entry) {
    static constexpr std::array slots = {Slot::Entry, Slot::Then, Slot::Else};
    const std::span<const Slot> all = slots;
    if (!ownsActions(entry.code)) return all.first(1);
    if (entry.code == CommandCode::WatchFor) return all.first(2);
    const bool isEndless = entry.code == CommandCode::WaitFor && entry.hasTimeout == 0;
    return isEndless ? all.first(1) : all;
}

std::span<const EntryField> fieldsOf(const ScriptEntry& entry, Slot slot) {
    if (isForeignAction(entry, slot)) return {};
    const Step& step = slotFields(entry, slot);
    switch (step.code) {
        case CommandCode::None:
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Return: break;
        case CommandCode::LuFunction: return luFunction;
        case CommandCode::MenuCommand: return menuCommand(step.commandId);
        case CommandCode::Comment:
        case CommandCode::Goto:
        case CommandCode::Label:
        case CommandCode::Message:
        case CommandCode::ExpressLogon:
        case CommandCode::WatchFor: return text;
        case CommandCode::Run: return fileName;
        case CommandCode::Input: return input;
        case CommandCode::IfInputIs: return ifInputIs;
        case CommandCode::SetCursor: return setCursor;
        case CommandCode::Type: return type;
        case CommandCode::Wait: return wait;
        case CommandCode::WaitFor: return waitForFields(entry, slot);
        case CommandCode::WaitReady: return waitReady;
        case CommandCode::WaitUntil: return waitUntil;
        case CommandCode::Copy: return copy;
        case CommandCode::Paste: return paste;
    }
    return {};
}

std::string_view slotName(Slot slot) {
    switch (slot) {
        case Slot::Then: return "then";
        case Slot::Else: return "else";
        case Slot::Entry: break;
    }
    return {};
}

std::string fieldPath(Slot slot, const EntryField& field) {
    std::string path;
    for (const std::string_view owner : {slotName(slot), field.group}) {
        if (!owner.empty()) path.append(owner).append(".");
    }
    return path.append(field.name);
}

FieldValue fieldValue(const ScriptEntry& entry, Slot slot, const EntryField& field) {
    if (isText(field.kind)) return textValue(entry, slot, field);
    return numberValue(entry, slot, field);
}

bool isSecret(const ScriptEntry& entry, Slot slot, const EntryField& field) {
    return field.kind == Password ||
           (field.kind == TypedText && isHiddenText(slotFields(entry, slot)));
}

bool sameField(const ScriptEntry& left, Slot leftSlot, const ScriptEntry& right, Slot rightSlot,
               const EntryField& field) {
    const Step& leftStep = slotFields(left, leftSlot);
    const Step& rightStep = slotFields(right, rightSlot);
    if (const auto* transfer = transferPlace(field)) {
        return std::ranges::equal(transferBytes(leftStep.transferSettings, *transfer),
                                  transferBytes(rightStep.transferSettings, *transfer));
    }
    if (field.kind == TypedText && leftStep.kept != rightStep.kept) return false;
    return fieldValue(left, leftSlot, field) == fieldValue(right, rightSlot, field);
}

void copyField(const ScriptEntry& from, ScriptEntry& to, Slot slot, const EntryField& field) {
    const Step& source = slotFields(from, slot);
    Step& target = slotFields(to, slot);
    if (const auto* transfer = transferPlace(field)) {
        std::ranges::copy(transferBytes(source.transferSettings, *transfer),
                          transferBytes(target.transferSettings, *transfer).begin());
    } else if (isText(field.kind)) {
        storeText(to, slot, field, textValue(from, slot, field));
        if (field.kind == TypedText) target.kept = source.kept;
    } else {
        storeNumber(to, slot, field, numberValue(from, slot, field));
    }
}

bool isInitialField(const ScriptEntry& entry, Slot slot, const EntryField& field) {
    const Step& step = slotFields(entry, slot);
    if (const auto* transfer = transferPlace(field)) {
        return std::ranges::equal(transferBytes(step.transferSettings, *transfer),
                                  transferBytes(defaultTransferSettings(), *transfer));
    }
    if (field.kind == TypedText && step.kept) return false;
    return fieldValue(entry, slot, field) == initialValue(field);
}

std::span<const std::uint8_t> bytesBehindText(const ScriptEntry& entry, Slot slot,
                                              const EntryField& field) {
    const auto* transfer = transferPlace(field);
    if (transfer == nullptr || !isText(field.kind)) return {};
    const FileTransferSettings& settings = slotFields(entry, slot).transferSettings;
    const auto bytes = transferBytes(settings, *transfer);
    return bytes.subspan(transferText(settings, *transfer).size());
}

std::uint32_t largestStored(const ScriptEntry& entry, Slot slot, const EntryField& field) {
    if (const auto* transfer = transferPlace(field)) {
        if (isText(field.kind)) return transfer->size - 1U;
        return transfer->size == 1 ? wholeByte.largest : wholeWord.largest;
    }
    if (isText(field.kind)) {
        return isSecret(entry, slot, field) ? maxHiddenTextLength : field.range.largest;
    }
    return withNumber(entry, slot, field.place, []<class Number>(const Number&) {
        return std::uint32_t{std::numeric_limits<Number>::max()};
    });
}

bool isInRange(const EntryField& field, const FieldValue& value) {
    const auto* number = std::get_if<std::uint32_t>(&value);
    if ((number == nullptr) != isText(field.kind)) return false;
    const std::size_t size = number ? *number : std::get<std::string_view>(value).size();
    return (size >= field.range.smallest && size <= field.range.largest) ||
           (field.orZero && size == 0);
}

FieldRefusal setField(ScriptEntry& entry, Slot slot, const EntryField& field,
                      const FieldValue& value) {
    const auto* number = std::get_if<std::uint32_t>(&value);
    if ((number == nullptr) != isText(field.kind)) return FieldRefusal::WrongType;
    const std::uint32_t largest = largestStored(entry, slot, field);
    if (number) {
        if (*number > largest) return FieldRefusal::TooLarge;
        storeNumber(entry, slot, field, *number);
        return FieldRefusal::None;
    }
    const auto given = std::get<std::string_view>(value);
    if (given.size() > largest) return FieldRefusal::TooLarge;
    if (endsAtNul(entry, slot, field) && given.find('\0') != std::string_view::npos) {
        return FieldRefusal::HoldsNul;
    }
    storeText(entry, slot, field, given);
    return FieldRefusal::None;
}

FieldValue initialValue(const EntryField& field) {
    if (const auto* transfer = transferPlace(field)) {
        const FileTransferSettings& defaults = defaultTransferSettings();
        if (isText(field.kind)) return transferText(defaults, *transfer);
        return transferNumber(defaults, *transfer);
    }
    if (isText(field.kind)) return std::string_view{};
    return field.initial;
}

void setInitialField(ScriptEntry& entry, Slot slot, const EntryField& field) {
    const FieldValue value = initialValue(field);
    if (const auto* number = std::get_if<std::uint32_t>(&value)) {
        storeNumber(entry, slot, field, *number);
    } else {
        storeText(entry, slot, field, std::get<std::string_view>(value));
    }
}

}  // namespace quendra
