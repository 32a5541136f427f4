// What people write into ini files, and what each line must give.
#include "platform/profile_file.h"

#include <QTemporaryDir>

#include <fstream>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace quendra {
namespace {

struct Row {
    std::string name;
    std::string text;
    std::string section;
    std::string key;
    std::optional<std::string> value;
};

std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.name;
}

class ProfileLookup : public testing::TestWithParam<Row> {};

TEST_P(ProfileLookup, GivesTheValue) {
    const auto& row = GetParam();
    EXPECT_EQ(lookup(parseProfile(row.text), row.section, row.key), row.value);
}

const Row rows[] = {
    {"plain", "[Help]\nUseWebHelp=Y\n", "Help", "UseWebHelp", "Y"},
    {"noFinalNewline", "[Help]\nUseWebHelp=Y", "Help", "UseWebHelp", "Y"},
    {"namesWithoutRegardToCase", "[HELP]\nusewebhelp=Y", "help", "USEWEBHELP", "Y"},
    {"onlyAsciiLettersFold", "[Ä]\nk=v", "ä", "k", std::nullopt},
    {"valueKeepsItsCase", "[a]\nk=MiXed", "a", "k", "MiXed"},
    {"blanksAround", " [ a ] \n\t k \t=  v w \t\n", "a", "k", "v w"},
    {"carriageReturns", "[a]\r\nk=v\r\n", "a", "k", "v"},
    {"byteOrderMark", "\xEF\xBB\xBF[a]\nk=v", "a", "k", "v"},
    {"commentLine", "[a]\n;k=1\n  ; k=2\nk=3", "a", "k", "3"},
    {"semicolonWithinAValue", "[a]\nk=/x;/y", "a", "k", "/x;/y"},
    {"doubleQuotesKeepBlanks", "[a]\nk=\"  v  \"", "a", "k", "  v  "},
    {"singleQuotes", "[a]\nk='v'", "a", "k", "v"},
    {"onePairOnly", "[a]\nk=\"\"v\"\"", "a", "k", "\"v\""},
    {"unpairedQuote", "[a]\nk=\"v", "a", "k", "\"v"},
    {"mixedQuotes", "[a]\nk=\"v'", "a", "k", "\"v'"},
    {"loneQuote", "[a]\nk=\"", "a", "k", "\""},
    {"noEscapes", "[a]\nk=C:\\new\\table", "a", "k", "C:\\new\\table"},
    {"equalsWithinAValue", "[a]\nk=x=y", "a", "k", "x=y"},
    {"emptyValueIsAValue", "[a]\nk=\n", "a", "k", ""},
    {"missingKey", "[a]\nk=v", "a", "j", std::nullopt},
    {"missingSection", "[a]\nk=v", "b", "k", std::nullopt},
    {"emptyFile", "", "a", "k", std::nullopt},
    {"firstKeyWins", "[a]\nk=1\nK=2", "a", "k", "1"},
    {"firstSectionWins", "[a]\nk=1\n[b]\nk=2\n[A]\nk=3", "a", "k", "1"},
    {"sectionContinuedLater", "[a]\nk=1\n[b]\n[A]\nj=3", "a", "j", "3"},
    {"keyOfAnotherSection", "[a]\n[b]\nk=2", "a", "k", std::nullopt},
    {"keyAboveAnySection", "k=v\n[a]\n", "a", "k", std::nullopt},
    {"lineWithoutEquals", "[a]\nk\nk=v", "a", "k", "v"},
    {"keyPathAsSection", "[Software\\Quendra\\6.1]\nWorkingDirType=1", "software\\quendra\\6.1",
     "WorkingDirType", "1"},
    {"unclosedHeaderEndsTheSection", "[a]\n[b\nk=v", "a", "k", std::nullopt},
    {"unclosedHeader", "[b\nk=v", "b", "k", "v"},
    {"bareBracket", "[\nk=v", "", "k", "v"},
};

INSTANTIATE_TEST_SUITE_P(Rows, ProfileLookup, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

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
