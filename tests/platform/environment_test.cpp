// Names of variables within paths that administrators wrote.
#include "platform/environment.h"

#include <gtest/gtest.h>
#include <vector>

namespace quendra {
namespace {

const Environment variables = {
    {"HOME", "/home/eve"}, {"SHARE", "<HOME>/share"},        {"EMPTY", ""},    {"SELF", "%SELF%"},
    {"GROWS", "x%GROWS%"}, {"HUGE", std::string(5000, 'h')}, {"REL", "below"},
};

struct Row {
    const char* name;
    std::string path;
    std::string expanded;
};

const std::vector<Row> rows = {
    {"PlainPathStays", "/srv/backup", "/srv/backup"},
    {"PercentSigns", "%HOME%/backup", "/home/eve/backup"},
    {"AngleBrackets", "<HOME>/backup", "/home/eve/backup"},
    {"InTheMiddleAndTwice", "/b%HOME%/%HOME%", "/b/home/eve//home/eve"},
    {"PercentClosedByBracket", "%HOME>/x", "/home/eve/x"},
    {"BracketClosedByPercent", "<HOME%/x", "<HOME%/x"},
    {"FirstPercentGoesBeforeFirstBracket", "<HOME>/100%", "<HOME>/100%"},
    {"ValueWithAMarker", "%SHARE%/x", "/home/eve/share/x"},
    {"NotSetStaysWithAllBehindIt", "%HOME%/%NOPE%/%HOME%", "/home/eve/%NOPE%/%HOME%"},
    {"EmptyVariableStays", "%EMPTY%/x", "%EMPTY%/x"},
    {"NoNameStays", "%%/x", "%%/x"},
    {"ClosingMarkerMissing", "/x/%HOME", "/x/%HOME"},
    {"NameTooLong", "%" + std::string(261, 'n') + "%", "%" + std::string(261, 'n') + "%"},
    {"NamesItselfEnds", "%SELF%/x", "%SELF%/x"},
    {"GrowsAndEnds", "%GROWS%", std::string(32, 'x') + "%GROWS%"},
    {"ValueTooLongStays", "%HUGE%/x", "%HUGE%/x"},
    {"Empty", "", ""},
};

class ExpandEnvironmentNames : public testing::TestWithParam<Row> {};

TEST_P(ExpandEnvironmentNames, GivesThePath) {
    EXPECT_EQ(expandEnvironmentNames(GetParam().path, variables), GetParam().expanded);
}

INSTANTIATE_TEST_SUITE_P(Paths, ExpandEnvironmentNames, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(FolderVariable, IsNoneForARelativePath) {
    EXPECT_EQ(folderVariable(variables, "HOME"), "/home/eve");
    EXPECT_FALSE(folderVariable(variables, "REL"));
    EXPECT_FALSE(folderVariable(variables, "EMPTY"));
    EXPECT_FALSE(folderVariable(variables, "NOPE"));
}

}  // namespace
}  // namespace quendra
