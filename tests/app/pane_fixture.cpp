#include "pane_fixture.h"

#include "scriptfile/entry_codec.h"

#include <QApplication>

namespace quendra {

EntryHandle remark(const std::string& text, const HiddenTextCipher& cipher) {
    ScriptEntry entry;
    entry.commandCode = CommandCode::Comment;
    setText(slotFields(entry, Slot::Entry), text);
    return packEntry(entry, cipher).entry;
}

PaneFixture::PaneFixture() {
    const std::filesystem::path programs = QApplication::applicationDirPath().toStdString();
    EXPECT_FALSE(state.language.load({programs, {}, {}}).has_value());
    const TextSource texts = state.language.textSource();
    state.luCatalogues = buildLuCatalogues(texts);
    state.menuCommands = buildMenuCommandCatalogue(texts);
    pane = new EditorPane(state);
    window.setCentralWidget(pane);
    script = pane->findChild<PaneList*>(QStringLiteral("scriptList"));
    events = pane->findChild<PaneList*>(QStringLiteral("scriptEventsPalette"));
    luFunctions = pane->findChild<PaneList*>(QStringLiteral("luFunctionsPalette"));
    menuCommands = pane->findChild<PaneList*>(QStringLiteral("menuCommandsPalette"));
    lists = {{{script, 311}, {events, 308}, {luFunctions, 309}, {menuCommands, 310}}};
    QObject::connect(pane, &EditorPane::commandRequested, pane,
                     [this](int command) { commands.push_back(command); });
    QObject::connect(pane, &EditorPane::selectionChanged, pane, [this] { ++selectionChanges; });
    QObject::connect(pane, &EditorPane::entriesMoved, pane, [this] { ++moves; });
    window.resize(600, 400);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    pane->takeFocus();
}

void PaneFixture::fillScript(int entries) {
    std::vector<std::string> texts;
    for (int i = 0; i < entries; ++i)
        texts.push_back("e" + std::to_string(i));
    showRemarks(texts);
}

void PaneFixture::showRemarks(const std::vector<std::string>& texts) {
    state.script.entries.clear();
    for (const std::string& text : texts)
        state.script.entries.push_back(remark(text, state.cipher));
    state.currentIndex = -1;
    pane->rebuildScriptList();
    selectionChanges = moves = 0;
}

std::string PaneFixture::lines() const {
    std::string all;
    for (int row = 0; row < script->model()->rowCount(); ++row)
        all += (row > 0 ? " " : "") + pane->entryText(row).toStdString();
    return all;
}

void PaneFixture::expectCurrent(const Rows& entries, int focused) const {
    EXPECT_EQ(selected(), entries);
    EXPECT_EQ(pane->focusedEntry(), focused);
    EXPECT_EQ(state.currentIndex, focused);
}

void PaneFixture::drag(QPoint from, QPoint to, Qt::KeyboardModifiers held) {
    press(from, held);
    moveTo(from + (to - from) / 2);
    moveTo(to);
    release(to, held);
    settle();
}

}  // namespace quendra
