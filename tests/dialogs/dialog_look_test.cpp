// How the dialogs look, in each language: no mnemonic twice, nothing cut off, nothing empty.
#include "dialogs/look_checks.h"
#include "support/dialog_showcase.h"

namespace quendra::test {
namespace {

class DialogLook : public DialogShowcase,
                   public ::testing::WithParamInterface<std::tuple<ShownDialog, std::string>> {
  protected:
    DialogLook() : DialogShowcase(std::get<std::string>(GetParam())) {}
};

TEST_P(DialogLook, EveryTextIsWholeAndEveryMnemonicWorks) {
    show(std::get<ShownDialog>(GetParam()), [](QDialog& dialog) {
        expectWholeTexts(dialog, "thenLine elseLine");
        EXPECT_FALSE(dialog.property("helpPage").toString().isEmpty());
        expectToFitItsScreen(dialog);
        expectMnemonicsThatWork(dialog);
    });
}

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogLook,
                         ::testing::Combine(::testing::ValuesIn(shownDialogs()),
                                            ::testing::Values("qdstring", "qdstring_de")),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name) + '_' +
                                    std::get<1>(row.param);
                         });

}  // namespace
}  // namespace quendra::test
