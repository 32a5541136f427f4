// The commands that know the labels of the script: renaming one, going to it and back, and where it
// is used.
#pragma once

#include "session/application_state.h"

#include <QString>

#include <string>
#include <vector>

namespace quendra {

class MainWindow;
class ScriptEditor;
struct ScriptOutline;

/// Each acts on the names of the current entry and its actions, and does nothing where there are
/// none.
class LabelCommands {
  public:
    /// All arguments outlive it.
    LabelCommands(ApplicationState& state, MainWindow& window, ScriptEditor& editor)
        : state_(state), window_(window), editor_(editor) {}

    /// Asks for the new name, and which label is meant where there are several.
    void rename();
    /// Asks which label is meant where the entry goes to several; tells when there is none.
    void goToLabel();
    void goBack();
    /// Lists the jumps to the labels, and goes to the one that is chosen.
    void findUses();

  private:
    /// The distinct names of the current entry, in windows-1252; of its jumps only.
    [[nodiscard]] std::vector<std::string> names(bool jumpsOnly) const;
    /// The number of the entry and its line.
    [[nodiscard]] QString lineOf(std::size_t step) const;
    void tellMissing(const ScriptOutline& outline, const std::string& name);
    void jump(std::size_t step);
    void select(std::size_t step);

    ApplicationState& state_;
    MainWindow& window_;
    ScriptEditor& editor_;
};

}  // namespace quendra
