// The operations that change the script as a list: insert, edit, delete, cut, copy and paste.
//
// They talk to lists, palettes, dialogs and messages through EditingView alone; the window
// implements it, and tests do with plain values. Each passes over the list once and shows the
// script once.
#pragma once

#include "hosts/host_type.h"
#include "hosts/lu_catalogue.h"
#include "hosts/palettes.h"
#include "model/entry_handle.h"
#include "model/script.h"
#include "model/script_entry.h"
#include "scriptfile/hidden_text.h"
#include "session/undo_history.h"
#include "transfer/command_builder.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quendra {

/// The part of a running editor's state that the operations read and change.
struct EditingState {
    LuCatalogues luCatalogues;
    /// Of the user identity; hidden texts in script and clipboard are enciphered under it.
    HiddenTextCipher cipher{""};

    HostType currentHostType = HostType::Mainframe;
    Script script;
    /// The current position in the script, -1 for none.
    int currentIndex = -1;
    /// The editor's own clipboard; New and Open leave it as it is.
    std::vector<EntryHandle> entryClipboard;

    /// A palette item was dropped: the insert that follows takes currentIndex as its position and
    /// clears this, whether it inserts or not.
    bool dropPending = false;
    /// An existing entry is being edited: a Type is then offered without the choice to hide it.
    bool editing = false;

    /// The transfer settings last shown or edited; a new transfer starts from them.
    TransferInputs workingTransfer{defaultTransferSettings(), transferHostVmCms,
                                   TransferDirection::Send};
};

/// Why an operation gave up after the user had asked for it; the script is unchanged then.
enum class EditRefusal : std::uint8_t {
    /// The menu command that VT scripts cannot hold.
    MenuCommandNotInVt,
    /// A hidden text whose enciphered form does not fit a record.
    HiddenTextTooLong,
    /// No key, or the cipher failed.
    CannotEncipher,
};

class EditingView {
  public:
    EditingView() = default;
    EditingView(const EditingView&) = delete;
    EditingView& operator=(const EditingView&) = delete;
    virtual ~EditingView() = default;

    /// Selected entries of the script list, ascending.
    [[nodiscard]] virtual std::vector<std::size_t> selectedEntries() const = 0;
    /// The focused entry, -1 for none.
    [[nodiscard]] virtual int focusedEntry() const = 0;
    /// The selected row of a palette, -1 for none.
    [[nodiscard]] virtual int selectedRow(Palette palette) const = 0;

    /// Shows the script as it is now, with this selection.
    virtual void showScript(const EntrySelection& selection) = 0;
    /// Opens the dialog of the entry's command on this working copy; false when it was cancelled. A
    /// file transfer edits the working settings and takes them over when it is not.
    [[nodiscard]] virtual bool editParameters(ScriptEntry& entry) = 0;
    [[nodiscard]] virtual bool confirmDelete(std::size_t count) = 0;
    /// Tells why; `entry` is the one that would have been stored.
    virtual void refuse(EditRefusal refusal, const ScriptEntry& entry) = 0;
    /// An entry without parameters is replaced by a palette's row, and this palette has none
    /// selected.
    virtual void askForRow(Palette palette) = 0;
};

/// What Edit/Replace Entry takes an entry's new content from.
struct EditSource {
    enum class Kind : std::uint8_t {
        /// There is no entry, or one without a command.
        None,
        /// The entry's own dialog.
        Dialog,
        /// The entry has no parameters: the selected row of the palette takes its place.
        Row,
    };

    Kind kind = Kind::None;
    /// Of a row only.
    Palette palette = {};

    bool operator==(const EditSource&) const = default;
};
[[nodiscard]] EditSource editSource(const ScriptEntry& entry);
[[nodiscard]] EditSource editSource(const EntryHandle& entry, const HiddenTextCipher& cipher);

/// Where a palette insert places its entry: at the drop, else behind the focused entry, else behind
/// the first selected one, else at the end. Uses up a pending drop.
[[nodiscard]] std::size_t insertionPoint(EditingState& state, const EditingView& view);

/// The operations give true when the script was changed; only then has anything been shown anew.
/// The entry limit is the caller's to tell of, and none of them exceeds it.
bool insertScriptEvent(EditingState& state, EditingView& view);
bool insertLuFunction(EditingState& state, EditingView& view);
bool insertMenuCommand(EditingState& state, EditingView& view);

/// Edits the focused entry in its dialog, or replaces it from a palette when it has no parameters.
bool editCurrentEntry(EditingState& state, EditingView& view);

bool deleteEntries(EditingState& state, EditingView& view);
bool cutEntries(EditingState& state, EditingView& view);
/// Without a selection the clipboard stays as it was.
void copyEntries(EditingState& state, const EditingView& view);

/// Inserts the clipboard behind the focused entry, else behind the first selected one; a filled
/// script with neither stays as it is, selection included.
bool pasteEntries(EditingState& state, EditingView& view);

/// Inserts copies of the selected entries behind the last of them, and selects these; the clipboard
/// stays as it was.
bool duplicateEntries(EditingState& state, EditingView& view);

/// Inserts the entries of another script where a palette insert would place its entry, and selects
/// them; gives how many the limit left room for.
std::size_t insertScript(EditingState& state, EditingView& view,
                         std::span<const EntryHandle> entries);

}  // namespace quendra
