// The editor's help: what the Help command opens, and F1 in dialogs.
#pragma once

#include "help/configured_help.h"
#include "session/application_state.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace quendra {

class HelpWindow;

/// The manual's window is made when it is first asked for, and there is one. As long as this lives,
/// F1 in dialogs opens their pages.
class EditorHelp : public QObject {
    Q_OBJECT

  public:
    /// `state` outlives it.
    explicit EditorHelp(ApplicationState& state, HelpLaunchers launchers = desktopLaunchers());
    ~EditorHelp() override;
    EditorHelp(const EditorHelp&) = delete;
    EditorHelp& operator=(const EditorHelp&) = delete;

    /// The installation's own help where it has one, else the start page of the manual.
    void showHelp();
    /// The manual's page about a command; without one the page of the current host type.
    void helpOn(std::optional<CommandCode> command);
    /// A page of the manual.
    void openPage(const QString& page);

  protected:
    /// F1 and Shift+F1 in a window, or a part of it, that names its page in the property
    /// "helpPage".
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    ApplicationState& state_;
    HelpLaunchers launchers_;
    std::unique_ptr<HelpWindow> manual_;
};

}  // namespace quendra
