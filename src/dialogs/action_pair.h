// The Action group of the Wait_For and If_Input_Is dialogs: two buttons that choose the actions,
// and the lines that show them.
#pragma once

#include "dialogs/parameter_dialogs.h"
#include "text/language_library.h"

#include <QGroupBox>

class QLabel;
class QPushButton;

namespace quendra {

/// The texts of one of the two actions.
struct ActionTexts {
    StringId button;
    /// What the line shows before an action was chosen.
    StringId line;
};

class ActionPair : public QGroupBox {
    Q_OBJECT

  public:
    /// Works on `entry`, which outlives it.
    ActionPair(ApplicationState& state, ScriptEntry& entry, ActionOwner owner,
               const ActionTexts& thenTexts, const ActionTexts& elseTexts);

    /// Shows what the entry's actions are now.
    void refresh();
    /// The buttons and lines, not the group: its title stays as it is. Buttons that are off say in
    /// their tool tips, and to screen readers, that actions need a timeout.
    void setActionsEnabled(bool enabled);

  private:
    struct Row {
        QPushButton* button = nullptr;
        QLabel* line = nullptr;
        /// What the line shows while there is no action.
        QString prefix;
        /// The action was a hidden Type when it was chosen anew.
        bool onceHidden = false;
    };
    Row addRow(int number, const char* name, const ActionTexts& texts, Slot slot);
    void choose(Slot slot);

    ApplicationState& state_;
    ScriptEntry& entry_;
    ActionOwner owner_;
    Row then_;
    Row else_;
};

}  // namespace quendra
