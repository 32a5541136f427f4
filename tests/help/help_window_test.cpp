// The manual's window, by keys and mouse.
#include "help/help_window.h"

#include "help/made_up_manual.h"
#include "help/page_view.h"
#include "support/editor_fixture.h"

#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QTreeView>
#include <QtTest>

#include <algorithm>
#include <ranges>

namespace quendra::test {

namespace {

class HelpWindowTest : public ::testing::Test {
  protected:
    HelpWindowTest() { open("index.html"); }

    void open(const char* page) {
        window.open(QLatin1String(page));
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
        press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        ASSERT_EQ(focused(), "helpSearch");
        for (const char c : text)
            QTest::keyClick(window.windowHandle(), c);
    }
    void clickLink(const char* text) {
        QTextCursor link = view().document()->find(QLatin1String(text));
        link.setPosition(link.selectionStart() + 1);
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, view().cursorRect(link).center());
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
    ASSERT_EQ(focused(), "helpPage") << "keys scroll at once";
    open("wait-for.html");
    EXPECT_NE(shown().find("Waits for a text"), std::string::npos);
    const QModelIndex line = widget<QTreeView>("helpContents").currentIndex();
    EXPECT_EQ(line.data().toString(), u"Wait_For");
    EXPECT_EQ(line.parent().data().toString(), u"Waiting");
    EXPECT_EQ(line.parent().parent().data().toString(), u"Commands");
    open("beep.html");
    widget<QWidget>("helpContents").setFocus();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(page(), "wait-for.html") << "a group opens nothing";
}

TEST_F(HelpWindowTest, FindsInThePageAndGoesRound) {
    open("wait-for.html");
    EXPECT_EQ(window.windowTitle(), u"Wait_For - Quendra Script Editor Help");
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_EQ(focused(), "helpFindText");
    QTest::keyClicks(window.focusWidget(), QStringLiteral("WAIT"));
    const auto& count = widget<QLabel>("helpFindCount");
    const int places = static_cast<int>(view().extraSelections().size());
    ASSERT_GT(places, 1);
    const auto position = [&](int place) {
        return QStringLiteral("%1 of %2").arg(place).arg(places);
    };
    EXPECT_EQ(count.text(), position(1));
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(count.text(), position(places));
    const QRect last = view().cursorRect(view().extraSelections().last().cursor);
    EXPECT_TRUE(view().viewport()->rect().contains(last)) << "in sight";
    press(Qt::Key_Return);
    EXPECT_EQ(count.text(), position(1));
    press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(focused(), "helpPage");
    EXPECT_TRUE(view().extraSelections().isEmpty());
    open("index.html");
    EXPECT_EQ(window.windowTitle(), u"Quendra Script Editor Help");
}

TEST_F(HelpWindowTest, FindsInThePageBesideASearchOfTheManual) {
    const auto currentMark = [this] {
        const auto marks = view().extraSelections();
        const auto current = std::ranges::find_if(
            marks, [](const auto& mark) { return mark.format.fontUnderline(); });
        return current - marks.begin();
    };
    open("wait-for.html");
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(window.focusWidget(), QStringLiteral("wait"));
    press(Qt::Key_F3);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(currentMark(), 1) << "another size";
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(currentMark(), 1) << "the key again";
    const auto marks = view().extraSelections().size();
    search("zebra");
    press(Qt::Key_Escape);
    EXPECT_EQ(view().extraSelections().size(), marks) << "the bar still shows";
    view().setFocus();
    press(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible()) << "the bar goes first";
    EXPECT_FALSE(widget<QWidget>("helpPageSearch").isVisible());
    press(Qt::Key_F, Qt::ControlModifier);
    search("beep");
    press(Qt::Key_Return);
    EXPECT_FALSE(widget<QWidget>("helpPageSearch").isVisible()) << "the marks are another's";
    EXPECT_FALSE(view().extraSelections().isEmpty());
}

TEST_F(HelpWindowTest, LinksLeadToPagesHeadingsAndOutOfTheManual) {
    open("beep.html");
    clickLink("the site");
    EXPECT_EQ(addresses, std::vector<std::string>{"https://quendra.example/a?b=c"});
    EXPECT_EQ(page(), "beep.html");
    clickLink("nothing");
    EXPECT_EQ(shown(), "Page not found\nThe manual has no page \u201cnowhere.html\u201d.");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "beep.html");
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(page(), "nowhere.html");
    press(Qt::Key_Left, Qt::AltModifier);
    clickLink("Wait_For");
    EXPECT_EQ(page(), "wait-for.html");
    EXPECT_GT(scrolled(), 0);
    const QTextCursor options = view().document()->find(QStringLiteral("Options"));
    EXPECT_TRUE(view().viewport()->rect().contains(view().cursorRect(options).center()));
}

TEST_F(HelpWindowTest, PicturesFitThePageAndCodeKeepsItsBlanks) {
    pages.write(
        "en/wide.html",
        "<h1>Wide</h1><p><img src=\"wide.png\" alt=\"\" /></p><p>Ends in <code> *</code></p>"
        "<pre><code>if\n  then\n</code></pre>");
    QImage picture(3000, 30, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(QFileInfo(pages.read().fileOf(QStringLiteral("wide.html"))).path() +
                             QStringLiteral("/wide.png")));
    open("wide.html");
    const QString text = view().toPlainText().remove(QChar::ObjectReplacementCharacter);
    EXPECT_TRUE(text.contains(QStringLiteral("Ends in  *"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("if\n  then"))) << text.toStdString();
    for (const int width : {700, 500, 900}) {
        window.resize(width, 500);
        QCoreApplication::processEvents();
        EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0) << width;
        const QImage shown = view().viewport()->grab().toImage();
        int red = 0;
        for (int x = 0; x < shown.width(); ++x) {
            const auto isRed = [&](int y) { return shown.pixelColor(x, y) == QColor(Qt::red); };
            const auto rows = std::views::iota(0, shown.height());
            red += std::ranges::any_of(rows, isRed) ? 1 : 0;
        }
        const int free = view().lineWrapColumnOrWidth();
        EXPECT_GT(red, free / 2) << width;
        EXPECT_LT(red, free) << width;
    }
}

TEST_F(HelpWindowTest, SearchesWhileOneTypes) {
    search("beep");
    const QAbstractItemModel& results = *widget<QListView>("helpResults").model();
    EXPECT_EQ(results.index(0, 0).data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("Beep: Makes a noise. See Wait_For, the site and nothing."));
    EXPECT_EQ(widget<QLabel>("helpResultCount").text(), QStringLiteral("Found on 4 pages"));
    EXPECT_EQ(page(), "index.html") << "nothing opens before it is chosen";
    press(Qt::Key_Return);
    EXPECT_EQ(page(), "beep.html");
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Down);
    EXPECT_EQ(page(), "wait-for.html");
    ASSERT_EQ(view().extraSelections().size(), 1);
    const QRect word = view().cursorRect(view().extraSelections()[0].cursor);
    EXPECT_TRUE(view().viewport()->rect().contains(word)) << "scrolls to what was found";
    search("zebra");
    EXPECT_EQ(widget<QLabel>("helpResultCount").text(), QStringLiteral("Not found"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(widget<QTreeView>("helpContents").isVisible());
    EXPECT_TRUE(view().extraSelections().isEmpty());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace quendra::test
