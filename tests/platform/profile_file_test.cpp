// What people write into ini files, and what each line must give.
#include "platform/profile_file.h"

#include "support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quendra::test {
namespace {

TEST(Profile, GivesTheValueThatALineMeans) {
    const std::pair<std::string, std::optional<std::string>> rows[] = {
        {"[a]\nk=v", "v"},
        {"[A]\nK=v", "v"},
        {" [ a ] \n\t k \t=  v w \t\n", "v w"},
        {"[a]\r\nk=v\r\n", "v"},
        {"\xEF\xBB\xBF[a]\nk=v", "v"},
        {"[a]\n;k=1\n  ; k=2\nk=3", "3"},
        {"[a]\nk=/x;/y", "/x;/y"},
        {"[a]\nk=\"  v  \"", "  v  "},
        {"[a]\nk=\"\"v\"\"", "\"v\""},
        {"[a]\nk=\"v", "\"v"},
        {"[a]\nk=\"", "\""},
        {"[a]\nk=x\\new=y", "x\\new=y"},
        {"[a]\nk=\n", ""},
        {"[a]\nj=v", {}},
        {"[a]\nk=1\nK=2", "1"},
        {"[a]\nk=1\n[b]\nk=2\n[A]\nk=3", "1"},
        {"[a]\nj=1\n[b]\n[A]\nk=3", "3"},
        {"[a]\n[b]\nk=2", {}},
        {"k=v\n[a]\n", {}},
        {"[a]\nk\nk=v", "v"},
        {"[a]\n[b\nk=v", {}},
        {"[a\nk=v", "v"},
    };
    for (const auto& [text, value] : rows)
        EXPECT_EQ(lookup(parseProfile(text), "a", "k"), value) << text;
    EXPECT_EQ(lookup(parseProfile("[\xC3\x84]\nk=v"), "\xC3\xA4", "k"), std::nullopt)
        << "ASCII only";
    EXPECT_TRUE(hasSection(parseProfile("[B\\Empty]\n[b]\nk=v"), "b\\empty"));
    EXPECT_FALSE(hasSection(parseProfile("[b]\nk=v"), "k"));
}

TEST(Profile, ReadsAFileAndGivesNoneForWhatIsNoFile) {
    const TemporaryFolder folder;
    EXPECT_FALSE(readProfileFile(folder / "p.ini"));
    std::ofstream(folder / "p.ini") << "[a]\nk=v\n";
    EXPECT_EQ(lookup(readProfileFile(folder / "p.ini").value(), "a", "k"), "v");
    EXPECT_FALSE(readProfileFile(folder.path()));
}

}  // namespace
}  // namespace quendra::test
