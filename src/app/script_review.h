// The commands that compare the script in the editor, and resolve its conflicts, in a window of
// their own.
#pragma once

#include "review/review_window.h"
#include "session/application_state.h"
#include "session/document.h"

#include <QObject>

#include <memory>

namespace quendra {

class MainWindow;
class ScriptEditor;

/// There is one such window; a further comparison takes the place of the one before. It follows
/// every change of the script as long as it is open.
class ScriptReview : public QObject {
    Q_OBJECT

  public:
    /// All arguments outlive it.
    ScriptReview(ApplicationState& state, MainWindow& window, ScriptEditor& editor);

    /// With a file that the user chooses.
    void compareWithFile();
    /// With the script as it was opened or saved last, whatever has become of its file since: what
    /// somebody else has written there is compared by compareWithFile().
    void compareWithSaved();
    void resolveConflicts();

  private:
    enum class Shown { File, Saved, Conflicts };

    [[nodiscard]] ReviewWindow& openWindow(Shown shown);
    void compare(Shown shown, ReviewSide left);
    void follow();
    [[nodiscard]] ReviewSide savedSide() const;
    [[nodiscard]] ReviewSide ownSide() const;
    [[nodiscard]] ReviewSide sideOfDocument(const Script& script, StringId name) const;
    [[nodiscard]] ReviewWindow::Editor editor();
    /// A dialog of the editor works on a step by its number, and leaves the window of the
    /// comparison usable: where one is open, it comes to the front and nothing may be changed.
    [[nodiscard]] static bool isDialogOpen();

    ApplicationState& state_;
    MainWindow& window_;
    ScriptEditor& editor_;
    std::unique_ptr<ReviewWindow> review_;
    Shown shown_ = Shown::File;
};

/// A script for a comparison under the name of its file.
[[nodiscard]] ReviewSide sideOfFile(const std::filesystem::path& path, OtherScript script);

}  // namespace quendra
