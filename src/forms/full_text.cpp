#include "forms/full_text.h"

#include "model/command_names.h"
#include "model/entry_fields.h"
#include "scriptfile/entry_codec.h"
#include "text/base64.h"
#include "text/digest.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <string>

namespace quendra {

namespace {

constexpr std::string_view indent = "    ";
constexpr std::size_t fingerprintDigits = 6;

std::span<const std::uint8_t> bytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

std::string sealed(std::span<const std::uint8_t> bytes) {
    return "sealed #" + sha256Digits(bytes, fingerprintDigits);
}

bool isControl(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    constexpr std::string_view undefined = "\x81\x8D\x8F\x90\x9D";
    return value < 0x20 || value == 0x7F || undefined.find(byte) != std::string_view::npos;
}

// A line shows a control character as \xNN, which may as well be a text of these characters.
bool hasEscapes(std::string_view bytes) {
    return bytes.find("\\x") != std::string_view::npos || std::ranges::any_of(bytes, isControl);
}

// A text between quotes ends where it seems to.
bool isQuotable(std::string_view bytes) {
    return bytes.find('"') == std::string_view::npos && !hasEscapes(bytes);
}

// One word, which no other word of a line can be taken into.
bool isWord(std::string_view bytes) {
    constexpr std::string_view others = "_-.$#@";
    return !bytes.empty() && std::ranges::all_of(bytes, [&](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               others.find(c) != std::string_view::npos;
    });
}

std::string quotedValue(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        if (byte == '"' || byte == '\\') text += '\\';
        text += byte;
    }
    return '"' + escapeControlCharacters(utf8FromWindows1252(text)) + '"';
}

// What lines can begin with that stand for something: a Comment or a Label that begins so is not
// told from that by its line.
class LineHeads {
  public:
    explicit LineHeads(const DisplayNames& names) : menuCommands_(names.menuCommands) {
        for (const LuFunction& function : names.luFunctions.rows) {
            keysByName_[function.name].push_back(function.key);
        }
    }

    /// A line with this text (windows-1252) at its start could be that of another command.
    [[nodiscard]] bool mayBeCommand(std::string_view bytes) const {
        if (bytes.empty() || bytes.front() == ' ' || bytes.front() == '<' || bytes.front() == '(') {
            return true;
        }
        const std::string text = utf8FromWindows1252(bytes);
        const auto begins = [&](std::string_view head) {
            return !head.empty() && std::string_view(text).starts_with(head) &&
                   (text.size() == head.size() || text[head.size()] == ' ');
        };
        return keysByName_.contains(text) || std::ranges::any_of(menuCommands_.names, begins) ||
               std::ranges::any_of(scriptEvents(), begins, &ScriptEventInfo::keyword);
    }

    /// The name on the line can be no other key's and no other command's.
    [[nodiscard]] bool tellsKey(LuKey key, const LuCatalogue& catalogue) const {
        const auto name = findLuFunction(catalogue, key);
        if (!name) return true;
        const auto& keys = keysByName_.at(std::string(*name));
        const bool isOnly = std::ranges::all_of(keys, [&](LuKey other) { return other == key; });
        return isOnly &&
               std::ranges::find(menuCommands_.names, *name) == menuCommands_.names.end() &&
               std::ranges::find(scriptEvents(), *name, &ScriptEventInfo::keyword) ==
                   scriptEvents().end();
    }

    [[nodiscard]] bool tellsMenuCommand(std::uint32_t commandId) const {
        if (!isMenuCommand(commandId)) return true;
        const std::string& name = menuCommands_.names[commandId - firstMenuCommand];
        return std::ranges::count(menuCommands_.names, name) == 1 && !keysByName_.contains(name) &&
               std::ranges::find(scriptEvents(), name, &ScriptEventInfo::keyword) ==
                   scriptEvents().end();
    }

  private:
    const MenuCommandCatalogue& menuCommands_;
    std::map<std::string, std::vector<LuKey>, std::less<>> keysByName_;
};

// What of a step its line tells beyond doubt. A field of which that is not so is printed; with it
// the rest of the line can be told apart again, so that nothing else has to be.
class LineKnowledge {
  public:
    LineKnowledge(const ScriptEntry& entry, const DisplayNames& names, const LineHeads& heads)
        : entry_(entry), names_(names), heads_(heads) {}

    /// The line has the field's value in it.
    [[nodiscard]] bool shows(Slot slot, const EntryField& field) const {
        return onLine(slot, field);
    }

    /// And nothing else could stand there so.
    [[nodiscard]] bool isClear(Slot slot, const EntryField& field) const {
        const Step& step = slotFields(entry_, slot);
        switch (field.kind) {
            case FieldKind::KeyPart:
                return heads_.tellsKey({step.row, step.column}, names_.luFunctions);
            case FieldKind::MenuCode: return heads_.tellsMenuCommand(step.commandId);
            default: return !isText(field.kind) || isClearText(slot, field);
        }
    }

  private:
    // The text does not run into what is around it.
    [[nodiscard]] bool isClearText(Slot slot, const EntryField& field) const {
        const bool isAction = slot != Slot::Entry;
        const auto text = std::get<std::string_view>(fieldValue(entry_, slot, field));
        switch (slotFields(entry_, slot).code) {
            case CommandCode::Comment: return !isAction && !text.ends_with(':') && isPlain(text);
            case CommandCode::Label: return isAction ? isActionWord(text) : isPlain(text);
            case CommandCode::Goto: return isAction ? isActionWord(text) : !hasEscapes(text);
            case CommandCode::Input:
                return isAction ? isActionWord(text)
                                : !hasEscapes(text) && text.find(" As ") == std::string_view::npos;
            case CommandCode::None:
            case CommandCode::LuFunction:
            case CommandCode::MenuCommand:
            case CommandCode::Beep:
            case CommandCode::ClearWatch:
            case CommandCode::IfInputIs:
            case CommandCode::Message:
            case CommandCode::Return:
            case CommandCode::Run:
            case CommandCode::SetCursor:
            case CommandCode::Type:
            case CommandCode::Wait:
            case CommandCode::WaitFor:
            case CommandCode::WaitReady:
            case CommandCode::WaitUntil:
            case CommandCode::WatchFor:
            case CommandCode::ExpressLogon:
            case CommandCode::Copy:
            case CommandCode::Paste: break;
        }
        return isQuotable(text);
    }

    [[nodiscard]] bool isPlain(std::string_view text) const {
        return !hasEscapes(text) && !heads_.mayBeCommand(text);
    }

    [[nodiscard]] bool isActionWord(std::string_view text) const {
        return isWord(text) && isPlain(text);
    }

    [[nodiscard]] bool onLine(Slot slot, const EntryField& field) const {
        const Step& step = slotFields(entry_, slot);
        switch (step.code) {
            case CommandCode::Comment:
            case CommandCode::Goto:
            case CommandCode::Label:
            case CommandCode::Message:
            case CommandCode::Run:
            case CommandCode::ExpressLogon:
            case CommandCode::WaitFor:
            case CommandCode::WatchFor: return field.name == "text";
            case CommandCode::Type: return field.name == "text" || step.hidden <= 1;
            case CommandCode::Input:
                return field.name == "text" || (field.name == "inputVariable" &&
                                                step.inputVariable < inputVariableNames.size());
            // Which variable is compared stands there only where no literal does.
            case CommandCode::IfInputIs: return isText(field.kind);
            case CommandCode::LuFunction:
            case CommandCode::SetCursor:
            case CommandCode::Wait:
            case CommandCode::WaitReady: return true;
            case CommandCode::WaitUntil:
                return field.name != "dayOfWeek" && field.name != "milliseconds";
            // And an area only where it is not the whole screen or the cursor.
            case CommandCode::Copy:
            case CommandCode::Paste: return field.kind == FieldKind::Flag && step.number <= 1;
            case CommandCode::MenuCommand: return field.name == "commandId" || field.name == "text";
            case CommandCode::None:
            case CommandCode::Beep:
            case CommandCode::ClearWatch:
            case CommandCode::Return: break;
        }
        return false;
    }

    const ScriptEntry& entry_;
    const DisplayNames& names_;
    const LineHeads& heads_;
};

class FullTextPrinter {
  public:
    FullTextPrinter(std::ostream& out, HostType hostType, const DisplayNames& names)
        : out_(out), isVt_(hostType == HostType::VT), names_(names), heads_(names) {}

    /// `entry` for its line, and as it is stored, with hidden texts enciphered.
    void print(const ScriptEntry& entry, const ScriptEntry& stored) {
        printLine(escapeControlCharacters(formatEntryLine(entry, names_)));
        const LineKnowledge knowledge(stored, names_, heads_);
        for (const Slot slot : slotsOf(stored)) {
            printSlot(stored, slot, knowledge);
        }
    }

  private:
    // A line that begins with a blank would look like a field.
    void printLine(const std::string& line) {
        if (line.starts_with(' ')) {
            out_ << "\\x20" << line.substr(1) << '\n';
        } else {
            out_ << line << '\n';
        }
    }

    void printSlot(const ScriptEntry& entry, Slot slot, const LineKnowledge& knowledge) {
        const Step& step = slotFields(entry, slot);
        if (isForeignAction(entry, slot)) {
            printField(std::string(slotName(slot)) + ".command",
                       std::string(commandName(step.code)));
        }
        const bool isCarried = step.kept && step.code != CommandCode::Type;
        if (isCarried) printField(std::string(slotName(slot)) + ".record", base64Of(*step.kept));
        for (const EntryField& field : fieldsOf(entry, slot)) {
            if (isVt_ && !field.inVt) continue;
            if (isTold(entry, slot, field, knowledge)) continue;
            printField(fieldPath(slot, field), valueOf(entry, slot, field));
        }
    }

    static bool isTold(const ScriptEntry& entry, Slot slot, const EntryField& field,
                       const LineKnowledge& knowledge) {
        if (isSecret(entry, slot, field)) return isInitialField(entry, slot, field);
        return knowledge.shows(slot, field) ? knowledge.isClear(slot, field)
                                            : isInitialField(entry, slot, field);
    }

    void printField(const std::string& name, const std::string& value) {
        out_ << indent << name << ' ' << value << '\n';
    }

    static std::string valueOf(const ScriptEntry& entry, Slot slot, const EntryField& field) {
        const FieldValue value = fieldValue(entry, slot, field);
        if (const auto* number = std::get_if<std::uint32_t>(&value)) return std::to_string(*number);
        const auto text = std::get<std::string_view>(value);
        const std::string behind = bytesBehind(entry, slot, field);
        if (isSecret(entry, slot, field)) {
            const KeptBytes& kept = slotFields(entry, slot).kept;
            return (kept ? sealed(*kept) : sealed(bytesOf(text))) + behind;
        }
        return quotedValue(text) + behind;
    }

    static std::string bytesBehind(const ScriptEntry& entry, Slot slot, const EntryField& field) {
        const auto behind = bytesBehindText(entry, slot, field);
        const bool isEmpty =
            std::ranges::all_of(behind, [](std::uint8_t byte) { return byte == 0; });
        return isEmpty ? std::string() : " behind it " + sealed(behind);
    }

    std::ostream& out_;
    bool isVt_;
    const DisplayNames& names_;
    LineHeads heads_;
};

}  // namespace

void printFullText(std::ostream& out, const Script& script, HostType hostType,
                   const DisplayNames& names, const HiddenTextCipher& cipher) {
    out << "hostType " << hostTypeInfo(hostType).name << '\n';
    FullTextPrinter printer(out, hostType, names);
    EntryUnpacker unpacker(cipher);
    SealedEntryUnpacker sealedUnpacker;
    for (const EntryHandle& entry : script.entries) {
        printer.print(unpacker.unpack(entry), sealedUnpacker.unpack(entry));
    }
}

}  // namespace quendra
