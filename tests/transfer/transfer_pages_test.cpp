// The pages of the transfer settings: what is enabled when, what opening and ending the sheet does.
#include "app/ui_text.h"
#include "transfer/transfer_fixture.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QScreen>
#include <QTabWidget>

#include <cstdlib>
#include <new>
#include <utility>

namespace {

/// The next `new` throws std::bad_alloc; those behind it are served again.
thread_local bool nextAllocationFails = false;

}  // namespace

// In the place of the library's own, for the whole test program.
void* operator new(std::size_t size) {
    void* memory = nullptr;
    if (!std::exchange(nextAllocationFails, false)) memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

namespace quendra::test {
namespace {

constexpr const char* hostButtons[] = {"transferHost0", "transferHost1", "transferHost2"};

struct EnabledRow {
    int page;
    /// On VM/CMS, TSO, CICS/VS.
    const char* on;
    const char* names;
};

constexpr EnabledRow enabledRows[] = {
    {settingsPage, "111",
     "hostFileName pcFileName browse binary0 binary1 useLocalTranslateTables packetSizeIndexLabel "
     "packetSizeIndex autoEraseInput showSettingsBeforeTransfer"},
    {settingsPage, "110", "crlf append"},
    {settingsPage, "100", "fileTypeLabel fileType fileModeLabel fileMode"},
    {settingsPage, "010", "memberLabel member"},
    {advancedPage, "111",
     "transferProgramName additionalParameters arabicProcessing pcCodePageIndex"},
    {advancedPage, "110",
     "recordFormatGroup recordFormat0 recordFormat1 recordFormat2 recordLengthLabel recordLength"},
    {advancedPage, "010",
     "recordFormat3 blockSizeLabel blockSize spaceGroup spaceUnit0 spaceUnit1 averageBlock "
     "spaceUnit2 spaceUnit3 primarySpaceLabel primarySpace secondarySpaceLabel secondarySpace "
     "hostFilePasswordLabel hostFilePassword"},
    {advancedPage, "001", "includeLeftParenthesis includeRightParenthesis"},
};

void expectEnabled(const OpenDialog& d, std::size_t host) {
    EXPECT_EQ(d.shown("autoEraseInput"), host == 0 ? "&Auto-<Clear Screen> before Transfer"
                                                   : "&Auto-<Erase Input> before Transfer");
    for (const EnabledRow& row : enabledRows) {
        d.showTab(row.page);
        // No rule of a host system above 2 enables anything.
        const char on = host < 3 ? row.on[host] : row.on == std::string("111") ? '1' : '0';
        const std::string states = d.enabled(row.names);
        EXPECT_EQ(states, std::string(states.size(), on)) << row.names << " on host " << host;
    }
    d.showTab(settingsPage);
}

TEST_F(TransferSheetTest, HostSystemDecidesWhatIsEnabledAtOnceAndOnTheOtherPage) {
    for (const int first : {0, 1, 2, 3, 255}) {
        host = static_cast<std::uint8_t>(first);
        open([&](const OpenDialog& d) {
            for (int i = 0; i < 3; ++i)
                EXPECT_EQ(d.isChecked(hostButtons[i]), i == first);
            expectEnabled(d, host);
            for (const std::size_t next : {1U, 2U, 0U}) {
                d.click(hostButtons[next]);
                expectEnabled(d, next);
            }
        });
    }
}

TEST_F(TransferSheetTest, TranslateTablesAreForTextOnly) {
    open([](const OpenDialog& d) {
        for (const auto& [button, enabled] :
             {std::pair("binary1", false), std::pair(hostButtons[2], false),
              std::pair("binary0", true), std::pair("binary1", false)}) {
            d.click(button);
            EXPECT_EQ(d.isEnabled("useLocalTranslateTables"), enabled) << button;
        }
        d.click("ok");
    });
    open([](const OpenDialog& d) { EXPECT_FALSE(d.isEnabled("useLocalTranslateTables")); });
}

TEST_F(TransferSheetTest, ChoosingAHostLooksAtTheSettingsAgain) {
    open([&](const OpenDialog& d) {
        setTransferText(settings, transfer::hostFileName, "NEW");
        setTransferNumber(settings, transfer::packetSizeEnabled, 0);
        d.click(hostButtons[0]);
        EXPECT_EQ(d.shown("hostFileName"), "") << "it was chosen already";
        for (const int next : {1, 2, 0}) {
            d.click(hostButtons[next]);
            EXPECT_EQ(d.shown("hostFileName"), "NEW");
            EXPECT_EQ(d.enabled("packetSizeIndex packetSizeIndexLabel"), "00");
        }
    });
    EXPECT_EQ(number(transfer::packetSizeEnabled), 0U);
}

TEST_F(TransferSheetTest, CancelKeepsTheSettingsAndNotTheHost) {
    const std::pair<const char*, std::function<void(const OpenDialog&)>> rows[] = {
        {"Cancel", [](const OpenDialog& d) { d.click("cancel"); }},
        {"Escape", [](const OpenDialog& d) { d.press(Qt::Key_Escape); }},
        {"close box", [](const OpenDialog& d) { d.dialog->close(); }},
    };
    for (const auto& [name, leave] : rows) {
        const bool result = open([&](const OpenDialog& d) {
            d.click(hostButtons[1]);
            d.retype("hostFileName", name);
            leave(d);
        });
        EXPECT_FALSE(result) << name;
        EXPECT_EQ(host, transferHostVmCms) << name;
        EXPECT_EQ(stored(transfer::hostFileName), name);
    }
}

TEST_F(TransferSheetTest, OkHandsTheHostBackAndIsReturnInAField) {
    for (const int chosen : {2, 1, 0}) {
        EXPECT_TRUE(open([&](const OpenDialog& d) {
            d.click(hostButtons[chosen]);
            d.retype("pcFileName", "a");
            d.press(Qt::Key_Return);
        }));
        EXPECT_EQ(host, chosen);
    }
    EXPECT_TRUE(answers.fileDialogs.empty());
}

TEST_F(TransferSheetTest, ForeignValuesShowAsTheyCanAndStayUnlessTheyAreChanged) {
    // Flags that are neither 0 nor 1, indices beyond every list, texts without an end.
    settings.bytes.fill(0xE9);
    const FileTransferSettings foreign = settings;
    host = 200;
    EXPECT_TRUE(open([](const OpenDialog& d) {
        EXPECT_EQ(d.checked("recordFormat0 recordFormat3 spaceUnit0 binary0"), "0000");
        EXPECT_EQ(d.widget<QComboBox>("packetSizeIndex").currentIndex(), -1);
        d.showTab(advancedPage);
        d.showTab(settingsPage);
        d.click("ok");
    }));
    EXPECT_EQ(settings, foreign);
    EXPECT_EQ(host, 200);

    open([&](const OpenDialog& d) {
        d.click(hostButtons[1]);
        EXPECT_EQ(settings, foreign) << "choosing a host system is no change of the settings";
        d.showTab(advancedPage);
        d.click("recordFormat2");
        EXPECT_EQ(d.checked("recordFormat2 recordFormat0"), "10");
        d.click("recordFormat0");
        EXPECT_FALSE(d.isChecked("recordFormat2"));
        EXPECT_EQ(number(transfer::recordFormat), 0U);
    });
}

TEST_F(TransferSheetTest, AdvancedLooksAtTheSettingsAgainEachTimeButForTheBidiOptions) {
    open([&](const OpenDialog& d) {
        d.showTab(advancedPage);
        EXPECT_TRUE(d.isChecked("recordFormat0"));
        d.showTab(settingsPage);
        setTransferNumber(settings, transfer::recordLength, 80);
        setTransferText(settings, transfer::additionalParameters, "NEW");
        setTransferNumber(settings, transfer::arabicProcessing, 1);
        setTransferNumber(settings, transfer::pcCodePageIndex, 2);
        d.showTab(advancedPage);
        EXPECT_EQ(d.shown("recordLength"), "80");
        EXPECT_EQ(d.shown("additionalParameters"), "NEW");
        EXPECT_FALSE(d.isChecked("arabicProcessing"));
        EXPECT_EQ(d.widget<QComboBox>("pcCodePageIndex").currentIndex(), 0);

        d.showTab(settingsPage);
        settings.bytes.fill(0xE9);
        const FileTransferSettings foreign = settings;
        d.showTab(advancedPage);
        EXPECT_EQ(d.checked("recordFormat0 includeLeftParenthesis"), "00");
        EXPECT_EQ(settings, foreign) << "looking at foreign values stores nothing";
    });
}

TEST_F(TransferSheetTest, BrowseAsksForAnExistingFileAndTakesOneThatCanBeStored) {
    const std::string chosen = "/home/eve/r\u00e9sum\u00e9.txt";
    state.settings.transferDir = editor.folder / "Transfer";
    answers.toFileDialogs = {std::nullopt, "/\u0416", '/' + std::string(255, 'x'), "/bad\xff.txt",
                             chosen};
    open([&](const OpenDialog& d) {
        d.retype("pcFileName", "old.txt");
        for (const char* note : {"", "The character \u0416 cannot be stored in a script.",
                                 "At most 255 characters fit here.",
                                 "The character \ufffd cannot be stored in a script."}) {
            d.click("browse");
            EXPECT_EQ(stored(transfer::pcFileName), "old.txt");
            EXPECT_EQ(d.shown("note"), note);
        }
        d.click("browse");
        EXPECT_EQ(d.shown("pcFileName"), chosen);
    });
    EXPECT_EQ(stored(transfer::pcFileName), chosen);
    EXPECT_TRUE(state.document.fileName.empty()) << "the script has its own name";
    ASSERT_EQ(answers.fileDialogs.size(), 5U);
    const FileDialogRequest& request = answers.fileDialogs.front();
    EXPECT_EQ(request.mode, FileDialogMode::Open);
    EXPECT_EQ(request.title, state.language.loadText(11998));
    EXPECT_EQ(request.filterDescription, "All Files(*.*)");
    EXPECT_EQ(request.extension, "");
    EXPECT_EQ(request.initialFolder, editor.folder / "Transfer");
    EXPECT_EQ(request.initialFile, "old.txt");
}

TEST_F(TransferSheetTest, TheRealFileDialogStartsAtTheStoredName) {
    const std::filesystem::path base = std::filesystem::canonical(editor.folder.path());
    std::filesystem::create_directories(base / "Transfer");
    std::filesystem::create_directories(base / "Other");
    state.settings.transferDir = base / "Transfer";
    const std::string elsewhere = (base / "Other/b.txt").string();
    const struct {
        std::string stored;
        const char* folder;
        const char* offered;
    } rows[] = {
        {"", "Transfer", ""}, {"a.txt", "Transfer", "a.txt"}, {elsewhere, "Other", "b.txt"}};
    const FileDialogHandler recorder = replaceFileDialogHandler({});
    for (const auto& row : rows) {
        setTransferText(settings, transfer::pcFileName, row.stored);
        steps.in("transferSheet", [](const OpenDialog& d) { d.click("browse"); });
        steps.in("fileDialog", [&](const OpenDialog& d) {
            const auto& files = static_cast<const QFileDialog&>(*d.dialog);
            EXPECT_EQ(pathFromQt(files.directory().absolutePath()), base / row.folder);
            EXPECT_EQ(d.shown("fileNameEdit"), row.offered);
            EXPECT_EQ(files.fileMode(), QFileDialog::ExistingFile);
            d.dialog->reject();
        });
        open([](const OpenDialog&) {});
        EXPECT_EQ(stored(transfer::pcFileName), row.stored);
    }
    replaceFileDialogHandler(recorder);
}

TEST_F(TransferSheetTest, OpensOnSettingsInTheMiddleOfTheScreen) {
    open([&](const OpenDialog& d) {
        EXPECT_EQ(d.title(), state.language.loadText(11998));
        const auto& tabs = d.widget<QTabWidget>("tabs");
        ASSERT_EQ(tabs.count(), 2);
        EXPECT_EQ(tabs.currentIndex(), settingsPage);
        EXPECT_EQ(d.focused(), "transferHost0");
        const QPoint offset =
            d.dialog->geometry().center() - d.dialog->screen()->geometry().center();
        EXPECT_LE(std::abs(offset.x()), 2);
        EXPECT_LE(std::abs(offset.y() + 10), 2);
    });
}

TEST_F(TransferSheetTest, ASheetThatCannotBeMadeIsReportedAndChangesNothing) {
    setTransferText(settings, transfer::hostFileName, "KEPT");
    const FileTransferSettings before = settings;
    host = transferHostTso;
    nextAllocationFails = true;
    EXPECT_FALSE(editTransferSettings({state, nullptr}, host, TransferDirection::Send));
    EXPECT_EQ(settings, before);
    EXPECT_EQ(host, transferHostTso);
    ASSERT_EQ(answers.messages.size(), 1U);
    EXPECT_EQ(answers.messages[0].text, state.language.loadText(13015));
    EXPECT_EQ(answers.messages[0].title, state.language.loadText(11990));
    EXPECT_EQ(answers.messages[0].icon, MessageIcon::Exclamation);
}

}  // namespace
}  // namespace quendra::test
