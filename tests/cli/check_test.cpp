// What qds check finds in scripts with one fault each, and that it finds nothing else.
#include "analysis/check_rules.h"
#include "cli/qds_run.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <set>
#include <sys/stat.h>

namespace quendra::test {
namespace {

using FindingForm = nlohmann::json;

// "entry slot rule" of every finding, and behind it the related entries.
std::vector<std::string> findingsIn(const std::string& out) {
    std::vector<std::string> lines;
    const FindingForm form = FindingForm::parse(out);
    for (const FindingForm& finding : form["findings"]) {
        std::string line = std::to_string(finding["entry"].get<int>()) + " " +
                           finding["slot"].get<std::string>() + " " +
                           finding["rule"].get<std::string>();
        for (const FindingForm& related : finding["related"])
            line += " " + std::to_string(related.get<int>());
        lines.push_back(line);
    }
    return lines;
}

struct Row {
    const char* name;
    /// Entries in the JSON form.
    const char* entries;
    std::vector<std::string> findings;
    const char* hostType = "Mainframe";
};

constexpr const char* transferToA = R"("transferSettings": {"hostFileName": "A")";

// What is wrong with a step by itself, or with the names of labels.
std::vector<Row> stepRows() {
    static const std::string transfer = R"({"command": "Menu_Command", "commandId": 236, )";
    static const std::string incomplete = transfer + transferToA + "}}";
    static const std::string cut = transfer + transferToA + R"(, "pcFileName": "b",)" +
                                   R"("transferProgramName": ")" + std::string(127, 'p') +
                                   R"(", "additionalParameters": ")" + std::string(127, 'q') +
                                   R"("}})";
    static const std::string withPassword = transfer + transferToA + R"(, "pcFileName": "b",
        "hostFilePassword": "pw"}})";
    return {
        {"nothing",
         R"({"command": "Label", "text": "a"}, {"command": "Wait", "number": 1},
            {"command": "Goto", "text": "a"})",
         {}},
        {"missing labels, case and blanks count",
         R"({"command": "Label", "text": "a"}, {"command": "Goto", "text": "a"},
            {"command": "If_Input_Is", "text": "x", "compareText": "y",
             "then": {"command": "Goto", "text": "A"}, "else": {"command": "Goto", "text": "a "}})",
         {"1 entry busy-loop 2", "3 entry unreachable", "3 then label-missing",
          "3 else label-missing"}},
        {"a label twice, as a step and as an action",
         R"({"command": "Watch_For", "text": "w", "then": {"command": "Label", "text": "a"}},
            {"command": "Label", "text": "a"}, {"command": "Wait", "number": 1},
            {"command": "Goto", "text": "a"})",
         {"1 then label-as-action", "2 entry label-duplicate 1"}},
        {"an unused label", R"({"command": "Label", "text": "a"})", {"1 entry label-unused"}},
        {"empty texts, but no operand and no prompt",
         R"({"command": "Message", "text": ""}, {"command": "Goto", "text": ""},
            {"command": "Comment", "text": ""}, {"command": "Watch_For", "text": "w",
             "then": {"command": "Type", "text": ""}},
            {"command": "If_Input_Is", "then": {"command": "Wait", "number": 0}})",
         {"1 entry parameter-missing", "2 entry parameter-missing", "3 entry parameter-missing",
          "4 entry unreachable", "4 then parameter-missing", "5 entry variable-unset"}},
        {"numbers out of range",
         R"({"command": "Wait_For", "text": "a", "searchRow": 63, "searchColumn": 161},
            {"command": "Wait_For", "text": "a", "searchRow": 0, "searchColumn": 0},
            {"command": "Wait_For", "text": "a", "searchRow": 0, "searchColumn": 1},
            {"command": "Type", "text": "x", "hidden": 7},
            {"command": "Watch_For", "text": "w",
             "then": {"command": "Input", "text": "t", "maxLength": 1}})",
         {"1 entry value-range", "1 entry value-range", "3 entry value-range",
          "4 entry value-range", "5 then value-range"}},
        {"a timeout of nothing",
         R"({"command": "Wait_For", "text": "a", "hasTimeout": true, "timeoutSeconds": 0})",
         {"1 entry timeout-zero"}},
        {"dates that there are not",
         R"({"command": "Wait_Until", "waitUntil": {"year": 2024, "month": 2, "day": 29}},
            {"command": "Wait_Until", "waitUntil": {"year": 2023, "month": 2, "day": 29}},
            {"command": "Wait_Until", "waitUntil": {"hour": 23}},
            {"command": "Wait_Until", "waitUntil": {"year": 2023, "month": 0, "day": 5}},
            {"command": "Wait_Until", "waitUntil": {"year": 2023, "month": 13, "day": 5}},
            {"command": "Wait_Until", "waitUntil": {"month": 4, "day": 30}},
            {"command": "Wait_Until", "waitUntil": {"year": 1500, "month": 2, "day": 29}})",
         {"2 entry value-range", "4 entry value-range", "5 entry value-range",
          "6 entry value-range", "7 entry value-range"}},
        {"keys and menu commands",
         R"({"command": "LU_Function", "group": 200, "number": 1},
            {"command": "Menu_Command", "commandId": 200},
            {"command": "Menu_Command", "commandId": 201},
            {"command": "Watch_For", "text": "w",
             "then": {"command": "Menu_Command", "commandId": 269}})",
         {"1 entry key-unknown", "2 entry menu-command-unknown", "4 then menu-command-unknown"}},
        {"a transfer without PC file", incomplete.c_str(), {"1 entry transfer-incomplete"}},
        {"a transfer that is cut", cut.c_str(), {"1 entry transfer-cut"}},
        {"a transfer's password", withPassword.c_str(), {"1 entry password-in-clear"}},
        {"none of that in VT", R"({"command": "Menu_Command", "commandId": 236})", {}, "VT"},
        {"a conflict",
         R"({"command": "Comment", "text": "<<<<<<< ours"}, {"command": "Beep"},
            {"command": "Comment", "text": "======="}, {"command": "Beep"},
            {"command": "Comment", "text": ">>>>>>> theirs"},
            {"command": "Comment", "text": "<<<<<<<<"})",
         {"1 entry merge-conflict 3 5"}},
    };
}

// What only the steps around one show.
std::vector<Row> wayRows() {
    return {
        {"what nothing leads to",
         R"({"command": "Return"}, {"command": "Comment", "text": "c"}, {"command": "Beep"},
            {"command": "Beep"})",
         {"3 entry unreachable"}},
        {"both actions lead away",
         R"({"command": "If_Input_Is", "text": "x", "compareText": "y",
             "then": {"command": "Return"}, "else": {"command": "Goto", "text": "a"}},
            {"command": "Beep"}, {"command": "Label", "text": "a"})",
         {"2 entry unreachable"}},
        {"a Watch_For goes on, and its jump is a way",
         R"({"command": "Watch_For", "text": "w", "then": {"command": "Goto", "text": "a"}},
            {"command": "Return"}, {"command": "Label", "text": "a"})",
         {}},
        {"a loop through an If whose other way waits",
         R"({"command": "Label", "text": "a"}, {"command": "If_Input_Is", "text": "x",
             "compareText": "y", "then": {"command": "Wait", "number": 1}},
            {"command": "Goto", "text": "a"})",
         {"1 entry busy-loop 2 3"}},
        {"loops that wait, ask or are a watch's",
         R"({"command": "Label", "text": "a"}, {"command": "Input", "text": "t"},
            {"command": "Wait_For", "text": "w", "hasTimeout": true, "timeoutSeconds": 5,
             "else": {"command": "Goto", "text": "a"}},
            {"command": "Watch_For", "text": "w", "then": {"command": "Goto", "text": "a"}})",
         {}},
        {"a step that leads to itself",
         R"({"command": "If_Input_Is", "text": "x", "compareText": "y",
             "then": {"command": "Goto", "text": "a"}, "else": {"command": "Label", "text": "a"}})",
         {"1 entry busy-loop", "1 else label-as-action"}},
        {"variables typed and compared before any Input",
         R"({"command": "Type", "text": "VarUserId"}, {"command": "Type", "text": "VarUserId "},
            {"command": "Type", "text": "VarPassword", "hidden": true},
            {"command": "If_Input_Is", "text": "", "firstOperandKind": 3, "compareText": "",
             "secondOperandKind": 3},
            {"command": "If_Input_Is", "text": "x", "firstOperandKind": 3, "compareText": "",
             "secondOperandKind": 4},
            {"command": "Watch_For", "text": "w",
             "then": {"command": "Input", "text": "t", "inputVariable": 4}})",
         {"1 entry variable-unset", "4 entry variable-unset"}},
        {"passwords in clear",
         R"({"command": "Wait_For", "text": "PASSWORD:", "hasTimeout": true, "timeoutSeconds": 9,
             "then": {"command": "Type", "text": "a"}},
            {"command": "Set_Cursor", "row": 1, "column": 1}, {"command": "Type", "text": "b"},
            {"command": "Wait_For", "text": "Ihr Kennwort"}, {"command": "Beep"},
            {"command": "Type", "text": "c"}, {"command": "Wait_For", "text": "passwd"},
            {"command": "Type", "text": "d", "hidden": true},
            {"command": "Wait_For", "text": "passwd"}, {"command": "Type", "text": "VarPassword"},
            {"command": "Input", "text": "t", "inputVariable": 1})",
         {"1 then password-in-clear", "3 entry password-in-clear"}},
        {"comments that allow",
         R"({"command": "Comment", "text": "check: allow label-unused"},
            {"command": "Comment", "text": "check: allow label-duplicate"},
            {"command": "Label", "text": "a"}, {"command": "Comment", "text": "check: allow label"},
            {"command": "Label", "text": "b"},
            {"command": "Comment", "text": "check: allow label-unused"}, {"command": "Beep"},
            {"command": "Label", "text": "c"},
            {"command": "Comment", "text": "check: allow parameter-missing"},
            {"command": "Watch_For", "text": "w", "then": {"command": "Type", "text": ""}})",
         {"5 entry label-unused", "8 entry label-unused"}},
    };
}

std::vector<Row> rows() {
    std::vector<Row> all = stepRows();
    std::ranges::copy(wayRows(), std::back_inserter(all));
    return all;
}

class CheckCommand : public QdsTest {};

TEST_F(CheckCommand, FindsEachFaultAndNothingElse) {
    for (const Row& row : rows()) {
        const auto script =
            file("script.qds", built(std::string(R"({"hostType": ")") + row.hostType +
                                     R"(", "entries": [)" + row.entries + "]}"));
        const QdsRun run = runQds({"check", "--json", script});
        EXPECT_EQ(findingsIn(run.out), row.findings) << row.name;
        EXPECT_EQ(run.status, row.findings.empty() ? 0 : 1) << row.name << run.err;
    }
}

TEST_F(CheckCommand, EveryRuleOfTheTableIsTried) {
    // Without a row of its own: the last four need notes, a foreign text or a window.
    std::set<std::string_view> tried = {"wait-forever", "watch-kept", "hidden-without-key",
                                        "sealed-text", "not-in-host-type"};
    for (const Row& row : rows()) {
        for (const RuleInfo& rule : checkRules) {
            for (const std::string& finding : row.findings)
                if (finding.find(rule.id) != std::string::npos) tried.insert(rule.id);
        }
    }
    EXPECT_EQ(tried.size(), checkRules.size());
}

TEST_F(CheckCommand, TellsNotesAndForeignTextsInWords) {
    const auto script = file(
        "script.qds",
        scriptFile("QDMDSCR=",
                   {joined({{7}, counted("NoHots")}), joined({{10}, counted("NoHost")}),
                    joined({{17}, counted("R\x01"), {1, 1, 0, 1, 0}}), joined({{20, 1, 'w', 0}}),
                    hiddenTypeRecord("Secret", "somebody else"), hiddenTypeRecord("Canary", "")}));
    setIdentity("");
    const QdsRun run = runQds({"check", "--notes", "--disable", "unreachable", script});
    EXPECT_EQ(run.out,
              script +
                  ":1: error: Goto NoHots: no such label; NoHost is in step 2 [label-missing]\n" +
                  script + ":2: warning: Label NoHost: no Goto leads here [label-unused]\n" +
                  script + ":3: note: Wait_For “R\\x01” has no timeout [wait-forever]\n" + script +
                  ":4: note: No Clear_Watch ends this Watch_For [watch-kept]\n" + script +
                  ":5: warning: Your user identity does not open the hidden text [sealed-text]\n" +
                  script +
                  ":5: note: You have no user identity: hidden texts are only obscured "
                  "[hidden-without-key]\n");
    EXPECT_EQ(run.err, "qds: 1 script: 1 error, 2 warnings, 3 notes\n");
    EXPECT_EQ(run.status, 1);
}

TEST_F(CheckCommand, GoesOverFoldersAndTellsTroubleFromFindings) {
    std::filesystem::create_directories(file("a/b"));
    const Bytes faulty = scriptFile("QDMDSCR=", {joined({{7}, counted("x")})});
    const Bytes clean = scriptFile("QDMDSCR=", {{4}});
    file("a/z.qds", clean);
    file("a/b/y.qds", clean);
    file("a/b/not-a-script.txt", faulty);
    ASSERT_EQ(mkfifo(file("a/b/pipe.qds").c_str(), 0600), 0) << "nobody writes into it";
    EXPECT_EQ(runQds({"check", file("a")}).err, "qds: 2 scripts: 0 errors, 0 warnings\n");
    file("a/b/x.qds", faulty);
    const QdsRun found = runQds({"check", file("a")});
    EXPECT_EQ(found.status, 1);
    EXPECT_EQ(found.out, file("a/b/x.qds") + ":1: error: Goto x: no such label [label-missing]\n");

    Bytes cut = faulty;
    cut.push_back(8);
    file("a/b/x.qds", cut);
    const QdsRun trouble = runQds({"check", file("a")});
    EXPECT_EQ(trouble.status, 2);
    EXPECT_EQ(trouble.out, found.out) << "what was read is looked at";
    EXPECT_EQ(runQds({"check", file("nothing.qds")}).status, 2);
    EXPECT_EQ(runQds({"check", "--disable", "nonsense", file("a")}).status, 2);
}

}  // namespace
}  // namespace quendra::test
