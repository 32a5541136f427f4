// The main window: menus, toolbar, editor pane and status bar around the one script, and the
// commands.
#pragma once

#include "app/pane/editor_pane.h"
#include "session/application_state.h"
#include "session/commands.h"
#include "session/document.h"

#include <QMainWindow>

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>

class QAction;
class QToolBar;

namespace quendra {

class FindBar;
class InsertPanel;
class ScriptProblems;
class StatusLine;
class StepBar;

class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    /// Where the screen has room for it.
    static constexpr QSize firstSize{626, 410};

    /// `state` outlives the window. Its language is loaded and its catalogues are built.
    /// `beforeText` is called before the first text is measured, which needs the fonts: a start
    /// that is still finding them has the icons drawn meanwhile.
    explicit MainWindow(
        ApplicationState& state, const std::function<void()>& beforeText = [] {});

    /// What commands run from now on, to its end, dialogs included; it leaves pane, title and
    /// command states right through scriptChanged(). While it is empty, commands do nothing.
    void setCommandRunner(std::function<void(EditorCommand)> runner);

    /// Brings the window of another editor to the front that shows a script; false when none does.
    void setRaiser(std::function<bool(const std::filesystem::path&)> raiser);

    /// Runs a command as its menu item does, whether it is enabled or not.
    void runCommand(EditorCommand command);

    /// The commands that the window runs itself.
    void newScript();
    void openScript();
    /// Reads the script's file again; asks before changes are given up.
    void reload();
    /// Gives false when something was not saved that the user wanted saved.
    bool save();
    bool saveAs();
    void openStepBar();
    void openInsertPanel();
    void goToNextProblem();
    void goToPreviousProblem();
    void toggleGutter();
    /// Closes the window when the present event has been handled.
    void closeSoon();

    /// Makes a host type the current one and shows the script under its names. The document is not
    /// modified by it.
    void setHostType(HostType hostType);

    /// The script that the command line names has been opened: shows it, and what there is to tell.
    void showOpened(const OpenOutcome& outcome);

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

    /// Says in the same place that the focused entry can be replaced as soon as a row of this
    /// palette is selected, until one is or another entry is focused.
    void askForRow(Palette palette);

    /// Restores the window if it is minimised and brings it in front of all others. The token is
    /// the desktop's leave to do that, handed on by whoever asks for it; empty for none.
    void comeToFront(const std::string& activationToken);

    /// The desktop's session ends, and nobody is there to be asked: changes that are not saved go
    /// into a copy beside the script, and the window closes without a question. Whoever works on,
    /// since the end was called off, is asked again.
    void endSession();

    [[nodiscard]] EditorPane& pane() { return *pane_; }
    [[nodiscard]] ScriptProblems& problems() { return *problems_; }
    [[nodiscard]] FindBar& findBar() { return *findBar_; }
    [[nodiscard]] InsertPanel& insertPanel() { return *insertPanel_; }

  Q_SIGNALS:
    /// Script, host type or document may be others than before, and are shown.
    void documentChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void buildActions();
    void buildMenus();
    void answerKeyOfQuickFix();
    void buildToolBar();
    void drawAhead(const QIcon& icon, bool enabled) const;
    void buildStatusBar();
    void placeOnScreen();
    void rememberPlace();
    void showPaneMenu(const CommandItems& items, QPoint at);
    /// Follows the end of the desktop's session and has its next one open the script again.
    void watchSession();

    [[nodiscard]] bool refusedAtLimit(const CommandInfo& command);
    bool saveTo(const std::filesystem::path& path);
    [[nodiscard]] bool mayDiscardChanges(DiscardingCommand command);
    [[nodiscard]] bool agreedToAll(const std::vector<Message>& questions);

    void showDocument();
    /// Opens what `open` gives, unless the user keeps the changes of the present script.
    void openFrom(const std::function<OpenOutcome()>& open);
    void showIfOpened(const OpenOutcome& outcome);
    void openFile(const std::filesystem::path& path);
    [[nodiscard]] bool isRaisedElsewhere(const std::filesystem::path& path) const;
    /// The document's file is one to be found again.
    void rememberFile();
    void setNote(const std::string& note);
    /// A note that stands until another entry is focused.
    void showNoteOnEntry(const std::string& note);
    void dropAnsweredRequest();
    void updateTitle();
    void updateStatus();

    ApplicationState& state_;
    std::function<void(EditorCommand)> runner_;
    std::function<bool(const std::filesystem::path&)> raiser_;
    std::map<EditorCommand, QAction*> actions_;
    QToolBar* toolBar_ = nullptr;
    EditorPane* pane_ = nullptr;
    FindBar* findBar_ = nullptr;
    StepBar* stepBar_ = nullptr;
    InsertPanel* insertPanel_ = nullptr;
    ScriptProblems* problems_ = nullptr;
    bool showsGutter_ = true;
    StatusLine* statusLine_ = nullptr;
    std::string note_;
    /// What askForRow said, as long as it stands there.
    struct RowRequest {
        Palette palette;
        int entry;
    };
    std::optional<RowRequest> rowRequest_;
    /// The entry that the note is about.
    std::optional<int> noteEntry_;
    bool sessionEnds_ = false;
};

}  // namespace quendra
