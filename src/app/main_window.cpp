#include "app/main_window.h"

#include "app/command_facts.h"
#include "app/command_menu.h"
#include "app/find_bar.h"
#include "app/insert_panel.h"
#include "app/script_menus.h"
#include "app/script_problems.h"
#include "app/step_bar.h"
#include "app/window_activation.h"
#include "platform/editor_windows.h"
#include "session/command_line.h"
#include "session/command_rules.h"
#include "session/commands.h"
#include "session/recent_scripts.h"
#include "text/text_ids.h"
#include "widgets/file_dialogs.h"
#include "widgets/message_box.h"
#include "widgets/placement.h"
#include "widgets/status_line.h"
#include "widgets/symbol_icon.h"
#include "widgets/tool_tip.h"
#include "widgets/ui_text.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QSessionManager>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

constexpr StateKey gutterKey = {"View", "StepNumbersAndJumps"};
constexpr StateKey widthKey = {"Window", "Width"};
constexpr StateKey heightKey = {"Window", "Height"};
constexpr StateKey maximisedKey = {"Window", "Maximised"};
/// No screen is larger.
constexpr int longestSide = 16384;

// Qt replaces "[*]" in a title by its own mark.
QString asWindowTitle(const std::string& title) {
    return qtText(title).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

// A tool tip takes anything that looks like markup as such, and only markup is wrapped.
QString asToolTip(const std::string& text) {
    constexpr qsizetype longLine = 80;
    const QString plain = qtText(text);
    if (plain.size() <= longLine && !Qt::mightBeRichText(plain)) return plain;
    return wrappingToolTip(plain);
}

// None for anything but one local file. Its bytes, for a name need not be UTF-8.
std::optional<std::filesystem::path> droppedScript(const QMimeData& dropped) {
    const QList<QUrl> urls = dropped.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) return std::nullopt;
    const QString host = urls.front().host();
    if (!host.isEmpty() && host != QLatin1String("localhost")) return std::nullopt;
    return std::filesystem::path(
        QByteArray::fromPercentEncoding(urls.front().path(QUrl::FullyEncoded).toUtf8())
            .toStdString());
}

// Qt's own buttons for what a narrow window has no room for.
void nameExtensionButtons(QWidget& window, const QString& text) {
    for (const char* name : {"qt_toolbar_ext_button", "qt_menubar_ext_button"}) {
        for (auto* button : window.findChildren<QWidget*>(QLatin1String(name))) {
            button->setAccessibleName(text);
        }
    }
}

}  // namespace

MainWindow::MainWindow(ApplicationState& state, const std::function<void()>& beforeText)
    : state_(state) {
    setObjectName(QStringLiteral("mainWindow"));
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(true);
    buildActions();
    buildToolBar();
    beforeText();
    buildMenus();
    buildStatusBar();
    pane_ = new EditorPane(state_, this);
    setCentralWidget(pane_);
    findBar_ = new FindBar(state_, *pane_, this);
    addToolBar(Qt::BottomToolBarArea, findBar_);
    findBar_->hide();
    addToolBarBreak(Qt::BottomToolBarArea);
    stepBar_ = new StepBar(state_, *pane_, *this);
    addToolBar(Qt::BottomToolBarArea, stepBar_);
    stepBar_->hide();
    insertPanel_ = new InsertPanel(state_, *pane_);
    connect(insertPanel_, &InsertPanel::chosen, this, [this](const PaletteChoice& choice) {
        pane_->selectRow(choice);
        runCommand(insertCommand(choice.palette));
    });
    problems_ =
        new ScriptProblems(state_, *pane_, *actions_.at(EditorCommand::ApplyQuickFix), *this);
    connect(problems_, &ScriptProblems::changed, this, &MainWindow::updateCommandStates);
    answerKeyOfQuickFix();
    showsGutter_ = state_.userState.flag(gutterKey, true);
    pane_->showGutter(showsGutter_);
    connect(findBar_, &FindBar::noted, this, &MainWindow::showNote);
    nameExtensionButtons(*this, qtText(libraryText(state_.language, textid::moreCommands)));
    connect(pane_, &EditorPane::commandRequested, this, &MainWindow::runCommand);
    connect(pane_, &EditorPane::selectionChanged, this, &MainWindow::updateCommandStates);
    connect(pane_, &EditorPane::menuRequested, this,
            [this](std::optional<Palette> palette, QPoint at) {
                showPaneMenu(palette ? paletteItems(*palette) : scriptListItems(), at);
            });
    watchSession();
    pane_->refillLuPalette();
    showDocument();
    placeOnScreen();
}

void MainWindow::watchSession() {
    // Its manager waits for the answer, so both run at once.
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { endSession(); },
        Qt::DirectConnection);
    connect(
        qGuiApp, &QGuiApplication::saveStateRequest, this,
        [this](QSessionManager& session) {
            QStringList command(QCoreApplication::applicationFilePath());
            const std::filesystem::path& script = state_.document.fileName;
            if (!script.empty()) {
                command << QStringLiteral("--") << QFile::decodeName(script.c_str());
            }
            session.setRestartCommand(command);
        },
        Qt::DirectConnection);
}

void MainWindow::setCommandRunner(std::function<void(EditorCommand)> runner) {
    runner_ = std::move(runner);
}

void MainWindow::setRaiser(std::function<bool(const std::filesystem::path&)> raiser) {
    raiser_ = std::move(raiser);
}

void MainWindow::buildActions() {
    auto* modes = new QActionGroup(this);
    for (const CommandInfo& info : commands()) {
        const int number = commandNumber(info.id);
        auto* action = new QAction(toolbarIcon(number), {}, this);
        setMenuText(*action, commandMenuText(info, state_.language));
        action->setObjectName(QStringLiteral("command%1").arg(number));
        action->setShortcuts(QKeySequence::listFromString(QLatin1String(info.shortcut)));
        action->setShortcutVisibleInContextMenu(true);
        // No widget has the focus that these keys would work for: menus only show them.
        if (info.isKeyOfList) action->setShortcutContext(Qt::WidgetShortcut);
        action->setIconText(qtText(libraryText(state_.language, info.texts.toolTip)));
        action->setStatusTip(qtText(libraryText(state_.language, info.texts.status)));
        action->setMenuRole(QAction::NoRole);
        action->setIconVisibleInMenu(false);
        action->setCheckable(isCheckable(info));
        if (info.hostType) modes->addAction(action);
        connect(action, &QAction::triggered, this, [this, id = info.id] { runCommand(id); });
        actions_[info.id] = action;
    }
}

// The key of a command that cannot be chosen does nothing, and there is no pointer on it that would
// be told why.
void MainWindow::answerKeyOfQuickFix() {
    const QAction* action = actions_.at(EditorCommand::ApplyQuickFix);
    auto* key = new QShortcut(action->shortcut(), this);
    const auto takeTurns = [action, key] { key->setEnabled(!action->isEnabled()); };
    connect(action, &QAction::changed, key, takeTurns);
    takeTurns();
    connect(key, &QShortcut::activated, this, [this] {
        const QuickFixOffer offer = problems_->quickFix();
        if (offer.fix) return runCommand(EditorCommand::ApplyQuickFix);
        showNoteOnEntry(libraryText(state_.language, offer.whyNot));
    });
}

void MainWindow::buildMenus() {
    menuBar()->setObjectName(QStringLiteral("menuBar"));
    std::map<EditorMenu, QMenu*> built;
    for (const MenuInfo& info : menus()) {
        auto* menu = new CommandMenu(qtText(libraryText(state_.language, info.titleId)), menuBar());
        menuBar()->addMenu(menu);
        built[info.menu] = menu;
        menu->setObjectName(QLatin1String(info.objectName));
        for (const auto& id : menuItems(info.menu)) {
            if (id) {
                menu->addAction(actions_.at(*id));
            } else {
                menu->addSeparator();
            }
        }
    }
    const auto* scripts =
        new ScriptMenus(state_, *built.at(EditorMenu::File), *actions_.at(EditorCommand::Save),
                        *built.at(EditorMenu::Help));
    connect(scripts, &ScriptMenus::scriptChosen, this, &MainWindow::openFile);
    connect(scripts, &ScriptMenus::exampleChosen, this, [this](const std::filesystem::path& file) {
        openFrom([&] { return openExample(state_, file); });
    });
}

void MainWindow::showPaneMenu(const CommandItems& items, QPoint at) {
    auto* menu = new CommandMenu({}, this);
    menu->setObjectName(QStringLiteral("paneMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const auto& id : items) {
        if (!id) {
            menu->addSeparator();
        } else if (QAction* action = actions_.at(*id); action->isEnabled()) {
            menu->addAction(action);
        }
    }
    menu->popup(at);
}

void MainWindow::buildToolBar() {
    toolBar_ = new QToolBar(this);
    toolBar_->setObjectName(QStringLiteral("toolBar"));
    toolBar_->setAccessibleName(qtText(libraryText(state_.language, textid::toolBarName)));
    toolBar_->setMovable(false);
    toolBar_->setFloatable(false);
    toolBar_->setIconSize({24, 24});
    toolBar_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    CommandFacts begun;
    begun.entryCount = state_.script.entryCount();
    begun.selectedCount = begun.entryCount > 0 ? 1 : 0;
    for (const auto& id : toolbarItems()) {
        if (!id) {
            toolBar_->addSeparator();
            continue;
        }
        QAction* action = actions_.at(*id);
        toolBar_->addAction(action);
        drawAhead(action->icon(), isCommandEnabled(commandInfo(*id), begun));
        toolBar_->widgetForAction(action)->setObjectName(
            QStringLiteral("toolButton%1").arg(commandNumber(*id)));
    }
    addToolBar(toolBar_);
}

// So that the first painting finds the drawing done.
void MainWindow::drawAhead(const QIcon& icon, bool enabled) const {
    static_cast<void>(icon.pixmap(toolBar_->iconSize(), devicePixelRatio(),
                                  enabled ? QIcon::Normal : QIcon::Disabled));
}

void MainWindow::buildStatusBar() {
    statusLine_ = new StatusLine;
    statusLine_->setObjectName(QStringLiteral("statusLine"));
    statusBar()->setObjectName(QStringLiteral("statusBar"));
    statusLine_->setContentsMargins(4, 0, 4, 0);
    statusBar()->addWidget(statusLine_, 1);
}

void MainWindow::placeOnScreen() {
    const QSize largest = largestWindow(*this);
    setMinimumSize((firstSize * 3 / 4).boundedTo(largest));
    const UserState& before = state_.userState;
    const QSize size(before.number(widthKey, 1, longestSide).value_or(firstSize.width()),
                     before.number(heightKey, 1, longestSide).value_or(firstSize.height()));
    resize(size.boundedTo(largest));
    centreOnScreen(*this);
    if (before.flag(maximisedKey, false)) setWindowState(windowState() | Qt::WindowMaximized);
}

void MainWindow::rememberPlace() {
    const QSize size = isMaximized() ? normalGeometry().size() : this->size();
    UserState& now = state_.userState;
    if (isMaximized() != now.flag(maximisedKey, false)) now.setFlag(maximisedKey, isMaximized());
    if (size.isEmpty()) return;
    now.setNumber(widthKey, size.width());
    now.setNumber(heightKey, size.height());
}

void MainWindow::runCommand(EditorCommand command) {
    const CommandInfo& info = commandInfo(command);
    sessionEnds_ = false;
    if (!refusedAtLimit(info) && runner_) runner_(command);
    if (!info.movesFocus) pane_->takeFocus();
}

bool MainWindow::refusedAtLimit(const CommandInfo& command) {
    if (!command.addsEntries || !state_.script.isFull()) return false;
    // The insert that would have used it up does not come.
    if (std::exchange(state_.dropPending, false)) state_.currentIndex = pane_->focusedEntry();
    showMessage(
        this, {formatText("Max limit of %d script entries reached.", {std::to_string(maxEntries)}),
               "Quendra Script Editor", MessageIcon::Information, MessageButtons::Ok, false});
    return true;
}

void MainWindow::openStepBar() {
    stepBar_->open();
}

void MainWindow::openInsertPanel() {
    insertPanel_->open();
}

void MainWindow::goToNextProblem() {
    showNoteOnEntry(problems_->goToNext());
}

void MainWindow::goToPreviousProblem() {
    showNoteOnEntry(problems_->goToPrevious());
}

void MainWindow::toggleGutter() {
    showsGutter_ = !showsGutter_;
    state_.userState.setFlag(gutterKey, showsGutter_);
    pane_->showGutter(showsGutter_);
    updateCommandStates();
}

void MainWindow::closeSoon() {
    QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection);
}

void MainWindow::newScript() {
    if (state_.script.entryCount() == 0) return;
    if (!mayDiscardChanges(DiscardingCommand::NewOrOpen)) return;
    newDocument(state_);
    setNote({});
    showDocument();
}

void MainWindow::openScript() {
    openFrom([this]() -> OpenOutcome {
        const auto path =
            chooseFile(this, {FileDialogMode::Open,
                              libraryText(state_.language, textid::openScriptDialogTitle),
                              "Quendra Script Files(*.qds)", "qds", state_.settings.scriptsDir});
        return path && !isRaisedElsewhere(*path) ? openDocument(state_, *path) : OpenOutcome();
    });
}

void MainWindow::openFrom(const std::function<OpenOutcome()>& open) {
    if (!mayDiscardChanges(DiscardingCommand::NewOrOpen)) return;
    showIfOpened(open());
}

void MainWindow::showIfOpened(const OpenOutcome& outcome) {
    if (outcome.refusal) showMessage(this, *outcome.refusal);
    if (!outcome.opened) return;
    setNote(outcome.note);
    pane_->refillLuPalette();
    showDocument();
    rememberFile();
}

void MainWindow::openFile(const std::filesystem::path& path) {
    if (isRaisedElsewhere(path)) return;
    openFrom([&] { return openDocument(state_, tidyPath(path)); });
}

// Two windows with one script would overwrite each other's changes. This one's own is read again.
bool MainWindow::isRaisedElsewhere(const std::filesystem::path& path) const {
    return raiser_ && !sameScript(path, state_.document.fileName) && raiser_(path);
}

void MainWindow::reload() {
    if (state_.document.modified &&
        askMessage(this, reloadQuestion(state_)) != MessageAnswer::Yes) {
        return;
    }
    const ScriptView before{state_.script, {pane_->selectedEntries(), pane_->focusedEntry()}};
    // What the file has lost meanwhile can be taken back.
    UndoHistory history = std::exchange(state_.history, {});
    const OpenOutcome outcome = openDocument(state_, state_.document.fileName);
    const auto last = static_cast<int>(state_.script.entryCount()) - 1;
    EntrySelection selection{{}, std::min(before.selection.focused, last)};
    if (selection.focused >= 0)
        selection.entries.push_back(static_cast<std::size_t>(selection.focused));
    if (outcome.opened) {
        history.record(before, {state_.script, selection},
                       libraryText(state_.language, textid::reloadToolTip));
    }
    state_.history = std::move(history);
    // Where it is refused, the script stays as it is.
    showIfOpened(outcome);
    if (outcome.opened) pane_->selectEntries(selection.entries, selection.focused);
}

void MainWindow::rememberFile() {
    const std::filesystem::path& file = state_.document.fileName;
    if (file.is_absolute() && !state_.document.refused) rememberScript(state_.userState, file);
}

// One script, as the file manager drags it; what a drag within the pane carries is none.
void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (droppedScript(*event->mimeData())) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const auto script = droppedScript(*event->mimeData());
    if (!script) return;
    event->acceptProposedAction();
    // Whoever drags waits for the drop to end, and not for the questions before the script opens.
    QTimer::singleShot(0, this, [this, script] { openFile(*script); });
}

void MainWindow::showOpened(const OpenOutcome& outcome) {
    setNote(outcome.note);
    pane_->refillLuPalette();
    showDocument();
    if (outcome.refusal) showMessage(this, *outcome.refusal);
    if (outcome.opened) rememberFile();
}

bool MainWindow::save() {
    return state_.document.fileName.empty() ? saveAs() : saveTo(state_.document.fileName);
}

bool MainWindow::saveAs() {
    const auto path = chooseFile(
        this, {FileDialogMode::Save, libraryText(state_.language, textid::saveScriptDialogTitle),
               "Quendra Script Files(*.qds)", "qds", state_.settings.scriptsDir});
    // Cancel is an answer, not a failure: closing and New go on after it.
    return !path || saveTo(*path);
}

bool MainWindow::saveTo(const std::filesystem::path& path) {
    if (!agreedToAll(questionsBeforeSave(state_, path))) return false;
    const EntrySelection selection = {pane_->selectedEntries(), pane_->focusedEntry()};
    const SaveOutcome outcome = saveDocument(state_, path, selection);
    if (outcome.refusal) showMessage(this, *outcome.refusal);
    if (!outcome.saved) return false;
    if (outcome.scriptChanged) {
        pane_->showScript(selection);
        problems_->checkSoon();
    }
    rememberFile();
    setNote(outcome.note);
    updateTitle();
    updateStatus();
    updateCommandStates();
    Q_EMIT documentChanged();
    return true;
}

bool MainWindow::agreedToAll(const std::vector<Message>& questions) {
    return std::all_of(questions.begin(), questions.end(), [this](const Message& question) {
        return askMessage(this, question) == MessageAnswer::Yes;
    });
}

bool MainWindow::mayDiscardChanges(DiscardingCommand command) {
    if (!state_.document.modified) return true;
    switch (askMessage(this, savePrompt(state_, command))) {
        case MessageAnswer::Yes:
            if (!save()) return false;
            // The name was refused to Save As, and the command goes on all the same.
            if (state_.document.modified) static_cast<void>(keepUnsavedScript(state_));
            return true;
        case MessageAnswer::No: return true;
        default: return false;
    }
}

void MainWindow::setHostType(HostType hostType) {
    state_.currentHostType = hostType;
    pane_->refillLuPalette();
    pane_->rebuildScriptList();
    problems_->checkNow();
    setNote({});
    updateStatus();
    updateCommandStates();
    pane_->takeFocus();
    Q_EMIT documentChanged();
}

void MainWindow::showDocument() {
    pane_->rebuildScriptList();
    problems_->checkNow();
    updateTitle();
    updateStatus();
    updateCommandStates();
    Q_EMIT documentChanged();
}

void MainWindow::scriptChanged() {
    sessionEnds_ = false;
    state_.document.modified = state_.script != state_.document.saved;
    problems_->checkSoon();
    setNote({});
    updateTitle();
    updateStatus();
    updateCommandStates();
    Q_EMIT documentChanged();
}

void MainWindow::updateTitle() {
    setWindowTitle(asWindowTitle(documentTitle(state_.document)));
}

void MainWindow::updateStatus() {
    statusLine_->setLine(qtText(
        note_.empty() ? entryCountText(state_.language, state_.script.entryCount()) : note_));
}

void MainWindow::setNote(const std::string& note) {
    note_ = note;
    rowRequest_.reset();
    noteEntry_.reset();
}

void MainWindow::showNote(const std::string& note) {
    setNote(note);
    updateStatus();
    // What the pointer rests on tells about itself in front of the line, as long as it rests.
    if (!note.empty()) statusBar()->clearMessage();
}

void MainWindow::showNoteOnEntry(const std::string& note) {
    showNote(note);
    noteEntry_ = pane_->focusedEntry();
}

void MainWindow::askForRow(Palette palette) {
    showNote(libraryText(state_.language, textid::replacementNeedsSelection,
                         {libraryText(state_.language, paletteInfo(palette).titleId)}));
    rowRequest_ = {palette, pane_->focusedEntry()};
}

void MainWindow::dropAnsweredRequest() {
    if (noteEntry_ && noteEntry_ != pane_->focusedEntry()) showNote({});
    if (!rowRequest_) return;
    const bool isOpen =
        pane_->selectedRow(rowRequest_->palette) < 0 && pane_->focusedEntry() == rowRequest_->entry;
    if (!isOpen) showNote({});
}

void MainWindow::updateCommandStates() {
    dropAnsweredRequest();
    CommandFacts facts = commandFacts(state_, *pane_);
    problems_->addFacts(facts);
    facts.gutterIsShown = showsGutter_;
    for (const CommandInfo& info : commands()) {
        QAction* action = actions_.at(info.id);
        action->setEnabled(isCommandEnabled(info, facts));
        if (action->isCheckable()) action->setChecked(isCommandChecked(info, facts));
        action->setToolTip(asToolTip(commandToolTip(info, facts, state_.language)));
        if (const auto text = commandMenuText(info, facts, state_.language)) {
            setMenuText(*action, *text);
        }
    }
}

void MainWindow::comeToFront(const std::string& activationToken) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    // An open dialog has the keyboard. Not every window manager hands it on from the window behind.
    QWidget* dialog = QApplication::activeModalWidget();
    QWidget& front = dialog ? *dialog : *this;
    bringToFront(front, activationToken);
}

void MainWindow::endSession() {
    // Asked twice on the way out, it keeps one copy.
    if (!sessionEnds_) static_cast<void>(keepUnsavedScript(state_));
    rememberPlace();
    sessionEnds_ = true;
}

// The desktop takes the icon in every size at once, which can wait until the window is seen.
void MainWindow::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    if (testAttribute(Qt::WA_SetWindowIcon)) return;
    QTimer::singleShot(0, this, [this] { setWindowIcon(programIcon()); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    // A user who closes the window is there to be asked: the end of the session was called off.
    if (sessionEnds_ && !event->spontaneous()) state_.document.modified = false;
    event->setAccepted(mayDiscardChanges(DiscardingCommand::Exit));
    if (event->isAccepted()) rememberPlace();
}

}  // namespace quendra
