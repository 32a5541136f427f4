#include "support/dialog_showcase.h"

#include <QCoreApplication>

namespace quendra::test {

namespace {

using Code = CommandCode;

constexpr ShownDialog dialogs[] = {
    {"Comment", Code::Comment},
    {"Goto", Code::Goto},
    {"Label", Code::Label},
    {"Message", Code::Message},
    {"Type", Code::Type},
    {"TypeHidden", Code::Type, 0, "hide"},
    {"ExpressLogon", Code::ExpressLogon},
    {"Wait", Code::Wait},
    {"WaitReady", Code::WaitReady},
    {.name = "WaitElse", .code = Code::Wait, .slot = Slot::Else},
    {.name = "WaitReadyElse", .code = Code::WaitReady, .slot = Slot::Else},
    {"Run", Code::Run},
    {"Menu202", Code::MenuCommand, 202},
    {"Menu204", Code::MenuCommand, 204},
    {"Menu219", Code::MenuCommand, 219},
    {"Menu254", Code::MenuCommand, 254},
    {"Menu257", Code::MenuCommand, 257},
    {"SetCursor", Code::SetCursor},
    {"Copy", Code::Copy},
    {"Paste", Code::Paste},
    {"Input", Code::Input, 0, "prompt", "Code of the day.\nIt has six digits.\u4e2d"},
    {"WaitUntil", Code::WaitUntil, 0, "hasTime"},
    {"WaitFor", Code::WaitFor, 0, "noTimeout"},
    {"WaitForFault", Code::WaitFor, 0, "row", "70"},
    {.name = "WatchedWaitFor", .code = Code::WaitFor, .slot = Slot::Then},
    {"IfInputIs", Code::IfInputIs},
    {"WatchFor", Code::WatchFor},
    {"TransferFault", Code::MenuCommand, 236, "pcFileName", "report\u0416"},
    {"TransferVmCms", Code::MenuCommand, 236, "transferHost0"},
    {"TransferTso", Code::MenuCommand, 236, "transferHost1"},
    {"TransferCics", Code::MenuCommand, 237, "transferHost2"},
    {"TransferAdvanced", Code::MenuCommand, 236, "tabs"},
    {.name = "WaitForAction", .code = Code::WaitFor, .chooses = ActionOwner::WaitForOrWatchFor},
    {.name = "IfInputIsAction", .code = Code::IfInputIs, .chooses = ActionOwner::IfInputIs},
};

}  // namespace

std::span<const ShownDialog> shownDialogs() {
    return dialogs;
}

void DialogShowcase::show(const ShownDialog& row, const std::function<void(QDialog&)>& look) {
    startWith(row.code, row.slot, row.commandId);
    setText(own(), "TSO LOGON");
    entry.hasTimeout = 1;
    entry.transferHost = transferHostTso;
    entry.secondOperandKind = 2;
    if (row.slot != Slot::Else) otherwise().code = Code::Message;
    setText(otherwise(), "The host did not answer within half a minute & the script goes on.");
    if (row.slot == Slot::Then) entry.code = Code::WatchFor;
    steps.in(anyDialog, [&](const OpenDialog& d) {
        const std::string field = row.field;
        if (field == "tabs") {
            d.showTab(1);
        } else if (!field.empty()) {
            *row.text != '\0' ? d.retype(field, row.text) : d.click(field);
        }
        QCoreApplication::processEvents();
        look(*d.dialog);
        d.click("cancel");
    });
    EXPECT_FALSE(row.chooses == ActionOwner::None ? run(row.slot)
                                                  : choose(Slot::Then, row.chooses));
}

}  // namespace quendra::test
