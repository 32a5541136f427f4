// The one state of a running editor: a plain record, passed by reference to what needs it.
#pragma once

#include "app/startup_settings.h"
#include "hosts/host_type.h"
#include "hosts/lu_catalogue.h"
#include "hosts/menu_catalogue.h"
#include "model/entry_display.h"
#include "model/script.h"
#include "platform/files.h"
#include "platform/language_library.h"
#include "scriptfile/hidden_text.h"
#include "transfer/command_builder.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace quendra {

/// The file that the script belongs to.
struct ScriptDocument {
    /// Empty for an untitled script.
    std::filesystem::path fileName;
    /// There are unsaved changes; the window title then ends in " *".
    bool modified = false;
    /// The file as it was when it was loaded or saved last; none when it was neither. A file that
    /// looks otherwise on disk is not overwritten without asking.
    std::optional<FileStamp> stamp;
    /// The file was not read whole: the first save over it keeps the old bytes as a backup.
    bool keepOldOnSave = false;
};

struct ApplicationState {
    StartupSettings settings;
    LanguageLibrary language;
    LuCatalogues luCatalogues;
    MenuCommandCatalogue menuCommands;
    /// Of the user identity at start-up; hidden texts in script and clipboard are enciphered under
    /// it.
    HiddenTextCipher cipher{""};

    HostType currentHostType = HostType::Mainframe;
    Script script;
    ScriptDocument document;
    /// The current position in the script, -1 for none.
    int currentIndex = -1;
    /// The editor's own clipboard; New and Open leave it as it is.
    std::vector<EntryHandle> entryClipboard;

    /// A palette item was dropped: the insert that follows takes currentIndex as its position and
    /// clears this.
    bool dropPending = false;
    /// An existing entry is being edited: a Type is then offered without the choice to hide it.
    bool editing = false;

    /// The transfer settings last shown or edited; a new transfer starts from them.
    TransferInputs workingTransfer{defaultTransferSettings(), transferHostVmCms,
                                   TransferDirection::Send};

    [[nodiscard]] DisplayNames displayNames() const {
        return {luCatalogues.of(currentHostType), menuCommands};
    }
};

}  // namespace quendra
