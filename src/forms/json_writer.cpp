// From a script to its JSON form.

#include "forms/json_names.h"
#include "forms/json_text.h"
#include "forms/script_json.h"
#include "model/command_names.h"
#include "model/entry_fields.h"
#include "scriptfile/entry_codec.h"
#include "text/base64.h"
#include "text/text_encoding.h"

#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

namespace quendra {

namespace {

using Json = nlohmann::ordered_json;

Json jsonOfFlag(std::uint32_t value) {
    return value <= 1 ? Json(value == 1) : Json(value);
}

Json jsonOfVariable(std::uint32_t kind) {
    return kind < inputVariableNames.size() ? Json(inputVariableNames[kind]) : Json(kind);
}

class EntryWriter {
  public:
    EntryWriter(HostType hostType, const JsonPrinting& printing)
        : hostType_(hostType), printing_(printing) {}

    [[nodiscard]] Json slot(const ScriptEntry& entry, Slot slot) const;

  private:
    [[nodiscard]] Json valueOf(const ScriptEntry& entry, Slot slot, const EntryField& field) const;
    void addName(Json& object, const Step& step) const;

    HostType hostType_;
    const JsonPrinting& printing_;
};

// The whole block where it holds bytes that its fields do not tell: behind the NUL of a text, or of
// a text without one.
void addBlock(Json& settings, const FileTransferSettings& stored) {
    FileTransferSettings told;
    for (const TransferField& field : transferFields()) {
        if (field.kind == TransferFieldKind::Text) {
            setTransferText(told, field, transferText(stored, field));
        } else {
            setTransferNumber(told, field, transferNumber(stored, field));
        }
    }
    if (told != stored) settings[transferBlockName] = base64Of(stored.bytes);
}

Json EntryWriter::slot(const ScriptEntry& entry, Slot slot) const {
    const Step& step = slotFields(entry, slot);
    Json object;
    object["command"] = commandName(step.code);
    for (const EntryField& field : fieldsOf(entry, slot)) {
        if (hostType_ == HostType::VT && !field.inVt) continue;
        Json& owner = field.group.empty() ? object : object[std::string(field.group)];
        owner[std::string(field.name)] = valueOf(entry, slot, field);
        if (field.kind == FieldKind::MenuCode) addName(object, step);
    }
    if (step.code == CommandCode::LuFunction) addName(object, step);
    if (const auto settings = object.find(std::string(transferSettingsGroup));
        settings != object.end()) {
        addBlock(*settings, step.transferSettings);
    }
    if (step.kept)
        object[step.code == CommandCode::Type ? "sealed" : "record"] = base64Of(*step.kept);
    if (slot != Slot::Entry) return object;
    for (const Slot action : slotsOf(entry).subspan(1))
        object[std::string(slotName(action))] = this->slot(entry, action);
    return object;
}

Json EntryWriter::valueOf(const ScriptEntry& entry, Slot slot, const EntryField& field) const {
    const FieldValue value = fieldValue(entry, slot, field);
    if (const auto* text = std::get_if<std::string_view>(&value)) {
        const bool isHidden = isSecret(entry, slot, field) && !printing_.reveal;
        const bool isUntold = isHidden || slotFields(entry, slot).kept;
        if (field.kind == FieldKind::TypedText && isUntold) return nullptr;
        return utf8FromWindows1252(*text);
    }
    const std::uint32_t number = std::get<std::uint32_t>(value);
    if (field.kind == FieldKind::Flag) return jsonOfFlag(number);
    if (field.kind == FieldKind::Variable) return jsonOfVariable(number);
    return number;
}

// For readers: who builds from the form goes by the numbers.
void EntryWriter::addName(Json& object, const Step& step) const {
    if (step.code == CommandCode::MenuCommand) {
        object["name"] = menuCommandName(printing_.menuCommands, step.commandId);
        return;
    }
    const auto name = findLuFunction(printing_.luFunctions, {step.row, step.column});
    object["name"] = name ? Json(*name) : Json(nullptr);
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
    out << "{\n  \"hostType\": \"" << hostTypeInfo(hostType).name << "\",\n";
    if (!printing.incomplete.empty())
        out << "  \"incomplete\": " << printJson(printing.incomplete) << ",\n";
    out << "  \"entries\": [";
    const EntryWriter writer(hostType, printing);
    // Entry by entry: the tree of a whole script takes a hundred megabytes.
    const char* separator = "\n    ";
    forEachEntry(script, printing.cipher, [&](const ScriptEntry& entry) {
        out << std::exchange(separator, ",\n    ");
        printEntry(out, writer.slot(entry, Slot::Entry));
    });
    out << (script.entries.empty() ? "]\n}" : "\n  ]\n}");
}

}  // namespace quendra
