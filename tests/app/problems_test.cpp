// What checks find, as the window shows it, and what keys and mouse do about it.
#include "support/editor_fixture.h"
#include "support/step_lines.h"
#include "text/text_ids.h"
#include "widgets/appearance.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QStatusBar>
#include <QTest>

#include <cmath>

namespace quendra::test {
namespace {

using enum EditorCommand;

class ProblemsTest : public EditorTest {
  protected:
    // Lets what follows a change happen.
    static void settle() { QTest::qWait(40); }
    // Shown as it would be after New and typing it all.
    void have(std::initializer_list<std::string_view> lines) {
        state.script = scriptOfLines(lines, state.cipher);
        state.currentIndex = 0;
        window.pane().rebuildScriptList();
        window.scriptChanged();
        settle();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
        settle();
    }
    [[nodiscard]] QString rowText(int row, int role) {
        return script().model()->index(row, 0).data(role).toString();
    }
    [[nodiscard]] QListView& problems() { return widget<QListView>("problemsList"); }
    [[nodiscard]] QToolButton& count() { return widget<QToolButton>("problemCount"); }
    [[nodiscard]] std::string position() {
        return widget<QLabel>("stepPosition").text().toStdString();
    }
    // The gutter of the script list as it is painted.
    [[nodiscard]] QImage gutterImage() {
        const QRect all = script().viewport()->rect();
        return script()
            .viewport()
            ->grab(QRect(0, 0, script().gutterWidth(), all.height()))
            .toImage();
    }
};

TEST_F(ProblemsTest, RowsAndStatusBarTellWhatIsFoundAfterEveryChange) {
    have({"Goto NoHots", "Beep", "Label NoHost"});
    EXPECT_EQ(count().text(), QStringLiteral("1 error, 2 warnings"));
    QStatusBar plain;
    plain.addWidget(new QLabel(QStringLiteral("3 entries")));
    EXPECT_EQ(window.statusBar()->sizeHint().height(), plain.sizeHint().height())
        << "no pixel of the pane is lost to it";
    const QString told = rowText(0, Qt::AccessibleDescriptionRole);
    EXPECT_TRUE(told.startsWith(u"Error: Goto NoHots: no such label; NoHost is in step 3"))
        << qPrintable(told);
    EXPECT_TRUE(rowText(0, Qt::ToolTipRole).contains(told));
    EXPECT_TRUE(rowText(0, Qt::ToolTipRole).contains(u"Goto NoHots\n")) << "and the line as before";
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(&script())->child(2);
    EXPECT_TRUE(row->text(QAccessible::Description).startsWith(u"Warning: Label NoHost"));
    const auto sign = [this](int at) {
        return script().model()->index(at, 0).data(PaneList::ProblemRole);
    };
    EXPECT_EQ(sign(0).toInt(), static_cast<int>(Severity::Error));
    EXPECT_EQ(sign(2).toInt(), static_cast<int>(Severity::Warning));
    select({0}, 0);
    run(DeleteEntries, MessageAnswer::Yes);
    settle();
    EXPECT_EQ(count().text(), QStringLiteral("1 warning"));
    EXPECT_FALSE(sign(0).isValid());
    have({"Beep"});
    EXPECT_FALSE(count().isVisible()) << "quiet when there is nothing";
}

TEST_F(ProblemsTest, KeysGoFromOneProblemToTheNextAndRoundAlsoWithTheListHidden) {
    have({"Beep", "Goto a", "Label b", "Goto c"});
    std::string seen;
    for (const auto held : {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                            Qt::ShiftModifier, Qt::ShiftModifier}) {
        key(Qt::Key_F8, held);
        seen += std::to_string(window.pane().focusedEntry() + 1) + " ";
    }
    EXPECT_EQ(seen, "2 3 3 4 3 3 ") << "the label is unused, and not reached";
    EXPECT_TRUE(status().starts_with("Warning: ")) << status();
    key(Qt::Key_Up);
    EXPECT_EQ(status(), "4 entries") << "a note about another step";
    have({"Beep"});
    key(Qt::Key_F8);
    EXPECT_EQ(status(), state.language.loadText(textid::noProblems));
}

TEST_F(ProblemsTest, TheListGoesToItsStepsAndLeavesThePaneAsItWas) {
    have({"Beep", "Goto a", "Goto b"});
    const QRect pane = window.pane().geometry();
    const QRect list = script().geometry();
    QTest::mouseClick(&count(), Qt::LeftButton);
    settle();
    EXPECT_TRUE(problems().isVisible());
    EXPECT_TRUE(problems().hasFocus());
    EXPECT_GE(window.pane().geometry().top(), pane.top());
    EXPECT_LT(window.pane().height(), pane.height());
    const QModelIndex second = problems().model()->index(1, 0);
    EXPECT_EQ(second.data().toString().toStdString(),
              "Step 3: Goto b: no such label [label-missing]");
    QTest::mouseClick(problems().viewport(), Qt::LeftButton, {},
                      problems().visualRect(second).center());
    EXPECT_EQ(window.pane().focusedEntry(), 2);
    key(Qt::Key_Up);
    EXPECT_EQ(window.pane().focusedEntry(), 1);
    EXPECT_TRUE(problems().hasFocus());
    key(Qt::Key_Return);
    EXPECT_TRUE(script().hasFocus());
    key(Qt::Key_Down);
    EXPECT_EQ(problems().currentIndex().row(), 1) << "it follows the script list";
    EXPECT_TRUE(state.userState.flag({"View", "Problems"}, false));
    select({0}, 0);
    run(Duplicate);
    settle();
    problems().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(window.pane().focusedEntry(), 1) << "nobody has chosen a problem";
    script().setFocus();
    run(Undo);
    settle();
    key(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(problems().isVisible());
    EXPECT_FALSE(state.userState.flag({"View", "Problems"}, true));
    EXPECT_EQ(window.pane().geometry(), pane);
    EXPECT_EQ(script().geometry(), list);
}

TEST_F(ProblemsTest, AQuickFixIsOneStepUnderItsNameAndIsRefusedWithAReason) {
    have({"Goto NoHots", "Beep", "Label NoHost"});
    EXPECT_EQ(action(ApplyQuickFix).text(), QStringLiteral("&Quick Fix: Change to Label NoHost"));
    key(Qt::Key_Period, Qt::ControlModifier);
    EXPECT_EQ(lines(), "Goto NoHost|Beep|NoHost:");
    EXPECT_EQ(state.history.undoName(), "Change to Label NoHost");
    EXPECT_FALSE(isEnabled(ApplyQuickFix));
    EXPECT_EQ(action(ApplyQuickFix).toolTip().toStdString(),
              state.language.loadText(textid::fixNothingHere));
    run(Undo);
    settle();
    EXPECT_EQ(lines(), "Goto NoHots|Beep|NoHost:");
    EXPECT_TRUE(isEnabled(ApplyQuickFix)) << "found again";
    key(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::mouseClick(&widget<QToolButton>("problemsQuickFix"), Qt::LeftButton);
    EXPECT_EQ(lines(), "Goto NoHost|Beep|NoHost:");
    have({"Goto", "Beep"});
    EXPECT_FALSE(isEnabled(ApplyQuickFix));
    EXPECT_EQ(widget<QToolButton>("problemsQuickFix").toolTip().toStdString(),
              state.language.loadText(textid::fixNeedsDecision));
    const std::string before = lines();
    // What rests on the window tells about itself, until something is told of the script.
    QStatusTipEvent tip(QStringLiteral("Undo"));
    QApplication::sendEvent(&window, &tip);
    key(Qt::Key_Period, Qt::ControlModifier);
    EXPECT_EQ(lines(), before);
    EXPECT_EQ(status(), state.language.loadText(textid::fixNeedsDecision));
    EXPECT_TRUE(widget<QLabel>("statusLine").isVisible());
}

TEST_F(ProblemsTest, AStepIsReachedByItsNumberAndNothingElseIsTaken) {
    open("many.qds", commentFile(4094));
    EXPECT_EQ(position(), "Step 1 of 4,094");
    const std::pair<const char*, int> rows[] = {{"1234", 1233}, {"4,094", 4093}, {"4095", -1},
                                                {"0", -1},      {"x", -1},       {"", -1},
                                                {"-3", -1},     {"1.5", -1},     {"1", 0}};
    for (const auto& [typed, reached] : rows) {
        SCOPED_TRACE(typed);
        const int before = window.pane().focusedEntry();
        key(Qt::Key_G, Qt::ControlModifier);
        auto& edit = widget<QLineEdit>("stepNumber");
        ASSERT_TRUE(edit.hasFocus());
        edit.clear();
        QTest::keyClicks(&edit, QLatin1String(typed));
        key(Qt::Key_Return);
        EXPECT_EQ(window.pane().focusedEntry(), reached < 0 ? before : reached);
        EXPECT_EQ(edit.isVisible(), reached < 0);
        const auto& refusal = widget<QLabel>("stepRefusal");
        EXPECT_EQ(refusal.text().contains(u"4094"), reached < 0);
        EXPECT_TRUE(reached >= 0 || refusal.width() > 100) << "and can be read";
        if (reached < 0) key(Qt::Key_Escape);
        EXPECT_TRUE(script().hasFocus());
    }
    select({1233}, 1233);
    EXPECT_EQ(position(), "Step 1,234 of 4,094");
}

TEST_F(ProblemsTest, TheGutterShowsJumpsAndCanBeSwitchedOffForGood) {
    have({"Beep", "Goto a", "Beep", "Label a", "Label b", "Goto c"});
    const QImage atBeep = gutterImage();
    select({1}, 1);
    EXPECT_NE(gutterImage(), atBeep) << "the jump of the current step stands out";
    const int width = script().gutterWidth();
    EXPECT_GT(width, 0);
    const QRect pane = script().geometry();
    run(ShowGutter);
    EXPECT_EQ(script().gutterWidth(), 0);
    EXPECT_FALSE(action(ShowGutter).isChecked());
    EXPECT_EQ(script().geometry(), pane);
    MainWindow next(state);
    EXPECT_EQ(next.findChild<PaneList*>(QStringLiteral("scriptList"))->gutterWidth(), 0);
    run(ShowGutter);
    EXPECT_EQ(script().gutterWidth(), width);
    have({"Beep", "Beep"});
    EXPECT_LT(script().gutterWidth(), width) << "no room for lines that there are not";
}

// As the guidelines for readable text have it.
double luminance(const QColor& colour) {
    const auto part = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
           0.0722 * part(colour.blueF());
}

TEST_F(ProblemsTest, CommentsAreQuietAndLabelsLoudAndBothReadable) {
    have({"Comment c", "Label a", "Beep"});
    for (const Appearance appearance : {Appearance::Dark, Appearance::Light}) {
        const QPalette palette = appearancePalette(appearance);
        applyAppearance(appearance);
        const auto quiet = script().model()->index(0, 0).data(Qt::ForegroundRole).value<QBrush>();
        const double text = luminance(quiet.color());
        const double base = luminance(palette.color(QPalette::AlternateBase));
        const double contrast = (std::max(text, base) + 0.05) / (std::min(text, base) + 0.05);
        EXPECT_GE(contrast, 4.5);
        EXPECT_NE(quiet.color(), palette.color(QPalette::Text));
    }
    EXPECT_TRUE(script().model()->index(1, 0).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(script().model()->index(2, 0).data(Qt::FontRole).isValid());
}

}  // namespace
}  // namespace quendra::test
