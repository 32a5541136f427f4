// The pages of the transfer settings: what is enabled when, what opening and ending the sheet does.
#include "dialogs/transfer/transfer_fixture.h"
#include "text/text_ids.h"

#include <QApplication>
#include <QComboBox>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

/// The next `new` throws std::bad_alloc; those behind it are served again.
static thread_local bool nextAllocationFails = false;

// In the place of the library's own, for the whole test program.
void* operator new(std::size_t size) {
    if (std::exchange(nextAllocationFails, false)) throw std::bad_alloc();
    void* memory = std::malloc(std::max<std::size_t>(size, 1));
    return memory != nullptr ? memory : throw std::bad_alloc();
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

constexpr struct {
    int page;
    /// On VM/CMS, TSO, CICS/VS, and on a host system that there is not.
    const char* on;
    const char* names;
} enabledRows[] = {
    {settingsPage, "1111",
     "hostFileName pcFileName browse binary0 binary1 useLocalTranslateTables packetSizeIndexLabel "
     "packetSizeIndex autoEraseInput showSettingsBeforeTransfer"},
    {settingsPage, "1100", "crlf append"},
    {settingsPage, "1000", "fileTypeLabel fileType fileModeLabel fileMode"},
    {settingsPage, "0100", "memberLabel member"},
    {advancedPage, "1111",
     "transferProgramName additionalParameters arabicProcessing pcCodePageIndex"},
    {advancedPage, "1100",
     "recordFormatGroup recordFormat0 recordFormat1 recordFormat2 recordLengthLabel recordLength"},
    {advancedPage, "0100",
     "recordFormat3 blockSizeLabel blockSize spaceGroup spaceUnit0 spaceUnit1 averageBlock "
     "spaceUnit2 spaceUnit3 primarySpaceLabel primarySpace secondarySpaceLabel secondarySpace "
     "hostFilePasswordLabel hostFilePassword"},
    {advancedPage, "0010", "includeLeftParenthesis includeRightParenthesis"},
};

void expectEnabled(const OpenDialog& d, std::size_t host) {
    EXPECT_EQ(d.shown("autoEraseInput"), host == 0 ? "&Auto-<Clear Screen> before Transfer"
                                                   : "&Auto-<Erase Input> before Transfer");
    for (const auto& row : enabledRows) {
        d.showTab(row.page);
        const std::string states = d.enabled(row.names);
        EXPECT_EQ(states, std::string(states.size(), row.on[std::min<std::size_t>(host, 3)]))
            << row.names << " on host " << host;
    }
    d.showTab(settingsPage);
}

TEST_F(TransferSheetTest, HostSystemDecidesWhatIsEnabledAtOnceAndOnTheOtherPage) {
    for (const int first : {0, 1, 2, 3, 255}) {
        host = static_cast<std::uint8_t>(first);
        open([&](const OpenDialog& d) {
            for (int i = 0; i < 3; ++i)
                EXPECT_EQ(d.isChecked(hostButtons[i]), i == first);
            EXPECT_EQ(d.focused(), hostButtons[first < 3 ? first : 0]);
            expectEnabled(d, host);
            for (const std::size_t next : {1U, 2U, 0U}) {
                d.click(hostButtons[next]);
                expectEnabled(d, next);
            }
            for (const auto& [button, enabled] :
                 {std::pair("binary1", false), {hostButtons[2], false}, {"binary0", true}}) {
                d.click(button);
                EXPECT_EQ(d.isEnabled("useLocalTranslateTables"), enabled) << "for text only";
            }
        });
    }
}

TEST_F(TransferSheetTest, TabGoesToTheChosenButtonsOnlyAndCtrlPageTurnsThePages) {
    host = transferHostTso;
    setTransferNumber(settings, transfer::binary, 1);
    setTransferNumber(settings, transfer::recordFormat, 3);
    setTransferNumber(settings, transfer::spaceUnit, 7);
    const auto focusedInTurn = [](const OpenDialog& d, int count) {
        std::string names;
        for (int i = 0; i < count; ++i) {
            d.press(Qt::Key_Tab);
            names += d.focused() + ' ';
        }
        return names;
    };
    open([&](const OpenDialog& d) {
        EXPECT_EQ(focusedInTurn(d, 6), "hostFileName member pcFileName browse binary1 crlf ");
        d.press(Qt::Key_PageDown, Qt::ControlModifier);
        EXPECT_TRUE(d.widget("advancedPage").isVisible());
        EXPECT_EQ(d.focused(), "recordFormat3");
        EXPECT_EQ(focusedInTurn(d, 4), "recordLength blockSize spaceUnit0 spaceUnit1 ")
            << "none of the units is chosen";
        d.press(Qt::Key_PageUp, Qt::ControlModifier);
        EXPECT_TRUE(d.widget("settingsPage").isVisible());
        EXPECT_EQ(d.focused(), hostButtons[1]);
        // What is chosen and off leads nowhere.
        d.click(hostButtons[0]);
        d.press(Qt::Key_PageUp, Qt::ControlModifier);
        EXPECT_EQ(d.focused(), "recordFormat0");
    });
}

TEST_F(TransferSheetTest, APageLooksAtTheSettingsAgainButForTheBidiOptions) {
    open([&](const OpenDialog& d) {
        d.showTab(advancedPage);
        EXPECT_TRUE(d.isChecked("recordFormat0"));
        d.showTab(settingsPage);
        setTransferText(settings, transfer::hostFileName, "NEW");
        setTransferNumber(settings, transfer::packetSizeEnabled, 0);
        setTransferNumber(settings, transfer::recordLength, 80);
        setTransferNumber(settings, transfer::arabicProcessing, 1);
        setTransferNumber(settings, transfer::pcCodePageIndex, 2);
        d.click(hostButtons[0]);
        EXPECT_EQ(d.shown("hostFileName"), "") << "it was chosen already";
        d.click(hostButtons[1]);
        EXPECT_EQ(d.shown("hostFileName"), "NEW");
        EXPECT_EQ(d.enabled("packetSizeIndex packetSizeIndexLabel"), "00");
        d.showTab(advancedPage);
        EXPECT_EQ(d.shown("recordLength"), "80");
        EXPECT_FALSE(d.isChecked("arabicProcessing"));
        EXPECT_EQ(d.shown("pcCodePageIndex"), "1256");
    });
}

TEST_F(TransferSheetTest, CancelKeepsTheSettingsAndNotTheHostAndReturnIsOk) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        const bool ok = open([&](const OpenDialog& d) {
            d.click(hostButtons[1]);
            d.retype("pcFileName", "kept");
            d.press(key);
        });
        EXPECT_EQ(ok, key == Qt::Key_Return);
        EXPECT_EQ(host, ok ? transferHostTso : transferHostVmCms);
        EXPECT_EQ(stored(transfer::pcFileName), "kept");
        setTransferText(settings, transfer::pcFileName, "");
    }
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

TEST_F(TransferSheetTest, BrowseAsksForAnExistingFileAndTakesOneThatCanBeStored) {
    const std::string chosen = "/home/eve/r\u00e9sum\u00e9.txt";
    state.settings.transferDir = editor.folder / "Transfer";
    answers.toFileDialogs = {std::nullopt, "/\u0416", '/' + std::string(255, 'x'), "/bad\xff.txt",
                             chosen};
    open([&](const OpenDialog& d) {
        d.retype("pcFileName", "old.txt");
        for (const char* note : {"", "The character \u0416 (U+0416) cannot be stored in a script.",
                                 "At most 255 characters fit here.",
                                 "The character \ufffd (U+FFFD) cannot be stored in a script."}) {
            d.click("browse");
            EXPECT_EQ(stored(transfer::pcFileName), "old.txt");
            QApplication::setActiveWindow(nullptr);
            QApplication::setActiveWindow(d.dialog);
            EXPECT_EQ(d.shown("note"), note);
        }
        d.click("browse");
    });
    EXPECT_EQ(stored(transfer::pcFileName), chosen);
    const FileDialogRequest& request = answers.fileDialogs.front();
    EXPECT_EQ(request.mode, FileDialogMode::Open);
    EXPECT_EQ(request.title, "File Transfer Settings");
    EXPECT_EQ(request.filterDescription, "All Files(*.*)");
    EXPECT_EQ(request.extension, "");
    EXPECT_EQ(request.initialFolder, editor.folder / "Transfer");
    EXPECT_EQ(request.initialFile, "old.txt");
}

TEST_F(TransferSheetTest, ASheetThatCannotBeMadeIsReportedAndChangesNothing) {
    setTransferText(settings, transfer::hostFileName, "KEPT");
    const FileTransferSettings before = settings;
    host = transferHostTso;
    nextAllocationFails = true;
    EXPECT_FALSE(editTransferSettings(state, nullptr, host, TransferDirection::Send));
    EXPECT_EQ(settings, before);
    EXPECT_EQ(host, transferHostTso);
    ASSERT_EQ(answers.messages.size(), 1U);
    EXPECT_EQ(answers.messages[0].text,
              state.language.loadText(textid::transferSettingsCannotBeShown));
    EXPECT_EQ(answers.messages[0].title, state.language.loadText(textid::transferRefusalTitle));
}

}  // namespace
}  // namespace quendra::test
