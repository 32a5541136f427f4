// What the states and changing texts of the commands go by, and the rules that the table of
// commands names: which command can be chosen, and what it would do, from the state of the script
// and the selections.
#pragma once

#include "session/application_state.h"

#include <array>
#include <optional>
#include <string>

namespace quendra {

/// Everything that the commands' states depend on. Texts are UTF-8.
struct CommandFacts {
    HostType hostType = HostType::Mainframe;
    std::size_t entryCount = 0;
    std::size_t selectedCount = 0;
    std::size_t clipboardCount = 0;
    EditSource editSource = {};
    std::string focusedLine = {};
    /// The focused entry, or an action of it, is a Label or a Goto with a name; or a Goto.
    bool namesLabel = false;
    bool hasGoto = false;
    /// There is a way back from a label.
    bool canGoBack = false;
    /// The text of each palette's selected row.
    std::array<std::optional<std::string>, allPalettes.size()> selectedRows = {};
    /// The steps that Undo and Redo would take.
    std::optional<std::string> undoStep = {};
    std::optional<std::string> redoStep = {};
    /// What Quick Fix would do; where it can do nothing, why.
    std::optional<std::string> quickFix = {};
    std::string whyNoQuickFix = {};
    bool problemsAreShown = false;
    bool gutterIsShown = false;
    /// The script has a file, or has changed since it was begun.
    bool hasSavedForm = false;
    bool hasFile = false;
    /// Among the entries are marks of merge conflicts.
    bool hasConflicts = false;

    [[nodiscard]] const std::optional<std::string>& selectedRow(Palette palette) const {
        return selectedRows[static_cast<std::size_t>(palette)];
    }
};

[[nodiscard]] bool hasEntries(const CommandFacts& facts);
[[nodiscard]] bool hasSelection(const CommandFacts& facts);
[[nodiscard]] bool hasClipboard(const CommandFacts& facts);
/// The focused entry has a dialog, or its palette offers what would replace it.
[[nodiscard]] bool canEdit(const CommandFacts& facts);
[[nodiscard]] bool namesLabel(const CommandFacts& facts);
[[nodiscard]] bool hasGoto(const CommandFacts& facts);
[[nodiscard]] bool canGoBack(const CommandFacts& facts);
[[nodiscard]] bool canUndo(const CommandFacts& facts);
[[nodiscard]] bool canRedo(const CommandFacts& facts);
[[nodiscard]] bool hasQuickFix(const CommandFacts& facts);
[[nodiscard]] bool showsProblems(const CommandFacts& facts);
[[nodiscard]] bool showsGutter(const CommandFacts& facts);
/// There is something that the script may differ from.
[[nodiscard]] bool hasSavedForm(const CommandFacts& facts);
[[nodiscard]] bool hasFile(const CommandFacts& facts);
[[nodiscard]] bool hasConflicts(const CommandFacts& facts);

/// Texts that name what a command would act on; none while there is nothing.
using CommandText = std::optional<std::string>;
[[nodiscard]] CommandText insertTip(Palette palette, const CommandFacts& facts,
                                    LanguageLibrary& language);
[[nodiscard]] CommandText editTip(const CommandFacts& facts, LanguageLibrary& language);
[[nodiscard]] CommandText deleteTip(const CommandFacts& facts, LanguageLibrary& language);
[[nodiscard]] CommandText undoTip(const CommandFacts& facts, LanguageLibrary& language);
[[nodiscard]] CommandText redoTip(const CommandFacts& facts, LanguageLibrary& language);
/// Also why there is nothing that it would do.
[[nodiscard]] CommandText quickFixTip(const CommandFacts& facts, LanguageLibrary& language);
/// For the menu, with its mnemonic.
[[nodiscard]] CommandText undoItem(const CommandFacts& facts, LanguageLibrary& language);
[[nodiscard]] CommandText redoItem(const CommandFacts& facts, LanguageLibrary& language);
[[nodiscard]] CommandText quickFixItem(const CommandFacts& facts, LanguageLibrary& language);

/// "Delete 3 entries": tool tip, and with a question mark the confirmation.
[[nodiscard]] std::string deleteText(LanguageLibrary& language, std::size_t count);

}  // namespace quendra
