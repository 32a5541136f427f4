// The pages of the transfer settings.
#include "transfer/transfer_sheet_driver.h"

namespace quendra::test {
namespace {

TEST_F(TransferSheetTest, Opens) {
    EXPECT_TRUE(open([](OpenSheet& sheet) { sheet.end("ok"); }));
}

}  // namespace
}  // namespace quendra::test
