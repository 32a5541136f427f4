// What people write into ini files, and what each line must give.
#include "platform/profile_file.h"

#include <QTemporaryDir>

#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace quendra {
namespace {

TEST(Profile, GivesTheValueThatALineMeans) {
    const struct {
        std::string text;
        const char* section;
        const char* key;
        std::optional<std::string> value;
    } rows[] = {
        {"[Help]\nUseWebHelp=Y", "Help", "UseWebHelp", "Y"},
        {"[HELP]\nusewebhelp=Y", "help", "USEWEBHELP", "Y"},
        {"[Ä]\nk=v", "ä", "k", {}},
        {" [ a ] \n\t k \t=  v w \t\n", "a", "k", "v w"},
        {"[a]\r\nk=v\r\n", "a", "k", "v"},
        {"\xEF\xBB\xBF[a]\nk=v", "a", "k", "v"},
        {"[a]\n;k=1\n  ; k=2\nk=3", "a", "k", "3"},
        {"[a]\nk=/x;/y", "a", "k", "/x;/y"},
        {"[a]\nk=\"  v  \"", "a", "k", "  v  "},
        {"[a]\nk=\"\"v\"\"", "a", "k", "\"v\""},
        {"[a]\nk=\"v", "a", "k", "\"v"},
        {"[a]\nk=\"", "a", "k", "\""},
        {"[a]\nk=C:\\new\\table", "a", "k", "C:\\new\\table"},
        {"[a]\nk=x=y", "a", "k", "x=y"},
        {"[a]\nk=\n", "a", "k", ""},
        {"[a]\nk=v", "a", "j", {}},
        {"[a]\nk=1\nK=2", "a", "k", "1"},
        {"[a]\nk=1\n[b]\nk=2\n[A]\nk=3", "a", "k", "1"},
        {"[a]\nk=1\n[b]\n[A]\nj=3", "a", "j", "3"},
        {"[a]\n[b]\nk=2", "a", "k", {}},
        {"k=v\n[a]\n", "a", "k", {}},
        {"[a]\nk\nk=v", "a", "k", "v"},
        {"[Software\\Quendra\\6.1]\nWorkingDirType=1", "software\\quendra\\6.1", "WorkingDirType",
         "1"},
        {"[a]\n[b\nk=v", "a", "k", {}},
        {"[b\nk=v", "b", "k", "v"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(lookup(parseProfile(row.text), row.section, row.key), row.value) << row.text;
}

TEST(Profile, KnowsASectionWithoutKeys) {
    const auto profile = parseProfile("[Software\\Quendra]\n[b]\nk=v");
    EXPECT_TRUE(hasSection(profile, "software\\quendra"));
    EXPECT_FALSE(hasSection(profile, "k"));
}

TEST(Profile, ReadsAFileAndGivesNoneForWhatIsNoFile) {
    const QTemporaryDir folder;
    const std::filesystem::path path = folder.filePath(QStringLiteral("p.ini")).toStdString();
    EXPECT_FALSE(readProfileFile(path));
    std::ofstream(path) << "[a]\nk=v\n";
    const auto profile = readProfileFile(path);
    ASSERT_TRUE(profile);
    EXPECT_EQ(lookup(*profile, "a", "k"), "v");
    EXPECT_FALSE(readProfileFile(path.parent_path()));
}

}  // namespace
}  // namespace quendra
