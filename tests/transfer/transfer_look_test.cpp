// How the sheet of the transfer settings looks and is reached by keys, in every language:
// mnemonics, room for every text, and pictures for looking at (QUENDRA_PICTURES=FOLDER;
// QT_SCALE_FACTOR=2 for the large ones).
#include "dialogs/look_checks.h"
#include "transfer/transfer_fixture.h"

#include <QGroupBox>
#include <QtTest>

namespace quendra::test {
namespace {

class TransferLook : public TransferSheetTest, public ::testing::WithParamInterface<const char*> {
  protected:
    TransferLook() : TransferSheetTest(GetParam()) {}
};

TEST_P(TransferLook, EveryTextIsWholeEveryMnemonicWorksAndTheSheetKeepsItsSize) {
    QSize size;
    for (host = 0; host < 3; ++host) {
        open([&](const OpenDialog& d) {
            for (const int page : {settingsPage, advancedPage}) {
                d.showTab(page);
                EXPECT_EQ(d.shown("note"), "") << "the field was left";
                d.retype(page == settingsPage ? "pcFileName" : "transferProgramName",
                         std::string(256, 'x'));
                EXPECT_NE(d.shown("note"), "");
                expectWholeTexts(*d.dialog);
                for (const auto* group : d.dialog->findChildren<QGroupBox*>())
                    EXPECT_TRUE(!group->isVisible() ||
                                group->size().expandedTo(group->sizeHint()) == group->size());
                if (!size.isValid()) size = d.dialog->size();
                EXPECT_EQ(d.dialog->size(), size);
            }
        });
        for (const int page : {settingsPage, advancedPage}) {
            open([&](const OpenDialog& d) {
                d.showTab(page);
                expectMnemonicsThatWork(*d.dialog);
            });
        }
    }
}

TEST_P(TransferLook, CanBeSeenInPictures) {
    if (!wantsPictures()) GTEST_SKIP() << "QUENDRA_PICTURES names no folder";
    const std::string scale = qEnvironmentVariable("QT_SCALE_FACTOR", QString(u'1')).toStdString();
    forLightAndDark([&](const std::string& appearance) {
        for (host = 0; host < 3; ++host) {
            open([&](const OpenDialog& d) {
                d.retype("hostFileName", "'USER.SOURCE'");
                d.retype("pcFileName", "/home/eve/Transfer/\u0416.txt");
                for (const int page : {settingsPage, advancedPage}) {
                    d.showTab(page);
                    QTest::qWait(10);
                    savePicture(*d.dialog, "transfer-" + appearance + '-' + GetParam() + "-host" +
                                               std::to_string(host) + "-x" + scale + '-' +
                                               std::to_string(page));
                }
            });
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, TransferLook, ::testing::Values("qdstring", "qdstring_de"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
}  // namespace quendra::test
