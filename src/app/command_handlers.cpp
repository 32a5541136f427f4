#include "app/command_handlers.h"

#include "app/about_box.h"
#include "app/command_facts.h"
#include "app/find_bar.h"
#include "app/main_window.h"
#include "app/script_editor.h"
#include "app/script_problems.h"
#include "help/editor_help.h"

namespace quendra {

CommandHandlers::CommandHandlers(ApplicationState& state, MainWindow& window, ScriptEditor& editor,
                                 EditorHelp* help)
    : state_(state),
      window_(window),
      editor_(editor),
      labels_(state, window, editor),
      help_(help),
      review_(state, window, editor) {
    QObject::connect(&window_.findBar(), &FindBar::changesAgreed, &editor_, &ScriptEditor::apply);
    window_.setCommandRunner([this](EditorCommand command) { run(command); });
}

CommandHandlers::~CommandHandlers() {
    window_.setCommandRunner({});
    QObject::disconnect(&window_.findBar(), &FindBar::changesAgreed, &editor_,
                        &ScriptEditor::apply);
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
        case EditorCommand::Reload: return window_.reload();
        case EditorCommand::Exit: return window_.closeSoon();
        case EditorCommand::Undo: return editor_.undo();
        case EditorCommand::Redo: return editor_.redo();
        case EditorCommand::Cut: return editor_.cut();
        case EditorCommand::Copy: return editor_.copy();
        case EditorCommand::CopyAsText: return editor_.copyAsText();
        case EditorCommand::Paste: return editor_.paste();
        case EditorCommand::Find: return window_.findBar().open();
        case EditorCommand::FindNext: return window_.findBar().goToNext();
        case EditorCommand::FindPrevious: return window_.findBar().goToPrevious();
        case EditorCommand::Replace: return window_.findBar().openReplace();
        case EditorCommand::GoToStep: return window_.openStepBar();
        case EditorCommand::InsertByName: return window_.openInsertPanel();
        case EditorCommand::ApplyQuickFix:
            if (const auto fix = window_.problems().quickFix().fix) editor_.applyFix(*fix);
            return;
        case EditorCommand::ShowProblems: return window_.problems().toggleList();
        case EditorCommand::ShowGutter: return window_.toggleGutter();
        case EditorCommand::NextList: return window_.pane().focusNextList(ListStep::Forward);
        case EditorCommand::PreviousList: return window_.pane().focusNextList(ListStep::Back);
        case EditorCommand::NextProblem: return window_.goToNextProblem();
        case EditorCommand::PreviousProblem: return window_.goToPreviousProblem();
        case EditorCommand::InsertScriptEvent:
        case EditorCommand::InsertLuFunction:
        case EditorCommand::InsertMenuCommand: return editor_.insertFrom(info.inserts.value());
        case EditorCommand::InsertScript: return editor_.insertOtherScript();
        case EditorCommand::EditEntry: return editor_.editEntry();
        case EditorCommand::DeleteEntries: return editor_.deleteSelected();
        case EditorCommand::Duplicate: return editor_.duplicate();
        case EditorCommand::MoveUp: return window_.pane().moveSelected(true);
        case EditorCommand::MoveDown: return window_.pane().moveSelected(false);
        case EditorCommand::RenameLabel: return labels_.rename();
        case EditorCommand::GoToLabel: return labels_.goToLabel();
        case EditorCommand::GoBack: return labels_.goBack();
        case EditorCommand::FindUses: return labels_.findUses();
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
