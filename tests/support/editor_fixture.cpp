#include "support/editor_fixture.h"

#include "widgets/ui_text.h"

#include <QApplication>

#include <fstream>

namespace quendra::test {

EditorState::EditorState(const std::string& language) {
    state.settings.programDir = pathFromQt(QCoreApplication::applicationDirPath());
    state.settings.installDir = folder.path() / "installed";
    state.settings.workingDir = folder.path();
    state.settings.scriptsDir = folder.path();
    state.settings.transferDir = folder.path();
    state.settings.configDir = folder.path() / "Config";
    std::filesystem::create_directory(state.settings.configDir);
    std::ofstream(state.settings.configDir / "language.ini")
        << "[Language]\nLanguage=" << language << "\n";
    const auto notice = state.language.load(
        {state.settings.programDir, state.settings.configDir, state.settings.installDir});
    if (notice) throw std::runtime_error(notice->text);
    state.luCatalogues = buildLuCatalogues(state.language.textSource());
    state.menuCommands = buildMenuCommandCatalogue(state.language.textSource());
}

namespace {

// Takes the first of the prepared answers, the other one when none is left.
template <class Answer>
Answer takeFirst(std::deque<Answer>& answers, Answer otherwise) {
    if (answers.empty()) return otherwise;
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

}  // namespace

Answers::Answers() {
    messagesBefore_ = replaceMessageHandler([this](QWidget*, const Message& message) {
        messages.push_back(message);
        if (message.buttons == MessageButtons::Ok) return MessageAnswer::Ok;
        EXPECT_FALSE(toMessages.empty()) << "unexpected question: " << message.text;
        return takeFirst(toMessages, MessageAnswer::Cancel);
    });
    fileDialogsBefore_ = replaceFileDialogHandler(
        [this](QWidget*, const FileDialogRequest& request) -> std::optional<std::filesystem::path> {
            fileDialogs.push_back(request);
            EXPECT_FALSE(toFileDialogs.empty()) << "unexpected file dialog: " << request.title;
            return takeFirst(toFileDialogs, {});
        });
}

Answers::~Answers() {
    EXPECT_TRUE(toMessages.empty()) << "a prepared answer was never asked for";
    EXPECT_TRUE(toFileDialogs.empty()) << "a prepared file name was never asked for";
    replaceMessageHandler(std::move(messagesBefore_));
    replaceFileDialogHandler(std::move(fileDialogsBefore_));
}

EditorTest::EditorTest()
    : window(state),
      scriptEditor(state, window,
                   [this](const DialogContext&, const EditTarget& target) {
                       EXPECT_FALSE(toDialogs.empty()) << commandKeyword(target.entry.code);
                       return takeFirst<DialogAnswer>(
                           toDialogs, [](ScriptEntry&) { return false; })(target.entry);
                   }),
      handlers(state, window, scriptEditor) {
    window.show();
    QApplication::setActiveWindow(&window);
}

EditorTest::~EditorTest() {
    EXPECT_TRUE(toDialogs.empty()) << "a prepared dialog was never opened";
}

std::filesystem::path EditorTest::open(const std::string& name, const Bytes& bytes) {
    const auto path = editor.folder / name;
    writeBytes(path, bytes);
    run(EditorCommand::Open, path);
    return path;
}

std::string EditorTest::lines() {
    std::string all;
    for (int row = 0; row < script().model()->rowCount(); ++row)
        all += (row > 0 ? "|" : "") + window.pane().entryText(row).toStdString();
    return all;
}

void EditorTest::expectScript(const std::string& expected, const std::vector<std::size_t>& selected,
                              int focused) {
    EXPECT_EQ(lines(), expected);
    EXPECT_EQ(window.pane().selectedEntries(), selected);
    EXPECT_EQ(window.pane().focusedEntry(), focused);
    EXPECT_EQ(state.currentIndex, focused);
}

}  // namespace quendra::test
