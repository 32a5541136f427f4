// Which library is loaded from where, and what callers get when there is none.
#include "platform/language_library.h"

#include <QTemporaryDir>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <latch>
#include <thread>

namespace quendra {
namespace {

namespace fs = std::filesystem;

constexpr StringId cancelButton = 10167;
const fs::path english = fs::path(LANGUAGE_BUILT_DIR) / "qdstring.qm";
const fs::path german = fs::path(LANGUAGE_BUILT_DIR) / "qdstring_de.qm";

class LanguageLibraryTest : public testing::Test {
  protected:
    // A place where nothing is installed yet; put() says what is.
    LanguageLibraryTest()
        : root(scratch.path().toStdString()),
          folders{root / "usr/bin", root / "config", root / "install"} {
        for (const auto& folder : {folders.programDir, folders.configDir, folders.installDir}) {
            fs::create_directories(folder);
        }
    }

    static void put(const fs::path& library, const fs::path& at) {
        fs::create_directories(at.parent_path());
        fs::copy_file(library, at);
    }

    void configure(const std::string& ini) const {
        std::ofstream(folders.configDir / "language.ini") << ini;
    }

    // The text of the Cancel button, which tells the libraries apart.
    std::string cancelAfterLoad() {
        LanguageLibrary library;
        const auto notice = library.load(folders);
        EXPECT_FALSE(notice) << notice->text;
        return library.loadText(cancelButton);
    }

    const QTemporaryDir scratch;
    const fs::path root;
    const LanguageFolders folders;
};

TEST_F(LanguageLibraryTest, IsTheDefaultBesideTheProgramWithoutLanguageIni) {
    put(english, folders.programDir / "qdstring.qm");
    put(german, folders.installDir / "qdstring.qm");
    EXPECT_EQ(cancelAfterLoad(), "Cancel");
}

TEST_F(LanguageLibraryTest, IsFoundInTheDataFolderOfAnInstallationBeforeInstallDir) {
    put(german, root / "usr/share/quendra-script-editor/language/qdstring.qm");
    put(english, folders.installDir / "qdstring.qm");
    EXPECT_EQ(cancelAfterLoad(), "Abbrechen");
}

TEST_F(LanguageLibraryTest, BesideTheProgramComesBeforeTheDataFolder) {
    put(german, folders.programDir / "qdstring.qm");
    put(english, root / "usr/share/quendra-script-editor/language/qdstring.qm");
    EXPECT_EQ(cancelAfterLoad(), "Abbrechen");
}

TEST_F(LanguageLibraryTest, NamedInLanguageIniIsFoundInInstallDirAlone) {
    put(english, folders.programDir / "qdstring.qm");
    put(german, folders.installDir / "qdstring_de.qm");
    configure("[Language]\r\nLanguage=qdstring_de\r\n");
    EXPECT_EQ(cancelAfterLoad(), "Abbrechen");
}

TEST_F(LanguageLibraryTest, GoesOnToInstallDirWhenTheFirstFileIsNoLibrary) {
    std::ofstream(folders.programDir / "qdstring.qm") << "not a library";
    put(german, folders.installDir / "qdstring.qm");
    EXPECT_EQ(cancelAfterLoad(), "Abbrechen");
}

TEST_F(LanguageLibraryTest, MissingIsReportedWithTheLastPathAndNotReplacedByAShorterName) {
    put(english, folders.programDir / "qdstring.qm");
    put(english, folders.installDir / "qdstring.qm");
    configure("[Language]\nLanguage=qdstring_fr\n");
    LanguageLibrary library;
    const auto notice = library.load(folders);
    ASSERT_TRUE(notice);
    EXPECT_EQ(notice->text, (folders.installDir / "qdstring_fr.qm").string());
    EXPECT_EQ(notice->caption, "Unable to load language library");
    EXPECT_EQ(library.loadText(cancelButton), "");
}

TEST_F(LanguageLibraryTest, BaseNameRules) {
    EXPECT_EQ(languageBaseName(folders.configDir), "qdstring");
    configure("[Language]\nLanguage=\n");
    EXPECT_EQ(languageBaseName(folders.configDir), "qdstring");
    configure("[language]\nLANGUAGE=\"other\"\n");
    EXPECT_EQ(languageBaseName(folders.configDir), "other");
    configure("[Language]\nLanguage=" + std::string(70, 'n') + "\n");
    EXPECT_EQ(languageBaseName(folders.configDir), std::string(64, 'n'));
}

TEST_F(LanguageLibraryTest, AbsoluteBaseNameStaysBelowTheFolders) {
    configure("[Language]\nLanguage=" + (german.parent_path() / german.stem()).string() + "\n");
    LanguageLibrary library;
    EXPECT_TRUE(library.load(folders));
}

TEST_F(LanguageLibraryTest, UnknownIdsAndAnUnloadedLibraryGiveEmptyTexts) {
    put(english, folders.programDir / "qdstring.qm");
    LanguageLibrary library;
    ASSERT_FALSE(library.load(folders));
    const auto texts = library.textSource();
    for (const StringId id : {-1, 0, 9999, 16000})
        EXPECT_EQ(texts(id), "") << id;
    EXPECT_EQ(texts(cancelButton), "Cancel");
    library.unload();
    EXPECT_EQ(texts(cancelButton), "");
}

TEST_F(LanguageLibraryTest, CutsLongTextsAtWholeCharacters) {
    put(LONG_TEXTS_LIBRARY, folders.programDir / "qdstring.qm");
    LanguageLibrary library;
    ASSERT_FALSE(library.load(folders));
    EXPECT_EQ(library.loadText(10000), std::string(1022, 'x'));
    EXPECT_EQ(library.loadText(10001), std::string(1022, 'x') + 'y');
}

TEST_F(LanguageLibraryTest, ServesThirtyTwoThreadsAndReportsTheNext) {
    put(english, folders.programDir / "qdstring.qm");
    std::vector<LanguageNotice> reported;
    LanguageLibrary library([&](const LanguageNotice& notice) { reported.push_back(notice); });
    ASSERT_FALSE(library.load(folders));

    // All 32 live at once, since a thread's id may pass to a later one, and ask again after the
    // 33rd was turned away.
    constexpr int served = 32;
    std::latch firstRound(served);
    std::latch turnedAway(1);
    std::atomic<int> texts = 0;
    std::vector<std::jthread> threads;
    for (int i = 0; i < served; ++i) {
        threads.emplace_back([&] {
            texts += library.loadText(cancelButton) == "Cancel" ? 1 : 0;
            firstRound.count_down();
            turnedAway.wait();
            texts += library.loadText(cancelButton) == "Cancel" ? 1 : 0;
        });
    }
    firstRound.wait();
    EXPECT_EQ(library.loadText(cancelButton), "");
    turnedAway.count_down();
    threads.clear();

    EXPECT_EQ(texts, 2 * served);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].text, "Thread Maximum Exceeded");
    EXPECT_EQ(reported[0].caption, "Quendra Fatal Error");
}

}  // namespace
}  // namespace quendra
