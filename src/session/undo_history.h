// Undo and redo of every change of the script, whatever made it.
//
// A step is found by comparing the script before and after: what both share at the start and at the
// end stays, the entries between were replaced. So no operation has to say how it is undone, and a
// step costs handles, not records.
#pragma once

#include "model/script.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quendra {

/// What is selected in the script list, and which entry has the focus (-1 for none).
struct EntrySelection {
    std::vector<std::size_t> entries;
    int focused = -1;

    bool operator==(const EntrySelection&) const = default;
};

/// A script together with its selection, as the user sees them.
struct ScriptView {
    Script script;
    EntrySelection selection;
};

/// The steps of one document, oldest first; undoing moves a mark back through them, and a new
/// change drops what lies behind the mark. New and Open start a new history.
class UndoHistory {
  public:
    /// Records the change from `before` to `after` under a name that menus show ("Delete 3
    /// Entries"). A change that left the script as it was is no step, and gives false.
    bool record(const ScriptView& before, const ScriptView& after, std::string name);
    /// Makes the change from `before` to `after` part of the last step, which led to `before`.
    /// Gives false when both together left the script as it was, and are no step any more.
    bool extend(const ScriptView& before, const ScriptView& after);

    [[nodiscard]] bool canUndo() const { return done_ > 0; }
    [[nodiscard]] bool canRedo() const { return done_ < steps_.size(); }
    /// The name of the step that would be undone or redone; empty when there is none.
    [[nodiscard]] std::string undoName() const;
    [[nodiscard]] std::string redoName() const;

    /// Takes one step back or forth in `script`, which is as the last change or step left it, and
    /// gives the selection that belongs to it; none, and nothing changed, when there is no such
    /// step.
    std::optional<EntrySelection> undo(Script& script);
    std::optional<EntrySelection> redo(Script& script);

    /// Forgets all steps; records that only they held are wiped.
    void clear();

  private:
    struct Step {
        std::string name;
        std::size_t at;
        std::vector<EntryHandle> removed;
        std::vector<EntryHandle> inserted;
        EntrySelection before;
        EntrySelection after;
    };

    std::vector<Step> steps_;
    std::size_t done_ = 0;
};

}  // namespace quendra
