// What the main window runs for the commands that change the script.
#pragma once

#include <functional>

namespace quendra {

/// One function per editing command. Each runs to its end, dialogs included, and leaves pane, title
/// and command states right through the window's scriptChanged(). An empty function: the command
/// does nothing.
struct EditingCommands {
    std::function<void()> undo;
    std::function<void()> redo;
    std::function<void()> cutEntries;
    std::function<void()> copyEntries;
    std::function<void()> pasteEntries;
    std::function<void()> insertScriptEvent;
    std::function<void()> insertLuFunction;
    std::function<void()> insertMenuCommand;
    std::function<void()> editCurrentEntry;
    std::function<void()> deleteEntries;
    std::function<void()> copyAsText;
    std::function<void()> insertScript;
};

}  // namespace quendra
