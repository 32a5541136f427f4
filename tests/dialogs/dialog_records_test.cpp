// From the record to the widgets and back, for every command in every slot: nothing that was not
// edited changes, and what was edited goes where the file looks for it.
#include "dialogs/dialog_fixture.h"

#include <QComboBox>
#include <QDateEdit>
#include <QPlainTextEdit>
#include <QSpinBox>

namespace quendra::test {
namespace {

using std::string_view_literals::operator""sv;

// Where a slot keeps what, written down apart from the code under test.
struct Place {
    ScriptEntry& e;
    Slot slot;

    template <class T>
    T& pick(T& entry, T& thenPart, T& elsePart) const {
        return slot == Slot::Entry ? entry : slot == Slot::Then ? thenPart : elsePart;
    }
    CommandCode& code() const { return pick(e.commandCode, e.thenCode, e.elseCode); }
    std::uint32_t& number() const { return pick(e.number, e.number, e.elseNumber); }
    std::uint8_t& row() const { return pick(e.row, e.row, e.elseRow); }
    std::uint8_t& column() const { return pick(e.column, e.column, e.elseColumn); }
    std::uint32_t& menuId() const { return pick(e.commandId, e.commandId, e.elseCommandId); }
    std::uint32_t& area() const { return pick(e.commandId, e.commandId, e.elseArea); }
    std::uint8_t& hidden() const { return pick(e.hidden, e.hidden, e.elseHidden); }
    std::uint8_t& maxLength() const { return pick(e.maxLength, e.maxLength, e.elseMaxLength); }
    std::uint8_t& variable() const {
        return pick(e.inputVariable, e.inputVariable, e.elseInputVariable);
    }
    DateTime& waitUntil() const { return pick(e.waitUntil, e.thenWaitUntil, e.elseWaitUntil); }
    void setText(std::string_view text) const {
        auto& field = pick(e.text, e.thenText, e.elseText);
        field.fill('\0');
        std::copy(text.begin(), text.end(), field.begin());
        pick(e.textLength, e.thenTextLength, e.elseTextLength) =
            static_cast<std::uint8_t>(text.size());
    }
    void setPrompt(std::string_view text) const {
        auto& field = pick(e.prompt, e.prompt, e.elsePrompt);
        field.fill('\0');
        std::copy(text.begin(), text.end(), field.begin());
        number() = static_cast<std::uint32_t>(text.size());
    }
};

// Every field differs from every other, so that a value from the wrong slot shows.
ScriptEntry crowdedEntry(CommandCode owner) {
    ScriptEntry e;
    e.commandCode = owner;
    e.hidden = 0;
    for (const Slot slot : {Slot::Entry, Slot::Then, Slot::Else}) {
        const Place place{e, slot};
        const auto n = static_cast<std::uint8_t>(slot);
        place.setPrompt(std::string("prompt ") + static_cast<char>('0' + n));
        place.setText(std::string("text ") + static_cast<char>('0' + n));
        place.row() = static_cast<std::uint8_t>(10 + n);
        place.column() = static_cast<std::uint8_t>(20 + n);
        place.variable() = static_cast<std::uint8_t>(1 + n);
        place.maxLength() = static_cast<std::uint8_t>(40 + n);
        place.waitUntil() = {2031, 2, 3, static_cast<std::uint16_t>(5 + n), 6, 7, 8, 9};
    }
    e.commandData = 0x11121314;
    e.elseCommandData = 0x21222324;
    e.elseArea = 0x31323334;
    return e;
}

struct Row {
    const char* name;
    CommandCode code;
    /// Makes the command's parameters in the slot.
    void (*fill)(const Place& place);
    /// Edits the widgets.
    void (*edit)(DialogTest& test, QWidget& dialog);
    /// What the edit comes to.
    void (*expect)(const Place& place);
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

template <class T>
T& in(QWidget& dialog, const char* name) {
    T* found = dialog.findChild<T*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
}

void retypeIn(QWidget& dialog, const char* name, const QString& text) {
    auto& line = in<QLineEdit>(dialog, name);
    QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&line, Qt::Key_Delete);
    typeText(line, text);
}

void asText(const Place& place) {
    place.setText("old \x80\x9f text"sv);
}
void asFile(const Place& place) {
    place.setText("C:\\old.qmd");
}
template <std::uint32_t Id>
void asFileCommand(const Place& place) {
    asFile(place);
    place.menuId() = Id;
}
void retypeText(DialogTest&, QWidget& dialog) {
    retypeIn(dialog, "text", QStringLiteral(u"\u20ac n\u00e9w \u00ff"));
}
void newText(const Place& place) {
    place.setText("\x80 n\xe9w \xff");
}
void retypeFile(DialogTest&, QWidget& dialog) {
    retypeIn(dialog, "file", QStringLiteral("new.exe"));
}
void newFile(const Place& place) {
    place.setText("new.exe");
}

const Row rows[] = {
    {"Comment", CommandCode::Comment, asText, retypeText, newText},
    {"Goto", CommandCode::Goto, asText, retypeText, newText},
    {"Label", CommandCode::Label, asText, retypeText, newText},
    {"Message", CommandCode::Message, asText, retypeText, newText},
    {"ExpressLogon", CommandCode::ExpressLogon, asText, retypeText, newText},
    {"Type", CommandCode::Type, asText, retypeText, newText},
    {"TypeThatIsHidden", CommandCode::Type,
     [](const Place& place) {
         asText(place);
         place.hidden() = 1;
     },
     retypeText, newText},
    {"TypeThatGetsHidden", CommandCode::Type, asText,
     [](DialogTest&, QWidget& dialog) { clickOn(in<QCheckBox>(dialog, "hide")); },
     [](const Place& place) { place.hidden() = 1; }},
    {"Wait", CommandCode::Wait, [](const Place& place) { place.number() = 77; },
     [](DialogTest&, QWidget& dialog) { retypeIn(dialog, "number", QStringLiteral("4294967295")); },
     [](const Place& place) { place.number() = 4294967295U; }},
    {"WaitReady", CommandCode::WaitReady, [](const Place& place) { place.number() = 4000000000U; },
     [](DialogTest&, QWidget& dialog) { retypeIn(dialog, "number", QStringLiteral("0")); },
     [](const Place& place) { place.number() = 0; }},
    {"Run", CommandCode::Run, asFile, retypeFile, newFile},
    {"Menu202", CommandCode::MenuCommand, asFileCommand<202>, retypeFile, newFile},
    {"Menu204", CommandCode::MenuCommand, asFileCommand<204>, retypeFile, newFile},
    {"Menu219", CommandCode::MenuCommand, asFileCommand<219>, retypeFile, newFile},
    {"Menu254", CommandCode::MenuCommand, asFileCommand<254>, retypeFile, newFile},
    {"Menu257", CommandCode::MenuCommand, asFileCommand<257>, retypeFile, newFile},
    {"SetCursor", CommandCode::SetCursor,
     [](const Place& place) {
         place.row() = 0;
         place.column() = 255;
     },
     [](DialogTest&, QWidget& dialog) {
         retypeIn(dialog, "row", QStringLiteral("24"));
         retypeIn(dialog, "column", QStringLiteral("132"));
     },
     [](const Place& place) {
         place.row() = 24;
         place.column() = 132;
     }},
    {"CopyArea", CommandCode::Copy,
     [](const Place& place) {
         place.number() = 0;
         place.area() = 0x50180102;
     },
     [](DialogTest&, QWidget& dialog) {
         retypeIn(dialog, "startRow", QStringLiteral("3"));
         retypeIn(dialog, "startColumn", QStringLiteral("4"));
         retypeIn(dialog, "endRow", QStringLiteral("5"));
         retypeIn(dialog, "endColumn", QStringLiteral("255"));
     },
     [](const Place& place) { place.area() = 0xff050403; }},
    {"CopyAll", CommandCode::Copy, [](const Place& place) { place.number() = 0; },
     [](DialogTest&, QWidget& dialog) { clickOn(in<QCheckBox>(dialog, "entireScreen")); },
     [](const Place& place) { place.number() = 1; }},
    {"PastePosition", CommandCode::Paste,
     [](const Place& place) {
         place.number() = 0;
         place.area() = 0x00000201;
     },
     [](DialogTest&, QWidget& dialog) {
         retypeIn(dialog, "row", QStringLiteral("7"));
         retypeIn(dialog, "column", QStringLiteral("8"));
     },
     [](const Place& place) { place.area() = 0x00000807; }},
    {"PasteAtCursor", CommandCode::Paste,
     [](const Place& place) {
         place.number() = 1;
         place.area() = 0x00000201;
     },
     [](DialogTest&, QWidget& dialog) { clickOn(in<QCheckBox>(dialog, "atCursor")); },
     [](const Place& place) { place.number() = 0; }},
    {"InputString", CommandCode::Input,
     [](const Place& place) {
         place.maxLength() = 2;
         place.hidden() = 1;
         place.setPrompt("one\r\ntwo\r\n\r\nfour\xa0no break");
     },
     [](DialogTest&, QWidget& dialog) {
         retypeIn(dialog, "title", QStringLiteral("new title"));
         auto& prompt = in<QPlainTextEdit>(dialog, "prompt");
         QTest::keyClick(&prompt, Qt::Key_A, Qt::ControlModifier);
         typeText(prompt, QStringLiteral(u"\u20ac\nb\n"));
         clickOn(in<QCheckBox>(dialog, "hideInput"));
         auto& length = in<QSpinBox>(dialog, "maximumLength");
         length.selectAll();
         QTest::keyClicks(&length, QStringLiteral("40"));
         QTest::keyClick(&in<QComboBox>(dialog, "variable"), Qt::Key_End);
     },
     [](const Place& place) {
         place.setText("new title");
         place.setPrompt("\x80\r\nb\r\n");
         place.hidden() = 0;
         place.maxLength() = 40;
         place.variable() = 5;
     }},
    {"InputCharacter", CommandCode::Input,
     [](const Place& place) {
         place.maxLength() = 0;
         place.hidden() = 0;
         place.setPrompt("lone\nbreaks\rstay");
     },
     [](DialogTest&, QWidget& dialog) {
         clickOn(in<QCheckBox>(dialog, "hideInput"));
         QTest::keyClick(&in<QComboBox>(dialog, "variable"), Qt::Key_Home);
     },
     [](const Place& place) {
         place.hidden() = 1;
         place.variable() = 0;
     }},
    {"WaitUntil", CommandCode::WaitUntil,
     [](const Place& place) { place.waitUntil() = {2024, 2, 4, 29, 23, 59, 58, 0}; },
     [](DialogTest&, QWidget& dialog) {
         in<QDateEdit>(dialog, "date").setDate(QDate(9999, 12, 31));
         in<QTimeEdit>(dialog, "time").setTime(QTime(1, 2, 3));
     },
     [](const Place& place) { place.waitUntil() = {9999, 12, 5, 31, 1, 2, 3, 0}; }},
    {"WaitUntilOnSunday", CommandCode::WaitUntil,
     [](const Place& place) { place.waitUntil() = {2026, 11, 0, 22, 1, 0, 0, 0}; },
     [](DialogTest&, QWidget& dialog) { in<QDateEdit>(dialog, "date").setDate(QDate(1601, 1, 1)); },
     [](const Place& place) { place.waitUntil() = {1601, 1, 1, 1, 1, 0, 0, 0}; }},
};

class DialogRecords : public DialogTest,
                      public ::testing::WithParamInterface<std::tuple<Row, Slot>> {
  protected:
    DialogRecords() {
        entry = crowdedEntry(slot == Slot::Entry ? row.code : CommandCode::WaitFor);
        place().code() = row.code;
        row.fill(place());
    }
    [[nodiscard]] Place place() { return {entry, slot}; }

    const Row& row = std::get<0>(GetParam());
    const Slot slot = std::get<1>(GetParam());
};

TEST_P(DialogRecords, OkWithoutAnEditChangesNothing) {
    const ScriptEntry before = entry;
    open(slot, ActionOwner::WaitForOrWatchFor);
    pressOk();
    EXPECT_TRUE(endedWithOk());
    EXPECT_EQ(entry, before);
}

TEST_P(DialogRecords, CancelAfterAnEditChangesNothing) {
    const ScriptEntry before = entry;
    open(slot);
    row.edit(*this, *dialog);
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(entry, before);
}

TEST_P(DialogRecords, AnEditGoesIntoItsSlotAndNowhereElse) {
    ScriptEntry expected = entry;
    row.expect({expected, slot});
    open(slot);
    row.edit(*this, *dialog);
    pressOk();
    EXPECT_TRUE(endedWithOk());
    EXPECT_EQ(entry, expected);
}

std::string rowName(const ::testing::TestParamInfo<std::tuple<Row, Slot>>& info) {
    const Slot slot = std::get<1>(info.param);
    return std::string(std::get<0>(info.param).name) + (slot == Slot::Entry  ? "AsEntry"
                                                        : slot == Slot::Then ? "AsThen"
                                                                             : "AsElse");
}

INSTANTIATE_TEST_SUITE_P(Commands, DialogRecords,
                         ::testing::Combine(::testing::ValuesIn(rows),
                                            ::testing::Values(Slot::Entry, Slot::Then, Slot::Else)),
                         rowName);

}  // namespace
}  // namespace quendra::test
