// The layout of every record, written once: a reading cursor, a scanner and a writing sink are
// driven by it alike.
//
// An Io moves one field at a time between the file and the entry. Its errors are sticky, so a
// record is driven to its end and tested once.
#pragma once

#include "model/menu_commands.h"
#include "model/script_entry.h"
#include "scriptfile/format_version.h"

#include <tuple>

namespace quendra::layout {

/// In the order of the record.
template <class E>
auto searchOptionsOf(E& entry) {
    return std::tie(entry.searchRow, entry.searchColumn, entry.exactPosition, entry.caseSensitive);
}

template <class Io, class E>
void record(Io& io, E& entry, Slot slot);

template <class Io, class E>
void timeout(Io& io, E& entry) {
    io.byte(entry.hasTimeout);
    if (entry.hasTimeout == 0) return;
    io.byte(entry.timeoutSeconds);
    record(io, entry, Slot::Then);
    record(io, entry, Slot::Else);
}

template <class Io, class E>
void waitFor(Io& io, E& entry, Slot slot) {
    if (!io.format().hasSearchOptions()) return;
    std::apply([&io](auto&... option) { (io.byte(option), ...); }, searchOptionsOf(entry));
    if (slot == Slot::Entry) {
        timeout(io, entry);
    } else {
        // Watched for by a Watch_For, it has neither timeout nor actions; foreign files claim them.
        io.watchedTimeout(entry, slotFields(entry, slot));
    }
}

template <class Io, class E>
void ifInputIs(Io& io, E& entry) {
    const bool hasOperands = io.format().hasVariables();
    if (hasOperands) {
        io.byte(entry.firstOperandKind);
        io.text(entry.compareTextLength, entry.compareText);
        io.byte(entry.secondOperandKind);
    }
    record(io, entry, Slot::Then);
    if (hasOperands) record(io, entry, Slot::Else);
}

template <class Io, class S>
void menuCommand(Io& io, S& f) {
    io.menuCommand(f.commandId);
    io.word(f.commandData);
    if (takesFileName(f.commandId)) {
        io.text(f.textLength, f.text);
    } else if (isFileTransfer(f.commandId) && !io.format().vt) {
        io.transferBlock(f.transferHost, f.transferSettings);
    }
}

template <class Io, class S>
void input(Io& io, S& f) {
    io.text(f.textLength, f.text);
    io.prompt(f.number, f.prompt);
    io.byte(f.maxLength);
    io.byte(f.hidden);
    if (io.format().hasVariables()) io.byte(f.inputVariable);
}

/// What follows the code byte in the record of a slot whose code is known.
template <class Io, class E>
void fieldsAfterCode(Io& io, E& entry, Slot slot) {
    auto& f = slotFields(entry, slot);
    switch (f.code) {
        case CommandCode::None:
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Return: break;
        case CommandCode::LuFunction: io.luKey(f.row, f.column); break;
        case CommandCode::MenuCommand: menuCommand(io, f); break;
        case CommandCode::Comment:
        case CommandCode::Goto:
        case CommandCode::Label:
        case CommandCode::Message:
        case CommandCode::Run:
        case CommandCode::ExpressLogon: io.text(f.textLength, f.text); break;
        case CommandCode::Input: input(io, f); break;
        case CommandCode::SetCursor:
            io.byte(f.row);
            io.byte(f.column);
            break;
        case CommandCode::Type: io.typeText(f); break;
        case CommandCode::Wait:
        case CommandCode::WaitReady: io.word(f.number); break;
        case CommandCode::WaitUntil: io.dateTime(f.waitUntil); break;
        case CommandCode::Copy:
        case CommandCode::Paste:
            io.word(f.area);
            io.word(f.number);
            break;
        case CommandCode::IfInputIs:
            io.text(f.textLength, f.text);
            ifInputIs(io, entry);
            break;
        case CommandCode::WaitFor:
            io.text(f.textLength, f.text);
            waitFor(io, entry, slot);
            break;
        case CommandCode::WatchFor:
            io.text(f.textLength, f.text);
            record(io, entry, Slot::Then);
            break;
    }
}

/// The record of one slot: its code, what belongs to it, and the records of its actions.
template <class Io, class E>
void record(Io& io, E& entry, Slot slot) {
    auto& f = slotFields(entry, slot);
    if (!io.code(f.code)) return;
    if (isForeignAction(entry, slot)) {
        io.foreignAction(f);
    } else {
        fieldsAfterCode(io, entry, slot);
    }
}

}  // namespace quendra::layout
