// Finding and replacing as a user does it: the bar with its keys and buttons on the real window.
#include "support/editor_fixture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

namespace quendra::test {
namespace {

using enum EditorCommand;

Bytes gotoRecord(std::string_view label) {
    return joined({{7}, counted(label)});
}

// With a timeout of 37 seconds, or 30 where the text is that.
Bytes waitForRecord(std::string_view text, const Bytes& found) {
    const std::uint8_t seconds = text == "30" ? 30 : 37;
    return joined({{17}, counted(text), {1, 1, 0, 1, 1, seconds}, found, {0}});
}

class FindBarTest : public EditorTest {
  protected:
    FindBarTest() {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        open("a.qds", commentFile(30));
        select({3}, 3);
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    }
    void press(QWidget& in, Qt::Key key, Qt::KeyboardModifiers held = {}) {
        in.setFocus();
        QTest::keyClick(&in, key, held);
        QApplication::processEvents();
    }
    void retype(QLineEdit& field, const char* text) {
        field.setFocus();
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, QString::fromUtf8(text));
    }
    void click(const char* button) {
        QTest::mouseClick(&widget<QToolButton>(button), Qt::LeftButton);
    }
    /// Opens a script with these records and the row for replacing.
    void openForReplacing(std::initializer_list<Bytes> records) {
        open("b.qds", scriptFile("QDMDSCR=", records));
        QTest::keyClick(&window, Qt::Key_H, Qt::ControlModifier);
    }
    void type(const char* text) { QTest::keyClicks(&edit, QLatin1String(text)); }
    [[nodiscard]] std::vector<std::size_t> found() {
        std::vector<std::size_t> rows;
        for (int row = 0; row < script().model()->rowCount(); ++row)
            if (script().model()->index(row, 0).data(Qt::BackgroundRole).isValid())
                rows.push_back(static_cast<std::size_t>(row));
        return rows;
    }
    [[nodiscard]] std::string count() { return widget<QLabel>("findCount").text().toStdString(); }
    void expectAt(std::size_t entry, const char* position) {
        EXPECT_EQ(window.pane().selectedEntries(), std::vector{entry});
        EXPECT_EQ(count(), position);
    }

    QLineEdit& edit = widget<QLineEdit>("findText");
    QLineEdit& replacement = widget<QLineEdit>("replaceText");
};

TEST_F(FindBarTest, GoesToTheNextMatchWithEveryLetterAndBackWhenOneIsTaken) {
    type("1");
    expectAt(9, "2 of 12 - Text");
    EXPECT_EQ(found(), (std::vector<std::size_t>{0, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20}));
    type("5");
    expectAt(14, "1 of 1 - Text");
    press(edit, Qt::Key_Backspace);
    expectAt(9, "2 of 12 - Text");
    type("x");
    expectAt(3, "Not found");
    select({18}, 18);
    press(edit, Qt::Key_Backspace);
    expectAt(18, "11 of 12 - Text");
    type("5");
    expectAt(14, "1 of 1 - Text");
    press(edit, Qt::Key_Backspace);
    expectAt(18, "11 of 12 - Text");
}

TEST_F(FindBarTest, NextAndPreviousGoRoundInBothDirections) {
    type("9");
    expectAt(8, "1 of 3 - Text");
    press(edit, Qt::Key_Return);
    press(edit, Qt::Key_F3);
    expectAt(28, "3 of 3 - Text");
    click("findNext");
    expectAt(8, "1 of 3 - Text");
    press(edit, Qt::Key_Return, Qt::ShiftModifier);
    click("findPrevious");
    expectAt(18, "2 of 3 - Text");
}

TEST_F(FindBarTest, OpensBesideTheCurrentStepAndSaysAllInANarrowWindow) {
    press(edit, Qt::Key_Escape);
    const int last = script().indexAt({1, script().viewport()->height() - 5}).row();
    select({static_cast<std::size_t>(last)}, last);
    QTest::keyClick(&window, Qt::Key_H, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_TRUE(script().viewport()->rect().contains(script().rowRect(last)));
    window.resize(626, window.height());
    click("findExpression");
    retype(edit, "(Comment [0-9]+");
    QApplication::processEvents();
    const auto& said = widget<QLabel>("findCount");
    EXPECT_LE(said.fontMetrics().horizontalAdvance(said.text()), said.contentsRect().width());
    EXPECT_TRUE(said.parentWidget()->rect().contains(said.geometry()));
    retype(edit, "1");
    QApplication::processEvents();
    EXPECT_EQ(said.y() / edit.height(), 0) << "beside the field again";
    run(ShowProblems);
    QApplication::processEvents();
    const auto right = [this](const char* name) {
        const auto& button = widget<QToolButton>(name);
        return button.mapTo(&window, button.rect().center()).x();
    };
    EXPECT_EQ(right("findClose"), right("problemsClose"));
}

TEST_F(FindBarTest, MarksFollowTheScriptAndGoWithTheBar) {
    type("9");
    run(Cut);
    EXPECT_EQ(found(), (std::vector<std::size_t>{17, 27}));
    EXPECT_EQ(count(), "2 found");
    run(Undo);
    press(edit, Qt::Key_Escape);
    EXPECT_FALSE(edit.isVisible());
    EXPECT_TRUE(found().empty());
    EXPECT_TRUE(script().hasFocus());
    press(script(), Qt::Key_F3);
    EXPECT_TRUE(edit.hasFocus());
    expectAt(18, "2 of 3 - Text");
    press(script(), Qt::Key_Escape);
    EXPECT_FALSE(edit.isVisible()) << "from the list too";
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(edit.selectedText(), QStringLiteral("9"));
    EXPECT_EQ(found(), (std::vector<std::size_t>{8, 18, 28}));
    press(edit, Qt::Key_X, Qt::ControlModifier);
    press(edit, Qt::Key_Delete);
    EXPECT_EQ(edit.text(), QString());
    EXPECT_EQ(state.script.entryCount(), 30U) << "keys of the field do not reach the script";
}

TEST_F(FindBarTest, SearchesEveryFieldAndSaysWhichOneItHit) {
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::pcFileName, "C:\\report.txt");
    setTransferText(settings, transfer::hostFilePassword, "Secret");
    const Bytes input = joined({{8}, counted("Logon"), word(8), bytesOf("Your ID?"), {255, 0, 0}});
    open("b.qds", scriptFile("QDMDSCR=", {input, waitForRecord("READY", gotoRecord("Ready")),
                                          transferRecord(settings, sendFileCommand),
                                          hiddenTypeRecord("Secret", "")}));
    const struct {
        const char* text;
        const char* options;
        const char* count;
    } rows[] = {
        {"your id", "", "1 of 1 - Prompt"},
        {"REPORT", "", "1 of 1 - PC File: File Name"},
        {"37", "", "1 of 1 - Timeout in Seconds"},
        {"ready", "", "1 of 2 - Text"},
        {"Ready", "findMatchCase", "1 of 1 - Text (Found)"},
        {"read", "findWholeWords", "Not found"},
        {"^r.a", "findExpression", "1 of 2 - Text"},
        {"wait_for", "", "1 of 1"},
        {"If Found", "", "1 of 1"},
        {"secret", "", "Not found"},
        {"(a", "findExpression", "Not valid at character 2: missing closing parenthesis"},
    };
    for (const auto& row : rows) {
        if (*row.options) click(row.options);
        retype(edit, row.text);
        EXPECT_EQ(count(), row.count) << row.text;
        if (*row.options) click(row.options);
    }
    retype(edit, "ready");
    press(edit, Qt::Key_Return);
    expectAt(1, "2 of 2 - Text (Found)");
    press(edit, Qt::Key_R, Qt::AltModifier);
    type("(");
    EXPECT_EQ(found(), std::vector<std::size_t>{1}) << "what was found stays until it is valid";
    press(edit, Qt::Key_Return);
    run(Cut);
    EXPECT_TRUE(found().empty()) << "but not in another script";
}

TEST_F(FindBarTest, AnExpressionThatIsGivenUpIsToldAndReplacesNothing) {
    openForReplacing({commentRecord(std::string(60, 'a') + "!b"), commentRecord("aab")});
    click("findExpression");
    retype(edit, "(a+)+b");
    EXPECT_EQ(count(), "1 of 1 - Text; too many ways to match: not all is searched");
    retype(replacement, "x");
    click("replaceAll");
    EXPECT_FALSE(isMarked());
    EXPECT_NE(status().find("too many ways"), std::string::npos);
}

TEST_F(FindBarTest, ReplaceChangesTheFieldAndGoesOnToTheNextHit) {
    openForReplacing({commentRecord("a b a"), gotoRecord("a"), commentRecord("c a"), {4}});
    EXPECT_TRUE(replacement.isVisible());
    retype(edit, "a");
    retype(replacement, "aa");
    press(replacement, Qt::Key_Return);
    expectAt(1, "2 of 3 - Text");
    EXPECT_EQ(lines(), "aa b aa|Goto a|c a|Beep");
    EXPECT_EQ(action(Undo).text(), QStringLiteral("&Undo Replace"));
    click("replace");
    click("replace");
    EXPECT_EQ(lines(), "aa b aa|Goto aa|c aa|Beep");
    EXPECT_TRUE(replacement.hasFocus()) << "the next one needs no click more";
    retype(edit, "Beep");
    click("replace");
    EXPECT_EQ(status(), "Only texts and numbers of entries can be replaced");
    for (int i = 0; i < 3; ++i)
        run(Undo);
    EXPECT_FALSE(isMarked());
    press(edit, Qt::Key_Escape);
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(replacement.isVisible());
}

TEST_F(FindBarTest, ReplaceAllIsOneStepAndAsksWhereAFieldCannotChange) {
    const Bytes hidden = hiddenTypeRecord("30", "");
    openForReplacing(
        {waitForRecord("30", gotoRecord("x30")), commentRecord("30"), hidden, gotoRecord("30")});
    const std::string before = lines();
    retype(edit, "30");
    retype(replacement, "forty");
    for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
        EXPECT_EQ(lines(), before);
        answers.toMessages = {answer};
        click("replaceAll");
    }
    EXPECT_NE(answers.messages[0].text.find("\n\nStep 1, Timeout in Seconds: no number that"),
              std::string::npos)
        << answers.messages[0].text;
    EXPECT_EQ(lines(),
              "Wait_For \"forty\" If Found Then Goto xforty|forty|Type \"**\" (H)|Goto forty");
    EXPECT_EQ(status(), "Fields replaced: 4");
    EXPECT_EQ(state.script.entries[2], storeRecord(hidden));
    run(Undo);
    EXPECT_EQ(lines(), before);
    EXPECT_FALSE(isMarked());
    replacement.setText(QStringLiteral("\u0416"));
    click("replaceAll");
    EXPECT_EQ(answers.messages.back().buttons, MessageButtons::Ok) << "nothing can change";
    EXPECT_FALSE(isMarked());
    retype(replacement, "30");
    click("replaceAll");
    EXPECT_EQ(status(), "Fields replaced: 0");
    EXPECT_FALSE(isEnabled(Undo));
}

}  // namespace
}  // namespace quendra::test
