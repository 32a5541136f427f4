// The main window: menus, toolbar, editor pane and status bar around the one script, and the
// commands.
#pragma once

#include "app/application_state.h"
#include "app/document.h"
#include "app/editing_commands.h"
#include "app/editor_pane.h"

#include <QMainWindow>

#include <filesystem>
#include <functional>
#include <map>
#include <string>

class QAction;
class QToolBar;

namespace quendra {

class FindBar;
class StatusLine;

class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    /// `state` outlives the window. Its language is loaded and its catalogues are built.
    explicit MainWindow(ApplicationState& state, QWidget* parent = nullptr);

    /// The commands that change the script run these from now on.
    void setEditingCommands(EditingCommands commands);

    /// The Help command runs this from now on.
    void setHelpCommand(std::function<void()> showHelp);

    /// Runs a command as its menu item does, whether it is enabled or not.
    void runCommand(int command);

    /// Makes a host type the current one and shows the script under its names. The document is not
    /// modified by it.
    void setHostType(HostType hostType);

    /// Opens the script that the command line names.
    void openAtStart(const std::filesystem::path& path);

    /// The script has been changed: marks the document as modified when it differs from the saved
    /// one, and brings title, status bar and command states up to date. The list itself is the
    /// caller's to rebuild.
    void scriptChanged();

    /// Brings menu items, toolbar buttons and their tool tips up to date with script, selections
    /// and clipboard.
    void updateCommandStates();

    /// Shows a text (UTF-8) in the status bar in place of the entry count, until the script or the
    /// document changes.
    void showNote(const std::string& note);

    /// Restores the window if it is minimised and brings it in front of all others.
    void comeToFront();

    /// The desktop session ends: the window closes without a question from now on.
    void endSession();

    [[nodiscard]] EditorPane& pane() { return *pane_; }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildActions();
    void buildMenus();
    void buildToolBar();
    void buildStatusBar();
    void placeOnScreen();

    void dispatch(int command);
    void dispatchEditing(int command);
    [[nodiscard]] bool refusedAtLimit(int command);
    void newScript();
    void openScript();
    /// Gives false when something was not saved that the user wanted saved.
    bool save();
    bool saveAs();
    bool saveTo(const std::filesystem::path& path);
    [[nodiscard]] bool mayDiscardChanges(DiscardingCommand command);
    [[nodiscard]] bool agreedToAll(const std::vector<Message>& questions);

    void showDocument();
    void showHostType();
    void updateTitle();
    void updateStatus();

    ApplicationState& state_;
    EditingCommands editing_;
    std::function<void()> showHelp_;
    std::map<int, QAction*> actions_;
    QToolBar* toolBar_ = nullptr;
    EditorPane* pane_ = nullptr;
    FindBar* findBar_ = nullptr;
    StatusLine* statusLine_ = nullptr;
    std::string note_;
};

}  // namespace quendra
