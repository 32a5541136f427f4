#include "sample_scripts.h"

#include "scriptfile/entry_codec.h"

namespace quendra::bench {

namespace {

ScriptEntry entryOf(CommandCode code, std::string_view text = {}) {
    ScriptEntry entry;
    entry.code = code;
    setText(slotFields(entry, Slot::Entry), text);
    return entry;
}

void addInput(ScriptEntry& entry, Slot slot) {
    Step& f = slotFields(entry, slot);
    setCode(f, CommandCode::Input);
    setText(f, std::string(255, 't'));
    setPrompt(f, std::string(1023, 'p'));
}

ScriptEntry waitForReady(std::size_t number) {
    ScriptEntry entry = entryOf(CommandCode::WaitFor, "READY");
    entry.searchRow = entry.searchColumn = entry.caseSensitive = entry.hasTimeout = 1;
    entry.timeoutSeconds = 30;
    setCode(slotFields(entry, Slot::Else), CommandCode::Goto);
    setText(slotFields(entry, Slot::Else), "retry" + std::to_string(number));
    return entry;
}

ScriptEntry transmitKey() {
    ScriptEntry entry = entryOf(CommandCode::LuFunction);
    entry.row = 4;
    entry.column = 0;
    return entry;
}

Script repeated(std::initializer_list<ScriptEntry> entries, const HiddenTextCipher& cipher) {
    Script script;
    while (!script.isFull()) {
        for (const ScriptEntry& entry : entries) {
            if (!script.isFull()) script.entries.push_back(packEntry(entry, cipher).entry);
        }
    }
    return script;
}

}  // namespace

Script typicalScript(const HiddenTextCipher& cipher) {
    ScriptEntry cursor = entryOf(CommandCode::SetCursor);
    cursor.row = 20;
    cursor.column = 17;
    return repeated({entryOf(CommandCode::Comment, "Wait for the log-on screen of the region"),
                     waitForReady(1), cursor, entryOf(CommandCode::Type, "LOGON APPLID(TSO)"),
                     transmitKey(), entryOf(CommandCode::Label, "retry1"),
                     entryOf(CommandCode::Message, "The host does not answer, trying again"),
                     entryOf(CommandCode::Goto, "start")},
                    cipher);
}

Script largestScript(const HiddenTextCipher& cipher) {
    ScriptEntry entry = entryOf(CommandCode::IfInputIs, std::string(255, 'a'));
    setCompareText(entry, std::string(255, 'b'));
    addInput(entry, Slot::Then);
    addInput(entry, Slot::Else);
    return repeated({entry}, cipher);
}

Script hiddenScript(const HiddenTextCipher& cipher, std::size_t textLength) {
    ScriptEntry entry = entryOf(CommandCode::Type, std::string(textLength, 'x'));
    entry.hidden = 1;
    return repeated({entry}, cipher);
}

Script changedScript(const Script& script, std::size_t first, std::size_t each,
                     std::string_view mark) {
    Script result = script;
    for (std::size_t step = first; step < script.entryCount(); step += each) {
        ScriptEntry entry = unpackSealedEntry(script.entries[step]);
        setText(entry, std::string(mark) + std::to_string(step));
        if (isHiddenText(entry)) entry.hidden = 0;
        if (entry.textLength == 0 || entry.code == CommandCode::LuFunction) {
            entry.code = CommandCode::Comment;
        }
        replaceEntry(result, step, packSealedEntry(entry).entry);
    }
    return result;
}

}  // namespace quendra::bench
