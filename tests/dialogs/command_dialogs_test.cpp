// What each dialog says, enables and refuses.
#include "dialogs/dialog_fixture.h"

#include <QDateEdit>

#include <sstream>

namespace quendra::test {
namespace {

using Code = CommandCode;

struct FaceRow {
    Code code;
    std::uint32_t commandId;
    /// What has to be filled in, in the order of the checks.
    const char* required;
    /// The caption and the texts above OK and Cancel, from top to bottom, in German.
    const char* face;
};

const FaceRow faceRows[] = {
    {Code::Comment, 0, "text", "Comment|Geben Sie den &Kommentar ein:"},
    {Code::Goto, 0, "text", "Goto|Geben Sie die &Sprungmarke ein, zu der gesprungen werden soll:"},
    {Code::Label, 0, "text", "Label|Geben Sie den Namen der &Sprungmarke ein:"},
    {Code::Message, 0, "text", "Message|Geben Sie die anzuzeigende &Meldung ein:"},
    {Code::Type, 0, "text",
     "Type|Geben Sie den einzutippenden &Text ein:|Verschl\u00fcsseln und &verbergen"},
    {Code::ExpressLogon, 0, "text",
     "Express_Logon|Geben Sie die &Anwendungs-ID f\u00fcr Express Logon ein:"},
    {Code::Wait, 0, "number", "Wait|Geben Sie die &Wartezeit in Sekunden ein:"},
    {Code::WaitReady, 0, "number",
     "Wait_Ready|Geben Sie die &Anzahl der abzuwartenden Tastaturfreigaben ein:"},
    {Code::Run, 0, "file",
     "Programm ausf\u00fchren|Geben Sie das auszuf\u00fchrende &Programm ein:|Durchs&uchen..."},
    {Code::MenuCommand, 202, "file",
     "Sitzung \u00f6ffnen|Geben Sie die zu \u00f6ffnende &Sitzungsdatei ein:|Durchs&uchen..."},
    {Code::MenuCommand, 204, "file",
     "Sitzung speichern unter|Geben Sie die &Sitzungsdatei ein, in der gespeichert werden "
     "soll:|Durchs&uchen..."},
    {Code::MenuCommand, 219, "file",
     "Aus Datei einf\u00fcgen|Geben Sie die &Datei ein, aus der eingef\u00fcgt werden "
     "soll:|Durchs&uchen..."},
    {Code::MenuCommand, 254, "file",
     "Makro ausf\u00fchren|Geben Sie das auszuf\u00fchrende &Makro ein:|Durchs&uchen..."},
    {Code::MenuCommand, 257, "file",
     "Makro bearbeiten|Geben Sie das zu bearbeitende &Makro ein:|Durchs&uchen..."},
    {Code::SetCursor, 0, "row column",
     "Set_Cursor|Geben Sie die Position ein, auf die der Cursor gesetzt werden "
     "soll:|Zeile:|Spalte:"},
    {Code::Copy, 0, "startRow startColumn endRow endColumn",
     "In die Zwischenablage kopieren|Geben Sie den zu kopierenden Bildschirmbereich "
     "ein:|&Startzeile, Startspalte:|&Endzeile, Endspalte:|&Gesamten Bildschirm kopieren"},
    {Code::Paste, 0, "row column",
     "Aus der Zwischenablage einf\u00fcgen|Geben Sie die Bildschirmposition zum Einf\u00fcgen "
     "ein:|&Zeile, Spalte:|Am &Cursor einf\u00fcgen"},
    {Code::Input, 0, "title",
     "Input|&Titel des Eingabefensters:|&Eingabeaufforderung:|Ein&zelnes Zeichen "
     "eingeben|Zeichen&folge eingeben|&Maximale L\u00e4nge der Zeichenfolge:|Eingabe beim Tippen "
     "&verbergen|Eingabe &speichern in:"},
    {Code::WaitUntil, 0, "",
     "Wait_Until|Warten bis zu diesem Datum und dieser Uhrzeit:|&Datum|&Uhrzeit"},
};

std::string nameOf(const FaceRow& row) {
    return row.commandId == 0 ? std::string(commandKeyword(row.code))
                              : "Menu" + std::to_string(row.commandId);
}

void PrintTo(const FaceRow& row, std::ostream* out) {
    *out << nameOf(row);
}

class EveryDialog : public DialogTest,
                    public ::testing::WithParamInterface<std::tuple<FaceRow, Slot>> {
  protected:
    EveryDialog() {
        useLanguage(state, "qdstring_de");
        startWith(row.code, slot, row.commandId);
        slotFields(entry, slot).number = 0;
        open(slot);
    }
    [[nodiscard]] std::string face() const {
        std::string texts = title();
        for (const QWidget* part : dialog->findChildren<QWidget*>()) {
            const bool says = part->inherits("QLabel") || part->inherits("QAbstractButton");
            const std::string text = part->property("text").toString().toStdString();
            if (says && !text.empty() && part->objectName() != QLatin1String("note"))
                texts += '|' + text;
        }
        return texts;
    }

    const FaceRow& row = std::get<0>(GetParam());
    const Slot slot = std::get<1>(GetParam());
};

TEST_P(EveryDialog, SaysInTheUsersLanguageWhatItAsksFor) {
    std::string expected = row.face;
    if (slot == Slot::Else && row.code == Code::Wait)
        expected = "Wait|&Enter time to Wait(seconds):";
    if (slot == Slot::Else && row.code == Code::WaitReady)
        expected = "Wait_Ready|&Enter the number of Keyboard Restores to wait for:";
    EXPECT_EQ(face(), expected + "|OK|Abbrechen");
}

TEST_P(EveryDialog, RefusesEmptyFieldsOneByOneAndGivesThemTheFocus) {
    const ScriptEntry before = entry;
    const bool takesFile = row.code == Code::Run || row.code == Code::MenuCommand;
    const bool asksUser = row.code == Code::Input && slot != Slot::Else;
    const std::string caption = takesFile ? "Dateioperation" : asksUser ? "Eingabe" : title();
    const QStringList fields = QString::fromLatin1(row.required).split(u' ', Qt::SkipEmptyParts);
    for (auto name = fields.rbegin(); name != fields.rend(); ++name) {
        const std::string field = name->toStdString();
        widget<QLineEdit>(field).clear();
        widget("cancel").setFocus();
        click("ok");
        expectTold("In diesem Feld ist eine Angabe erforderlich.", caption);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(focused(), field);
        EXPECT_EQ(entry, before);
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, EveryDialog,
                         ::testing::Combine(::testing::ValuesIn(faceRows),
                                            ::testing::ValuesIn(allSlots)),
                         [](const auto& row) {
                             return nameOf(std::get<0>(row.param)) +
                                    slotSuffix(std::get<1>(row.param));
                         });

TEST_F(DialogTest, NumberFieldsTakeOnlyWhatFits) {
    openNew(Code::SetCursor);
    retype("row", "256");
    EXPECT_EQ(shown("row"), "25");
    EXPECT_EQ(note(), "A number from 0 to 255");
    for (const char* pasted : {"-1", "+1", "1x", "1.5", "999"}) {
        retype("row", "7");
        repaste("row", pasted);
        EXPECT_EQ(shown("row"), "7") << pasted;
    }
    repaste("row", " 42\n");
    EXPECT_EQ(shown("row"), "42");

    openNew(Code::Wait);
    EXPECT_EQ(note(), "A number from 0 to 4294967295");
    retype("number", "4294967296");
    EXPECT_EQ(shown("number"), "429496729");
}

TEST_F(DialogTest, PositionsThatAreDisabledAreStillRequired) {
    const struct {
        Code code;
        const char* box;
        std::string fields;
    } rows[] = {{Code::Copy, "entireScreen", "startRow startColumn endRow endColumn"},
                {Code::Paste, "atCursor", "row column"}};
    for (const auto& row : rows) {
        std::istringstream names(row.fields);
        for (std::string field; names >> field;) {
            SCOPED_TRACE(field);
            openNew(row.code);
            widget<QLineEdit>(field).clear();
            click(row.box);
            EXPECT_EQ(enabled(row.fields).find('1'), std::string::npos);
            click("ok");
            expectTold("A value is required in this field.", title());
            EXPECT_TRUE(dialog->isVisible());
            EXPECT_EQ(focused(), row.box);
            click(row.box);
            EXPECT_EQ(enabled(row.fields).find('0'), std::string::npos);
        }
    }
    entry = newEntry(Code::Copy);
    entry.number = 2;
    open();
    EXPECT_TRUE(isChecked("entireScreen"));
    EXPECT_EQ(enabled("startRow startRowLabel endRowLabel"), "000");
    EXPECT_EQ(focused(), "entireScreen");
}

TEST_F(DialogTest, PasteClearsTheEndOfItsArea) {
    entry = newEntry(Code::Paste);
    entry.commandId = 0x44332211;
    open();
    click("ok");
    EXPECT_EQ(entry.commandId, 0x00002211U);
}

TEST_F(DialogTest, BrowseOffersTheFilesOfItsCommandAndTakesTheChoice) {
    using enum HostType;
    constexpr auto run = Code::Run;
    constexpr auto menu = Code::MenuCommand;
    const struct {
        Code code;
        std::uint32_t commandId;
        HostType hostType;
        const char* filter;
        const char* extension;
        const char* folder;
    } rows[] = {
        {run, 0, VT, "Program Files(*.exe)", "exe", ""},
        {menu, 202, Mainframe, "Quendra Mainframe Display(*.qmd)", "qmd", "Config"},
        {menu, 202, ISeries, "Quendra iSeries Display(*.qad)", "qad", "Config"},
        {menu, 202, VT, "Quendra VT(*.qvt)", "qvt", "Config"},
        {menu, 204, UTS, "Quendra UTS Display(*.qud)", "qud", "Config"},
        {menu, 204, T27, "Quendra T27 Display(*.qtd)", "qtd", "Config"},
        {menu, 204, ICL, "Quendra ICL Display(*.q7d)", "q7d", "Config"},
        {menu, 219, Mainframe, "All Files(*.*)", "", ""},
        {menu, 254, Mainframe, "Quendra Macros(*.qdm)", "qdm", "Macros"},
        {menu, 257, ICL, "Quendra Macros(*.qdm)", "qdm", "Macros"},
    };
    state.settings.configDir = editor.folder / "elsewhere";
    for (const auto& row : rows) {
        SCOPED_TRACE(row.filter);
        state.currentHostType = row.hostType;
        startWith(row.code, Slot::Else, row.commandId);
        setText(otherwise(), "before");
        open(Slot::Else);
        answers.fileDialogs.clear();
        answers.toFileDialogs = {std::nullopt, "/\u65e5", '/' + std::string(255, 'x'), "/\u00e9.y"};
        for (const char* fault : {"", "The character \u65e5 cannot be stored in a script.",
                                  "At most 255 characters fit here."}) {
            click("browse");
            EXPECT_EQ(shown("file"), "before");
            EXPECT_EQ(note(), fault);
        }
        click("browse");
        EXPECT_EQ(shown("file"), "/\u00e9.y");

        ASSERT_EQ(answers.fileDialogs.size(), 4U);
        const FileDialogRequest& request = answers.fileDialogs[0];
        EXPECT_EQ(request.mode, FileDialogMode::Open);
        EXPECT_EQ(request.title, title());
        EXPECT_EQ(request.filterDescription, row.filter);
        EXPECT_EQ(request.extension, row.extension);
        EXPECT_EQ(request.initialFolder.lexically_normal(),
                  (*row.folder == '\0' ? editor.folder.path() : editor.folder / row.folder));
        click("ok");
        EXPECT_EQ(textOf(otherwise()), "/\xe9.y");
    }
}

class InputDialogTest : public DialogTest {
  protected:
    void openTitled() {
        openNew(Code::Input);
        retype("title", "t");
    }
};

TEST_F(InputDialogTest, ACharacterStoresLengthZeroAndReopensDisabledAt255) {
    openTitled();
    EXPECT_TRUE(isChecked("string"));
    EXPECT_EQ(enabled("maximumLength maximumLengthLabel"), "11");
    click("character");
    EXPECT_EQ(enabled("maximumLength maximumLengthLabel"), "00");
    click("ok");
    EXPECT_EQ(entry.maxLength, 0);
    EXPECT_EQ(entry.number, 0U) << "an empty prompt";
    open();
    EXPECT_TRUE(isChecked("character"));
    EXPECT_EQ(shown("maximumLength"), "255");
    EXPECT_EQ(enabled("maximumLength maximumLengthLabel"), "00");
    click("string");
    EXPECT_EQ(enabled("maximumLength maximumLengthLabel"), "11");
}

TEST_F(InputDialogTest, CharacterOrStringCountsAtOnceAndNothingElseDoes) {
    for (const Slot slot : {Slot::Then, Slot::Else}) {
        startWith(Code::Input, slot);
        const SlotFields action = slotFields(entry, slot);
        action.maxLength = 40;
        ScriptEntry expected = entry;
        open(slot);
        click("string");
        EXPECT_EQ(action.maxLength, 40) << "it was chosen already";
        click("character");
        EXPECT_EQ(action.maxLength, 0);
        click("string");
        retype("maximumLength", "7");
        retype("title", "t");
        click("hideInput");
        press(Qt::Key_Escape);
        slotFields(expected, slot).maxLength = 1;
        EXPECT_EQ(entry, expected);
        open(slot);
        EXPECT_TRUE(isChecked("string"));
        EXPECT_EQ(shown("maximumLength"), "255") << "nobody chose a length yet";
    }
}

TEST_F(InputDialogTest, ALengthOutsideOfItsRangeIsRefusedByName) {
    openTitled();
    retype("maximumLength", "256");
    EXPECT_EQ(shown("maximumLength"), "25") << "cannot be typed";
    for (const char* typed : {"", "0", "1"}) {
        retype("maximumLength", typed);
        press(Qt::Key_Return);
        expectTold("Maximum String Length: enter a number from 2 to 255.", "Input");
        EXPECT_EQ(focused(), "maximumLength");
        EXPECT_EQ(shown("maximumLength"), typed);
    }
    // The arrows stay within the range, and start in it.
    retype("maximumLength", "3");
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(shown("maximumLength"), "2");
    retype("maximumLength", "255");
    press(Qt::Key_Up);
    EXPECT_EQ(shown("maximumLength"), "255");
    retype("maximumLength", "");
    press(Qt::Key_Up);
    EXPECT_EQ(shown("maximumLength"), "2");

    retype("maximumLength", "");
    click("character");
    click("ok");
    EXPECT_TRUE(endedWithOk()) << "a character has no length";
}

TEST_F(InputDialogTest, APromptIsCutWhenPastedAndRefusedWhenTyped) {
    openTitled();
    repaste("prompt", std::string(1022, 'p') + "\nq");
    EXPECT_EQ(shown("prompt"), std::string(1022, 'p')) << "no half of a line break";
    repaste("prompt", std::string(1100, 'p'));
    EXPECT_EQ(shown("prompt"), std::string(1023, 'p'));
    EXPECT_EQ(note(), "At most 1023 characters fit here.");
    type("q");
    EXPECT_EQ(shown("prompt"), std::string(1023, 'p'));
    press(Qt::Key_Backspace);
    EXPECT_EQ(note(), "");
    type("\n");
    EXPECT_EQ(shown("prompt").size(), 1022U) << "a line break takes two characters";
    type("\u4e2d");
    EXPECT_EQ(note(), "The character \xe4\xb8\xad cannot be stored in a script.");
    click("ok");
    EXPECT_EQ(entry.number, 1022U);
    EXPECT_EQ(promptOf(own()), std::string(1022, 'p'));
}

TEST_F(InputDialogTest, ReturnAndTabInThePromptAreALineBreakAndTheNextField) {
    openTitled();
    retype("prompt", "a\nb");
    pasteInto(widget("prompt"), "\r\nc\nd");
    EXPECT_TRUE(dialog->isVisible());
    press(Qt::Key_Tab);
    EXPECT_NE(focused(), "prompt");
    click("ok");
    EXPECT_EQ(promptOf(own()), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(entry.number, 10U);
}

TEST_F(DialogTest, WaitUntilShowsThePresentMomentForNoneAndForAnImpossibleOne) {
    for (const DateTime& moment : {DateTime{}, DateTime{2030, 13, 0, 41, 25, 0, 0, 0}}) {
        entry = newEntry(Code::WaitUntil);
        entry.waitUntil = moment;
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        open();
        const QDateTime after = QDateTime::currentDateTime();
        EXPECT_EQ(checked("hasDate hasTime") + enabled("date time"), "1111");
        click("ok");
        const DateTime& stored = entry.waitUntil;
        const QDate date(stored.year, stored.month, stored.day);
        const QDateTime shown(date, QTime(stored.hour, stored.minute, stored.second));
        EXPECT_TRUE(before <= shown && shown <= after);
        EXPECT_EQ(stored.dayOfWeek, date.dayOfWeek() % 7);
    }
    entry.waitUntil = {2030, 5, 6, 4, 0, 0, 0, 0};
    open();
    EXPECT_EQ(checked("hasDate hasTime") + enabled("date time"), "1010");
}

TEST_F(DialogTest, WaitUntilFollowsTheLocaleWithWholeYearsAndSeconds) {
    const QLocale before;
    const struct {
        QLocale locale;
        const char* date;
        const char* time;
    } rows[] = {
        {{QLocale::English, QLocale::UnitedKingdom}, "09/11/2031", "21:04:05"},
        {{QLocale::English, QLocale::UnitedStates}, "11/9/2031", "9:04:05 PM"},
        {{QLocale::German, QLocale::Germany}, "09.11.2031", "21:04:05"},
    };
    for (const auto& row : rows) {
        QLocale::setDefault(row.locale);
        entry = newEntry(Code::WaitUntil);
        entry.waitUntil = {2031, 11, 0, 9, 21, 4, 5, 0};
        open();
        EXPECT_EQ(shown("date"), row.date);
        EXPECT_EQ(shown("time"), row.time);
    }
    QLocale::setDefault(before);
}

}  // namespace
}  // namespace quendra::test
