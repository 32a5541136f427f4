// The one state of a running editor: a plain record, passed by reference to what needs it.
#pragma once

#include "analysis/entry_display.h"
#include "model/menu_commands.h"
#include "platform/files.h"
#include "session/editing.h"
#include "session/jump_history.h"
#include "session/undo_history.h"
#include "settings/startup_settings.h"
#include "settings/user_state.h"
#include "text/language_library.h"

#include <filesystem>
#include <optional>

namespace quendra {

/// The file that the script belongs to.
struct ScriptDocument {
    /// Empty for an untitled script.
    std::filesystem::path fileName;
    /// The script differs from the saved one; the window title then ends in " *".
    bool modified = false;
    /// The file as it was when it was loaded or saved last; none when it was neither. A file that
    /// looks otherwise on disk is not overwritten without asking.
    std::optional<FileStamp> stamp;
    /// The file was not read whole: the first save over it keeps the old bytes as a backup.
    bool keepOldOnSave = false;
    /// The file is there and was not read at all: nothing is saved over it without asking.
    bool refused = false;
    /// The script as it was loaded or saved last, empty for a new one.
    Script saved = {};
    /// The host type that its file has, which is not always the current one; none when there is no
    /// such file.
    std::optional<HostType> savedHostType = {};
};

struct ApplicationState : EditingState {
    StartupSettings settings;
    /// Of the window, from run to run.
    UserState userState;
    LanguageLibrary language;
    MenuCommandCatalogue menuCommands;
    ScriptDocument document;
    /// Every change of the script since it was opened or begun.
    UndoHistory history;
    /// The places in it from which the user went to labels.
    JumpHistory jumps;

    [[nodiscard]] DisplayNames displayNames() const {
        return {luCatalogues.of(currentHostType), menuCommands};
    }
};

}  // namespace quendra
