// What each dialog shows, enables and refuses.
#include "dialogs/dialog_fixture.h"

#include <QComboBox>
#include <QDateEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSpinBox>

namespace quendra::test {
namespace {

struct TextRow {
    const char* name;
    CommandCode code;
    std::uint32_t commandId;
    /// What the caption says: a text of the library, or these words.
    StringId captionId;
    const char* caption;
    /// Labels and buttons by object name.
    std::vector<std::pair<const char*, StringId>> texts;
};

void PrintTo(const TextRow& row, std::ostream* out) {
    *out << row.name;
}

const TextRow textRows[] = {
    {"Comment", CommandCode::Comment, 0, 0, "Comment", {{"textLabel", 13746}}},
    {"Goto", CommandCode::Goto, 0, 0, "Goto", {{"textLabel", 13747}}},
    {"Label", CommandCode::Label, 0, 0, "Label", {{"textLabel", 13748}}},
    {"Message", CommandCode::Message, 0, 0, "Message", {{"textLabel", 13749}}},
    {"Type", CommandCode::Type, 0, 0, "Type", {{"textLabel", 13750}, {"hide", 11209}}},
    {"ExpressLogon", CommandCode::ExpressLogon, 0, 0, "Express_Logon", {{"textLabel", 14833}}},
    {"Wait", CommandCode::Wait, 0, 0, "Wait", {{"numberLabel", 13753}}},
    {"WaitReady", CommandCode::WaitReady, 0, 0, "Wait_Ready", {{"numberLabel", 13754}}},
    {"Run", CommandCode::Run, 0, 13734, "", {{"fileLabel", 13735}, {"browse", 10152}}},
    {"Menu202", CommandCode::MenuCommand, 202, 12519, "", {{"fileLabel", 13736}}},
    {"Menu204", CommandCode::MenuCommand, 204, 13737, "", {{"fileLabel", 13738}}},
    {"Menu219", CommandCode::MenuCommand, 219, 11724, "", {{"fileLabel", 13739}}},
    {"Menu254", CommandCode::MenuCommand, 254, 13740, "", {{"fileLabel", 13741}}},
    {"Menu257", CommandCode::MenuCommand, 257, 13742, "", {{"fileLabel", 13743}}},
    {"SetCursor",
     CommandCode::SetCursor,
     0,
     0,
     "Set_Cursor",
     {{"heading", 14557}, {"rowLabel", 10156}, {"columnLabel", 10157}}},
    {"Copy",
     CommandCode::Copy,
     0,
     10279,
     "",
     {{"heading", 14834},
      {"startRowLabel", 14835},
      {"endRowLabel", 14836},
      {"entireScreen", 14837}}},
    {"Paste",
     CommandCode::Paste,
     0,
     10303,
     "",
     {{"heading", 14838}, {"rowLabel", 14839}, {"atCursor", 14840}}},
    {"Input",
     CommandCode::Input,
     0,
     0,
     "Input",
     {{"titleLabel", 11216},
      {"promptLabel", 11217},
      {"character", 11218},
      {"string", 11219},
      {"maximumLengthLabel", 11220},
      {"hideInput", 11221},
      {"variableLabel", 15242}}},
    {"WaitUntil", CommandCode::WaitUntil, 0, 0, "Wait_Until", {{"heading", 11212}}},
};

class DialogTexts : public DialogTest, public ::testing::WithParamInterface<TextRow> {};

TEST_P(DialogTexts, ComeFromTheLanguageLibrary) {
    useLanguage("qdstring_de");
    entry = newEntry(GetParam().code);
    entry.commandId = GetParam().commandId;
    open();
    const StringId captionId = GetParam().captionId;
    EXPECT_EQ(dialog->windowTitle(),
              captionId == 0 ? QLatin1String(GetParam().caption) : libraryLine(captionId));
    EXPECT_EQ(widget<QPushButton>("cancel").text(), QStringLiteral("Abbrechen"));
    for (const auto& [name, id] : GetParam().texts) {
        const QString shown = widget<QWidget>(name).property("text").toString();
        EXPECT_EQ(shown, libraryLine(id).trimmed()) << name;
        EXPECT_FALSE(shown.isEmpty()) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, DialogTexts, ::testing::ValuesIn(textRows),
                         [](const auto& row) { return row.param.name; });

TEST_F(DialogTest, WaitOfAnElseActionAsksInItsOwnWords) {
    useLanguage("qdstring_de");
    entry.commandCode = CommandCode::WaitFor;
    entry.elseCode = CommandCode::Wait;
    open(Slot::Else);
    EXPECT_EQ(labelText("numberLabel"), QStringLiteral("&Enter time to Wait(seconds):"));
    entry.elseCode = CommandCode::WaitReady;
    open(Slot::Else);
    EXPECT_EQ(labelText("numberLabel"),
              QStringLiteral("&Enter the number of Keyboard Restores to wait for:"));
    entry.thenCode = CommandCode::Wait;
    open(Slot::Then);
    EXPECT_EQ(labelText("numberLabel"), libraryLine(13753));
}

struct RefusalRow {
    const char* name;
    CommandCode code;
    std::uint32_t commandId;
    /// The fields in the order of the checks; each is left empty in turn, all those behind it too.
    std::vector<const char*> fields;
    StringId captionId;
    const char* caption;
    /// The caption for an else action, where it is another.
    const char* elseCaption = nullptr;
};

void PrintTo(const RefusalRow& row, std::ostream* out) {
    *out << row.name;
}

const RefusalRow refusalRows[] = {
    {"Comment", CommandCode::Comment, 0, {"text"}, 0, "Comment"},
    {"Goto", CommandCode::Goto, 0, {"text"}, 0, "Goto"},
    {"Label", CommandCode::Label, 0, {"text"}, 0, "Label"},
    {"Message", CommandCode::Message, 0, {"text"}, 0, "Message"},
    {"Type", CommandCode::Type, 0, {"text"}, 0, "Type"},
    {"ExpressLogon", CommandCode::ExpressLogon, 0, {"text"}, 0, "Express_Logon"},
    {"Wait", CommandCode::Wait, 0, {"number"}, 0, "Wait"},
    {"WaitReady", CommandCode::WaitReady, 0, {"number"}, 0, "Wait_Ready"},
    {"Run", CommandCode::Run, 0, {"file"}, 13745, ""},
    {"Menu202", CommandCode::MenuCommand, 202, {"file"}, 13745, ""},
    {"Menu257", CommandCode::MenuCommand, 257, {"file"}, 13745, ""},
    {"SetCursor", CommandCode::SetCursor, 0, {"row", "column"}, 0, "Set_Cursor"},
    {"Copy", CommandCode::Copy, 0, {"startRow", "startColumn", "endRow", "endColumn"}, 10279, ""},
    {"Paste", CommandCode::Paste, 0, {"row", "column"}, 10303, ""},
    {"Input", CommandCode::Input, 0, {"title"}, 11215, "", "Input"},
};

class EmptyFields : public DialogTest,
                    public ::testing::WithParamInterface<std::tuple<RefusalRow, Slot>> {};

TEST_P(EmptyFields, AreRefusedOneByOneAndGetTheFocus) {
    useLanguage("qdstring_de");
    const auto& [row, slot] = GetParam();
    entry = newEntry(CommandCode::WaitFor);
    slotFields(entry, slot).code = row.code;
    slotFields(entry, slot).commandId = row.commandId;
    slotFields(entry, slot).number = 0;
    const ScriptEntry before = entry;
    const bool otherCaption = slot == Slot::Else && row.elseCaption != nullptr;
    const std::string caption = otherCaption         ? row.elseCaption
                                : row.captionId == 0 ? row.caption
                                                     : state.language.loadText(row.captionId);
    open(slot, ActionOwner::WaitForOrWatchFor);
    for (std::size_t i = row.fields.size(); i-- > 0;) {
        widget<QLineEdit>(row.fields[i]).clear();
        widget<QWidget>("cancel").setFocus();
        answers.messages.clear();
        pressOk();
        ASSERT_EQ(answers.messages.size(), 1U) << row.fields[i];
        EXPECT_EQ(answers.messages[0].text, "In diesem Feld ist eine Angabe erforderlich.");
        EXPECT_EQ(answers.messages[0].title, caption);
        EXPECT_EQ(answers.messages[0].icon, MessageIcon::Information);
        EXPECT_EQ(answers.messages[0].buttons, MessageButtons::Ok);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(focused(), row.fields[i]);
        EXPECT_EQ(entry, before);
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, EmptyFields,
                         ::testing::Combine(::testing::ValuesIn(refusalRows),
                                            ::testing::Values(Slot::Entry, Slot::Then, Slot::Else)),
                         [](const auto& row) {
                             const Slot slot = std::get<1>(row.param);
                             return std::string(std::get<0>(row.param).name) +
                                    (slot == Slot::Entry  ? "AsEntry"
                                     : slot == Slot::Then ? "AsThen"
                                                          : "AsElse");
                         });

TEST_F(DialogTest, NewEntriesShowTheirDefaults) {
    const auto shows = [this](CommandCode code, std::initializer_list<const char*> names) {
        openNew(code);
        std::string values;
        for (const char* name : names)
            values += widget<QLineEdit>(name).text().toStdString() + ' ';
        return values;
    };
    EXPECT_EQ(shows(CommandCode::Wait, {"number"}), "3 ");
    EXPECT_EQ(shows(CommandCode::WaitReady, {"number"}), "1 ");
    EXPECT_EQ(shows(CommandCode::Copy, {"startRow", "startColumn", "endRow", "endColumn"}),
              "1 1 24 80 ");
    EXPECT_FALSE(widget<QCheckBox>("entireScreen").isChecked());
    EXPECT_EQ(shows(CommandCode::Paste, {"row", "column"}), "1 1 ");
    EXPECT_FALSE(widget<QCheckBox>("atCursor").isChecked());
    EXPECT_EQ(shows(CommandCode::Input, {"title"}), " ");
    EXPECT_TRUE(widget<QPlainTextEdit>("prompt").toPlainText().isEmpty());
}

TEST_F(DialogTest, NumberFieldsTakeOnlyWhatFits) {
    openNew(CommandCode::SetCursor);
    retype("row", QStringLiteral("256"));
    EXPECT_EQ(widget<QLineEdit>("row").text(), QStringLiteral("25"));
    EXPECT_EQ(note(), "A number from 0 to 255");
    for (const char* typed : {"-1", "+1", "1x", "1.5", "999"}) {
        retype("row", QStringLiteral("7"));
        widget<QLineEdit>("row").selectAll();
        pasteInto(widget<QLineEdit>("row"), QLatin1String(typed));
        EXPECT_EQ(widget<QLineEdit>("row").text(), QStringLiteral("7")) << typed;
    }
    widget<QLineEdit>("row").selectAll();
    pasteInto(widget<QLineEdit>("row"), QStringLiteral(" 42\n"));
    EXPECT_EQ(widget<QLineEdit>("row").text(), QStringLiteral("42"));

    openNew(CommandCode::Wait);
    EXPECT_EQ(note(), "A number from 0 to 4294967295");
    retype("number", QStringLiteral("4294967296"));
    EXPECT_EQ(widget<QLineEdit>("number").text(), QStringLiteral("429496729"));
}

TEST_F(DialogTest, CopyDisablesItsAreaWhileTheEntireScreenIsCopied) {
    const auto states = [this] {
        std::string enabled;
        for (const char* name : {"startRow", "startColumn", "endRow", "endColumn"})
            enabled += widget<QLineEdit>(name).isEnabled() ? '1' : '0';
        return enabled;
    };
    openNew(CommandCode::Copy);
    EXPECT_EQ(states(), "1111");
    clickOn(widget<QCheckBox>("entireScreen"));
    EXPECT_EQ(states(), "0000");
    clickOn(widget<QCheckBox>("entireScreen"));
    EXPECT_EQ(states(), "1111");
    entry.number = 2;
    open();
    EXPECT_TRUE(widget<QCheckBox>("entireScreen").isChecked());
    EXPECT_EQ(states(), "0000");
    EXPECT_EQ(focused(), "entireScreen");
}

struct DisabledRow {
    const char* name;
    CommandCode code;
    const char* box;
    std::vector<const char*> fields;
    const char* caption;
};

void PrintTo(const DisabledRow& row, std::ostream* out) {
    *out << row.name;
}

class DisabledPositions : public DialogTest, public ::testing::WithParamInterface<DisabledRow> {};

TEST_P(DisabledPositions, AreStillRequired) {
    for (const char* field : GetParam().fields) {
        openNew(GetParam().code);
        widget<QLineEdit>(field).clear();
        clickOn(widget<QCheckBox>(GetParam().box));
        EXPECT_FALSE(widget<QLineEdit>(field).isEnabled());
        answers.messages.clear();
        pressOk();
        ASSERT_EQ(answers.messages.size(), 1U) << field;
        EXPECT_EQ(answers.messages[0].title, GetParam().caption);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(focused(), GetParam().box);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Commands, DisabledPositions,
    ::testing::Values(
        DisabledRow{"Copy",
                    CommandCode::Copy,
                    "entireScreen",
                    {"startRow", "startColumn", "endRow", "endColumn"},
                    "Copy to Clipboard"},
        DisabledRow{
            "Paste", CommandCode::Paste, "atCursor", {"row", "column"}, "Paste from Clipboard"}),
    [](const auto& row) { return row.param.name; });

TEST_F(DialogTest, PasteClearsTheEndOfItsArea) {
    entry = newEntry(CommandCode::Paste);
    entry.commandId = 0x44332211;
    open();
    pressOk();
    EXPECT_EQ(entry.commandId, 0x00002211U);
}

struct BrowseRow {
    const char* name;
    CommandCode code;
    std::uint32_t commandId;
    HostType hostType;
    const char* filter;
    const char* extension;
    const char* folder;
};

void PrintTo(const BrowseRow& row, std::ostream* out) {
    *out << row.name;
}

constexpr auto run = CommandCode::Run;
constexpr auto menu = CommandCode::MenuCommand;
const BrowseRow browseRows[] = {
    {"Run", run, 0, HostType::VT, "Program Files(*.exe)", "exe", ""},
    {"OpenMainframe", menu, 202, HostType::Mainframe, "Quendra Mainframe Display(*.qmd)", "qmd",
     "Config"},
    {"OpenISeries", menu, 202, HostType::ISeries, "Quendra iSeries Display(*.qad)", "qad",
     "Config"},
    {"OpenVT", menu, 202, HostType::VT, "Quendra VT(*.qvt)", "qvt", "Config"},
    {"SaveUTS", menu, 204, HostType::UTS, "Quendra UTS Display(*.qud)", "qud", "Config"},
    {"SaveT27", menu, 204, HostType::T27, "Quendra T27 Display(*.qtd)", "qtd", "Config"},
    {"SaveICL", menu, 204, HostType::ICL, "Quendra ICL Display(*.q7d)", "q7d", "Config"},
    {"PasteFromFile", menu, 219, HostType::Mainframe, "All Files(*.*)", "", ""},
    {"RunMacro", menu, 254, HostType::Mainframe, "Quendra Macros(*.qdm)", "qdm", "Macros"},
    {"EditMacro", menu, 257, HostType::ICL, "Quendra Macros(*.qdm)", "qdm", "Macros"},
};

class Browse : public DialogTest, public ::testing::WithParamInterface<BrowseRow> {};

TEST_P(Browse, OffersTheFilesOfItsCommandAndTakesTheChoice) {
    const BrowseRow& row = GetParam();
    state.currentHostType = row.hostType;
    state.settings.configDir = editor.folder / "elsewhere";
    for (const Slot slot : {Slot::Entry, Slot::Else}) {
        entry = newEntry(CommandCode::WaitFor);
        slotFields(entry, slot).code = row.code;
        slotFields(entry, slot).commandId = row.commandId;
        setText(slotFields(entry, slot), "before");
        open(slot, ActionOwner::WaitForOrWatchFor);
        answers.fileDialogs.clear();
        answers.toFileDialogs = {std::nullopt, std::filesystem::path("/d\xc3\xa9p\xc3\xb4t/x.y")};
        clickOn(widget<QPushButton>("browse"));
        EXPECT_EQ(widget<QLineEdit>("file").text(), QStringLiteral("before"));
        clickOn(widget<QPushButton>("browse"));
        EXPECT_EQ(widget<QLineEdit>("file").text(), QString::fromUtf8("/d\xc3\xa9p\xc3\xb4t/x.y"));

        ASSERT_EQ(answers.fileDialogs.size(), 2U);
        const FileDialogRequest& request = answers.fileDialogs[0];
        EXPECT_EQ(request.mode, FileDialogMode::Open);
        EXPECT_EQ(request.title, dialog->windowTitle().toStdString());
        EXPECT_EQ(request.filterDescription, row.filter);
        EXPECT_EQ(request.extension, row.extension);
        EXPECT_EQ(request.initialFolder.lexically_normal(),
                  (*row.folder == '\0' ? editor.folder.path() : editor.folder / row.folder));
        pressOk();
        EXPECT_EQ(textOf(slotFields(entry, slot)), "/d\xe9p\xf4t/x.y");
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, Browse, ::testing::ValuesIn(browseRows),
                         [](const auto& row) { return row.param.name; });

TEST_F(DialogTest, BrowseKeepsTheNameWhenTheChosenOneCannotBeStored) {
    openNew(CommandCode::Run);
    retype("file", QStringLiteral("kept.exe"));
    answers.toFileDialogs = {std::filesystem::path("/\xe6\x97\xa5.exe"),
                             std::filesystem::path("/" + std::string(255, 'x'))};
    clickOn(widget<QPushButton>("browse"));
    EXPECT_EQ(widget<QLineEdit>("file").text(), QStringLiteral("kept.exe"));
    EXPECT_EQ(note(), "The character \xe6\x97\xa5 cannot be stored in a script.");
    clickOn(widget<QPushButton>("browse"));
    EXPECT_EQ(widget<QLineEdit>("file").text(), QStringLiteral("kept.exe"));
    EXPECT_EQ(note(), "At most 255 characters fit here.");
}

class InputDialogTest : public DialogTest {
  protected:
    [[nodiscard]] QSpinBox& length() { return widget<QSpinBox>("maximumLength"); }
    void chooseCharacter() { clickOn(widget<QRadioButton>("character")); }
    void chooseString() { clickOn(widget<QRadioButton>("string")); }
};

TEST_F(InputDialogTest, ANewOneAsksForAStringOf255) {
    openNew(CommandCode::Input);
    EXPECT_TRUE(widget<QRadioButton>("string").isChecked());
    EXPECT_EQ(length().text(), QStringLiteral("255"));
    EXPECT_TRUE(length().isEnabled());
    EXPECT_EQ(widget<QComboBox>("variable").currentText(), QStringLiteral("InputStr"));
}

TEST_F(InputDialogTest, ACharacterStoresLengthZeroAndReopensDisabledAt255) {
    openNew(CommandCode::Input);
    retype("title", QStringLiteral("t"));
    chooseCharacter();
    EXPECT_FALSE(length().isEnabled());
    EXPECT_FALSE(widget<QLabel>("maximumLengthLabel").isEnabled());
    pressOk();
    EXPECT_EQ(entry.maxLength, 0);
    EXPECT_EQ(entry.number, 0U) << "an empty prompt";
    open();
    EXPECT_TRUE(widget<QRadioButton>("character").isChecked());
    EXPECT_EQ(length().text(), QStringLiteral("255"));
    EXPECT_FALSE(length().isEnabled());
    chooseString();
    EXPECT_TRUE(length().isEnabled());
    EXPECT_TRUE(widget<QLabel>("maximumLengthLabel").isEnabled());
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_EQ(entry.maxLength, 0);
}

TEST_F(InputDialogTest, AStringWhoseLengthNobodyChoseYetReopensAt255) {
    entry = newEntry(CommandCode::Input);
    entry.maxLength = 1;
    open();
    EXPECT_TRUE(widget<QRadioButton>("string").isChecked());
    EXPECT_EQ(length().text(), QStringLiteral("255"));
}

TEST_F(InputDialogTest, ALengthOutsideOfItsRangeIsRefusedByName) {
    for (const char* typed : {"", "0", "1", "256"}) {
        openNew(CommandCode::Input);
        retype("title", QStringLiteral("t"));
        length().selectAll();
        QTest::keyClick(&length(), Qt::Key_Delete);
        QTest::keyClicks(&length(), QLatin1String(typed));
        if (*typed == '2') {
            EXPECT_EQ(length().text(), QStringLiteral("25")) << "cannot be typed";
            continue;
        }
        answers.messages.clear();
        QTest::keyClick(&length(), Qt::Key_Return);
        ASSERT_EQ(answers.messages.size(), 1U) << typed;
        EXPECT_EQ(answers.messages[0].text, "Maximum String Length: enter a number from 2 to 255.");
        EXPECT_EQ(answers.messages[0].title, "Input");
        EXPECT_EQ(focused(), "maximumLength");
        EXPECT_EQ(length().text(), QLatin1String(typed));
        chooseCharacter();
        pressOk();
        EXPECT_TRUE(endedWithOk()) << "a character has no length";
    }
}

TEST_F(InputDialogTest, TheSpinControlStaysWithinItsRange) {
    openNew(CommandCode::Input);
    QTest::keyClick(&length(), Qt::Key_Up);
    EXPECT_EQ(length().text(), QStringLiteral("255"));
    length().setValue(3);
    QTest::keyClick(&length(), Qt::Key_Down);
    QTest::keyClick(&length(), Qt::Key_Down);
    EXPECT_EQ(length().text(), QStringLiteral("2"));
    length().clear();
    QTest::keyClick(&length(), Qt::Key_Up);
    EXPECT_EQ(length().text(), QStringLiteral("2"));
}

TEST_F(InputDialogTest, APromptIsCutWhenPastedAndRefusedWhenTyped) {
    openNew(CommandCode::Input);
    retype("title", QStringLiteral("t"));
    auto& prompt = widget<QPlainTextEdit>("prompt");
    pasteInto(prompt, QString(1100, u'p'));
    EXPECT_EQ(prompt.toPlainText().size(), 1023);
    EXPECT_EQ(note(), "At most 1023 characters fit here.");
    typeText(prompt, QStringLiteral("q"));
    EXPECT_EQ(prompt.toPlainText(), QString(1023, u'p'));
    QTest::keyClick(&prompt, Qt::Key_Backspace);
    EXPECT_EQ(note(), "");
    typeText(prompt, QStringLiteral("\n"));
    EXPECT_EQ(prompt.toPlainText().size(), 1022) << "a line break takes two characters";
    typeText(prompt, QStringLiteral(u"\u4e2d"));
    EXPECT_EQ(note(), "The character \xe4\xb8\xad cannot be stored in a script.");
    pressOk();
    EXPECT_EQ(entry.number, 1022U);
    EXPECT_EQ(promptOf(slotFields(entry, Slot::Entry)), std::string(1022, 'p'));
}

TEST_F(InputDialogTest, ReturnAndTabInThePromptAreALineBreakAndTheNextField) {
    openNew(CommandCode::Input);
    retype("title", QStringLiteral("t"));
    auto& prompt = widget<QPlainTextEdit>("prompt");
    typeText(prompt, QStringLiteral("a\nb"));
    pasteInto(prompt, QStringLiteral("\r\nc\nd"));
    EXPECT_TRUE(dialog->isVisible());
    prompt.setFocus();
    QTest::keyClick(&prompt, Qt::Key_Tab);
    EXPECT_NE(focused(), "prompt");
    pressOk();
    EXPECT_EQ(promptOf(slotFields(entry, Slot::Entry)), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(entry.number, 10U);
}

TEST_F(InputDialogTest, AVariableOfADamagedFileIsNeitherShownNorReplaced) {
    entry = newEntry(CommandCode::Input);
    setText(slotFields(entry, Slot::Entry), "t");
    entry.inputVariable = 9;
    open();
    EXPECT_EQ(widget<QComboBox>("variable").currentIndex(), -1);
    pressOk();
    EXPECT_EQ(entry.inputVariable, 9);
}

class WaitUntilTest : public DialogTest {
  protected:
    [[nodiscard]] std::string checks() {
        std::string states;
        for (const char* name : {"hasDate", "hasTime"})
            states += widget<QCheckBox>(name).isChecked() ? '1' : '0';
        for (const char* name : {"date", "time"})
            states += widget<QWidget>(name).isEnabled() ? '1' : '0';
        return states;
    }
};

TEST_F(WaitUntilTest, ANewOneStoresTheMomentWhenItOpened) {
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    openNew(CommandCode::WaitUntil);
    const QDateTime after = QDateTime::currentDateTime();
    EXPECT_EQ(checks(), "1111");
    pressOk();
    const DateTime& stored = entry.waitUntil;
    const QDate date(stored.year, stored.month, stored.day);
    const QDateTime moment(date, QTime(stored.hour, stored.minute, stored.second));
    EXPECT_GE(moment, before);
    EXPECT_LE(moment, after);
    EXPECT_EQ(stored.dayOfWeek, date.dayOfWeek() % 7);
}

TEST_F(WaitUntilTest, AClearedPartIsStoredAsZerosAndReopensUnset) {
    entry = newEntry(CommandCode::WaitUntil);
    entry.waitUntil = {2030, 5, 6, 4, 12, 30, 15, 500};
    open();
    clickOn(widget<QCheckBox>("hasTime"));
    EXPECT_EQ(checks(), "1010");
    pressOk();
    EXPECT_EQ(entry.waitUntil, (DateTime{2030, 5, 6, 4, 0, 0, 0, 0}));
    open();
    EXPECT_EQ(checks(), "1010");
    clickOn(widget<QCheckBox>("hasDate"));
    clickOn(widget<QCheckBox>("hasTime"));
    EXPECT_EQ(checks(), "0101");
    pressOk();
    EXPECT_EQ(entry.waitUntil.year, 0);
    EXPECT_EQ(entry.waitUntil.dayOfWeek, 0);
    open();
    clickOn(widget<QCheckBox>("hasTime"));
    pressOk();
    EXPECT_EQ(entry.waitUntil, DateTime{});
    open();
    EXPECT_EQ(checks(), "1111") << "nothing set: the present date and time";
}

TEST_F(WaitUntilTest, AnImpossibleDateShowsThePresentOne) {
    entry = newEntry(CommandCode::WaitUntil);
    entry.waitUntil = {2030, 13, 0, 41, 25, 0, 0, 0};
    open();
    EXPECT_EQ(checks(), "1111");
    EXPECT_TRUE(widget<QDateEdit>("date").date().isValid());
    EXPECT_EQ(widget<QDateEdit>("date").date().year(), QDate::currentDate().year());
}

struct FormatRow {
    const char* name;
    QLocale locale;
    const char* date;
    const char* time;
};

TEST_F(WaitUntilTest, FormatsFollowTheLocaleWithWholeYearsAndSeconds) {
    const QLocale before;
    const FormatRow rows[] = {
        {"British", QLocale(QLocale::English, QLocale::UnitedKingdom), "09/11/2031", "21:04:05"},
        {"American", QLocale(QLocale::English, QLocale::UnitedStates), "11/9/2031", "9:04:05 PM"},
        {"German", QLocale(QLocale::German, QLocale::Germany), "09.11.2031", "21:04:05"},
    };
    entry = newEntry(CommandCode::WaitUntil);
    entry.waitUntil = {2031, 11, 0, 9, 21, 4, 5, 0};
    for (const FormatRow& row : rows) {
        QLocale::setDefault(row.locale);
        open();
        EXPECT_EQ(widget<QDateEdit>("date").text().toStdString(), row.date) << row.name;
        EXPECT_EQ(widget<QTimeEdit>("time").text().toStdString(), row.time) << row.name;
    }
    QLocale::setDefault(before);
}

}  // namespace
}  // namespace quendra::test
