// The manual as it is shipped, in both languages: beside the program, and fit to be looked at.
// scripts/check-manual sees that its pages, links and captions are right.
#include "app/editor_fixture.h"
#include "app/help/help_window.h"
#include "dialogs/look_checks.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QtTest>

namespace quendra::test {

namespace {

class ShippedManual : public testing::TestWithParam<const char*> {
  protected:
    Manual manual{manualFolder(QCoreApplication::applicationDirPath().toStdString()), GetParam()};
};

TEST_P(ShippedManual, LiesBesideTheProgram) {
    EXPECT_GT(manual.contents().size(), 3U);
    const QString start = manual.fileOf(QLatin1String(Manual::startPage));
    EXPECT_TRUE(start.contains(u'/' + QLatin1String(GetParam()) + u'/')) << start.toStdString();
}

TEST_P(ShippedManual, Pictures) {
    if (!wantsPictures()) GTEST_SKIP() << "QUENDRA_PICTURES names no folder";
    const std::string language = GetParam();
    EditorState editor(language == "en" ? "qdstring" : "qdstring_de");
    forLightAndDark([&](const std::string& appearance) {
        HelpWindow window(manual, editor.state.language, {});
        window.resize(1020, 720);
        const std::string name = "help-" + language + '-' + appearance + '-';
        for (const char* page :
             {"index.md", "commands.md", "input.md", "wait-for.md", "mainframe.md"}) {
            window.open(QLatin1String(page));
            QCoreApplication::processEvents();
            savePicture(window, name + QFileInfo(QLatin1String(page)).baseName().toStdString());
        }
        auto* search = window.findChild<QLineEdit*>(QStringLiteral("helpSearch"));
        search->setFocus();
        QTest::keyClicks(search, QStringLiteral("text"));
        QTest::keyClick(search, Qt::Key_Return);
        savePicture(window, name + "search");
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, ShippedManual, testing::Values("en", "de"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
}  // namespace quendra::test
