// From a script to its JSON form.

#include "forms/base64.h"
#include "forms/json_layout.h"
#include "forms/json_names.h"
#include "forms/json_text.h"
#include "forms/script_json.h"
#include "forms/transfer_json.h"
#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"

#include <array>
#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

namespace quendra::cli {

namespace {

using Json = nlohmann::ordered_json;

Json jsonOfFlag(std::uint32_t value) {
    return value <= 1 ? Json(value == 1) : Json(value);
}

class EntryWriter {
  public:
    EntryWriter(Json& object, HostType hostType, const JsonPrinting& printing)
        : object_(object), hostType_(hostType), printing_(printing) {}

    void slot(const ScriptEntry& entry, Slot slot) {
        object_["command"] = jsonCommandName(slotFields(entry, slot).code);
        json_layout::fieldsAfterCommand(*this, entry, slot);
    }

    void byte(const char* name, std::uint8_t value) { object_[name] = value; }
    void word(const char* name, std::uint32_t value) { object_[name] = value; }
    void flag(const char* name, std::uint32_t value) { object_[name] = jsonOfFlag(value); }
    void variable(const char* name, std::uint8_t kind) {
        const std::string_view known = inputVariableName(kind);
        object_[name] = known.empty() ? Json(kind) : Json(known);
    }
    void text(const ConstSlotFields& f) { object_["text"] = utf8FromWindows1252(textOf(f)); }
    void prompt(const ConstSlotFields& f) { object_["prompt"] = utf8FromWindows1252(promptOf(f)); }
    void compareText(const ScriptEntry& entry) {
        object_["compareText"] = utf8FromWindows1252(compareTextOf(entry));
    }
    void typeText(const ConstSlotFields& f);
    void dateTime(const char* name, const DateTime& value);
    void area(const ConstSlotFields& f) { object_["commandId"] = f.area; }
    void luKey(std::uint8_t group, std::uint8_t number);
    void menuCommand(std::uint32_t commandId) {
        object_["commandId"] = commandId;
        object_["name"] = menuCommandName(printing_.menuCommands, commandId);
    }
    void transfer(const ConstSlotFields& f) {
        if (hostType_ == HostType::VT) return;
        byte("transferHost", f.transferHost);
        object_["transferSettings"] = jsonOfTransferSettings(f.transferSettings);
    }
    void noTimeout() {}
    void action(const char* name, const ScriptEntry& entry, Slot which) {
        Json action;
        EntryWriter(action, hostType_, printing_).slot(entry, which);
        object_[name] = std::move(action);
    }
    void foreignAction(const ConstSlotFields& f) {
        object_["record"] = base64Of(f.kept.value_or(std::vector<std::uint8_t>()));
    }

  private:
    Json& object_;
    HostType hostType_;
    const JsonPrinting& printing_;
};

void EntryWriter::typeText(const ConstSlotFields& f) {
    const bool isSecret = isHiddenText(f);
    if (f.kept || (isSecret && !printing_.reveal)) {
        object_["text"] = nullptr;
    } else {
        text(f);
    }
    flag("hidden", f.hidden);
    if (f.kept) object_["sealed"] = base64Of(*f.kept);
}

void EntryWriter::dateTime(const char* name, const DateTime& value) {
    object_[name] = {{"year", value.year},           {"month", value.month},
                     {"dayOfWeek", value.dayOfWeek}, {"day", value.day},
                     {"hour", value.hour},           {"minute", value.minute},
                     {"second", value.second},       {"milliseconds", value.milliseconds}};
}

void EntryWriter::luKey(std::uint8_t group, std::uint8_t number) {
    byte("group", group);
    byte("number", number);
    const auto name = findLuFunction(printing_.luFunctions, {group, number});
    object_["name"] = name ? Json(*name) : Json(nullptr);
}

// The text of an entry as it stands in the list of entries. Strings hold no raw line break.
void printEntry(std::ostream& out, const Json& entry) {
    for (const char character : printJson(entry)) {
        out << character;
        if (character == '\n') out << "    ";
    }
}

}  // namespace

void printScript(std::ostream& out, const Script& script, HostType hostType,
                 const JsonPrinting& printing) {
    out << "{\n  \"hostType\": \"" << hostTypeInfo(hostType).name << "\",\n  \"entries\": [";
    // Entry by entry: the tree of a whole script takes a hundred megabytes.
    const char* separator = "\n    ";
    forEachEntry(script, printing.cipher, [&](const ScriptEntry& entry) {
        Json object;
        EntryWriter(object, hostType, printing).slot(entry, Slot::Entry);
        out << std::exchange(separator, ",\n    ");
        printEntry(out, object);
    });
    out << (script.entries.empty() ? "]\n}" : "\n  ]\n}");
}

}  // namespace quendra::cli
