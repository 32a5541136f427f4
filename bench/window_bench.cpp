// Edits in the real window, from the command to the finished painting: beside a bare repaint of the
// script list, within a frame of the screen, and growing with the script rather than with its
// square. Without QT_QPA_PLATFORM it needs no screen.
#include "app/command_handlers.h"
#include "app/find_bar.h"
#include "app/main_window.h"
#include "app/script_editor.h"
#include "pair.h"
#include "review/review_window.h"
#include "sample_scripts.h"
#include "scriptfile/entry_codec.h"
#include "session/live_check.h"
#include "widgets/appearance.h"
#include "widgets/message_box.h"
#include "widgets/ui_text.h"

#include <QApplication>
#include <QEventLoop>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QTimer>

#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <numeric>
#include <stdexcept>

namespace quendra::bench {

namespace {

constexpr double frame = 1e6 / 60;
constexpr std::size_t fewEntries = 1024;

/// Tells whether a widget has been painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    bool painted = false;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) painted = true;
        return false;
    }
};

/// The editor with a typical script of some length, its window shown and painted.
class Editor {
  public:
    explicit Editor(std::size_t entries);

    /// The whole script, untouched, with its middle in sight.
    void reset();
    void run(EditorCommand command) { window_->runCommand(command); }
    void select(const std::vector<std::size_t>& entries, std::size_t focused) {
        window_->pane().selectEntries(entries, static_cast<int>(focused));
    }
    void selectAll() { list_->selectAll(); }
    /// Drags the focused entry, and with it all that are selected, by some rows.
    void drag(int rows);
    /// Leaves so many entries of the script, the middle one focused.
    void shorten(std::size_t entries);
    void putOnClipboard(std::size_t entries);
    /// Returns when what the last change made necessary is painted.
    void waitUntilPainted();
    /// Returns when the last change has been checked, which is not part of the next one.
    static void settle() {
        QEventLoop loop;
        QTimer::singleShot(40, &loop, &QEventLoop::quit);
        loop.exec();
    }
    /// Opens the find bar without a text, on the whole script.
    void beginFinding();
    /// Types into the find bar.
    void find(const char* letters);
    [[nodiscard]] bool hasFound() const { return found_->text().contains(QLatin1Char('-')); }
    void repaintList() { list_->viewport()->repaint(); }
    void showGutter(bool shown) { window_->pane().showGutter(shown); }
    /// What follows a change when it has been painted.
    void checkScript() {
        LiveCheck check(state_);
        if (check.update() == LiveCheck::Change::None) throw std::runtime_error("not checked");
    }
    [[nodiscard]] const Script& script() const { return state_.script; }
    [[nodiscard]] ApplicationState& state() { return state_; }
    [[nodiscard]] std::size_t whole() const { return whole_.entryCount(); }
    /// Keeps the script as it is for prepared(), apart from what is timed.
    void markPrepared() { prepared_ = state_.script; }
    [[nodiscard]] const Script& prepared() const { return prepared_; }

  private:
    void showFrom(std::size_t focused);
    void sendMouse(QEvent::Type type, QPoint at, Qt::MouseButtons buttons);

    ApplicationState state_;
    Script whole_;
    Script prepared_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<ScriptEditor> commands_;
    std::unique_ptr<CommandHandlers> handlers_;
    QListView* list_ = nullptr;
    QLineEdit* find_ = nullptr;
    QLabel* found_ = nullptr;
    std::unique_ptr<PaintWatch> watch_;
};

Editor::Editor(std::size_t entries) : whole_(typicalScript(state_.cipher)) {
    whole_.entries.resize(entries);
    const std::filesystem::path programs = pathFromQt(QCoreApplication::applicationDirPath());
    if (state_.language.load({programs, programs, programs})) {
        throw std::runtime_error("no language library beside the program");
    }
    state_.luCatalogues = buildLuCatalogues(state_.language.textSource());
    state_.menuCommands = buildMenuCommandCatalogue(state_.language.textSource());
    window_ = std::make_unique<MainWindow>(state_);
    // Whoever edits an entry changes its text.
    commands_ = std::make_unique<ScriptEditor>(
        state_, *window_, [](const DialogContext&, const EditTarget& target) {
            Step& f = slotFields(target.entry, Slot::Entry);
            setText(f, textOf(f) == "edited" ? "edited again" : "edited");
            return true;
        });
    handlers_ = std::make_unique<CommandHandlers>(state_, *window_, *commands_);
    list_ = window_->findChild<QListView*>(QStringLiteral("scriptList"));
    find_ = window_->findChild<QLineEdit*>(QStringLiteral("findText"));
    found_ = window_->findChild<QLabel*>(QStringLiteral("findCount"));
    watch_ = std::make_unique<PaintWatch>(*list_->viewport());
    window_->show();
    window_->pane().takeFocus();
    reset();
}

void Editor::reset() {
    state_.script = state_.document.saved = whole_;
    state_.history.clear();
    showFrom(whole() / 2);
}

void Editor::shorten(std::size_t entries) {
    state_.script.entries.resize(entries);
    state_.document.saved = state_.script;
    showFrom(entries / 2);
}

void Editor::showFrom(std::size_t focused) {
    const std::size_t entries[] = {focused};
    window_->pane().showScript({{}, -1});
    window_->pane().selectEntries(entries, static_cast<int>(focused));
    window_->scriptChanged();
    waitUntilPainted();
}

void Editor::putOnClipboard(std::size_t entries) {
    state_.entryClipboard.assign(whole_.entries.begin(),
                                 whole_.entries.begin() + static_cast<std::ptrdiff_t>(entries));
    window_->updateCommandStates();
}

void Editor::waitUntilPainted() {
    list_->viewport()->update();
    watch_->painted = false;
    while (!watch_->painted) {
        QCoreApplication::processEvents();
    }
}

void Editor::beginFinding() {
    run(EditorCommand::Find);
    find_->clear();
    window_->findBar().open();
}

void Editor::find(const char* letters) {
    for (const char* letter = letters; *letter != 0; ++letter) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QLatin1Char(*letter)));
        QCoreApplication::sendEvent(find_, &press);
    }
}

void Editor::drag(int rows) {
    const QRect row = list_->visualRect(list_->currentIndex());
    const QPoint from = row.center();
    const QPoint to = from + QPoint(0, rows * row.height());
    sendMouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
    sendMouse(QEvent::MouseMove, (from + to) / 2, Qt::LeftButton);
    sendMouse(QEvent::MouseMove, to, Qt::LeftButton);
    sendMouse(QEvent::MouseButtonRelease, to, Qt::NoButton);
}

void Editor::sendMouse(QEvent::Type type, QPoint at, Qt::MouseButtons buttons) {
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, QPointF(at), QPointF(list_->viewport()->mapToGlobal(at)), button,
                      buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(list_->viewport(), &event);
}

/// One thing that a user does: what has to be there before, and the doing up to the last command.
struct Action {
    const char* name;
    std::function<void(Editor&)> prepare;
    std::function<void(Editor&)> perform;
    /// The number of entries of the script that must come of it.
    std::size_t (*entriesAfter)(std::size_t whole);
};

void check(const Action& action, const Editor& editor) {
    if (editor.script().entryCount() != action.entriesAfter(editor.whole()) ||
        editor.script() == editor.prepared()) {
        throw std::runtime_error(std::string(action.name) + " did not do what it should");
    }
}

// Nearly half of the script: 2,000 of 4,096 entries.
std::size_t many(std::size_t whole) {
    return whole * 2000 / maxEntries;
}

std::vector<std::size_t> rowsAround(const Editor& editor, std::size_t step) {
    const std::size_t middle = editor.whole() / 2;
    const std::size_t count = many(editor.whole());
    std::vector<std::size_t> rows(count);
    for (std::size_t i = 0; i < count; ++i) {
        rows[i] = middle + i * step - count / 2 * step;
    }
    return rows;
}

std::size_t allOf(std::size_t whole) {
    return whole;
}
std::size_t noneOf(std::size_t) {
    return 0;
}
std::size_t withoutMany(std::size_t whole) {
    return whole - many(whole);
}

void deleteAll(Editor& editor) {
    editor.selectAll();
    editor.run(EditorCommand::DeleteEntries);
}

void preparePaste(Editor& editor) {
    editor.putOnClipboard(many(editor.whole()));
    editor.shorten(withoutMany(editor.whole()));
}

const std::vector<Action>& actions() {
    const auto undo = [](Editor& editor) { editor.run(EditorCommand::Undo); };
    const auto paste = [](Editor& editor) { editor.run(EditorCommand::Paste); };
    const auto drag = [](Editor& editor) { editor.drag(-5); };
    const auto selectEvery = [](std::size_t step) {
        return
            [step](Editor& editor) { editor.select(rowsAround(editor, step), editor.whole() / 2); };
    };
    static const std::vector<Action> all = {
        {"edit", [](Editor&) {}, [](Editor& editor) { editor.run(EditorCommand::EditEntry); },
         allOf},
        {"deleteAll", [](Editor&) {}, deleteAll, noneOf},
        {"undoDeleteAll", deleteAll, undo, allOf},
        {"paste", preparePaste, paste, allOf},
        {"undoPaste",
         [paste](Editor& editor) {
             preparePaste(editor);
             paste(editor);
         },
         undo, withoutMany},
        {"dragBlock", selectEvery(1), drag, allOf},
        {"dragEverySecond", selectEvery(2), drag, allOf},
    };
    return all;
}

struct Editors {
    Editor few{fewEntries};
    Editor most{maxEntries};
    /// Only its list is painted.
    Editor untouched{maxEntries};
};

void prepare(const Action& action, Editor& editor) {
    editor.reset();
    action.prepare(editor);
    editor.waitUntilPainted();
    Editor::settle();
    editor.markPrepared();
}

void perform(const Action& action, Editor& editor) {
    action.perform(editor);
    editor.waitUntilPainted();
    check(action, editor);
}

void untilPainted(benchmark::State& state, const Action& action, Editors& editors, Goal goal) {
    comparePair(
        state, [&] { editors.untouched.repaintList(); }, [&] { perform(action, editors.most); },
        [&] { prepare(action, editors.most); }, goal);
}

void growth(benchmark::State& state, const Action& action, Editors& editors) {
    comparePair(
        state, [&] { perform(action, editors.few); }, [&] { perform(action, editors.most); },
        [&] {
            prepare(action, editors.few);
            prepare(action, editors.most);
        },
        {.ratio = 5});
}

// The numbers of the steps and the jumps, beside the list without them.
void gutter(benchmark::State& state, Editors& editors) {
    editors.most.reset();
    editors.untouched.showGutter(false);
    comparePair(
        state, [&] { editors.untouched.repaintList(); }, [&] { editors.most.repaintList(); }, [] {},
        {.ratio = 1.15});
    editors.untouched.showGutter(true);
}

void liveCheck(benchmark::State& state, Editors& editors) {
    editors.most.reset();
    comparePair(
        state, [&] { editors.untouched.repaintList(); }, [&] { editors.most.checkScript(); }, [] {},
        {.microseconds = 2000});
}

// A letter that most entries have, to the finished painting.
void findAsTyped(benchmark::State& state, Editors& editors) {
    comparePair(
        state, [&] { editors.untouched.repaintList(); },
        [&] {
            editors.most.find("e");
            editors.most.waitUntilPainted();
            if (!editors.most.hasFound()) throw std::runtime_error("nothing was found");
        },
        [&] {
            editors.most.reset();
            editors.most.beginFinding();
            editors.most.waitUntilPainted();
        },
        {.microseconds = 5000});
}

/// From nothing to a comparison that is painted.
void openComparison(ApplicationState& state, const Script& left, const Script& right) {
    ReviewWindow window(state);
    window.compare({left, HostType::Mainframe, "left", {}, {}},
                   {right, HostType::Mainframe, "right", {}, {}});
    PaintWatch watch(*window.findChild<QListView*>()->viewport());
    window.show();
    while (!watch.painted) {
        QCoreApplication::processEvents();
    }
}

// Beside the same window without a script: what it takes itself.
void registerComparison(Editors& editors) {
    benchmark::RegisterBenchmark("compare/painted", [&editors](benchmark::State& state) {
        ApplicationState& shared = editors.untouched.state();
        const Script left = typicalScript(shared.cipher);
        const Script right = changedScript(left, 0, 10, "changed ");
        comparePair(
            state, [&] { openComparison(shared, {}, {}); },
            [&] { openComparison(shared, left, right); }, [] {}, {.microseconds = 2 * frame});
    })->UseManualTime();
}

void registerAll(Editors& editors) {
    registerComparison(editors);
    benchmark::RegisterBenchmark("gutter/repaint", [&editors](benchmark::State& state) {
        gutter(state, editors);
    })->UseManualTime();
    benchmark::RegisterBenchmark("check/afterChange", [&editors](benchmark::State& state) {
        liveCheck(state, editors);
    })->UseManualTime();
    benchmark::RegisterBenchmark("find/painted", [&editors](benchmark::State& state) {
        findAsTyped(state, editors);
    })->UseManualTime();
    for (const Action& action : actions()) {
        const bool isEdit = std::string_view(action.name) == "edit";
        const Goal goal{.ratio = isEdit ? 1.7 : 0, .microseconds = frame};
        const std::string name = action.name;
        benchmark::RegisterBenchmark((name + "/painted").c_str(), [&action, &editors,
                                                                   goal](benchmark::State& state) {
            untilPainted(state, action, editors, goal);
        })->UseManualTime();
        benchmark::RegisterBenchmark(
            (name + "/4096_over_1024").c_str(),
            [&action, &editors](benchmark::State& state) { growth(state, action, editors); })
            ->UseManualTime();
    }
}

}  // namespace

}  // namespace quendra::bench

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    quendra::applyAppearance(quendra::Appearance::Light);
    quendra::replaceMessageHandler(
        [](QWidget*, const quendra::Message&) { return quendra::MessageAnswer::Yes; });
    quendra::bench::Editors editors;
    quendra::bench::registerAll(editors);
    benchmark::RunSpecifiedBenchmarks();
}
