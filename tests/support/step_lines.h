// Scripts from lines of a command and its text, such as "Goto a"; behind ">" is the found action.
#pragma once

#include "model/command_catalogue.h"
#include "model/new_command.h"
#include "model/script.h"
#include "scriptfile/entry_codec.h"

#include <algorithm>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quendra::test {

inline void takeLine(Step& step, std::string_view line) {
    const auto blank = std::min(line.find(' '), line.size());
    const auto code = commandOfKeyword(line.substr(0, blank));
    if (!code) throw std::runtime_error("no command in " + std::string(line));
    setCode(step, *code);
    setText(step, line.substr(std::min(blank + 1, line.size())));
}

inline EntryHandle entryOfLine(std::string_view line, const HiddenTextCipher& cipher) {
    const auto action = line.find('>');
    ScriptEntry entry;
    takeLine(entry, line.substr(0, action));
    entry = newCommand(entry.code);
    takeLine(entry, line.substr(0, action));
    if (action != std::string_view::npos) {
        takeLine(entry.thenAction, line.substr(action + 1));
        // A Wait_For has actions only with a time-out.
        entry.hasTimeout = entry.timeoutSeconds = 1;
    }
    const PackResult packed = packEntry(entry, cipher);
    if (!packed.ok()) throw std::runtime_error("cannot be stored: " + std::string(line));
    return packed.entry;
}

inline Script scriptOfLines(std::initializer_list<std::string_view> lines,
                            const HiddenTextCipher& cipher) {
    Script script;
    for (const std::string_view line : lines)
        script.entries.push_back(entryOfLine(line, cipher));
    return script;
}

}  // namespace quendra::test
