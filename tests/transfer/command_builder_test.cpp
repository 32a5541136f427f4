// The IND$FILE command line for every host, direction and option.
#include "transfer/command_builder.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace quendra::test {

namespace {

using namespace transfer;
using Texts = std::vector<std::pair<TransferField, std::string>>;
using Numbers = std::vector<std::pair<TransferField, std::uint32_t>>;

struct Row {
    std::string name;
    std::uint8_t host;
    bool send;
    Texts texts;
    Numbers numbers;
    std::string line;
};

const std::string longText(400, 'x');

const std::vector<Row> rows = {
    {"VM send with all three name parts",
     0,
     true,
     {{hostFileName, "PROFILE"}, {fileType, "EXEC"}, {fileMode, "A"}},
     {{recordFormat, 1}, {recordLength, 80}},
     "IND$FILE PUT PROFILE EXEC A (ASCII CRLF LRECL 80 RECFM V "},
    {"VM receive with defaults",
     0,
     false,
     {{hostFileName, "DATA"}},
     {},
     "IND$FILE GET DATA (ASCII CRLF "},
    {"VM send without any option has no parenthesis",
     0,
     true,
     {{hostFileName, "F"}, {fileType, "T"}, {fileMode, "M"}},
     {{binary, 1}, {crlf, 0}},
     "IND$FILE PUT F T M "},
    {"VM send with a record format alone",
     0,
     true,
     {{hostFileName, "F"}},
     {{binary, 1}, {crlf, 0}, {recordFormat, 2}},
     "IND$FILE PUT F (RECFM F "},
    {"VM receive with a record format alone",
     0,
     false,
     {{hostFileName, "F"}},
     {{binary, 1}, {crlf, 0}, {recordFormat, 2}},
     "IND$FILE GET F "},
    {"VM receive with a record length opens a parenthesis for nothing",
     0,
     false,
     {{hostFileName, "F"}},
     {{binary, 1}, {crlf, 0}, {recordLength, 80}},
     "IND$FILE GET F ("},
    {"VM append",
     0,
     true,
     {{hostFileName, "F"}},
     {{append, 1}, {binary, 1}, {crlf, 0}},
     "IND$FILE PUT F (APPEND "},
    {"VM never writes block size and space",
     0,
     true,
     {{hostFileName, "F"}},
     {{blockSize, 5}, {primarySpace, 6}, {spaceUnit, 2}},
     "IND$FILE PUT F (ASCII CRLF "},
    {"a record length needs a record format",
     0,
     true,
     {{hostFileName, "F"}},
     {{recordLength, 80}},
     "IND$FILE PUT F (ASCII CRLF "},
    {"TSO quoted data set with member and space",
     1,
     true,
     {{hostFileName, "'USER.SOURCE'"}, {member, "PROG1"}},
     {{binary, 1},
      {crlf, 0},
      {recordFormat, 2},
      {recordLength, 80},
      {blockSize, 3120},
      {primarySpace, 10},
      {secondarySpace, 5},
      {spaceUnit, 3}},
     "IND$FILE PUT 'USER.SOURCE(PROG1)' LRECL(80) RECFM(F) BLKSIZE(3120) SPACE(10,5) TRACKS "},
    {"TSO receive writes no space",
     1,
     false,
     {{hostFileName, "USER.DATA"}},
     {{append, 1}, {recordFormat, 3}, {blockSize, 1}, {primarySpace, 1}},
     "IND$FILE GET USER.DATA APPEND ASCII CRLF "},
    {"TSO member without quotes, password",
     1,
     true,
     {{hostFileName, "USER.SRC"}, {member, "MEM"}, {hostFilePassword, "PW"}},
     {},
     "IND$FILE PUT USER.SRC(MEM) /PW ASCII CRLF "},
    {"TSO average blocks",
     1,
     true,
     {{hostFileName, "D"}},
     {{primarySpace, 1}, {spaceUnit, 1}, {averageBlock, 4294967295}},
     "IND$FILE PUT D ASCII CRLF SPACE(1,0) AVBLOCK(4294967295) "},
    {"TSO unit without primary space",
     1,
     true,
     {{hostFileName, "D"}},
     {{spaceUnit, 1}, {averageBlock, 9}},
     "IND$FILE PUT D ASCII CRLF "},
    {"TSO unknown record format and unit",
     1,
     true,
     {{hostFileName, "D"}},
     {{recordFormat, 4}, {recordLength, 80}, {primarySpace, 1}, {spaceUnit, 4}},
     "IND$FILE PUT D ASCII CRLF SPACE(1,0) "},
    {"CICS receive with defaults",
     2,
     false,
     {{hostFileName, "MYFILE"}},
     {},
     "IND$FILE GET MYFILE (ASCII CRLF "},
    {"CICS binary with both parentheses",
     2,
     true,
     {{hostFileName, "MYFILE"}},
     {{binary, 1}, {includeRightParenthesis, 1}},
     "IND$FILE PUT MYFILE (BINARY NOCRLF) "},
    {"CICS additional parameters",
     2,
     true,
     {{hostFileName, "F"}, {additionalParameters, "TRACE"}},
     {{includeLeftParenthesis, 0}},
     "IND$FILE PUT F ASCII CRLF TRACE"},
    {"an unknown host gives names only",
     3,
     true,
     {{hostFileName, "F"}, {additionalParameters, "TRACE"}},
     {},
     "IND$FILE PUT F"},
    {"no program name",
     0,
     false,
     {{transferProgramName, ""}, {hostFileName, "F"}},
     {},
     " GET F (ASCII CRLF "},
    {"cut at 255",
     0,
     true,
     {{hostFileName, longText}},
     {},
     ("IND$FILE PUT " + longText).substr(0, 255)},
};

}  // namespace

TEST(TransferCommand, isBuiltForEveryHostDirectionAndOption) {
    for (const Row& row : rows) {
        FileTransferSettings settings = defaultTransferSettings();
        for (const auto& [field, text] : row.texts) {
            setTransferText(settings, field, text);
        }
        for (const auto& [field, number] : row.numbers) {
            setTransferNumber(settings, field, number);
        }
        const auto direction = row.send ? TransferDirection::Send : TransferDirection::Receive;
        EXPECT_EQ(buildTransferCommand(settings, row.host, direction), row.line) << row.name;
    }
}

TEST(TransferSettings, boundTextsOfForeignFiles) {
    FileTransferSettings settings;
    settings.bytes.fill('x');
    EXPECT_EQ(transferText(settings, member), std::string(32, 'x'));
    setTransferText(settings, member, std::string(40, 'y'));
    EXPECT_EQ(transferText(settings, member), std::string(31, 'y'));
    EXPECT_EQ(transferText(settings, fileType), std::string(32, 'x'));
}

}  // namespace quendra::test
