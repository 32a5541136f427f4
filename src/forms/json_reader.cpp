// From the JSON form of a script to the script.

#include "forms/json_layout.h"
#include "forms/json_names.h"
#include "forms/object_reader.h"
#include "forms/script_json.h"
#include "forms/transfer_json.h"
#include "model/new_command.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_reader.h"
#include "scriptfile/script_writer.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace quendra::cli {

namespace {

using Json = nlohmann::ordered_json;

// A date typed by hand need not say which day of the week it is.
std::uint16_t dayOfWeek(const DateTime& date) {
    const std::chrono::year_month_day day(
        std::chrono::year(date.year), std::chrono::month(date.month), std::chrono::day(date.day));
    if (date.year > 9999 || date.month > 12 || date.day > 31 || !day.ok()) return 0;
    const std::chrono::weekday weekday{std::chrono::sys_days(day)};
    return static_cast<std::uint16_t>(weekday.c_encoding());
}

class EntryReader {
  public:
    EntryReader(ObjectReader& object, HostType hostType) : object_(object), hostType_(hostType) {}

    void slot(ScriptEntry& entry, Slot slot);

    void byte(const char* name, std::uint8_t& value) { object_.number(name, value); }
    void word(const char* name, std::uint32_t& value) { object_.number(name, value); }
    void flag(const char* name, auto& value) { object_.flag(name, value); }
    void variable(const char* name, std::uint8_t& kind);
    void text(const SlotFields& f) {
        if (const auto text = object_.text("text", maxTextLength)) setText(f, *text);
    }
    void prompt(const SlotFields& f) {
        if (const auto prompt = object_.text("prompt", maxPromptLength)) setPrompt(f, *prompt);
    }
    void compareText(ScriptEntry& entry) {
        const auto text = object_.text("compareText", maxTextLength);
        if (text) setCompareText(entry, *text);
    }
    void typeText(const SlotFields& f);
    void dateTime(const char* name, DateTime& value);
    void area(const SlotFields& f);
    void luKey(std::uint8_t& group, std::uint8_t& number);
    void menuCommand(std::uint32_t& commandId);
    void transfer(const SlotFields& f);
    void noTimeout();
    void action(const char* name, ScriptEntry& entry, Slot which);
    void foreignAction(const SlotFields& f);

  private:
    void sealedText(const SlotFields& f);
    void require(const char* name) {
        if (!object_.find(name)) object_.fail(name, "is missing");
    }

    ObjectReader& object_;
    HostType hostType_;
};

void EntryReader::slot(ScriptEntry& entry, Slot slot) {
    const Json* name = object_.find("command");
    const auto code = name && name->is_string()
                          ? commandOfJsonName(name->get_ref<const std::string&>())
                          : std::nullopt;
    if (!code) {
        object_.fail("command", name ? "is not the name of a command" : "is missing");
        return;
    }
    setCode(slotFields(entry, slot), *code);
    startCommand(entry, slot);
    json_layout::fieldsAfterCommand(*this, entry, slot);
    object_.finish();
}

void EntryReader::variable(const char* name, std::uint8_t& kind) {
    const Json* value = object_.find(name);
    if (!value) return;
    if (!value->is_string()) return object_.number(name, kind);
    const auto* found = std::ranges::find(inputVariableNames, value->get_ref<const std::string&>());
    if (found == inputVariableNames.end()) return object_.fail(name, "is not a variable");
    kind = static_cast<std::uint8_t>(found - inputVariableNames.begin());
}

void EntryReader::sealedText(const SlotFields& f) {
    auto sealed = object_.bytes("sealed");
    const Json* text = object_.find("text");
    if (text && !text->is_null()) object_.fail("text", "must be null beside \"sealed\"");
    if (f.hidden != 1) object_.fail("sealed", "only a hidden text is sealed");
    if (sealed && sealed->size() > maxTextLength) {
        object_.fail("sealed", "has more than " + std::to_string(maxTextLength) + " bytes");
    }
    f.kept = std::move(sealed);
}

void EntryReader::typeText(const SlotFields& f) {
    flag("hidden", f.hidden);
    if (object_.find("sealed")) return sealedText(f);
    const Json* value = object_.find("text");
    if (f.hidden != 0 && value && value->is_null()) {
        return object_.fail("text", "a hidden text is missing: show it with --reveal, or type it");
    }
    const auto text = object_.text("text", f.hidden == 1 ? maxHiddenTextLength : maxTextLength);
    if (!text) return;
    if (f.hidden == 1 && text->find('\0') != std::string::npos) {
        return object_.fail("text", "a hidden text cannot hold a NUL");
    }
    setText(f, *text);
}

void EntryReader::dateTime(const char* name, DateTime& value) {
    const Json* date = object_.find(name);
    if (!date) return;
    ObjectReader fields(*date, object_.place() + ", " + name, object_.refusal());
    fields.number("year", value.year);
    fields.number("month", value.month);
    fields.number("day", value.day);
    value.dayOfWeek = dayOfWeek(value);
    fields.number("dayOfWeek", value.dayOfWeek);
    fields.number("hour", value.hour);
    fields.number("minute", value.minute);
    fields.number("second", value.second);
    fields.number("milliseconds", value.milliseconds);
    fields.finish();
}

void EntryReader::area(const SlotFields& f) {
    const Json* area = object_.find("area");
    if (!area) return word("commandId", f.area);
    if (object_.find("commandId")) return object_.fail("area", "stands beside \"commandId\"");
    const std::size_t count = f.code == CommandCode::Copy ? 4 : 2;
    if (!area->is_array() || area->size() != count) {
        return object_.fail("area", "must be a list of " + std::to_string(count) + " numbers");
    }
    std::array<std::uint8_t, 4> places{};
    for (std::size_t i = 0; i < count; ++i) {
        places[i] = static_cast<std::uint8_t>(object_.wholeNumber("area", (*area)[i], 255, false));
    }
    f.area = packArea({places[0], places[1], places[2], places[3]});
}

void EntryReader::luKey(std::uint8_t& group, std::uint8_t& number) {
    require("group");
    require("number");
    byte("group", group);
    byte("number", number);
    // For readers only: the same key has other names on other host types.
    static_cast<void>(object_.find("name"));
}

void EntryReader::menuCommand(std::uint32_t& commandId) {
    require("commandId");
    word("commandId", commandId);
    static_cast<void>(object_.find("name"));
}

void EntryReader::transfer(const SlotFields& f) {
    const Json* host = object_.find("transferHost");
    const Json* settings = object_.find("transferSettings");
    if (hostType_ == HostType::VT) {
        if (host) object_.fail("transferHost", "a VT script stores none");
        if (settings) object_.fail("transferSettings", "a VT script stores none");
        return;
    }
    byte("transferHost", f.transferHost);
    f.transferSettings = defaultTransferSettings();
    if (!settings) return;
    ObjectReader fields(*settings, object_.place() + ", transferSettings", object_.refusal());
    f.transferSettings = transferSettingsOfJson(fields);
}

void EntryReader::noTimeout() {
    std::uint8_t seconds = 0;
    byte("timeoutSeconds", seconds);
    ScriptEntry unused;
    action("then", unused, Slot::Then);
    action("else", unused, Slot::Else);
    constexpr const char* reason = "a Wait_For has it only when hasTimeout is true";
    if (seconds != 0) object_.fail("timeoutSeconds", reason);
    if (unused.thenCode != CommandCode::None) object_.fail("then", reason);
    if (unused.elseCode != CommandCode::None) object_.fail("else", reason);
}

void EntryReader::action(const char* name, ScriptEntry& entry, Slot which) {
    const Json* value = object_.find(name);
    if (!value) return;
    ObjectReader fields(*value, object_.place() + ", " + name + " action", object_.refusal());
    EntryReader(fields, hostType_).slot(entry, which);
}

// The record is proved to be one when the entry is stored.
void EntryReader::foreignAction(const SlotFields& f) {
    auto record = object_.bytes("record");
    if (!record) object_.fail("command", "cannot be an action");
    f.kept = std::move(record);
}

// True when the stored entry holds the records of its foreign actions as they were given, and can
// be read from a file again. Anything may have been typed for them.
bool keptRecordsAreWhole(const ScriptEntry& entry, const EntryHandle& stored,
                         const HiddenTextCipher& cipher) {
    const ScriptEntry unpacked = unpackEntry(stored, cipher);
    for (const Slot slot : {Slot::Then, Slot::Else}) {
        const ConstSlotFields given = slotFields(entry, slot);
        const bool isForeign =
            ownsActions(entry.commandCode) && layout::isForeignAction(entry, slot, given.code);
        if (isForeign && slotFields(unpacked, slot).kept != given.kept) return false;
    }
    Script alone;
    alone.entries.push_back(stored);
    const ReadResult read = readScript(writeScript(alone, HostType::Mainframe));
    return read.isWhole() && read.script == alone;
}

EntryHandle entryOfJson(const Json& value, const std::string& place, HostType hostType,
                        const HiddenTextCipher& cipher, std::string& refusal) {
    ScriptEntry entry;
    ObjectReader object(value, place, refusal);
    EntryReader(object, hostType).slot(entry, Slot::Entry);
    if (!object.ok()) return {};
    PackResult packed = packEntry(entry, cipher);
    if (!packed.ok()) {
        object.fail("", "its hidden text cannot be enciphered");
    } else if ((entry.thenKept || entry.elseKept) &&
               !keptRecordsAreWhole(entry, packed.entry, cipher)) {
        object.fail("", "the record of an action is damaged");
    }
    return packed.entry;
}

void readHostType(ObjectReader& form, HostType& hostType) {
    const Json* name = form.find("hostType");
    const auto known = name && name->is_string()
                           ? hostTypeOfName(name->get_ref<const std::string&>())
                           : std::nullopt;
    if (known) {
        hostType = *known;
    } else {
        form.fail("hostType", "must be Mainframe, ISeries, VT, UTS, T27 or ICL");
    }
}

}  // namespace

ScriptOfJson scriptOfJson(const Json& form, const HiddenTextCipher& cipher) {
    ScriptOfJson result;
    ObjectReader fields(form, "", result.refusal);
    readHostType(fields, result.hostType);
    const Json* entries = fields.find("entries");
    fields.finish();
    if (!entries || !entries->is_array()) {
        fields.fail("entries", "must be a list");
        return result;
    }
    if (entries->size() > maxEntries) {
        fields.fail("entries", "a script has at most " + std::to_string(maxEntries));
    }
    for (std::size_t i = 0; result.ok() && i < entries->size(); ++i) {
        result.script.entries.push_back(entryOfJson((*entries)[i], "entry " + std::to_string(i + 1),
                                                    result.hostType, cipher, result.refusal));
    }
    return result;
}

}  // namespace quendra::cli
