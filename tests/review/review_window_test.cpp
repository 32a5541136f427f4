// The window of comparisons and conflicts, by keys and mouse, beside the running editor.
#include "review/review_window.h"

#include "review/review_list.h"
#include "scriptfile/script_reader.h"
#include "support/editor_fixture.h"
#include "widgets/appearance.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

#include <cmath>

namespace quendra::test {
namespace {

using enum EditorCommand;

class ReviewTest : public EditorTest {
  protected:
    /// Opens Comments with these texts, one for each word, as the file "mine.qds".
    void openWords(const std::string& words) {
        if (isMarked()) answers.toMessages.push_back(MessageAnswer::No);
        open("mine.qds", fileOf(words));
    }
    static Bytes fileOf(const std::string& words) {
        Bytes file = bytesOf("QDMDSCR=");
        std::string word;
        for (const char c : words + " ") {
            if (c != ' ') {
                word += c;
                continue;
            }
            const Bytes record = commentRecord(word);
            if (!word.empty()) file.insert(file.end(), record.begin(), record.end());
            word.clear();
        }
        return file;
    }
    void compareWith(const Bytes& file) {
        const auto path = editor.folder / "other.qds";
        writeBytes(path, file);
        run(CompareWithFile, path);
        activate();
    }
    void activate() {
        QApplication::setActiveWindow(&review());
        QCoreApplication::processEvents();
    }
    static ReviewWindow& review() {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<ReviewWindow*>(top)) return *found;
        throw std::runtime_error("no review window");
    }
    template <class T>
    static T& part(const char* name) {
        T* found = review().findChild<T*>(QLatin1String(name));
        if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }
    static ReviewList& list() { return part<ReviewList>("reviewList"); }
    static std::string shown(const char* label) { return part<QLabel>(label).text().toStdString(); }
    static std::string details() {
        return part<QPlainTextEdit>("reviewDetails").toPlainText().toStdString();
    }
    /// The spoken rows, with "|" between them.
    static std::string rows() {
        std::string all;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            all +=
                (row == 0 ? "" : "|") +
                list().model()->index(row, 0).data(Qt::AccessibleTextRole).toString().toStdString();
        return all;
    }
    // To the window as the system would, so that shortcuts count.
    static void press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(review().windowHandle(), key, held);
    }
};

TEST_F(ReviewTest, KeysGoFromChangeToChangeAndRoundAndSaySo) {
    openWords("a b c d e");
    compareWith(fileOf("a x b c d e y"));
    const std::pair<Qt::KeyboardModifiers, const char*> steps[] = {
        {{}, "Change 2 of 2"},
        {{}, "Change 1 of 2; on from the start"},
        {Qt::ShiftModifier, "Change 2 of 2; on from the end"},
        {Qt::ShiftModifier, "Change 1 of 2"},
    };
    EXPECT_EQ(shown("reviewSummary"), "Change 1 of 2");
    EXPECT_EQ(list().focusedRow(), 1);
    for (const auto& [held, summary] : steps) {
        press(Qt::Key_F7, held);
        EXPECT_EQ(shown("reviewSummary"), summary);
    }
    QTest::keyClick(&list(), Qt::Key_Home);
    EXPECT_EQ(shown("reviewSummary"), "2 changes");
    QTest::mouseClick(&part<QToolButton>("reviewNext"), Qt::LeftButton);
    EXPECT_EQ(list().focusedRow(), 1);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shown("reviewSummary"), "Change 1 of 1") << "on to what is left";
    EXPECT_EQ(list().focusedRow(), 6);
    run(Undo);
    EXPECT_EQ(rows().substr(0, 75),
              "the same; left, entry 1: a; right, entry 1: a|only on the left; left, entry");
    press(Qt::Key_Escape);
    EXPECT_FALSE(review().isVisible());
}

TEST_F(ReviewTest, TakesEachKindOfChangeOverInOneStepThatUndoTakesBack) {
    struct Row {
        const char* mine;
        const char* other;
        const char* consequence;
        const char* after;
    };
    const Row table[] = {
        {"a c", "a b c", "Take Over: entry 2 of the left side is inserted into the script",
         "a|b|c"},
        {"a b c", "a c", "Take Over: entry 2 is removed from the script", "a|c"},
        {"b c d a", "a b c d", "Take Over: entry 4 of the script moves to where it is on the left",
         "a|b|c|d"},
        {"a", "", "Take Over: entry 1 is removed from the script", ""},
    };
    for (const Row& row : table) {
        openWords(row.mine);
        const std::string before = lines();
        compareWith(fileOf(row.other));
        EXPECT_EQ(shown("reviewConsequence"), row.consequence);
        press(Qt::Key_Right, Qt::AltModifier);
        EXPECT_EQ(lines(), row.after);
        EXPECT_EQ(shown("reviewSummary"), "The scripts are the same");
        EXPECT_FALSE(part<QPushButton>("reviewTakeOver").isEnabled());
        press(Qt::Key_Right, Qt::AltModifier);
        EXPECT_EQ(action(Undo).toolTip(), QStringLiteral("Undo Take Over"));
        run(Undo);
        press(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(lines(), row.after) << "its own keys";
        part<QPlainTextEdit>("reviewDetails").setFocus();
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(lines(), before);
        EXPECT_FALSE(isEnabled(Undo)) << "one step";
        EXPECT_NE(shown("reviewSummary"), "The scripts are the same");
        EXPECT_FALSE(isMarked());
    }
}

TEST_F(ReviewTest, TakesAllSelectedChangesOverAtOnceByTheMouse) {
    openWords("a b c d");
    compareWith(fileOf("x a c d y"));
    list().selectAll();
    EXPECT_EQ(shown("reviewConsequence"),
              "Take Over: the 3 selected changes become as on the left");
    QTest::mouseClick(&part<QPushButton>("reviewTakeOver"), Qt::LeftButton);
    EXPECT_EQ(lines(), "x|a|c|d|y");
    run(Undo);
    EXPECT_EQ(lines(), "a|b|c|d");
}

TEST_F(ReviewTest, RefusesWhatWouldNotFitAScript) {
    open("mine.qds", commentFile(4096));
    Bytes other = commentFile(4095);
    const Bytes first = commentRecord("first");
    other.insert(other.begin() + 8, first.begin(), first.end());
    compareWith(other);
    press(Qt::Key_Right, Qt::AltModifier);
    ASSERT_EQ(answers.messages.size(), 1U);
    EXPECT_EQ(answers.messages[0].text,
              "The script would then have more than 4096 entries. Nothing was changed.");
    EXPECT_FALSE(isMarked());
}

TEST_F(ReviewTest, TellsFieldsOfAChangeAndNeverAHiddenText) {
    open("mine.qds", scriptFile("QDMDSCR=", {hiddenTypeRecord("secret one", "")}));
    compareWith(scriptFile("QDMDSCR=", {hiddenTypeRecord("secret two", "")}));
    EXPECT_EQ(details(), "text hidden, changed");
    EXPECT_EQ(rows(), R"(changed; left, entry 1: Type "**********" (H); )"
                      R"(right, entry 1: Type "**********" (H))");
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shown("reviewSummary"), "The scripts are the same");
    compareWith(scriptFile("QDMDSCR=", {joined({{15}, counted("sealed"), {0}})}));
    EXPECT_EQ(details().substr(0, 24), "text \"sealed\" \u2192 hidden");
    compareWith(fileOf("a"));
    EXPECT_EQ(details(), "only on the left: a");
}

TEST_F(ReviewTest, ComparesWithTheSavedScriptWhateverBecomesOfTheFile) {
    EXPECT_FALSE(isEnabled(CompareWithSaved));
    openWords("a b");
    deleteFirstEntry();
    std::filesystem::remove(editor.folder / "mine.qds");
    run(CompareWithSaved);
    activate();
    EXPECT_EQ(shown("reviewLeftName"), "mine.qds, as saved");
    EXPECT_EQ(shown("reviewRightName"), "mine.qds, in the editor");
    EXPECT_EQ(rows(),
              "only on the left; left, entry 1: a|"
              "the same; left, entry 2: b; right, entry 1: b");
    deleteFirstEntry();
    EXPECT_EQ(rows(), "only on the left; left, entry 1: a|only on the left; left, entry 2: b");
    run(Undo);
    run(Save);
    EXPECT_EQ(shown("reviewSummary"), "The scripts are the same") << "the saved one has changed";
    run(modeCommand(HostType::VT));
    EXPECT_TRUE(shown("reviewLeftPlace").starts_with("1 entry, Mainframe")) << "as it was saved";
    EXPECT_TRUE(shown("reviewRightPlace").starts_with("1 entry, VT"));
    run(Save);
    EXPECT_TRUE(shown("reviewLeftPlace").starts_with("1 entry, VT"));
}

TEST_F(ReviewTest, RefusesWhatIsNoScriptAndTellsOfOneThatIsNotWhole) {
    openWords("a");
    const auto path = editor.folder / "no.qds";
    writeBytes(path, bytesOf("no script at all"));
    run(CompareWithFile, path);
    ASSERT_EQ(answers.messages.size(), 1U);
    Bytes cut = fileOf("a b");
    cut.pop_back();
    compareWith(cut);
    EXPECT_NE(shown("reviewLeftNote").find("ends inside"), std::string::npos)
        << shown("reviewLeftNote");
    EXPECT_TRUE(part<QLabel>("reviewLeftNote").isVisible());
    EXPECT_FALSE(part<QLabel>("reviewRightNote").isVisible());
}

TEST_F(ReviewTest, ResolvesOneConflictAStepAndLeavesStrayMarksAlone) {
    const char* conflicts = "a <<<<<<< b ======= c >>>>>>> d <<<<<<< e ======= >>>>>>>";
    struct Row {
        Qt::Key key;
        const char* button;
        const char* after;
    };
    const Row table[] = {
        {Qt::Key_1, "reviewKeepOurs", "a|b|d|<<<<<<<|e|=======|>>>>>>>"},
        {Qt::Key_2, "reviewKeepTheirs", "a|c|d|<<<<<<<|e|=======|>>>>>>>"},
        {Qt::Key_3, "reviewKeepBoth", "a|b|c|d|<<<<<<<|e|=======|>>>>>>>"},
    };
    for (const Row& row : table) {
        openWords(conflicts);
        run(ResolveConflicts);
        activate();
        EXPECT_EQ(shown("reviewSummary"), "Conflict 1 of 2");
        EXPECT_EQ(shown("reviewConsequence"),
                  "What you keep replaces the entries 2 to 6 of the script");
        press(row.key, Qt::AltModifier);
        EXPECT_EQ(lines(), row.after);
        EXPECT_EQ(shown("reviewSummary"), "Conflict 1 of 1") << "on to what is left";
        run(Undo);
        press(Qt::Key_F7, Qt::ShiftModifier);
        QTest::mouseClick(&part<QPushButton>(row.button), Qt::LeftButton);
        EXPECT_EQ(lines(), row.after);
        press(Qt::Key_F7);
        press(Qt::Key_2, Qt::AltModifier);
        EXPECT_EQ(shown("reviewSummary"), "No conflicts");
        EXPECT_TRUE(QTest::qWaitFor([this] { return !isEnabled(ResolveConflicts); }));
        EXPECT_FALSE(part<QLabel>("reviewNote").isVisible());
    }
    openWords("<<<<<<< a <<<<<<< b ======= c >>>>>>>");
    run(ResolveConflicts);
    EXPECT_EQ(shown("reviewNote"),
              "Left alone, because they lie within each other or lack their "
              "counterparts: the conflict marks in the entries 1");
    EXPECT_TRUE(part<QLabel>("reviewNote").isVisible());
    EXPECT_EQ(shown("reviewSummary"), "Conflict 1 of 1");
    openWords("a <<<<<<< b");
    run(ResolveConflicts);
    EXPECT_EQ(shown("reviewSummary"), "No conflict that can be resolved here");
}

TEST_F(ReviewTest, HeadsConflictsAsTheirMarksNameThemAndFollowsTheDocument) {
    const Bytes middle = commentRecord("=======");
    open("mine.qds", scriptFile("QDMDSCR=", {commentRecord("<<<<<<< ours"), commentRecord("a"),
                                             middle, commentRecord(">>>>>>> topic"),
                                             commentRecord("b"), commentRecord("<<<<<<< main"),
                                             middle, commentRecord(">>>>>>> fix")}));
    run(ResolveConflicts);
    activate();
    EXPECT_EQ(shown("reviewRightName"), "topic");
    press(Qt::Key_F7);
    EXPECT_EQ(shown("reviewLeftName"), "main");
    EXPECT_EQ(shown("reviewRightName"), "fix");
    run(modeCommand(HostType::VT));
    EXPECT_TRUE(shown("reviewLeftPlace").starts_with("8 entries, VT"));
}

TEST(ReviewWindow, KeepsItsSummaryWhereItIsNarrow) {
    EditorState german("qdstring_de");
    ReviewWindow window(german.state);
    const Bytes marks[] = {commentRecord("<<<<<<<"), commentRecord("======="),
                           commentRecord(">>>>>>>")};
    const Bytes file = scriptFile("QDMDSCR=", {marks[0], marks[1], marks[2]});
    window.resolve({readScript(file).script, HostType::Mainframe, "a.qds", {}, {}},
                   [](const ReviewedScript&) { return true; });
    window.resize(window.minimumSize());
    window.show();
    QCoreApplication::processEvents();
    const auto& summary = *window.findChild<QLabel*>(QStringLiteral("reviewSummary"));
    EXPECT_EQ(summary.text(), QStringLiteral("Konflikt 1 von 1"));
    EXPECT_GE(summary.width(), summary.fontMetrics().horizontalAdvance(summary.text()));
}

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double lighter = std::max(luminance(one), luminance(other));
    const double darker = std::min(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(ReviewColours, LeaveEveryTextReadableInLightAndDark) {
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        const QPalette palette = appearancePalette(appearance);
        for (int kind = 0; kind <= static_cast<int>(RowKind::Conflict); ++kind) {
            const QColor ground = reviewGround(palette, static_cast<RowKind>(kind));
            EXPECT_GE(contrast(palette.color(QPalette::Text), ground), 4.5) << kind;
            EXPECT_GE(contrast(reviewQuietText(palette), ground), 4.5) << kind;
            EXPECT_EQ(signOf(static_cast<RowKind>(kind)).isEmpty(), kind == 0);
        }
        EXPECT_GE(contrast(reviewQuietText(palette), palette.color(QPalette::AlternateBase)), 4.5);
    }
}

}  // namespace
}  // namespace quendra::test
