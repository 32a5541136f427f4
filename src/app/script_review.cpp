#include "app/script_review.h"

#include "app/main_window.h"
#include "app/script_editor.h"
#include "app/window_activation.h"
#include "session/document.h"
#include "text/path_text.h"
#include "text/text_ids.h"
#include "widgets/file_dialogs.h"
#include "widgets/message_box.h"

#include <QApplication>

#include <utility>

namespace quendra {

ReviewSide sideOfFile(const std::filesystem::path& path, OtherScript script) {
    std::error_code ignored;
    const bool isFile = std::filesystem::is_regular_file(path, ignored);
    return {
        std::move(script.script), script.hostType, pathText(isFile ? path.filename() : path),
        isFile ? pathText(std::filesystem::absolute(path, ignored).parent_path()) : std::string(),
        std::move(script.note)};
}

ScriptReview::ScriptReview(ApplicationState& state, MainWindow& window, ScriptEditor& editor)
    : state_(state), window_(window), editor_(editor) {
    connect(&window_, &MainWindow::documentChanged, this, &ScriptReview::follow);
}

void ScriptReview::compareWithFile() {
    const auto path = chooseFile(
        &window_, {FileDialogMode::Open, libraryText(state_.language, textid::compareFileToolTip),
                   "Quendra Script Files(*.qds)", "qds", state_.settings.scriptsDir});
    if (!path) return;
    OtherScript other = readOtherScript(state_, *path);
    if (other.refusal) return showMessage(&window_, *other.refusal);
    compare(Shown::File, sideOfFile(*path, std::move(other)));
}

void ScriptReview::compareWithSaved() {
    compare(Shown::Saved, savedSide());
}

void ScriptReview::resolveConflicts() {
    ReviewWindow& review = openWindow(Shown::Conflicts);
    review.resolve(ownSide(), editor());
    review.present();
}

void ScriptReview::compare(Shown shown, ReviewSide left) {
    ReviewWindow& review = openWindow(shown);
    review.compare(std::move(left), ownSide(), editor());
    review.present();
}

ReviewWindow& ScriptReview::openWindow(Shown shown) {
    shown_ = shown;
    if (!review_) {
        review_ = std::make_unique<ReviewWindow>(state_);
        // The program ends with its main window.
        review_->setAttribute(Qt::WA_QuitOnClose, false);
        connect(review_.get(), &ReviewWindow::undoAsked, this, [this] {
            if (!isDialogOpen()) editor_.undo();
        });
        connect(review_.get(), &ReviewWindow::redoAsked, this, [this] {
            if (!isDialogOpen()) editor_.redo();
        });
    }
    return *review_;
}

void ScriptReview::follow() {
    if (!review_ || !review_->isVisible()) return;
    switch (shown_) {
        case Shown::File: return review_->follow(review_->left(), ownSide());
        case Shown::Saved: return review_->follow(savedSide(), ownSide());
        case Shown::Conflicts: return review_->follow(ownSide());
    }
}

ReviewSide ScriptReview::savedSide() const {
    ReviewSide side = sideOfDocument(state_.document.saved, textid::reviewSideSaved);
    side.hostType = state_.document.savedHostType.value_or(state_.currentHostType);
    return side;
}

ReviewSide ScriptReview::ownSide() const {
    return sideOfDocument(state_.script, textid::reviewSideEditor);
}

ReviewSide ScriptReview::sideOfDocument(const Script& script, StringId name) const {
    const std::filesystem::path& file = state_.document.fileName;
    const std::string fileName = file.empty() ? "Untitled" : pathText(file.filename());
    return {script,
            state_.currentHostType,
            libraryText(state_.language, name, {fileName}),
            pathText(file.parent_path()),
            {}};
}

ReviewWindow::Editor ScriptReview::editor() {
    return [this](ReviewedScript reviewed) {
        if (isDialogOpen()) return false;
        editor_.replaceScript(std::move(reviewed.script), reviewed.entry, reviewed.stepName);
        return true;
    };
}

bool ScriptReview::isDialogOpen() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return false;
    bringToFront(*dialog, {});
    return true;
}

}  // namespace quendra
