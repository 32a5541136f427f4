// Names of variables within paths that administrators wrote.
#include "platform/environment.h"

#include <gtest/gtest.h>

namespace quendra {
namespace {

const Environment variables = {
    {"HOME", "/home/eve"}, {"SHARE", "<HOME>/share"},        {"EMPTY", ""},    {"SELF", "%SELF%"},
    {"GROWS", "x%GROWS%"}, {"HUGE", std::string(5000, 'h')}, {"REL", "below"},
};

TEST(ExpandEnvironmentNames, PutsTheValuesInAndLeavesTheRest) {
    const std::string longName = "%" + std::string(261, 'n') + "%";
    const std::pair<std::string, std::string> rows[] = {
        {"<HOME>/b%HOME%/%HOME%", "/home/eve/b/home/eve//home/eve"},
        {"%HOME>/x", "/home/eve/x"},
        {"<HOME%/x", "<HOME%/x"},
        {"<HOME>/100%", "<HOME>/100%"},
        {"%SHARE%/x", "/home/eve/share/x"},
        {"%HOME%/%NOPE%/%HOME%", "/home/eve/%NOPE%/%HOME%"},
        {"%EMPTY%/%%/x", "%EMPTY%/%%/x"},
        {"/x/%HOME", "/x/%HOME"},
        {longName, longName},
        {"%SELF%/x", "%SELF%/x"},
        {"%GROWS%", std::string(32, 'x') + "%GROWS%"},
        {"%HUGE%/x", "%HUGE%/x"},
    };
    for (const auto& [path, expanded] : rows)
        EXPECT_EQ(expandEnvironmentNames(path, variables), expanded);
}

TEST(FolderVariable, IsNoneForARelativePath) {
    EXPECT_EQ(folderVariable(variables, "HOME"), "/home/eve");
    for (const char* name : {"REL", "EMPTY", "NOPE"})
        EXPECT_FALSE(folderVariable(variables, name)) << name;
}

}  // namespace
}  // namespace quendra
