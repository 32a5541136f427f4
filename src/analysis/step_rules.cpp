#include "analysis/step_rules.h"

#include "analysis/entry_display.h"
#include "model/command_names.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"
#include "transfer/command_builder.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace quendra {

namespace {

// Folded by hand: each of the words is of the letters A to Z, and this is asked of every Wait_For.
bool holdsInAnyCase(std::string_view text, std::string_view lowerCaseWord) {
    const auto same = [](char left, char right) {
        return (left >= 'A' && left <= 'Z' ? left - 'A' + 'a' : left) == right;
    };
    return std::ranges::search(text, lowerCaseWord, same).begin() != text.end();
}

bool asksForPassword(std::string_view text) {
    // "password" and "Password" of a mixed screen alike hold the first one.
    constexpr std::array<std::string_view, 4> words = {"assword", "passwd", "passwort", "kennwort"};
    return std::ranges::any_of(words,
                               [&](std::string_view word) { return holdsInAnyCase(text, word); });
}

std::string fieldName(const EntryField& field) {
    return fieldPath(Slot::Entry, field);
}

std::string shownText(const Step& step) {
    return utf8FromWindows1252(textOf(step));
}

bool isUnset(const DateTime& date) {
    return date.year == 0 && date.month == 0 && date.day == 0;
}

bool isDate(const DateTime& date) {
    using namespace std::chrono;
    // A calendar has a year 0, a date that is set has none.
    return date.year != 0 && (year(date.year) / month(date.month) / day(date.day)).ok();
}

// Both 0, as older versions load them: the whole screen.
bool isWholeScreen(const ScriptEntry& entry, const EntryField& field) {
    const auto* option = std::get_if<std::uint8_t EntryOptions::*>(&field.place);
    return option != nullptr && entry.searchRow == 0 && entry.searchColumn == 0 &&
           (*option == &EntryOptions::searchRow || *option == &EntryOptions::searchColumn);
}

bool isClearText(const Step& step) {
    return step.code == CommandCode::Type && !isHiddenText(step) && step.textLength > 0 &&
           !variableOfText(textOf(step));
}

std::string rangeText(const EntryField& field) {
    std::string text = field.orZero ? "0, " : "";
    return text + std::to_string(field.range.smallest) + ".." + std::to_string(field.range.largest);
}

}  // namespace

void StepRules::check(const ScriptEntry& entry) {
    for (const Slot slot : slotsOf(entry)) {
        checkSlot(entry, slot);
    }
    checkPassword(entry);
    ++step_;
}

void StepRules::checkSlot(const ScriptEntry& entry, Slot slot) {
    const Step& step = slotFields(entry, slot);
    switch (step.code) {
        case CommandCode::None:
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Return: return;
        case CommandCode::LuFunction: return checkKey(step, slot);
        case CommandCode::MenuCommand: checkMenuCommand(step, slot); break;
        case CommandCode::WaitUntil: checkDate(entry, slot); break;
        case CommandCode::Type: checkTyped(step, slot); break;
        case CommandCode::WaitFor:
            if (slot == Slot::Entry) checkWaitFor(entry);
            break;
        case CommandCode::Comment:
        case CommandCode::Goto:
        case CommandCode::Input:
        case CommandCode::IfInputIs:
        case CommandCode::Label:
        case CommandCode::Message:
        case CommandCode::Run:
        case CommandCode::SetCursor:
        case CommandCode::Wait:
        case CommandCode::WaitReady:
        case CommandCode::WatchFor:
        case CommandCode::ExpressLogon:
        case CommandCode::Copy:
        case CommandCode::Paste: break;
    }
    checkFields(entry, slot);
}

void StepRules::checkFields(const ScriptEntry& entry, Slot slot) {
    for (const EntryField& field : fieldsOf(entry, slot)) {
        if (isText(field.kind)) {
            checkText(entry, slot, field);
        } else {
            checkNumber(entry, slot, field);
        }
    }
}

void StepRules::checkText(const ScriptEntry& entry, Slot slot, const EntryField& field) {
    if (field.range.smallest == 0) return;
    const Step& step = slotFields(entry, slot);
    const bool isSealed = field.kind == FieldKind::TypedText && step.kept.has_value();
    if (isSealed || isInRange(field, fieldValue(entry, slot, field))) return;
    report(Rule::ParameterMissing, slot, textid::checkParameterMissing,
           {std::string(commandName(step.code)), fieldName(field)});
}

void StepRules::checkNumber(const ScriptEntry& entry, Slot slot, const EntryField& field) {
    // A rule of its own looks at the codes of menu commands.
    if (field.kind == FieldKind::MenuCode) return;
    const FieldValue value = fieldValue(entry, slot, field);
    if (isInRange(field, value) || isWholeScreen(entry, field)) return;
    report(Rule::ValueRange, slot, textid::checkValueRange,
           {std::string(commandName(slotFields(entry, slot).code)), fieldName(field),
            std::to_string(std::get<std::uint32_t>(value)), rangeText(field)});
}

void StepRules::checkDate(const ScriptEntry& entry, Slot slot) {
    const DateTime& date = slotFields(entry, slot).waitUntil;
    // Outside of their ranges the numbers themselves are told.
    const EntryField& yearField = fieldsOf(entry, slot).front();
    const bool isTold =
        !isInRange(yearField, std::uint32_t{date.year}) || date.month > 12 || date.day > 31;
    if (isUnset(date) || isTold || isDate(date)) return;
    const auto number = [](unsigned part) { return std::to_string(part); };
    report(Rule::ValueRange, slot, textid::checkNoSuchDate,
           {number(date.year) + "-" + number(date.month) + "-" + number(date.day)});
}

void StepRules::checkKey(const Step& step, Slot slot) {
    const LuKey key = {step.row, step.column};
    if (hasLuKey(options_.hostType, key)) return;
    report(Rule::KeyUnknown, slot, textid::checkKeyUnknown,
           {std::string(hostTypeInfo(options_.hostType).name),
            std::to_string(key.group) + "/" + std::to_string(key.number)});
}

void StepRules::checkMenuCommand(const Step& step, Slot slot) {
    if (!isMenuCommand(step.commandId)) {
        return report(Rule::MenuCommandUnknown, slot, textid::checkMenuCommandUnknown,
                      {std::to_string(step.commandId)});
    }
    if (options_.hostType != HostType::VT && isFileTransfer(step.commandId)) {
        checkTransfer(step, slot);
    }
}

void StepRules::checkTransfer(const Step& step, Slot slot) {
    const FileTransferSettings& settings = step.transferSettings;
    const bool hasHostFile = !transferText(settings, transfer::hostFileName).empty();
    const bool hasPcFile = !transferText(settings, transfer::pcFileName).empty();
    if (!hasHostFile || !hasPcFile) {
        const StringId text = hasHostFile ? textid::checkNoPcFile
                              : hasPcFile ? textid::checkNoHostFile
                                          : textid::checkNoFiles;
        report(Rule::TransferIncomplete, slot, text);
    }
    const std::size_t length = wholeTransferCommand(transferInputs(step)).size();
    if (length > maxTransferCommandLength) {
        report(Rule::TransferCut, slot, textid::checkTransferCut,
               {std::to_string(length), std::to_string(maxTransferCommandLength)});
    }
    if (!transferText(settings, transfer::hostFilePassword).empty()) {
        report(Rule::PasswordInClear, slot, textid::checkTransferPassword);
    }
}

void StepRules::checkWaitFor(const ScriptEntry& entry) {
    if (entry.hasTimeout == 0) {
        report(Rule::WaitForever, Slot::Entry, textid::checkWaitForever, {shownText(entry)});
    } else if (entry.timeoutSeconds == 0) {
        report(Rule::TimeoutZero, Slot::Entry, textid::checkTimeoutZero, {shownText(entry)});
    }
}

void StepRules::checkTyped(const Step& step, Slot slot) {
    if (!isHiddenText(step)) return;
    if (step.kept) report(Rule::SealedText, slot, textid::checkSealedText);
    if (!options_.hasKey && !std::exchange(hasHiddenText_, true)) {
        report(Rule::HiddenWithoutKey, slot, textid::checkHiddenWithoutKey);
    }
}

void StepRules::checkPassword(const ScriptEntry& entry) {
    if (entry.code == CommandCode::SetCursor) return;
    const bool wasAsked = std::exchange(
        isAskedForPassword_, entry.code == CommandCode::WaitFor && asksForPassword(textOf(entry)));
    if (wasAsked && isClearText(entry)) {
        report(Rule::PasswordInClear, Slot::Entry, textid::checkPasswordInClear);
    }
    const bool hasActions = isAskedForPassword_ && entry.hasTimeout != 0;
    if (hasActions && isClearText(entry.thenAction)) {
        report(Rule::PasswordInClear, Slot::Then, textid::checkPasswordInClear);
    }
}

void StepRules::report(Rule rule, Slot slot, StringId text, std::vector<std::string> arguments) {
    if (!options_.wants(rule)) return;
    findings_.push_back({rule, {step_, slot}, text, std::move(arguments), {}});
}

}  // namespace quendra
