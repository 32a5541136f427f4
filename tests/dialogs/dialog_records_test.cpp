// From the record to the widgets and back, for every command in every slot: nothing that was not
// edited changes, what was edited goes where the file looks for it, and what is empty is refused.
#include "support/dialog_fixture.h"

#include <QDateEdit>

#include <algorithm>
#include <sstream>
#include <vector>

namespace quendra::test {
namespace {

using Code = CommandCode;

// Calls `act` for each "name=value" of a list that is parted by "|".
template <class Act>
void forEach(const std::string& list, const Act& act) {
    std::istringstream items(list);
    for (std::string item; std::getline(items, item, '|');) {
        const std::size_t end = std::min(item.find('='), item.size());
        act(item.substr(0, end), end == item.size() ? "" : item.substr(end + 1));
    }
}

// Where a slot keeps what, written down apart from the code under test.
void putOne(ScriptEntry& e, Slot slot, const std::string& name, const std::string& value) {
    const auto in = [slot](auto& entry, auto& thenPart, auto& elsePart) -> auto& {
        return slot == Slot::Entry ? entry : slot == Slot::Then ? thenPart : elsePart;
    };
    const auto fill = [&](auto& field) {
        field.fill('\0');
        std::ranges::copy(value, field.begin());
        return value.size();
    };
    const auto number = [&] { return static_cast<std::uint32_t>(std::stoul(value, nullptr, 0)); };
    const auto byte = [&] { return static_cast<std::uint8_t>(number()); };
    if (name == "text")
        in(e.textLength, e.thenAction.textLength, e.elseAction.textLength) =
            static_cast<std::uint8_t>(fill(in(e.text, e.thenAction.text, e.elseAction.text)));
    if (name == "prompt")
        in(e.number, e.thenAction.number, e.elseAction.number) = static_cast<std::uint32_t>(
            fill(in(e.prompt, e.thenAction.prompt, e.elseAction.prompt)));
    if (name == "number") in(e.number, e.thenAction.number, e.elseAction.number) = number();
    if (name == "menu") in(e.commandId, e.thenAction.commandId, e.elseAction.commandId) = number();
    if (name == "area") in(e.area, e.thenAction.area, e.elseAction.area) = number();
    if (name == "row") in(e.row, e.thenAction.row, e.elseAction.row) = byte();
    if (name == "column") in(e.column, e.thenAction.column, e.elseAction.column) = byte();
    if (name == "hidden") in(e.hidden, e.thenAction.hidden, e.elseAction.hidden) = byte();
    if (name == "length") in(e.maxLength, e.thenAction.maxLength, e.elseAction.maxLength) = byte();
    if (name == "variable")
        in(e.inputVariable, e.thenAction.inputVariable, e.elseAction.inputVariable) = byte();
    if (name == "until") {
        DateTime& d = in(e.waitUntil, e.thenAction.waitUntil, e.elseAction.waitUntil);
        std::istringstream(value) >> d.year >> d.month >> d.dayOfWeek >> d.day >> d.hour >>
            d.minute >> d.second >> d.milliseconds;
    }
}

void put(ScriptEntry& entry, Slot slot, const std::string& list) {
    forEach(list, [&](const std::string& name, const std::string& value) {
        const ScriptEntry before = entry;
        putOne(entry, slot, name, value);
        if (entry == before) throw std::runtime_error("no change by " + name + '=' + value);
    });
}

// Every field differs from every other, so that a value from the wrong slot shows.
ScriptEntry crowdedEntry(Code owner) {
    ScriptEntry e;
    for (const Slot slot : allSlots) {
        const auto n = std::to_string(static_cast<int>(slot) + 1);
        put(e, slot,
            "prompt=prompt " + n + "|text=text " + n + "|row=1" + n + "|column=2" + n +
                "|variable=" + n + "|length=4" + n + "|until=2031 2 3 1" + n + " 6 7 8 9");
    }
    e.code = owner;
    e.hidden = 0;
    e.commandData = 0x11121314;
    e.thenAction.commandData = 0x41424344;
    e.thenAction.area = 0x51525354;
    e.elseAction.commandData = 0x21222324;
    e.elseAction.area = 0x31323334;
    return e;
}

const std::string oldText = "text=old \x80\x9f text";
const std::string retyped = "text=\u20ac n\u00e9w \u00ff";
const std::string newText = "text=\x80 n\xe9w \xff";
const std::string oldFile = "text=C:\\old.qmd";
const std::string newFile = "text=new.exe";

const struct {
    const char* title;
    Code code;
    std::string before;
    /// What is typed into fields, the items that are chosen in lists; a button is clicked.
    std::string edits;
    std::string after;
} rows[] = {
    {"Comment", Code::Comment, oldText, retyped, newText},
    {"Goto", Code::Goto, oldText, retyped, newText},
    {"Label", Code::Label, oldText, retyped, newText},
    {"Message", Code::Message, oldText, retyped, newText},
    {"Express_Logon", Code::ExpressLogon, oldText, retyped, newText},
    {"Type", Code::Type, oldText, retyped, newText},
    {"Type", Code::Type, oldText + "|hidden=1", retyped, newText},
    {"Type", Code::Type, oldText, "hide", "hidden=1"},
    {"Wait", Code::Wait, "number=77", "number=4294967295", "number=4294967295"},
    {"Wait_Ready", Code::WaitReady, "number=4000000000", "number=0", "number=0"},
    {"Run Program", Code::Run, oldFile, "file=new.exe", newFile},
    {"Open Session", Code::MenuCommand, oldFile + "|menu=202", "file=new.exe", newFile},
    {"Save Session As", Code::MenuCommand, oldFile + "|menu=204", "file=new.exe", newFile},
    {"Paste From File", Code::MenuCommand, oldFile + "|menu=219", "file=new.exe", newFile},
    {"Run Macro", Code::MenuCommand, oldFile + "|menu=254", "file=new.exe", newFile},
    {"Edit Macro", Code::MenuCommand, oldFile + "|menu=257", "file=new.exe", newFile},
    {"Set_Cursor", Code::SetCursor, "row=0|column=255", "row=24|column=132", "row=24|column=132"},
    {"Copy to Clipboard", Code::Copy, "number=0|area=0x50180102",
     "startRow=3|startColumn=4|endRow=5|endColumn=255", "area=0xff050403"},
    {"Copy to Clipboard", Code::Copy, "number=0", "entireScreen", "number=1"},
    {"Paste from Clipboard", Code::Paste, "number=0|area=0x0201", "row=7|column=8", "area=0x0807"},
    {"Paste from Clipboard", Code::Paste, "number=1|area=0x0201", "atCursor", "number=0"},
    {"Input", Code::Input, "prompt=one\r\ntwo\r\n\r\nfour\xa0no break|length=2|hidden=1",
     "title=new title|prompt=\u20ac\nb\n|hideInput|maximumLength=40|variable=5",
     "text=new title|prompt=\x80\r\nb\r\n|hidden=0|length=40|variable=5"},
    {"Input", Code::Input, "prompt=lone\nbreaks\rstay|length=0", "hideInput|variable=0",
     "hidden=1|variable=0"},
    {"Input", Code::Input, "variable=9", "hideInput", "hidden=1"},
    {"Wait_Until", Code::WaitUntil, "until=2024 2 4 29 23 59 58 0", "date=9999-12-31|time=01:02:03",
     "until=9999 12 5 31 1 2 3 0"},
    {"Wait_Until", Code::WaitUntil, "until=2026 11 0 22 1 0 0 0", "date=1601-01-01",
     "until=1601 1 1 1 1 0 0 0"},
    {"Wait_Until", Code::WaitUntil, "until=2030 5 6 4 0 0 0 0", "hasDate|hasTime|time=12:30:15",
     "until=0 0 0 0 12 30 15 0"},
    {"Wait_Until", Code::WaitUntil, "until=0 0 0 0 12 30 15 500", "hasDate|hasTime|date=2030-05-04",
     "until=2030 5 6 4 0 0 0 0"},
};

class DialogRecords : public DialogTest {
  protected:
    void edit(const std::string& field, const std::string& value) {
        const auto text = QString::fromStdString(value);
        if (auto* date = qobject_cast<QDateEdit*>(&widget(field))) {
            date->setDate(QDate::fromString(text, Qt::ISODate));
        } else if (auto* time = qobject_cast<QTimeEdit*>(&widget(field))) {
            time->setTime(QTime::fromString(text, Qt::ISODate));
        } else if (widget(field).inherits("QComboBox")) {
            choose(field, text.toInt());
        } else if (value.empty()) {
            click(field);
        } else {
            retype(field, value);
        }
    }
    void openAndEdit(Slot slot, const std::string& edits) {
        open(slot);
        forEach(edits, [this](const auto& field, const auto& value) { edit(field, value); });
    }
    /// Of these fields the lines are required: the first that is empty gets the focus.
    void expectEmptyLinesRefused(const std::string& fields) {
        std::vector<std::string> lines;
        forEach(fields, [&](const std::string& field, const std::string& /*value*/) {
            if (widget(field).inherits("QLineEdit")) lines.insert(lines.begin(), field);
        });
        for (const std::string& field : lines) {
            widget<QLineEdit>(field).clear();
            widget("cancel").setFocus();
            click("ok");
            expectTold("A value is required in this field.",
                       has("file") ? "File Operation" : title());
            EXPECT_TRUE(dialog->isVisible());
            EXPECT_EQ(focused(), field);
        }
    }
};

TEST_F(DialogRecords, AnEditGoesIntoItsSlotAndNowhereElseAndOnlyAtOk) {
    for (const auto& row : rows) {
        for (const Slot slot : allSlots) {
            SCOPED_TRACE(row.title + (" in slot " + std::to_string(static_cast<int>(slot))));
            entry = crowdedEntry(slot == Slot::Entry ? row.code : Code::WaitFor);
            slotFields(entry, slot).code = row.code;
            put(entry, slot, row.before);
            ScriptEntry expected = entry;
            open(slot);
            EXPECT_EQ(title(), row.title);
            click("ok");
            EXPECT_TRUE(endedWithOk());
            EXPECT_EQ(entry, expected) << "OK without an edit";
            openAndEdit(slot, row.edits);
            expectEmptyLinesRefused(row.edits);
            press(Qt::Key_Escape);
            EXPECT_TRUE(!dialog->isVisible() && dialog->result() == QDialog::Rejected);
            EXPECT_EQ(entry, expected) << "Escape behind an edit";
            entry = expected;
            openAndEdit(slot, row.edits);
            click("ok");
            EXPECT_TRUE(endedWithOk());
            put(expected, slot, row.after);
            EXPECT_EQ(entry, expected);
        }
    }
}

}  // namespace
}  // namespace quendra::test
