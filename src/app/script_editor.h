// The editing commands on the real window: the operations of session/editing.h between its lists,
// its dialogs and the undo history.
#pragma once

#include "dialogs/parameter_dialogs.h"
#include "session/editing.h"
#include "session/quick_fix.h"

#include <QObject>

#include <functional>
#include <optional>
#include <string>

namespace quendra {

class MainWindow;
struct OtherScript;
struct ScriptChanges;

/// Opens the dialog of a command, as editParameters does. An empty one answers Cancel.
using EditParameters = std::function<bool(const DialogContext&, const EditTarget&)>;

/// What the editing commands of a window run. Every change of the script, drags
/// included, becomes one step of the state's history.
class ScriptEditor : public QObject, private EditingView {
    Q_OBJECT

  public:
    /// `state` and `window` outlive it.
    ScriptEditor(ApplicationState& state, MainWindow& window, EditParameters dialog);
    ~ScriptEditor() override = default;
    ScriptEditor(const ScriptEditor&) = delete;
    ScriptEditor& operator=(const ScriptEditor&) = delete;

    /// The commands, each run to its end with its dialogs and questions.
    void undo();
    void redo();
    void cut();
    void copy();
    void copyAsText();
    void paste();
    void duplicate();
    void insertFrom(Palette palette);
    void insertOtherScript();
    void editEntry();
    void deleteSelected();
    void applyFix(const QuickFix& fix);

    /// Makes changes of the script's entries, which keep their places, as one step of this name.
    void apply(const ScriptChanges& changes, const std::string& stepName);

    /// Puts another script in the place of the present one, as one step of this name, and goes to
    /// an entry of it.
    void replaceScript(Script script, std::size_t entry, StringId stepName);

  private:
    [[nodiscard]] std::vector<std::size_t> selectedEntries() const override;
    [[nodiscard]] int focusedEntry() const override;
    [[nodiscard]] int selectedRow(Palette palette) const override;
    void showScript(const EntrySelection& selection) override;
    [[nodiscard]] bool editParameters(ScriptEntry& entry) override;
    [[nodiscard]] bool confirmDelete(std::size_t count) override;
    void refuse(EditRefusal refusal, const ScriptEntry& entry) override;
    void askForRow(Palette palette) override;

    /// Runs an operation that gives whether it changed the script; the step's name is asked for
    /// after it.
    void change(const std::function<bool()>& operation, const std::function<std::string()>& name);
    void removeSelected(StringId name, bool (*operation)(EditingState&, EditingView&));
    void takeStep(std::optional<EntrySelection> (UndoHistory::*step)(Script&));
    void recordMove(bool goesOn);
    /// What the limit left no room for; none when all of it fitted.
    [[nodiscard]] std::optional<std::string> cutNote(std::size_t inserted,
                                                     std::size_t offered) const;
    [[nodiscard]] std::string insertedNote(const OtherScript& other, std::size_t inserted) const;
    [[nodiscard]] ScriptView currentView() const;
    [[nodiscard]] std::string countedName(StringId name, std::size_t count) const;

    ApplicationState& state_;
    MainWindow& window_;
    EditParameters dialog_;
    /// Script and selection when a drag was about to move entries.
    ScriptView beforeMove_;
    /// The last move is a step of the history, so that the next one of a held key can go on with
    /// it.
    bool moveIsStep_ = false;
};

}  // namespace quendra
