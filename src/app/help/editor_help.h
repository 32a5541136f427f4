// The editor's help: what the Help command opens, and F1 in dialogs.
#pragma once

#include "app/application_state.h"
#include "app/help/configured_help.h"

#include <QObject>
#include <QString>

#include <memory>

namespace quendra {

class HelpWindow;
class MainWindow;

/// Gives a window its help commands as long as it lives. The manual's window is made when it is
/// first asked for, and there is one.
class EditorHelp : public QObject {
    Q_OBJECT

  public:
    /// `state` and `window` outlive it.
    EditorHelp(ApplicationState& state, MainWindow& window,
               HelpLaunchers launchers = desktopLaunchers());
    ~EditorHelp() override;
    EditorHelp(const EditorHelp&) = delete;
    EditorHelp& operator=(const EditorHelp&) = delete;

    /// The installation's own help where it has one, else the start page of the manual.
    void showHelp();
    /// The manual's page about what is selected in the list that has the focus: the command of an
    /// entry or of a palette's row; without a selection the page of the current host type.
    void helpOnSelection();
    /// A page of the manual.
    void openPage(const QString& page);

  protected:
    /// F1 and Shift+F1 in a window, or a part of it, that names its page in the property
    /// "helpPage".
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QString pageOfSelection() const;

    ApplicationState& state_;
    MainWindow& window_;
    HelpLaunchers launchers_;
    std::unique_ptr<HelpWindow> manual_;
};

}  // namespace quendra
