// Which library is loaded from where, and what callers get when there is none.
#include "text/language_library.h"

#include "support/temporary_folder.h"
#include "text/text_ids.h"

#include <atomic>
#include <barrier>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

const fs::path english = fs::path(LANGUAGE_BUILT_DIR) / "qdstring.qm";
const fs::path german = fs::path(LANGUAGE_BUILT_DIR) / "qdstring_de.qm";

// A place where nothing is installed yet; put() says what is.
class LanguageLibraryTest : public testing::Test {
  protected:
    LanguageLibraryTest() {
        fs::create_directories(folders.programDir);
        fs::create_directory(folders.configDir);
    }

    void put(const fs::path& from, const fs::path& at) const {
        fs::create_directories((root / at).parent_path());
        fs::copy_file(from, root / at);
        fs::copy_file(withSum(from), withSum(root / at));
    }
    static fs::path withSum(fs::path library) { return library += ".sum"; }
    void configure(const std::string& language) const {
        std::ofstream(folders.configDir / "language.ini") << "[Language]\r\n" << language << "\r\n";
    }
    // The text of the Cancel button, which tells the libraries apart.
    std::string cancelAfterLoad() {
        EXPECT_FALSE(library.load(folders));
        return library.loadText(textid::cancelButton);
    }

    const TemporaryFolder root;
    const LanguageFolders folders = {root / "usr/bin", root / "config", root / "install"};
    std::vector<LanguageNotice> reported;
    LanguageLibrary library{[this](const LanguageNotice& notice) { reported.push_back(notice); }};
};

TEST_F(LanguageLibraryTest, IsLookedForBesideTheProgramInItsDataAndThenInInstallDir) {
    put(german, "install/qdstring.qm");
    EXPECT_EQ(cancelAfterLoad(), "Abbrechen");
    put(english, "usr/share/quendra-script-editor/language/qdstring.qm");
    EXPECT_EQ(cancelAfterLoad(), "Cancel");
    put(german, "usr/bin/qdstring.qm");
    EXPECT_EQ(cancelAfterLoad(), "Abbrechen");
    std::ofstream(root / "usr/bin/qdstring.qm") << "not a library";
    EXPECT_EQ(cancelAfterLoad(), "Cancel");
}

TEST_F(LanguageLibraryTest, MissingIsReportedWithTheLastPathAndNotReplacedByAShorterName) {
    put(english, "usr/bin/qdstring.qm");
    put(german, "install/qdstring_de.qm");
    configure("Language=qdstring_de");
    EXPECT_EQ(cancelAfterLoad(), "Abbrechen");
    configure("Language=qdstring_fr");
    const auto notice = library.load(folders);
    ASSERT_TRUE(notice);
    EXPECT_EQ(notice->text, (folders.installDir / "qdstring_fr.qm").string());
    EXPECT_EQ(notice->caption, "Unable to load language library");
    EXPECT_EQ(library.loadText(textid::cancelButton), "");
    configure("Language=" + (german.parent_path() / german.stem()).string());
    EXPECT_TRUE(library.load(folders)) << "an absolute name stays below the folders";
    put(german, "elsewhere/qdstring.qm");
    configure("Language=../../elsewhere/qdstring");
    EXPECT_TRUE(library.load(folders)) << "so does one that leads up";
    configure("Language=");
    EXPECT_EQ(cancelAfterLoad(), "Cancel");
    configure("LANGUAGE=\"" + std::string(70, 'n') + "\"");
    EXPECT_EQ(languageBaseName(folders.configDir), std::string(64, 'n'));
}

TEST_F(LanguageLibraryTest, IsRefusedLikeAMissingOneWhenItIsNotWhatWasBuilt) {
    const auto size = static_cast<std::streamoff>(fs::file_size(english));
    put(english, "usr/bin/qdstring.qm");
    EXPECT_EQ(cancelAfterLoad(), "Cancel");
    const fs::path built = root / "usr/bin/qdstring.qm";
    // One bit in its header, among the offsets and texts, and at its end.
    for (const std::streamoff at : {std::streamoff{2}, std::streamoff{18}, size / 2, size - 1}) {
        std::fstream file(built, std::ios::binary | std::ios::in | std::ios::out);
        file.seekg(at);
        const int byte = file.get();
        file.seekp(at).put(static_cast<char>(byte ^ 1)).flush();
        EXPECT_TRUE(library.load(folders)) << at;
        EXPECT_EQ(library.loadText(textid::cancelButton), "");
        file.seekp(at).put(static_cast<char>(byte)).flush();
        EXPECT_EQ(cancelAfterLoad(), "Cancel");
    }
    fs::resize_file(built, fs::file_size(english) - 1);
    EXPECT_TRUE(library.load(folders)) << "cut";
    fs::copy_file(english, built, fs::copy_options::overwrite_existing);
    EXPECT_EQ(cancelAfterLoad(), "Cancel");
    fs::remove(withSum(built));
    EXPECT_TRUE(library.load(folders)) << "nothing says what was built";
    put(english, "install/qdstring.qm");
    EXPECT_EQ(cancelAfterLoad(), "Cancel");
    fs::permissions(folders.installDir, fs::perms(0777));
    EXPECT_TRUE(library.load(folders)) << "anybody may have put it there";
}

TEST_F(LanguageLibraryTest, GivesEmptyTextsForUnknownIdsAndCutsLongOnesAtWholeCharacters) {
    put(LONG_TEXTS_LIBRARY, "usr/bin/qdstring.qm");
    ASSERT_FALSE(library.load(folders));
    const auto texts = library.textSource();
    EXPECT_EQ(texts(10000), std::string(1022, 'x'));
    EXPECT_EQ(texts(10001), std::string(1022, 'x') + 'y');
    EXPECT_EQ(texts(-1) + texts(9999), "");
    library.unload();
    EXPECT_EQ(texts(10000), "");
}

TEST_F(LanguageLibraryTest, ServesThirtyTwoThreadsAndReportsTheNext) {
    put(english, "usr/bin/qdstring.qm");
    ASSERT_FALSE(library.load(folders));
    // All 32 live at once, since a thread's id may pass to a later one, and ask again after the
    // 33rd was turned away.
    constexpr int served = 32;
    std::barrier everyone(served + 1);
    std::atomic<int> texts = 0;
    std::vector<std::jthread> threads;
    for (int i = 0; i < served; ++i) {
        threads.emplace_back([&] {
            texts += library.loadText(textid::cancelButton) == "Cancel" ? 1 : 0;
            everyone.arrive_and_wait();
            everyone.arrive_and_wait();
            texts += library.loadText(textid::cancelButton) == "Cancel" ? 1 : 0;
        });
    }
    everyone.arrive_and_wait();
    EXPECT_EQ(library.loadText(textid::cancelButton), "");
    everyone.arrive_and_wait();
    threads.clear();
    EXPECT_EQ(texts, 2 * served);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].text, "Thread Maximum Exceeded");
    EXPECT_EQ(reported[0].caption, "Quendra Fatal Error");
}

}  // namespace
}  // namespace quendra::test
