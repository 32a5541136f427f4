// Pages by language, and the search.
#include "help/made_up_manual.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

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
        {"", "wait-for.html", "/en/wait-for.html"},
        {"de", "wait-for.html", "/de/wait-for.html"},
        {"de", "beep.html", "/en/beep.html"},
        {"de_AT", "wait-for.html", "/de/wait-for.html"},
        {"xx", "wait-for.html", "/en/wait-for.html"},
        {"../en", "beep.html", "/en/beep.html"},
        {"de", "nowhere.html", ""},
        {"de", "../en/beep.html", ""},
        {"de", "", ""}};
    for (const auto& [language, page, expected] : rows) {
        const QString file = pages.read(language).fileOf(QLatin1String(page));
        EXPECT_EQ(file.toStdString(), expected.empty() ? "" : folder + expected) << page;
    }
}

// Gives the places that the page's links and pictures name and the manual lacks.
std::string brokenLinks(const Manual& manual, const QString& page) {
    static const QRegularExpression link(QStringLiteral("(?:href|src)=\"([^\":]+)\""));
    std::string broken;
    const QDir folder = QFileInfo(manual.fileOf(page)).dir();
    auto found = link.globalMatch(manual.htmlOf(page));
    while (found.hasNext()) {
        const QString target = found.next().captured(1);
        if (!folder.exists(target)) broken += target.toStdString() + ' ';
    }
    return broken;
}

TEST(ManualTest, ShippedPagesAreWholeInEveryLanguageAndLeadToOneAnother) {
    for (const char* language : {"en", "de"}) {
        const Manual shipped(manualFolder(QCoreApplication::applicationDirPath().toStdString()),
                             language);
        EXPECT_GT(shipped.contents().size(), 3U) << "beside the program";
        const QDir folder = QFileInfo(shipped.fileOf(QLatin1String(Manual::startPage))).dir();
        EXPECT_EQ(folder.dirName(), QLatin1String(language));
        EXPECT_GT(folder.count(), 40U);
        for (const QString& page : folder.entryList(QDir::Files)) {
            EXPECT_NE(shipped.titleOf(page), QString()) << page.toStdString();
            EXPECT_EQ(brokenLinks(shipped, page), "") << page.toStdString();
        }
    }
}

TEST(ManualTest, FindsPagesWithEveryWordTitlesFirstAndShowsTheLineWithTheMost) {
    const MadeUpManual pages;
    const std::pair<const char*, const char*> rows[] = {
        // The title, a heading, then the pages in order.
        {"beep", "beep.html keys.html wait-for.html mainframe.html "},
        {"BEEP Noise", "beep.html "},
        {"timeout seconds", "wait-for.html wait.html "},
        {"  wait_for  \"ready\" ", "wait-for.html "},
        {"noise nowhere", ""},
        {" ", ""},
    };
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(pagesFound(pages.read(), text), expected) << text;
    EXPECT_EQ(pagesFound(pages.read("de"), "ähnliche"), "wait-for.html ");
    EXPECT_EQ(pagesFound(pages.read("de"), "noise"), "beep.html ") << "an English page";
    Manual manual = pages.read();
    const auto hits = manual.search({QStringLiteral("wait_for"), QStringLiteral("text")});
    EXPECT_EQ(hits.at(0).line.toStdString(), "Waits for a text on the screen; timeout in seconds.");
}

}  // namespace
}  // namespace quendra::test
