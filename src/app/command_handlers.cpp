#include "app/command_handlers.h"

#include "app/about_box.h"
#include "app/command_facts.h"
#include "app/main_window.h"
#include "app/script_editor.h"
#include "help/editor_help.h"

namespace quendra {

CommandHandlers::CommandHandlers(ApplicationState& state, MainWindow& window, ScriptEditor& editor,
                                 EditorHelp* help)
    : state_(state), window_(window), editor_(editor), help_(help), review_(state, window, editor) {
    window_.setCommandRunner([this](EditorCommand command) { run(command); });
}

CommandHandlers::~CommandHandlers() {
    window_.setCommandRunner({});
}

void CommandHandlers::run(EditorCommand command) {
    const CommandInfo& info = commandInfo(command);
    if (info.hostType) return window_.setHostType(*info.hostType);
    // Without default, so that the compiler names a command that has no handler.
    switch (command) {
        case EditorCommand::NewScript: return window_.newScript();
        case EditorCommand::Open: return window_.openScript();
        case EditorCommand::Save: window_.save(); return;
        case EditorCommand::SaveAs: window_.saveAs(); return;
        case EditorCommand::CompareWithFile: return review_.compareWithFile();
        case EditorCommand::CompareWithSaved: return review_.compareWithSaved();
        case EditorCommand::ResolveConflicts: return review_.resolveConflicts();
        case EditorCommand::Exit: return window_.closeSoon();
        case EditorCommand::Undo: return editor_.undo();
        case EditorCommand::Redo: return editor_.redo();
        case EditorCommand::Cut: return editor_.cut();
        case EditorCommand::Copy: return editor_.copy();
        case EditorCommand::CopyAsText: return editor_.copyAsText();
        case EditorCommand::Paste: return editor_.paste();
        case EditorCommand::Find: return window_.openFindBar();
        case EditorCommand::InsertScriptEvent:
        case EditorCommand::InsertLuFunction:
        case EditorCommand::InsertMenuCommand: return editor_.insertFrom(info.inserts.value());
        case EditorCommand::InsertScript: return editor_.insertOtherScript();
        case EditorCommand::EditEntry: return editor_.editEntry();
        case EditorCommand::DeleteEntries: return editor_.deleteSelected();
        case EditorCommand::Help:
            if (help_ != nullptr) help_->showHelp();
            return;
        case EditorCommand::HelpOnSelection:
            if (help_ != nullptr) help_->helpOn(selectedCommand(state_, window_.pane()));
            return;
        case EditorCommand::About: AboutBox(state_.language, &window_).exec(); return;
    }
}

}  // namespace quendra
