// What every command of the window runs.
#pragma once

#include "app/label_commands.h"
#include "app/script_review.h"
#include "session/application_state.h"
#include "session/commands.h"

namespace quendra {

class EditorHelp;
class MainWindow;
class ScriptEditor;

/// Gives the commands of a window their handlers as long as it lives; before and after, they do
/// nothing.
class CommandHandlers {
  public:
    /// All arguments outlive it. Without help the help commands do nothing.
    CommandHandlers(ApplicationState& state, MainWindow& window, ScriptEditor& editor,
                    EditorHelp* help = nullptr);
    ~CommandHandlers();
    CommandHandlers(const CommandHandlers&) = delete;
    CommandHandlers& operator=(const CommandHandlers&) = delete;

  private:
    void run(EditorCommand command);

    ApplicationState& state_;
    MainWindow& window_;
    ScriptEditor& editor_;
    LabelCommands labels_;
    EditorHelp* help_;
    ScriptReview review_;
};

}  // namespace quendra
