// The IND$FILE command line for every host, direction and option.
#include "transfer/command_builder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace quendra::test {
namespace {

using namespace transfer;

// "field=value" for each setting that is not as by default, parted by blanks.
FileTransferSettings settingsWith(const std::string& changes) {
    FileTransferSettings settings = defaultTransferSettings();
    std::istringstream words(changes);
    for (std::string word; words >> word;) {
        const std::string name = word.substr(0, word.find('='));
        const std::string value = word.substr(name.size() + 1);
        const auto fields = transferFields();
        const auto field = std::ranges::find(fields, name, &TransferField::name);
        if (field == fields.end()) throw std::runtime_error("no field " + name);
        if (field->kind == TransferFieldKind::Text) {
            setTransferText(settings, *field, value);
        } else {
            setTransferNumber(settings, *field, static_cast<std::uint32_t>(std::stoul(value)));
        }
    }
    return settings;
}

constexpr auto put = TransferDirection::Send;
constexpr auto get = TransferDirection::Receive;
const std::string longText(400, 'x');

const struct {
    std::uint8_t host;
    TransferDirection direction;
    std::string changes;
    std::string line;
} rows[] = {
    // VM/CMS: without any option no parenthesis, a record length opens one for nothing, block size
    // and space are never written, a record length needs a record format.
    {0, put, "hostFileName=PROFILE fileType=EXEC fileMode=A recordFormat=1 recordLength=80",
     "IND$FILE PUT PROFILE EXEC A (ASCII CRLF LRECL 80 RECFM V "},
    {0, get, "hostFileName=DATA", "IND$FILE GET DATA (ASCII CRLF "},
    {0, put, "hostFileName=F fileType=T fileMode=M binary=1 crlf=0", "IND$FILE PUT F T M "},
    {0, put, "hostFileName=F binary=1 crlf=0 recordFormat=2", "IND$FILE PUT F (RECFM F "},
    {0, get, "hostFileName=F binary=1 crlf=0 recordFormat=2", "IND$FILE GET F "},
    {0, get, "hostFileName=F binary=1 crlf=0 recordLength=80", "IND$FILE GET F ("},
    {0, put, "hostFileName=F append=1 binary=1 crlf=0", "IND$FILE PUT F (APPEND "},
    {0, put, "hostFileName=F blockSize=5 primarySpace=6 spaceUnit=2",
     "IND$FILE PUT F (ASCII CRLF "},
    {0, put, "hostFileName=F recordLength=80", "IND$FILE PUT F (ASCII CRLF "},
    {0, get, "transferProgramName= hostFileName=F", " GET F (ASCII CRLF "},
    {0, put, "hostFileName=" + longText, ("IND$FILE PUT " + longText).substr(0, 255)},
    // TSO: the member goes inside of the quotes, space is for sending only.
    {1, put,
     "hostFileName='USER.SOURCE' member=PROG1 binary=1 crlf=0 recordFormat=2 recordLength=80 "
     "blockSize=3120 primarySpace=10 secondarySpace=5 spaceUnit=3",
     "IND$FILE PUT 'USER.SOURCE(PROG1)' LRECL(80) RECFM(F) BLKSIZE(3120) SPACE(10,5) TRACKS "},
    {1, get, "hostFileName=USER.DATA append=1 recordFormat=3 blockSize=1 primarySpace=1",
     "IND$FILE GET USER.DATA APPEND ASCII CRLF "},
    {1, put, "hostFileName=USER.SRC member=MEM hostFilePassword=PW",
     "IND$FILE PUT USER.SRC(MEM) /PW ASCII CRLF "},
    {1, put, "hostFileName=D primarySpace=1 spaceUnit=1 averageBlock=4294967295",
     "IND$FILE PUT D ASCII CRLF SPACE(1,0) AVBLOCK(4294967295) "},
    {1, put, "hostFileName=D primarySpace=1 spaceUnit=2 recordFormat=3",
     "IND$FILE PUT D ASCII CRLF RECFM(U) SPACE(1,0) CYLINDERS "},
    {1, put, "hostFileName=D spaceUnit=1 averageBlock=9", "IND$FILE PUT D ASCII CRLF "},
    {1, put, "hostFileName=D recordFormat=4 recordLength=80 primarySpace=1 spaceUnit=4",
     "IND$FILE PUT D ASCII CRLF SPACE(1,0) "},
    // CICS/VS.
    {2, get, "hostFileName=MYFILE", "IND$FILE GET MYFILE (ASCII CRLF "},
    {2, put, "hostFileName=MYFILE binary=1 includeRightParenthesis=1",
     "IND$FILE PUT MYFILE (BINARY NOCRLF) "},
    {2, put, "hostFileName=F additionalParameters=TRACE includeLeftParenthesis=0",
     "IND$FILE PUT F ASCII CRLF TRACE"},
    // An unknown host gives names only.
    {3, put, "hostFileName=F additionalParameters=TRACE", "IND$FILE PUT F"},
};

TEST(TransferCommand, IsBuiltForEveryHostDirectionAndOption) {
    for (const auto& row : rows) {
        EXPECT_EQ(buildTransferCommand(settingsWith(row.changes), row.host, row.direction),
                  row.line)
            << "host " << int{row.host} << ": " << row.changes;
    }
}

TEST(TransferSettings, BoundTextsOfForeignFiles) {
    FileTransferSettings settings;
    settings.bytes.fill('x');
    EXPECT_EQ(transferText(settings, member), std::string(32, 'x'));
    setTransferText(settings, member, std::string(40, 'y'));
    EXPECT_EQ(transferText(settings, member), std::string(31, 'y'));
    EXPECT_EQ(transferText(settings, fileType), std::string(32, 'x'));
}

}  // namespace
}  // namespace quendra::test
