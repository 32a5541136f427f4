// From the JSON form of a script to the script.

#include "forms/json_names.h"
#include "forms/json_text.h"
#include "forms/object_reader.h"
#include "forms/script_json.h"
#include "model/command_names.h"
#include "model/entry_fields.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_reader.h"
#include "scriptfile/script_writer.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

namespace quendra {

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

struct FormContext {
    HostType hostType;
    const JsonBuilding& building;
};

class EntryReader {
  public:
    EntryReader(ObjectReader& object, const FormContext& form) : object_(object), form_(form) {}

    void slot(ScriptEntry& entry, Slot slot);

  private:
    void names(const ScriptEntry& entry, Slot slot);
    void keyOfName(Step& step);
    void fields(ScriptEntry& entry, Slot slot);
    void group(ScriptEntry& entry, Slot slot, std::span<const EntryField> fields);
    void field(ScriptEntry& entry, Slot slot, const EntryField& field);
    void text(ScriptEntry& entry, Slot slot, const EntryField& field);
    void typedText(ScriptEntry& entry, Slot slot, const EntryField& field);
    void variable(ScriptEntry& entry, Slot slot, const EntryField& field);
    void area(Step& step, const EntryField& field);
    void set(ScriptEntry& entry, Slot slot, const EntryField& field, const FieldValue& value);
    void sealedText(Step& step);
    void transferBlock(FileTransferSettings& settings);
    void noTimeout();
    void action(ScriptEntry& entry, Slot which);
    void keptRecord(Step& step);

    ObjectReader& object_;
    const FormContext& form_;
};

void EntryReader::slot(ScriptEntry& entry, Slot slot) {
    const Json* name = object_.find("command");
    const auto code = name && name->is_string() ? commandOfName(name->get_ref<const std::string&>())
                                                : std::nullopt;
    if (!code) {
        object_.fail("command", name ? "is not the name of a command" : "is missing");
        return;
    }
    setCode(slotFields(entry, slot), *code);
    Step& step = slotFields(entry, slot);
    if (isForeignAction(entry, slot)) {
        keptRecord(step);
        if (!step.kept) object_.fail("command", "cannot be an action");
    } else {
        fields(entry, slot);
        // It has one beside its fields when it claims a timeout.
        if (slot != Slot::Entry && *code == CommandCode::WaitFor) keptRecord(step);
    }
    if (slot == Slot::Entry) {
        for (const Slot which : slotsOf(entry).subspan(1))
            action(entry, which);
        if (*code == CommandCode::WaitFor && entry.hasTimeout == 0) noTimeout();
    }
    object_.finish();
}

// What a key or a menu command is cannot be left out. Beside it the name is for readers only: the
// same key has other names on other host types.
void EntryReader::names(const ScriptEntry& entry, Slot slot) {
    const CommandCode code = slotFields(entry, slot).code;
    if (code != CommandCode::LuFunction && code != CommandCode::MenuCommand) return;
    const Json* name = object_.find("name");
    const bool isNamed = name && !name->is_null();
    const bool isNumbered = object_.find("group") || object_.find("number");
    if (code == CommandCode::LuFunction && isNamed && !isNumbered) return;
    for (const EntryField& field : fieldsOf(entry, slot)) {
        const bool isNeeded = field.kind == FieldKind::KeyPart || field.kind == FieldKind::MenuCode;
        if (isNeeded && !object_.find(field.name)) object_.fail(field.name, "is missing");
    }
}

void EntryReader::keyOfName(Step& step) {
    if (object_.find("group")) return;
    const auto* name = object_.find("name")->get_ptr<const std::string*>();
    const LuCatalogue keys = form_.building.luFunctions(form_.hostType);
    const auto isCalledSo = [&](const LuFunction& row) { return *name == row.name; };
    const auto found = name ? std::ranges::find_if(keys.rows, isCalledSo) : keys.rows.end();
    if (found == keys.rows.end()) {
        return object_.fail("name", "is not the name of a key that the host type has");
    }
    step.row = found->key.group;
    step.column = found->key.number;
    const bool isOneKey = std::ranges::all_of(keys.rows, [&](const LuFunction& row) {
        return !isCalledSo(row) || row.key == found->key;
    });
    if (!isOneKey) object_.fail("name", "several keys are called so: give group and number");
}

void EntryReader::fields(ScriptEntry& entry, Slot slot) {
    names(entry, slot);
    // Asked again for each: what one says may add others behind it.
    for (std::size_t i = 0; i < fieldsOf(entry, slot).size();) {
        const auto rest = fieldsOf(entry, slot).subspan(i);
        const EntryField& first = rest.front();
        const auto end = std::ranges::find_if(
            rest, [&](const EntryField& other) { return other.group != first.group; });
        const auto size = first.group.empty() ? 1 : static_cast<std::size_t>(end - rest.begin());
        const std::string_view name = first.group.empty() ? first.name : first.group;
        if (form_.hostType == HostType::VT && !first.inVt) {
            if (object_.find(name)) object_.fail(name, "a VT script stores none");
        } else {
            for (const EntryField& each : rest.first(size))
                set(entry, slot, each, initialValue(each));
            if (first.group.empty()) {
                field(entry, slot, first);
            } else {
                group(entry, slot, rest.first(size));
            }
        }
        i += size;
    }
    Step& step = slotFields(entry, slot);
    if (step.code == CommandCode::LuFunction && object_.ok()) keyOfName(step);
}

void EntryReader::group(ScriptEntry& entry, Slot slot, std::span<const EntryField> fields) {
    const std::string name(fields.front().group);
    const Json* value = object_.find(fields.front().group);
    if (!value) return;
    ObjectReader object(*value, object_.pathOf(name), object_.refusal());
    EntryReader reader(object, form_);
    Step& step = slotFields(entry, slot);
    if (name == transferSettingsGroup) reader.transferBlock(step.transferSettings);
    for (const EntryField& field : fields)
        reader.field(entry, slot, field);
    if (name == waitUntilGroup && !object.find("dayOfWeek")) {
        step.waitUntil.dayOfWeek = dayOfWeek(step.waitUntil);
    }
    object.finish();
}

// A field that was left out keeps its value.
void EntryReader::field(ScriptEntry& entry, Slot slot, const EntryField& field) {
    switch (field.kind) {
        case FieldKind::Text:
        case FieldKind::FileName:
        case FieldKind::Password: return text(entry, slot, field);
        case FieldKind::TypedText: return typedText(entry, slot, field);
        case FieldKind::Variable: return variable(entry, slot, field);
        case FieldKind::Area: return area(slotFields(entry, slot), field);
        case FieldKind::Number:
        case FieldKind::Position:
        case FieldKind::DatePart:
        case FieldKind::Flag:
        case FieldKind::Choice:
        case FieldKind::KeyPart:
        case FieldKind::MenuCode: break;
    }
    const std::uint32_t largest = largestStored(entry, slot, field);
    const auto number = object_.number(field.name, largest, field.kind == FieldKind::Flag);
    if (number) set(entry, slot, field, *number);
}

void EntryReader::text(ScriptEntry& entry, Slot slot, const EntryField& field) {
    const auto stored = std::get<std::string_view>(fieldValue(entry, slot, field));
    const std::size_t longest = largestStored(entry, slot, field);
    const auto text = object_.text(field.name, std::max(longest, stored.size()));
    // A text that says what the block says already leaves the bytes behind it alone, and may fill
    // its field to the last.
    if (text && *text != stored) set(entry, slot, field, *text);
}

// Whether it is hidden, which stands behind it, decides what the text may be.
void EntryReader::typedText(ScriptEntry& entry, Slot slot, const EntryField& field) {
    Step& step = slotFields(entry, slot);
    step.hidden = static_cast<std::uint8_t>(object_.number("hidden", 255, true).value_or(0));
    if (object_.find("sealed")) return sealedText(step);
    const Json* value = object_.find(field.name);
    if (isHiddenText(step) && value && value->is_null()) {
        return object_.fail(field.name,
                            "a hidden text is missing: show it with --reveal, or type it");
    }
    text(entry, slot, field);
}

void EntryReader::sealedText(Step& step) {
    auto sealed = object_.bytes("sealed");
    const Json* text = object_.find("text");
    if (text && !text->is_null()) object_.fail("text", "must be null beside \"sealed\"");
    if (!isHiddenText(step)) object_.fail("sealed", "only a hidden text is sealed");
    if (sealed && sealed->size() > maxTextLength) {
        object_.fail("sealed", "has more than " + std::to_string(maxTextLength) + " bytes");
    }
    step.kept = std::move(sealed);
}

void EntryReader::variable(ScriptEntry& entry, Slot slot, const EntryField& field) {
    const Json* value = object_.find(field.name);
    if (!value) return;
    if (!value->is_string()) {
        const std::uint32_t largest = largestStored(entry, slot, field);
        return set(entry, slot, field, object_.wholeNumber(field.name, *value, largest));
    }
    const auto* found = std::ranges::find(inputVariableNames, value->get_ref<const std::string&>());
    if (found == inputVariableNames.end()) return object_.fail(field.name, "is not a variable");
    set(entry, slot, field, static_cast<std::uint32_t>(found - inputVariableNames.begin()));
}

void EntryReader::area(Step& step, const EntryField& field) {
    constexpr std::uint32_t largestPacked = std::numeric_limits<std::uint32_t>::max();
    const Json* area = object_.find("area");
    const auto packed = object_.number(field.name, largestPacked);
    if (!area) {
        step.area = packed.value_or(step.area);
        return;
    }
    if (packed) return object_.fail("area", "stands beside \"commandId\"");
    const std::size_t count = step.code == CommandCode::Copy ? 4 : 2;
    if (!area->is_array() || area->size() != count) {
        return object_.fail("area", "must be a list of " + std::to_string(count) + " numbers");
    }
    std::array<std::uint8_t, 4> places{};
    for (std::size_t i = 0; i < count; ++i) {
        places[i] = static_cast<std::uint8_t>(object_.wholeNumber("area", (*area)[i], 255));
    }
    step.area = packArea({places[0], places[1], places[2], places[3]});
}

void EntryReader::set(ScriptEntry& entry, Slot slot, const EntryField& field,
                      const FieldValue& value) {
    switch (setField(entry, slot, field, value)) {
        case FieldRefusal::None: break;
        case FieldRefusal::WrongType:
            object_.fail(field.name, "holds another kind of value");
            break;
        case FieldRefusal::TooLarge:
            object_.fail(field.name, "is longer than " +
                                         std::to_string(largestStored(entry, slot, field)) +
                                         " characters");
            break;
        case FieldRefusal::HoldsNul:
            object_.fail(field.name, field.kind == FieldKind::TypedText
                                         ? "a hidden text cannot hold a NUL"
                                         : "holds a NUL");
            break;
    }
}

// The bytes that the fields do not tell, before these are taken.
void EntryReader::transferBlock(FileTransferSettings& settings) {
    const auto block = object_.bytes(transferBlockName);
    if (!block) return;
    if (block->size() == settings.bytes.size()) {
        std::ranges::copy(*block, settings.bytes.begin());
    } else {
        object_.fail(transferBlockName, "must have 933 bytes");
    }
}

void EntryReader::noTimeout() {
    const std::uint32_t seconds = object_.number("timeoutSeconds", 255).value_or(0);
    ScriptEntry unused;
    action(unused, Slot::Then);
    action(unused, Slot::Else);
    constexpr const char* reason = "a Wait_For has it only when hasTimeout is true";
    if (seconds != 0) object_.fail("timeoutSeconds", reason);
    if (unused.thenAction.code != CommandCode::None) object_.fail("then", reason);
    if (unused.elseAction.code != CommandCode::None) object_.fail("else", reason);
}

void EntryReader::action(ScriptEntry& entry, Slot which) {
    const Json* value = object_.find(slotName(which));
    if (!value) return;
    ObjectReader fields(*value, object_.pathOf(slotName(which)), object_.refusal());
    EntryReader(fields, form_).slot(entry, which);
}

// The record is proved to be one when the entry is stored.
void EntryReader::keptRecord(Step& step) {
    step.kept = object_.bytes("record");
}

// True when the stored entry holds the records of its actions as they were given, and can be read
// from a file again. Anything may have been typed for them.
bool keptRecordsAreWhole(const ScriptEntry& entry, const EntryHandle& stored,
                         const HiddenTextCipher& cipher) {
    const ScriptEntry unpacked = unpackEntry(stored, cipher);
    for (const Slot slot : {Slot::Then, Slot::Else}) {
        const Step& given = slotFields(entry, slot);
        const bool isRecord = given.kept && given.code != CommandCode::Type;
        if (isRecord && slotFields(unpacked, slot).kept != given.kept) return false;
    }
    Script alone;
    alone.entries.push_back(stored);
    const ReadResult read = readScript(writeScript(alone, HostType::Mainframe));
    return read.isWhole() && read.script == alone;
}

EntryHandle entryOfJson(const Json& value, JsonPath path, const FormContext& form,
                        FormRefusal& refusal) {
    ScriptEntry entry;
    ObjectReader object(value, std::move(path), refusal);
    EntryReader(object, form).slot(entry, Slot::Entry);
    if (!object.ok()) return {};
    const HiddenTextCipher& cipher = form.building.cipher;
    PackResult packed = packEntry(entry, cipher);
    if (!packed.ok()) {
        object.fail("", "its hidden text cannot be enciphered");
    } else if ((entry.thenAction.kept || entry.elseAction.kept) &&
               !keptRecordsAreWhole(entry, packed.entry, cipher)) {
        object.fail("", "the record of an action is damaged, or says otherwise than its fields");
    }
    return packed.entry;
}

std::string hostTypeNames() {
    std::string names;
    for (const HostType type : allHostTypes) {
        if (!names.empty()) names += type == allHostTypes.back() ? " or " : ", ";
        names += hostTypeInfo(type).name;
    }
    return names;
}

void readHostType(ObjectReader& form, HostType& hostType) {
    const Json* name = form.find("hostType");
    const auto known = name && name->is_string()
                           ? hostTypeOfName(name->get_ref<const std::string&>())
                           : std::nullopt;
    if (known) {
        hostType = *known;
    } else {
        form.fail("hostType", "must be " + hostTypeNames());
    }
}

void readIncomplete(ObjectReader& form, std::string& incomplete) {
    const Json* reason = form.find("incomplete");
    if (!reason) return;
    if (reason->is_string()) incomplete = reason->get<std::string>();
    if (incomplete.empty()) form.fail("incomplete", "must say why");
}

FormRefusal readForm(const Json& form, const JsonBuilding& building, ScriptOfJson& result) {
    FormRefusal refusal;
    ObjectReader fields(form, {}, refusal);
    readHostType(fields, result.hostType);
    readIncomplete(fields, result.incomplete);
    const Json* entries = fields.find("entries");
    fields.finish();
    if (!entries || !entries->is_array()) {
        fields.fail("entries", "must be a list");
        return refusal;
    }
    if (fields.ok() && entries->size() > maxEntries) {
        fields.fail("entries", "a script has at most " + std::to_string(maxEntries));
        refusal.path.push_back(listStep(maxEntries));
    }
    const FormContext context = {result.hostType, building};
    for (std::size_t i = 0; fields.ok() && i < entries->size(); ++i) {
        result.script.entries.push_back(
            entryOfJson((*entries)[i], {"entries", listStep(i)}, context, refusal));
    }
    return refusal;
}

}  // namespace

ScriptOfJson scriptOfJson(std::span<const std::uint8_t> text, const JsonBuilding& building) {
    const ParsedJson parsed = parseJson(text);
    ScriptOfJson result;
    result.refusal = parsed.refusal;
    if (!parsed.value) return result;
    const FormRefusal refusal = readForm(*parsed.value, building, result);
    if (!refusal.what.empty())
        result.refusal = refusal.what + ' ' + placeInJson(text, refusal.path);
    return result;
}

}  // namespace quendra
