#include "analysis/entry_display.h"

#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"

#include <array>
#include <cstdio>
#include <initializer_list>

namespace quendra {

namespace {

std::string quoted(std::string_view bytes) {
    return '"' + utf8FromWindows1252(bytes) + '"';
}

std::string quotedText(const Step& f) {
    return quoted(textOf(f));
}

std::string luFunctionName(const Step& f, const DisplayNames& names) {
    const LuKey key{f.row, f.column};
    if (const auto name = findLuFunction(names.luFunctions, key)) return std::string(*name);
    return "<Lu Function " + std::to_string(key.group) + "/" + std::to_string(key.number) + ">";
}

std::string menuCommandLine(const Step& f, const DisplayNames& names) {
    std::string line = menuCommandName(names.menuCommands, f.commandId);
    if (isFileTransfer(f.commandId)) {
        line += " " + utf8FromWindows1252(buildTransferCommand(transferInputs(f)));
    } else if (takesFileName(f.commandId)) {
        line += " " + quotedText(f);
    }
    return line;
}

std::string typeLine(const Step& f, const DisplayNames& names) {
    if (!isHiddenText(f)) return "Type " + quotedText(f);
    if (names.revealHidden) return "Type " + quotedText(f) + " (H)";
    return "Type \"" + std::string(f.textLength, '*') + "\" (H)";
}

std::string dateTimeText(const DateTime& t) {
    std::array<char, 64> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.2d-%.2d-%.4d %.2d:%.2d:%.2d",
                                     t.month, t.day, t.year, t.hour, t.minute, t.second);
    return {buffer.data(), static_cast<std::size_t>(length)};
}

std::string position(std::uint8_t row, std::uint8_t column) {
    return std::string("r")
        .append(std::to_string(row))
        .append(", c")
        .append(std::to_string(column));
}

std::string copyLine(const Step& f) {
    if (f.number != 0) return "Copy All";
    const ScreenArea area = unpackArea(f.area);
    return "Copy from " + position(area.startRow, area.startColumn) + "  -  " +
           position(area.endRow, area.endColumn);
}

std::string pasteLine(const Step& f) {
    if (f.number != 0) return "Paste to Cursor";
    const ScreenArea area = unpackArea(f.area);
    return "Paste to " + position(area.startRow, area.startColumn);
}

// The part of a line that an entry and an action of the same command share. Commands that carry
// actions give their keyword and text here; what follows is the owner's.
std::string slotLine(const Step& f, const DisplayNames& names) {
    const std::string keyword(commandKeyword(f.code));
    switch (f.code) {
        case CommandCode::None: return "";
        case CommandCode::LuFunction: return luFunctionName(f, names);
        case CommandCode::MenuCommand: return menuCommandLine(f, names);
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Return: return keyword;
        case CommandCode::Comment: return utf8FromWindows1252(textOf(f));
        case CommandCode::Goto: return keyword + " " + utf8FromWindows1252(textOf(f));
        case CommandCode::Input:
            return keyword + " " + utf8FromWindows1252(textOf(f)) + " As " +
                   std::string(inputVariableName(f.inputVariable));
        case CommandCode::Label: return utf8FromWindows1252(textOf(f)) + ":";
        case CommandCode::Message:
        case CommandCode::Run:
        case CommandCode::ExpressLogon:
        case CommandCode::WaitFor:
        case CommandCode::WatchFor: return keyword + " " + quotedText(f);
        case CommandCode::SetCursor:
            return keyword + " " + std::to_string(f.row) + ", " + std::to_string(f.column);
        case CommandCode::Type: return typeLine(f, names);
        case CommandCode::Wait:
        case CommandCode::WaitReady: return keyword + " " + std::to_string(f.number);
        case CommandCode::WaitUntil: return keyword + " " + dateTimeText(f.waitUntil);
        case CommandCode::Copy: return copyLine(f);
        case CommandCode::Paste: return pasteLine(f);
        case CommandCode::IfInputIs: return keyword;
    }
    return "";
}

// An action that no editor offers shows nothing; the keyword before it stays on the line.
std::string actionLine(const ScriptEntry& entry, Slot slot, const DisplayNames& names) {
    const Step& f = slotFields(entry, slot);
    return isForeignAction(entry, slot) ? std::string() : slotLine(f, names);
}

std::string operand(std::string_view literal, std::uint8_t kind) {
    return literal.empty() ? std::string(inputVariableName(kind)) : quoted(literal);
}

std::string branches(const ScriptEntry& entry, const DisplayNames& names) {
    const bool compares = entry.code == CommandCode::IfInputIs;
    std::string line;
    if (entry.thenAction.code != CommandCode::None) {
        line += compares ? " If Equal Then " : " If Found Then ";
        line += actionLine(entry, Slot::Then, names);
    }
    if (entry.elseAction.code != CommandCode::None) {
        if (entry.thenAction.code != CommandCode::None) {
            line += " Else ";
        } else {
            line += compares ? " If Not Equal Then " : " If Not Found Then ";
        }
        line += actionLine(entry, Slot::Else, names);
    }
    return line;
}

bool showsActions(const ScriptEntry& entry) {
    return entry.code == CommandCode::IfInputIs || entry.code == CommandCode::WatchFor ||
           (entry.code == CommandCode::WaitFor && entry.hasTimeout != 0);
}

std::optional<TransferInputs> lastTransferOf(const ScriptEntry& entry) {
    for (const Slot slot : {Slot::Else, Slot::Then, Slot::Entry}) {
        const Step& f = slotFields(entry, slot);
        const bool shown = slot == Slot::Entry || showsActions(entry);
        if (shown && f.code == CommandCode::MenuCommand && isFileTransfer(f.commandId)) {
            return transferInputs(f);
        }
    }
    return std::nullopt;
}

}  // namespace

std::string formatEntryLine(const ScriptEntry& entry, const DisplayNames& names) {
    std::string line = slotLine(slotFields(entry, Slot::Entry), names);
    if (entry.code == CommandCode::IfInputIs) {
        line += ' ';
        line += operand(textOf(slotFields(entry, Slot::Entry)), entry.firstOperandKind);
        line += " = ";
        line += operand(compareTextOf(entry), entry.secondOperandKind);
    }
    if (entry.code == CommandCode::WatchFor) {
        line += " Then " + actionLine(entry, Slot::Then, names);
    } else if (showsActions(entry)) {
        line += branches(entry, names);
    }
    return line;
}

ActionSummaries actionSummaries(const ScriptEntry& entry, bool isCompare,
                                const DisplayNames& names) {
    ActionSummaries summaries;
    summaries.thenLine =
        (isCompare ? "If Equal Then " : "If Found Then ") + actionLine(entry, Slot::Then, names);
    if (entry.elseAction.code != CommandCode::None) {
        summaries.elseLine = (isCompare ? "If Not Equal Then " : "If Not Found Then ") +
                             actionLine(entry, Slot::Else, names);
    }
    return summaries;
}

std::optional<TransferInputs> lastTransferShown(const Script& script,
                                                const HiddenTextCipher& cipher) {
    TransferSearch transfer;
    EntryUnpacker unpacker(cipher);
    for (auto entry = script.entries.rbegin(); entry != script.entries.rend(); ++entry) {
        if (!transfer.isIn(*entry)) continue;
        if (auto inputs = lastTransferOf(unpacker.unpack(*entry))) return inputs;
    }
    return std::nullopt;
}

}  // namespace quendra
