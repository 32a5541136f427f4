// What each dialog refuses, enables and takes.
#include "support/dialog_fixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDateTime>
#include <QTest>

namespace quendra::test {
namespace {

using Code = CommandCode;

std::string selectedIn(const QWidget& list) {
    const auto& view = dynamic_cast<const QAbstractItemView&>(list);
    return view.currentIndex().data().toString().toStdString();
}

TEST_F(DialogTest, ANumberBeyondItsRangeIsRefusedByNameAndBecomesNoOther) {
    const struct {
        Code code;
        const char* field;
        const char* typed;
        const char* taken;
        const char* refusal;
    } rows[] = {
        {Code::SetCursor, "row", "256", "256", "Row: enter a number from 0 to 255."},
        {Code::SetCursor, "column", "2560", "256", "Column: enter a number from 0 to 255."},
        {Code::Copy, "endColumn", "999", "999", "End Row, Column: enter a number from 0 to 255."},
        {Code::Paste, "column", "300", "300", "Paste Row, Column: enter a number from 0 to 255."},
        {Code::Wait, "number", "99999999999", "9999999999",
         "Enter time to Wait(seconds): enter a number from 0 to 4294967295."},
        {Code::WaitReady, "number", "4294967296", "4294967296",
         "Enter the number of Keyboard Restores to wait for: enter a number from 0 to 4294967295."},
    };
    for (const auto& row : rows) {
        openNew(row.code);
        const ScriptEntry before = entry;
        retype(row.field, row.typed);
        EXPECT_EQ(shown(row.field), row.taken);
        EXPECT_NE(note().find("A number from 0 to "), std::string::npos);
        click("ok");
        expectTold(row.refusal, title());
        EXPECT_EQ(focused(), row.field);
        EXPECT_EQ(entry, before);
    }
    openNew(Code::SetCursor);
    for (const char* pasted : {"-1", "+1", "1x", "1.5", "9999"}) {
        retype("row", "7");
        repaste("row", pasted);
        EXPECT_EQ(shown("row"), "7") << pasted;
    }
    repaste("row", " 42\n");
    EXPECT_EQ(shown("row"), "42");
}

TEST_F(DialogTest, PositionsThatAreDisabledAreStillRequired) {
    for (const auto& [code, box, fields, cleared] :
         {std::tuple{Code::Copy, "entireScreen", "startRow startColumn endRow endColumn", "endRow"},
          {Code::Paste, "atCursor", "row column", "column"}}) {
        openNew(code);
        widget<QLineEdit>(cleared).clear();
        click(box);
        EXPECT_EQ(enabled(fields).find('1'), std::string::npos);
        click("ok");
        expectTold("A value is required in this field.", title());
        EXPECT_EQ(focused(), box);
        widget<QLineEdit>(cleared).setText(QStringLiteral("256"));
        click("ok");
        ASSERT_EQ(answers.messages.size(), 1U) << "nor can it be stored";
        answers.messages.clear();
        click(box);
        EXPECT_EQ(enabled(fields).find('0'), std::string::npos);
    }
    entry = newCommand(Code::Copy);
    entry.number = 2;
    open();
    EXPECT_EQ(checked("entireScreen") + enabled("startRow startRowLabel endRowLabel"), "1000");
    EXPECT_EQ(focused(), "entireScreen");
    entry = newCommand(Code::Paste);
    entry.area = 0x44332211;
    open();
    click("ok");
    EXPECT_EQ(entry.area, 0x00002211U) << "Paste clears the end of its area";
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
        {run, 0, VT, "Program Files(*.exe)", "exe", "."},
        {menu, 202, Mainframe, "Quendra Mainframe Display(*.qmd)", "qmd", "Config"},
        {menu, 202, ISeries, "Quendra iSeries Display(*.qad)", "qad", "Config"},
        {menu, 202, VT, "Quendra VT(*.qvt)", "qvt", "Config"},
        {menu, 204, UTS, "Quendra UTS Display(*.qud)", "qud", "Config"},
        {menu, 204, T27, "Quendra T27 Display(*.qtd)", "qtd", "Config"},
        {menu, 204, ICL, "Quendra ICL Display(*.q7d)", "q7d", "Config"},
        {menu, 219, Mainframe, "All Files(*.*)", "", "."},
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
        answers.toFileDialogs = {std::nullopt, "/\u65e5", "/a\nb", '/' + std::string(255, 'x'),
                                 "/e\u0301.y"};
        for (const char* fault : {"", "The character \u65e5 (U+65E5) cannot be stored in a script.",
                                  "The character U+000A (invisible character) cannot be stored in "
                                  "a script.",
                                  "At most 255 characters fit here."}) {
            click("browse");
            EXPECT_EQ(shown("file"), "before");
            // As when the window of the files has gone.
            QApplication::setActiveWindow(nullptr);
            QApplication::setActiveWindow(dialog);
            EXPECT_EQ(note(), fault);
        }
        click("browse");
        const FileDialogRequest& request = answers.fileDialogs[0];
        EXPECT_EQ(request.mode, FileDialogMode::Open);
        EXPECT_EQ(request.title, title());
        EXPECT_EQ(request.filterDescription, row.filter);
        EXPECT_EQ(request.extension, row.extension);
        EXPECT_EQ(request.initialFolder.lexically_normal().lexically_relative(editor.folder.path()),
                  row.folder);
        click("ok");
        EXPECT_EQ(textOf(otherwise()), "/\xe9.y");
    }
}

TEST_F(DialogTest, InputStoresCharacterOrStringAtOnceAndNothingElse) {
    constexpr const char* length = "maximumLength maximumLengthLabel";
    for (const Slot slot : allSlots) {
        startWith(Code::Input, slot);
        Step& fields = slotFields(entry, slot);
        fields.maxLength = 40;
        ScriptEntry expected = entry;
        open(slot);
        click("string");
        EXPECT_EQ(fields.maxLength, 40) << "it was chosen already";
        click("character");
        EXPECT_EQ(fields.maxLength, 0);
        EXPECT_EQ(enabled(length), "00");
        click("string");
        EXPECT_EQ(enabled(length), "11");
        retype("maximumLength", "7");
        retype("title", "t");
        click("hideInput");
        press(Qt::Key_Escape);
        slotFields(expected, slot).maxLength = 1;
        EXPECT_EQ(entry, expected);

        open(slot);
        EXPECT_EQ(shown("maximumLength"), "255") << "nobody chose a length yet";
        retype("title", "t");
        click("character");
        click("ok");
        EXPECT_EQ(fields.maxLength, 0);
        open(slot);
        EXPECT_EQ(checked("character") + enabled(length) + shown("maximumLength"), "100255");
    }
}

TEST_F(DialogTest, AnInputLengthOutsideOfItsRangeIsRefusedByName) {
    openNew(Code::Input);
    retype("title", "t");
    for (const char* typed : {"", "0", "1", "256", "999"}) {
        retype("maximumLength", typed);
        press(Qt::Key_Return);
        expectTold("Maximum String Length: enter a number from 2 to 255.", "Input");
        EXPECT_EQ(focused(), "maximumLength");
        EXPECT_EQ(shown("maximumLength"), typed);
    }
    // The arrows stay within the range, and start in it.
    for (const auto& [typed, key, reached] : {std::tuple{"2", Qt::Key_Down, "2"},
                                              {"255", Qt::Key_Up, "255"},
                                              {"", Qt::Key_Up, "2"},
                                              {"300", Qt::Key_Down, "255"}}) {
        retype("maximumLength", typed);
        press(key);
        EXPECT_EQ(shown("maximumLength"), reached);
    }
    retype("maximumLength", "");
    click("character");
    click("ok");
    EXPECT_TRUE(endedWithOk()) << "a character has no length";
}

TEST_F(DialogTest, AnInputPromptHasLinesIsCutWhenPastedAndRefusedWhenTyped) {
    openNew(Code::Input);
    retype("title", "t");
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
    EXPECT_EQ(note(), "The character \xe4\xb8\xad (U+4E2D) cannot be stored in a script.");

    retype("prompt", "a\nb");
    pasteInto(widget("prompt"), "\r\nc\nu\u0308");
    press(Qt::Key_Tab);
    EXPECT_NE(focused(), "prompt");
    click("ok");
    EXPECT_EQ(promptOf(own()), "a\r\nb\r\nc\r\n\xfc");
}

TEST_F(DialogTest, WaitUntilShowsThePresentMomentForNoneAndForAnImpossibleOne) {
    for (const DateTime& moment : {DateTime{}, DateTime{2030, 13, 0, 41, 25, 0, 0, 0}}) {
        entry = newCommand(Code::WaitUntil);
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
    entry.waitUntil = {2031, 11, 0, 9, 0, 0, 0, 0};
    const QLocale before;
    QLocale::setDefault({QLocale::English, QLocale::UnitedStates});
    open();
    QLocale::setDefault(before);
    EXPECT_EQ(checked("hasDate hasTime") + enabled("date time"), "1010");
    EXPECT_EQ(shown("date"), "11/9/2031") << "as the locale has it, with the whole year";
}

TEST_F(DialogTest, ATimeStandsWithSecondsInTheWordsAndSignsOfTheLocale) {
    const QLocale before;
    for (const auto& [locale, time] : {std::pair{"en_US", "3:04:05 PM"},
                                       {"de_DE", "15:04:05"},
                                       {"fi_FI", "15.04.05"},
                                       {"be_BY", "15:04:05"},
                                       {"zh_TW", "下午 3:04:05"},
                                       {"fr_CA", "15 h 04 min 05 s"},
                                       {"ja_JP", "15時04分05秒"}}) {
        QLocale::setDefault(QLocale(QLatin1String(locale)));
        entry = newCommand(Code::WaitUntil);
        entry.waitUntil = {0, 0, 0, 0, 15, 4, 5, 0};
        open();
        EXPECT_EQ(shown("time"), time) << locale;
        EXPECT_EQ(shown("date").find(':'), std::string::npos);
    }
    QLocale::setDefault(before);
}

TEST_F(DialogTest, ReturnIsOkAndTheFirstFieldIsSelectedAtTheStart) {
    // Browse comes before OK in the second one.
    for (const Code code : {Code::Goto, Code::Run}) {
        entry = newCommand(code);
        setText(own(), "old");
        open();
        type("new");
        press(Qt::Key_Return);
        EXPECT_TRUE(endedWithOk());
        EXPECT_EQ(textOf(own()), "new");
    }
}

TEST_F(DialogTest, AGotoOffersTheLabelsInTheirOrderAndTakesAnyOtherText) {
    for (const auto& [code, text] : {std::pair{10, "Start"}, {7, "Nowhere"}, {10, "End"}})
        state.script.entries.push_back(
            storeRecord(joined({{static_cast<std::uint8_t>(code)}, counted(text)})));
    openNew(Code::Goto);
    EXPECT_EQ(focused(), "text");
    press(Qt::Key_Down);
    auto& offered = *QApplication::activePopupWidget();
    EXPECT_EQ(selectedIn(offered), "Start");
    QTest::keyClick(&offered, Qt::Key_Down);
    EXPECT_EQ(selectedIn(offered), "End");
    QTest::keyClick(&offered, Qt::Key_Return);
    EXPECT_EQ(shown("text"), "End");
    EXPECT_TRUE(dialog->isVisible()) << "Return took the label only";
    click("offers");
    EXPECT_EQ(selectedIn(*QApplication::activePopupWidget()), "End");
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible());
    retype("text", "Later");
    click("ok");
    EXPECT_EQ(textOf(own()), "Later");
    state.script = {};
    openNew(Code::Goto);
    EXPECT_FALSE(has("offers"));
}

TEST_F(DialogTest, ATypeOffersTheVariablesButNotWhileItIsHidden) {
    state.script.entries.push_back(storeRecord(joined({{8}, counted("t"), word(0), {255, 0, 2}})));
    openNew(Code::Type);
    press(Qt::Key_Down);
    EXPECT_EQ(selectedIn(*QApplication::activePopupWidget()), "VarUserId") << "what is stored";
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(shown("text"), "VarUserId");
    click("hide");
    EXPECT_FALSE(widget("offers").isVisible());
    widget("text").setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(shown("text"), "*********");
    click("ok");
    EXPECT_EQ(textOf(own()), "VarUserId");
    EXPECT_EQ(own().hidden, 1);
}

}  // namespace
}  // namespace quendra::test
