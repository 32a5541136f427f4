#include "pane_fixture.h"

#include "scriptfile/entry_codec.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

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
    state.script.entries.clear();
    for (int i = 0; i < entries; ++i) {
        state.script.entries.push_back(remark("e" + std::to_string(i), state.cipher));
    }
    state.currentIndex = -1;
    pane->rebuildScriptList();
}

std::string PaneFixture::lines() const {
    std::string all;
    for (int row = 0; row < script->model()->rowCount(); ++row) {
        all += (row > 0 ? " " : "") + pane->entryText(row).toStdString();
    }
    return all;
}

QPoint PaneFixture::onRow(const PaneList& list, int row) const {
    return list.viewport()->mapTo(&window, list.rowRect(row).center() - QPoint(40, 0));
}

QPoint PaneFixture::belowRows(const PaneList& list) const {
    return list.viewport()->mapTo(&window, list.viewport()->rect().bottomLeft() + QPoint(50, -3));
}

void PaneFixture::press(QPoint point, Qt::KeyboardModifiers held) {
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, held, point);
}

void PaneFixture::moveTo(QPoint point) {
    QTest::mouseMove(window.windowHandle(), point);
}

void PaneFixture::release(QPoint point, Qt::KeyboardModifiers held) {
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, held, point);
}

void PaneFixture::click(QPoint point, Qt::KeyboardModifiers held) {
    press(point, held);
    release(point, held);
}

void PaneFixture::doubleClick(QPoint point) {
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, point);
}

void PaneFixture::key(int key, Qt::KeyboardModifiers held) {
    QTest::keyClick(window.windowHandle(), static_cast<Qt::Key>(key), held);
}

void PaneFixture::drag(QPoint from, QPoint to) {
    press(from);
    moveTo(from + (to - from) / 2);
    moveTo(to);
    release(to);
    settle();
}

void PaneFixture::settle() {
    QApplication::processEvents();
}

bool PaneFixture::dragShows() const {
    return pane->findChild<QWidget*>(QStringLiteral("dragImage")) != nullptr;
}

}  // namespace quendra
