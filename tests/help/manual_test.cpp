// Pages by language, and the search.
#include "help/made_up_manual.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <tuple>

namespace quendra::test {

namespace {

std::string pagesFound(Manual manual, const char* text) {
    std::string pages;
    for (const SearchHit& hit : manual.search(searchWords(QString::fromUtf8(text))))
        pages += hit.page.toStdString() + ' ';
    return pages;
}

TEST(ManualTest, TakesWhatALanguageLacksFromEnglish) {
    const MadeUpManual pages;
    const std::string folder = manualFolder(pages.bin()).lexically_normal().string();
    const std::tuple<const char*, const char*, std::string> rows[] = {
        {"", "wait-for.md", "/en/wait-for.md"},
        {"de", "wait-for.md", "/de/wait-for.md"},
        {"de", "beep.md", "/en/beep.md"},
        {"de_AT", "wait-for.md", "/de/wait-for.md"},
        {"xx", "wait-for.md", "/en/wait-for.md"},
        {"../en", "beep.md", "/en/beep.md"},
        {"de", "nowhere.md", ""},
        {"de", "../en/beep.md", ""},
        {"de", "", ""}};
    for (const auto& [language, page, expected] : rows) {
        const QString file = pages.read(language).fileOf(QLatin1String(page));
        EXPECT_EQ(file.toStdString(), expected.empty() ? "" : folder + expected) << page;
    }
    for (const char* language : {"en", "de"}) {
        const Manual shipped(manualFolder(QCoreApplication::applicationDirPath().toStdString()),
                             language);
        const QString start = shipped.fileOf(QLatin1String(Manual::startPage));
        EXPECT_TRUE(start.contains(u'/' + QLatin1String(language) + u'/')) << start.toStdString();
        EXPECT_GT(shipped.contents().size(), 3U) << "beside the program";
    }
}

TEST(ManualTest, FindsPagesWithEveryWordTitlesFirstAndShowsTheLineWithTheMost) {
    const MadeUpManual pages;
    const std::pair<const char*, const char*> rows[] = {
        // The title, a heading, then the pages in order.
        {"beep", "beep.md keys.md wait-for.md mainframe.md "},
        {"BEEP Noise", "beep.md "},
        {"timeout seconds", "wait-for.md wait.md "},
        {"  wait_for  \"ready\" ", "wait-for.md "},
        {"noise nowhere", ""},
        {" ", ""},
    };
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(pagesFound(pages.read(), text), expected) << text;
    EXPECT_EQ(pagesFound(pages.read("de"), "ähnliche"), "wait-for.md ");
    EXPECT_EQ(pagesFound(pages.read("de"), "noise"), "beep.md ") << "an English page";
    Manual manual = pages.read();
    const auto hits = manual.search({QStringLiteral("wait_for"), QStringLiteral("text")});
    EXPECT_EQ(hits.at(0).line.toStdString(), "Waits for a text on the screen; timeout in seconds.");
}

}  // namespace
}  // namespace quendra::test
