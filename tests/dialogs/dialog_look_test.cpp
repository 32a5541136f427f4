// How the dialogs look, in each language: no mnemonic twice, nothing cut off, nothing empty; and
// pictures of all of them for those who want to see.
#include "dialogs/dialog_fixture.h"
#include "dialogs/look_checks.h"

#include <QPlainTextEdit>

namespace quendra::test {
namespace {

struct LookRow {
    const char* name;
    CommandCode code;
    std::uint32_t commandId = 0;
    Slot slot = Slot::Entry;
    void (*arrange)(QWidget& dialog) = nullptr;
};

const LookRow lookRows[] = {
    {"Comment", CommandCode::Comment},
    {"Goto", CommandCode::Goto},
    {"Label", CommandCode::Label},
    {"Message", CommandCode::Message},
    {"Type", CommandCode::Type},
    {"TypeHidden", CommandCode::Type, 0, Slot::Entry,
     [](QWidget& dialog) { dialog.findChild<QCheckBox*>(QStringLiteral("hide"))->click(); }},
    {"ExpressLogon", CommandCode::ExpressLogon},
    {"Wait", CommandCode::Wait},
    {"WaitReady", CommandCode::WaitReady},
    {"WaitElse", CommandCode::Wait, 0, Slot::Else},
    {"WaitReadyElse", CommandCode::WaitReady, 0, Slot::Else},
    {"Run", CommandCode::Run},
    {"Menu202", CommandCode::MenuCommand, 202},
    {"Menu204", CommandCode::MenuCommand, 204},
    {"Menu219", CommandCode::MenuCommand, 219},
    {"Menu254", CommandCode::MenuCommand, 254},
    {"Menu257", CommandCode::MenuCommand, 257},
    {"SetCursor", CommandCode::SetCursor},
    {"Copy", CommandCode::Copy},
    {"CopyEntireScreen", CommandCode::Copy, 0, Slot::Entry,
     [](QWidget& dialog) {
         dialog.findChild<QCheckBox*>(QStringLiteral("entireScreen"))->click();
     }},
    {"Paste", CommandCode::Paste},
    {"Input", CommandCode::Input, 0, Slot::Entry,
     [](QWidget& dialog) {
         auto* prompt = dialog.findChild<QPlainTextEdit*>(QStringLiteral("prompt"));
         prompt->setPlainText(QStringLiteral("Enter the code of the day.\nIt has six digits."));
         prompt->setFocus();
         typeText(*prompt, QStringLiteral(u"\u4e2d"));
     }},
    {"WaitUntil", CommandCode::WaitUntil, 0, Slot::Entry,
     [](QWidget& dialog) { dialog.findChild<QCheckBox*>(QStringLiteral("hasTime"))->click(); }},
};

using LookParameter = std::tuple<LookRow, std::string>;

class DialogLook : public DialogTest, public ::testing::WithParamInterface<LookParameter> {
  protected:
    DialogLook() { useLanguage(std::get<1>(GetParam())); }

    void openRow() {
        const LookRow& row = std::get<0>(GetParam());
        entry = newEntry(row.slot == Slot::Entry ? row.code : CommandCode::WaitFor);
        slotFields(entry, row.slot).code = row.code;
        if (row.commandId != 0) slotFields(entry, row.slot).commandId = row.commandId;
        if (row.code != CommandCode::Input) setText(slotFields(entry, row.slot), "TSO LOGON");
        open(row.slot, ActionOwner::WaitForOrWatchFor);
        if (row.arrange != nullptr) row.arrange(*dialog);
        QCoreApplication::processEvents();
    }
};

TEST_P(DialogLook, NoMnemonicReachesTwoFields) {
    openRow();
    expectMnemonicsOfTheirOwn(*dialog);
}

TEST_P(DialogLook, EveryPartHasItsTextWholeAndAName) {
    openRow();
    EXPECT_LE(dialog->width(), 640);
    EXPECT_LE(dialog->height(), 460);
    expectWholeTexts(*dialog);
}

TEST_P(DialogLook, CanBeSeenInPictures) {
    if (!wantsPictures()) GTEST_SKIP() << "QUENDRA_PICTURES names no folder";
    forLightAndDark([this](const std::string& appearance) {
        openRow();
        const auto& [row, language] = GetParam();
        savePicture(*dialog, std::string(row.name) + '-' + language + '-' + appearance);
    });
}

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogLook,
                         ::testing::Combine(::testing::ValuesIn(lookRows),
                                            ::testing::Values("qdstring", "qdstring_de")),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name) + '_' +
                                    std::get<1>(row.param);
                         });

}  // namespace
}  // namespace quendra::test
