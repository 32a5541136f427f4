// How the dialogs with actions look, in each language.
#include "dialogs/look_checks.h"
#include "dialogs/search_fixture.h"

#include <fstream>

namespace quendra::test {
namespace {

/// A dialog as it opens on `entry`, and what is then done in it.
struct LookRow {
    const char* name;
    const char* dialog;
    CommandCode code;
    void (*fill)(ScriptEntry& entry) = nullptr;
    void (*arrange)(const OpenDialog& dialog) = nullptr;
    ActionOwner chooses = ActionOwner::None;
};

void fillWaitFor(ScriptEntry& entry) {
    setText(slotFields(entry, Slot::Entry), "READY");
    entry.hasTimeout = 1;
    entry.timeoutSeconds = 30;
    entry.thenCode = CommandCode::LuFunction;
    entry.row = 6;
    entry.column = 1;
    entry.elseCode = CommandCode::Message;
    setText(slotFields(entry, Slot::Else),
            "The host did not answer within half a minute & the script goes on without it.");
}

void fillCompare(ScriptEntry& entry) {
    setText(slotFields(entry, Slot::Entry), "yes");
    entry.secondOperandKind = 2;
    entry.thenCode = CommandCode::Goto;
    setText(slotFields(entry, Slot::Then), "START");
}

const LookRow lookRows[] = {
    {"WaitForNew", "waitForDialog", CommandCode::WaitFor},
    {"WaitFor", "waitForDialog", CommandCode::WaitFor, fillWaitFor},
    {"WaitForFault", "waitForDialog", CommandCode::WaitFor, fillWaitFor,
     [](const OpenDialog& d) { d.retype("row", "70"); }},
    {"IfInputIsNew", "ifInputIsDialog", CommandCode::IfInputIs},
    {"IfInputIs", "ifInputIsDialog", CommandCode::IfInputIs, fillCompare},
    {"WatchForNew", "watchForDialog", CommandCode::WatchFor},
    {"WatchFor", "watchForDialog", CommandCode::WatchFor,
     [](ScriptEntry& entry) {
         setText(slotFields(entry, Slot::Entry), "SYSTEM DOWN");
         entry.thenCode = CommandCode::MenuCommand;
         entry.commandId = 254;
     }},
    {"WatchedWaitFor", "waitForDialog", CommandCode::WatchFor,
     [](ScriptEntry& entry) {
         entry.thenCode = CommandCode::WaitFor;
         setText(slotFields(entry, Slot::Then), "READY");
         entry.searchRow = 24;
         entry.searchColumn = 1;
     }},
    {"ActionNew", "actionDialog", CommandCode::WaitFor, nullptr, nullptr,
     ActionOwner::WaitForOrWatchFor},
    {"Action", "actionDialog", CommandCode::IfInputIs, fillCompare, nullptr,
     ActionOwner::IfInputIs},
};

using LookParameter = std::tuple<LookRow, std::string>;

class SearchLook : public SearchDialogTest, public ::testing::WithParamInterface<LookParameter> {
  protected:
    SearchLook() {
        const auto& settings = state.settings;
        std::ofstream(editor.folder / "language.ini")
            << "[Language]\nLanguage=" << std::get<1>(GetParam()) << '\n';
        const auto notice =
            state.language.load({settings.programDir, settings.configDir, settings.installDir});
        if (notice) throw std::runtime_error(notice->text);
        state.luCatalogues = buildLuCatalogues(state.language.textSource());
        state.menuCommands = buildMenuCommandCatalogue(state.language.textSource());
    }

    /// Runs the dialog, and looks at it before Cancel.
    void show(const std::function<void(QDialog&)>& look) {
        const LookRow& row = std::get<0>(GetParam());
        startNew(row.code);
        if (row.fill != nullptr) row.fill(entry);
        steps.in(row.dialog, [&](const OpenDialog& d) {
            if (row.arrange != nullptr) row.arrange(d);
            QCoreApplication::processEvents();
            look(d.dialog);
            d.click("cancel");
        });
        const DialogContext context = {state, nullptr};
        EXPECT_FALSE(steps.run([&] {
            if (row.chooses != ActionOwner::None) {
                return chooseAction(context, {entry, Slot::Then, row.chooses});
            }
            const bool watched = std::string(row.name) == "WatchedWaitFor";
            return watched ? editWatchedWaitFor(context, entry) : editParameters(context, {entry});
        }));
    }
};

TEST_P(SearchLook, NoMnemonicReachesTwoFieldsAndEveryTextIsWhole) {
    show([](QDialog& dialog) {
        expectMnemonicsOfTheirOwn(dialog);
        expectWholeTexts(dialog, "thenLine elseLine");
    });
}

TEST_P(SearchLook, CanBeSeenInPictures) {
    if (!wantsPictures()) GTEST_SKIP() << "QUENDRA_PICTURES names no folder";
    forLightAndDark([this](const std::string& appearance) {
        show([&](QDialog& dialog) {
            const auto& [row, language] = GetParam();
            savePicture(dialog, std::string(row.name) + '-' + language + '-' + appearance);
        });
    });
}

INSTANTIATE_TEST_SUITE_P(Dialogs, SearchLook,
                         ::testing::Combine(::testing::ValuesIn(lookRows),
                                            ::testing::Values("qdstring", "qdstring_de")),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name) + '_' +
                                    std::get<1>(row.param);
                         });

}  // namespace
}  // namespace quendra::test
