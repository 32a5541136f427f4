// The manual's window, by keys and mouse.
#include "app/help/help_window.h"

#include "app/appearance.h"
#include "app/editor_fixture.h"
#include "app/help/made_up_manual.h"
#include "app/help/page_style.h"
#include "app/help/page_view.h"
#include "app/help/search_results.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <QTreeView>
#include <QtTest>

namespace quendra::test {

namespace {

class HelpWindowTest : public ::testing::Test {
  protected:
    HelpWindowTest() { open("index.md"); }

    void open(const char* page, const char* heading = "") {
        window.open(QLatin1String(page), QLatin1String(heading));
        QApplication::setActiveWindow(&window);
        QCoreApplication::processEvents();
    }
    template <class T>
    [[nodiscard]] T& widget(const char* name) {
        return *window.findChild<T*>(QLatin1String(name));
    }
    [[nodiscard]] PageView& view() { return widget<PageView>("helpPage"); }
    [[nodiscard]] std::string page() const { return window.page().toStdString(); }
    [[nodiscard]] std::string shown() { return view().toPlainText().toStdString(); }
    [[nodiscard]] int scrolled() { return view().verticalScrollBar()->value(); }
    [[nodiscard]] std::string focused() const {
        return window.focusWidget()->objectName().toStdString();
    }
    // To the window as the system would, so that shortcuts and modality count.
    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(window.windowHandle(), key, held);
    }
    void search(const std::string& text) {
        press(Qt::Key_F, Qt::ControlModifier);
        ASSERT_EQ(focused(), "helpSearch");
        for (const char c : text)
            QTest::keyClick(window.windowHandle(), c);
    }
    // Clicks on the link with this text.
    void clickLink(const char* text) {
        const QTextCursor found = view().document()->find(QLatin1String(text));
        ASSERT_FALSE(found.isNull()) << text;
        QTextCursor inside(found);
        inside.setPosition(found.selectionStart() + 1);
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {},
                          view().cursorRect(inside).center());
        QCoreApplication::processEvents();
    }

    MadeUpManual pages;
    EditorState editor;
    std::vector<std::string> addresses;
    HelpWindow window{pages.read(), editor.state.language, [this](const QString& address) {
                          addresses.push_back(address.toStdString());
                      }};
};

TEST_F(HelpWindowTest, ShowsAPageAndWhereItStandsInTheContents) {
    EXPECT_NE(shown().find("About scripts."), std::string::npos);
    ASSERT_EQ(focused(), "helpPage") << "keys scroll at once";
    open("wait-for.md");
    EXPECT_NE(shown().find("Waits for a text"), std::string::npos);
    EXPECT_EQ(widget<QTreeView>("helpContents").currentIndex().data().toString(), u"Wait_For");
    EXPECT_TRUE(window.windowTitle().startsWith(QStringLiteral("Wait_For - ")));
    EXPECT_EQ(scrolled(), 0);
    open("beep.md");
    widget<QWidget>("helpContents").setFocus();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(page(), "wait-for.md") << "a group opens nothing";
    EXPECT_EQ(focused(), "helpContents");
}

TEST_F(HelpWindowTest, LinksLeadToPagesHeadingsAndOutOfTheManual) {
    open("beep.md");
    clickLink("the site");
    EXPECT_EQ(addresses, std::vector<std::string>{"https://quendra.example/a?b=c"});
    EXPECT_EQ(page(), "beep.md");
    clickLink("nothing");
    EXPECT_EQ(shown(), "Page not found\nThe manual has no page \u201cnowhere.md\u201d.");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "beep.md");
    clickLink("Wait_For");
    EXPECT_EQ(page(), "wait-for.md");
    EXPECT_GT(scrolled(), 0);
    const QTextCursor options = view().document()->find(QStringLiteral("Options"));
    EXPECT_TRUE(view().viewport()->rect().contains(view().cursorRect(options).center()));
}

TEST_F(HelpWindowTest, SaysThatThereIsNoManual) {
    const TemporaryFolder folder;
    HelpWindow empty(Manual(folder / "my_manual", ""), editor.state.language, {});
    empty.open(QLatin1String(Manual::startPage));
    const auto text = empty.findChild<PageView*>()->toPlainText().toStdString();
    EXPECT_NE(text.find("not installed"), std::string::npos);
    EXPECT_NE(text.find((folder / "my_manual").string()), std::string::npos) << text;
}

TEST_F(HelpWindowTest, GoesBackAndForwardToWhereOneWas) {
    open("wait-for.md");
    view().verticalScrollBar()->setValue(300);
    open("beep.md");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "wait-for.md");
    EXPECT_EQ(scrolled(), 300);
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "index.md");
    EXPECT_FALSE(widget<QAction>("helpBack").isEnabled());
    press(Qt::Key_Right, Qt::AltModifier);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(page(), "beep.md");
    EXPECT_FALSE(widget<QAction>("helpForward").isEnabled());
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(page(), "index.md");
    EXPECT_FALSE(widget<QAction>("helpForward").isEnabled()) << "a new way was taken";
    open("index.md");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "wait-for.md") << "the same page again is no step";
}

TEST_F(HelpWindowTest, SearchesWhileOneTypes) {
    search("beep");
    const QAbstractItemModel& results = *widget<QListView>("helpResults").model();
    EXPECT_EQ(results.rowCount(), 4);
    EXPECT_EQ(results.index(0, 0).data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("Beep: Makes a noise. See Wait_For, the site and nothing."));
    EXPECT_EQ(widget<QLabel>("helpResultCount").text(), QStringLiteral("Found on 4 pages"));
    EXPECT_EQ(page(), "index.md") << "nothing opens before it is chosen";
    press(Qt::Key_Return);
    EXPECT_EQ(page(), "beep.md");
    EXPECT_EQ(focused(), "helpSearch");
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Down);
    EXPECT_EQ(page(), "wait-for.md");
    EXPECT_EQ(focused(), "helpResults");
    ASSERT_EQ(view().extraSelections().size(), 1);
    EXPECT_EQ(view().extraSelections()[0].cursor.selectedText(), QStringLiteral("Beep"));
    search("matters");
    press(Qt::Key_Return);
    ASSERT_EQ(view().extraSelections().size(), 1);
    const QRect word = view().cursorRect(view().extraSelections()[0].cursor);
    EXPECT_TRUE(view().viewport()->rect().contains(word)) << "scrolls to what was found";
    EXPECT_GT(scrolled(), 0);
    search("zebra");
    EXPECT_EQ(widget<QLabel>("helpResultCount").text(), QStringLiteral("Not found"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(widget<QLineEdit>("helpSearch").text().isEmpty());
    EXPECT_TRUE(widget<QTreeView>("helpContents").isVisible());
    EXPECT_TRUE(view().extraSelections().isEmpty());
    EXPECT_TRUE(window.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(HelpWindowTest, F6AndTabReachEveryPart) {
    press(Qt::Key_F, Qt::ControlModifier);
    std::string order;
    for (const Qt::Key key : {Qt::Key_F6, Qt::Key_F6, Qt::Key_F6, Qt::Key_Tab, Qt::Key_Tab}) {
        press(key);
        order += focused() + ' ';
    }
    EXPECT_EQ(order, "helpContents helpPage helpSearch helpContents helpPage ");
    press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "helpContents");
    open("beep.md");
    view().setFocus();
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(page(), "wait-for.md") << "Tab in a page goes from link to link";
}

TEST_F(HelpWindowTest, ZoomsWithinBoundsAndComesBackAsItWas) {
    const auto textSize = [this] { return view().document()->defaultFont().pointSizeF(); };
    const double normal = textSize();
    const std::pair<Qt::Key, double> rows[] = {
        {Qt::Key_Plus, 1.1}, {Qt::Key_Equal, 1.2}, {Qt::Key_Minus, 1.1}, {Qt::Key_0, 1}};
    for (const auto& [key, factor] : rows) {
        press(key, Qt::ControlModifier);
        EXPECT_NEAR(textSize(), normal * factor, 0.01);
    }
    for (int i = 0; i < 40; ++i)
        press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(view().zoom(), 70);
    const QPointF place(20, 20);
    QWheelEvent up(place, view().viewport()->mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                   Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view().viewport(), &up);
    EXPECT_EQ(view().zoom(), 80);
    window.resize(700, 500);
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(window.testAttribute(Qt::WA_QuitOnClose)) << "it keeps no program running";
    open("beep.md");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.size(), QSize(700, 500));
    EXPECT_EQ(view().zoom(), 80);
}

TEST_F(HelpWindowTest, EveryPartHasANameForThoseWhoDoNotSeeIt) {
    for (QWidget* part : window.findChildren<QWidget*>()) {
        const bool takesFocus = part->focusPolicy() != Qt::NoFocus &&
                                !part->objectName().startsWith(QLatin1String("qt_")) &&
                                !part->inherits("QSplitterHandle") &&
                                !part->inherits("QStackedWidget");
        if (!takesFocus && !part->objectName().endsWith(QLatin1String("Button"))) continue;
        QAccessibleInterface* named = QAccessible::queryAccessibleInterface(part);
        ASSERT_NE(named, nullptr);
        EXPECT_FALSE(named->text(QAccessible::Name).isEmpty())
            << part->objectName().toStdString() << ' ' << part->metaObject()->className();
    }
}

TEST_F(HelpWindowTest, LinksFollowThePalette) {
    open("beep.md");
    const QPalette before = QApplication::palette();
    for (const Appearance appearance : {Appearance::Dark, Appearance::Light}) {
        QApplication::setPalette(appearancePalette(appearance));
        QCoreApplication::processEvents();
        const QTextCursor link = view().document()->find(QStringLiteral("Wait_For"));
        EXPECT_EQ(link.charFormat().foreground().color(),
                  appearancePalette(appearance).color(QPalette::Link));
    }
    QApplication::setPalette(before);
}

TEST_F(HelpWindowTest, TablesHaveRoomAndCodeHasAGround) {
    open("wait-for.md");
    int tables = 0;
    int grounds = 0;
    for (const QTextFrame* frame : view().document()->rootFrame()->childFrames()) {
        if (const auto* table = qobject_cast<const QTextTable*>(frame)) {
            ++tables;
            EXPECT_GT(table->format().cellPadding(), 2);
            EXPECT_TRUE(table->format().borderCollapse());
        } else if (frame->frameFormat().background().style() == Qt::SolidPattern) {
            ++grounds;
            EXPECT_EQ(frame->firstCursorPosition().block().text(), u"Wait_For \"READY\"");
            EXPECT_EQ(frame->lastCursorPosition().block().text(), u"Beep");
        }
    }
    EXPECT_EQ(tables, 1);
    EXPECT_EQ(grounds, 1);
}

TEST_F(HelpWindowTest, PicturesAreNeverWiderThanThePage) {
    pages.writePicture("keys.png", 3000, 300);
    open("mainframe.md");
    const auto pictureWidth = [this] {
        const QChar picture = QChar::ObjectReplacementCharacter;
        return view().document()->find(picture).charFormat().toImageFormat().width();
    };
    const double wide = pictureWidth();
    EXPECT_GT(wide, 200);
    EXPECT_LT(wide, view().viewport()->width());
    window.resize(620, 500);
    QCoreApplication::processEvents();
    EXPECT_LT(pictureWidth(), wide);
    EXPECT_LT(pictureWidth(), view().viewport()->width());
}

TEST(PageStyle, AnchorsOfHeadingsAreThoseOfLinks) {
    const std::pair<const char*, const char*> rows[] = {
        {"Row, Column and Size", "row-column-and-size"},
        {"Über Größe (neu)", "über-größe-neu"},
        {"If_Input_Is - B", "if_input_is---b"},
    };
    for (const auto& [heading, anchor] : rows)
        EXPECT_EQ(headingAnchor(QString::fromUtf8(heading)).toStdString(), anchor);
}

TEST(SearchResultsTest, LongLinesBeginShortlyBeforeTheWord) {
    const std::pair<const char*, const char*> rows[] = {
        {"A Word near", "A Word near"},
        {"There is a long way to go before the word comes", "…go before the word comes"},
        {"no such thing anywhere in this line", "no such thing anywhere in this line"},
        {"averylongtextwithoutanyblanksbeforetheword", "…word"},
    };
    for (const auto& [line, shown] : rows)
        EXPECT_EQ(lineFromWord(QString::fromUtf8(line), {u"word"_qs}).toStdString(), shown);
}

}  // namespace
}  // namespace quendra::test
