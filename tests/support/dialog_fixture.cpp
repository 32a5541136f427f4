#include "support/dialog_fixture.h"

#include <QApplication>

namespace quendra::test {

void DialogContextTest::expectTold(const std::string& text, const std::string& caption) {
    ASSERT_EQ(answers.messages.size(), 1U) << text;
    EXPECT_EQ(answers.messages[0].text, text);
    EXPECT_EQ(answers.messages[0].title, caption);
    EXPECT_EQ(answers.messages[0].icon, MessageIcon::Information);
    answers.messages.clear();
}

void DialogContextTest::startWith(CommandCode code, Slot slot, std::uint32_t commandId) {
    entry = newCommand(slot == Slot::Entry ? code : CommandCode::WaitFor);
    slotFields(entry, slot).code = code;
    if (commandId != 0) slotFields(entry, slot).commandId = commandId;
}

void DialogTest::open(Slot slot) {
    opened_ = makeCommandDialog({state, nullptr}, {entry, slot, ActionOwner::WaitForOrWatchFor});
    if (opened_ == nullptr) throw std::runtime_error("the command has no dialog");
    dialog = opened_.get();
    opened_->load();
    dialog->show();
    QApplication::setActiveWindow(dialog);
    QCoreApplication::processEvents();
}

void DialogTest::openNew(CommandCode code) {
    entry = newCommand(code);
    open();
}

void SearchDialogTest::startWithTimeout() {
    entry = newCommand(CommandCode::WaitFor);
    setText(own(), "READY");
    entry.hasTimeout = 1;
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

}  // namespace quendra::test
