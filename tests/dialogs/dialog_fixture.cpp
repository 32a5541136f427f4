#include "dialogs/dialog_fixture.h"

#include <QApplication>

#include <fstream>

namespace quendra {

void PrintTo(const ScriptEntry& entry, std::ostream* out) {
    for (const Slot slot : test::allSlots) {
        const auto f = slotFields(entry, slot);
        *out << test::slotSuffix(slot) << ": code " << static_cast<int>(f.code) << " text \""
             << textOf(f) << "\" prompt \"" << promptOf(f) << '"' << std::hex << std::showbase;
        for (const std::uint32_t number :
             {f.number, f.commandId, f.area, std::uint32_t{f.row}, std::uint32_t{f.column},
              std::uint32_t{f.maxLength}, std::uint32_t{f.hidden}, std::uint32_t{f.inputVariable}})
            *out << ' ' << number;
        *out << std::dec << " until " << f.waitUntil.year << '-' << f.waitUntil.month << '-'
             << f.waitUntil.day << ' ' << f.waitUntil.hour << ':' << f.waitUntil.minute << '\n';
    }
}

namespace test {

ScriptEntry newEntry(CommandCode code) {
    ScriptEntry entry;
    entry.commandCode = code;
    entry.number = code == CommandCode::WaitReady ? 1 : 3;
    entry.maxLength = 255;
    if (code == CommandCode::Copy) entry.commandId = packArea({1, 1, 24, 80});
    if (code == CommandCode::Paste) entry.commandId = packArea({1, 1, 0, 0});
    if (code == CommandCode::Copy || code == CommandCode::Paste) entry.number = 0;
    if (code == CommandCode::WaitFor)
        entry.searchRow = entry.searchColumn = entry.caseSensitive = 1;
    return entry;
}

void useLanguage(ApplicationState& state, const std::string& name) {
    const auto& settings = state.settings;
    std::ofstream(settings.configDir / "language.ini") << "[Language]\nLanguage=" << name << '\n';
    const auto notice =
        state.language.load({settings.programDir, settings.configDir, settings.installDir});
    if (notice) throw std::runtime_error(notice->text);
    state.luCatalogues = buildLuCatalogues(state.language.textSource());
    state.menuCommands = buildMenuCommandCatalogue(state.language.textSource());
}

std::string slotSuffix(Slot slot) {
    return slot == Slot::Entry ? "AsEntry" : slot == Slot::Then ? "AsThen" : "AsElse";
}

void DialogContextTest::expectTold(const std::string& text, const std::string& caption) {
    ASSERT_EQ(answers.messages.size(), 1U) << text;
    EXPECT_EQ(answers.messages[0].text, text);
    EXPECT_EQ(answers.messages[0].title, caption);
    EXPECT_EQ(answers.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(answers.messages[0].buttons, MessageButtons::Ok);
    answers.messages.clear();
}

void DialogContextTest::startWith(CommandCode code, Slot slot, std::uint32_t commandId) {
    entry = newEntry(slot == Slot::Entry ? code : CommandCode::WaitFor);
    slotFields(entry, slot).code = code;
    if (commandId != 0) slotFields(entry, slot).commandId = commandId;
}

void DialogTest::open(Slot slot, ActionOwner owner) {
    opened_ = makeCommandDialog({state, nullptr}, {entry, slot, owner});
    if (opened_ == nullptr) throw std::runtime_error("the command has no dialog");
    dialog = opened_.get();
    opened_->load();
    dialog->show();
    QApplication::setActiveWindow(dialog);
    QCoreApplication::processEvents();
}

void DialogTest::openNew(CommandCode code) {
    entry = newEntry(code);
    open();
}

void SearchDialogTest::startWithTimeout() {
    entry = newEntry(CommandCode::WaitFor);
    setText(own(), "READY");
    entry.hasTimeout = 1;
}

void SearchDialogTest::startCompare() {
    entry = newEntry(CommandCode::IfInputIs);
    setText(own(), "yes");
}

bool SearchDialogTest::run(Slot slot) {
    const EditTarget target = {entry, slot, ActionOwner::WaitForOrWatchFor};
    return steps.run([&] { return editParameters({state, nullptr}, target); });
}

bool SearchDialogTest::choose(Slot slot, ActionOwner owner) {
    return steps.run([&] { return chooseAction({state, nullptr}, {entry, slot, owner}); });
}

void SearchDialogTest::chooseRow(const char* list, const std::string& text) {
    steps.in("actionDialog", [list, text](const OpenDialog& d) {
        d.clickRow(list, text);
        d.click("ok");
    });
}

void SearchDialogTest::click(const char* dialog, const char* button) {
    steps.in(dialog, [button](const OpenDialog& d) { d.click(button); });
}

}  // namespace test
}  // namespace quendra
