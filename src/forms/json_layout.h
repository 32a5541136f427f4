// The fields of every command in the JSON form, written once: a writer and a reader are driven by
// it alike.
//
// An Io moves one field at a time between the entry and a JSON object, by name. A slot's fields
// have the same names in an entry, a then action and an else action.
#pragma once

#include "model/menu_commands.h"
#include "model/script_entry.h"
#include "scriptfile/record_layout.h"

namespace quendra::cli::json_layout {

template <class Io, class E>
void waitFor(Io& io, E& entry, Slot slot) {
    io.byte("searchRow", entry.searchRow);
    io.byte("searchColumn", entry.searchColumn);
    io.flag("exactPosition", entry.exactPosition);
    io.flag("caseSensitive", entry.caseSensitive);
    // Watched for by a Watch_For, it has neither timeout nor actions.
    if (slot != Slot::Entry) return;
    io.flag("hasTimeout", entry.hasTimeout);
    if (entry.hasTimeout == 0) {
        io.noTimeout();
        return;
    }
    io.byte("timeoutSeconds", entry.timeoutSeconds);
    io.action("then", entry, Slot::Then);
    io.action("else", entry, Slot::Else);
}

template <class Io, class E>
void ifInputIs(Io& io, E& entry) {
    io.variable("firstOperandKind", entry.firstOperandKind);
    io.compareText(entry);
    io.variable("secondOperandKind", entry.secondOperandKind);
    io.action("then", entry, Slot::Then);
    io.action("else", entry, Slot::Else);
}

template <class Io, class E>
void menuCommand(Io& io, const BasicSlotFields<E>& f) {
    io.menuCommand(f.commandId);
    io.word("commandData", f.commandData);
    if (takesFileName(f.commandId)) io.text(f);
    if (isFileTransfer(f.commandId)) io.transfer(f);
}

template <class Io, class E>
void input(Io& io, const BasicSlotFields<E>& f) {
    io.text(f);
    io.prompt(f);
    io.byte("maxLength", f.maxLength);
    io.flag("hidden", f.hidden);
    io.variable("inputVariable", f.inputVariable);
}

/// The fields beside "command" of a slot whose code is known.
template <class Io, class E>
void fieldsAfterCommand(Io& io, E& entry, Slot slot) {
    const auto f = slotFields(entry, slot);
    if (layout::isForeignAction(entry, slot, f.code)) return io.foreignAction(f);
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
        case CommandCode::ExpressLogon: io.text(f); break;
        case CommandCode::Input: input(io, f); break;
        case CommandCode::SetCursor:
            io.byte("row", f.row);
            io.byte("column", f.column);
            break;
        case CommandCode::Type: io.typeText(f); break;
        case CommandCode::Wait:
        case CommandCode::WaitReady: io.word("number", f.number); break;
        case CommandCode::WaitUntil: io.dateTime("waitUntil", f.waitUntil); break;
        case CommandCode::Copy:
        case CommandCode::Paste:
            io.area(f);
            io.flag("number", f.number);
            break;
        case CommandCode::IfInputIs:
            io.text(f);
            ifInputIs(io, entry);
            break;
        case CommandCode::WaitFor:
            io.text(f);
            waitFor(io, entry, slot);
            break;
        case CommandCode::WatchFor:
            io.text(f);
            io.action("then", entry, Slot::Then);
            break;
    }
}

}  // namespace quendra::cli::json_layout
