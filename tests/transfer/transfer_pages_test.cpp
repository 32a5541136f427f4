// The pages of the transfer settings: what is enabled when, what opening and ending the sheet does.
#include "app/ui_text.h"
#include "transfer/transfer_sheet_driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace quendra::test {
namespace {

constexpr int settingsPage = 0;
constexpr int advancedPage = 1;
constexpr const char* hostButtons[] = {"transferHost0", "transferHost1", "transferHost2"};

struct EnabledRow {
    const char* name;
    int page;
    /// On VM/CMS, TSO, CICS/VS.
    bool on[3];
};

constexpr EnabledRow enabledRows[] = {
    {"hostFileName", settingsPage, {true, true, true}},
    {"memberLabel", settingsPage, {false, true, false}},
    {"member", settingsPage, {false, true, false}},
    {"fileTypeLabel", settingsPage, {true, false, false}},
    {"fileType", settingsPage, {true, false, false}},
    {"fileModeLabel", settingsPage, {true, false, false}},
    {"fileMode", settingsPage, {true, false, false}},
    {"pcFileName", settingsPage, {true, true, true}},
    {"browse", settingsPage, {true, true, true}},
    {"binary0", settingsPage, {true, true, true}},
    {"binary1", settingsPage, {true, true, true}},
    {"crlf", settingsPage, {true, true, false}},
    {"append", settingsPage, {true, true, false}},
    {"useLocalTranslateTables", settingsPage, {true, true, true}},
    {"packetSizeIndexLabel", settingsPage, {true, true, true}},
    {"packetSizeIndex", settingsPage, {true, true, true}},
    {"autoEraseInput", settingsPage, {true, true, true}},
    {"showSettingsBeforeTransfer", settingsPage, {true, true, true}},
    {"recordFormatGroup", advancedPage, {true, true, false}},
    {"recordFormat0", advancedPage, {true, true, false}},
    {"recordFormat1", advancedPage, {true, true, false}},
    {"recordFormat2", advancedPage, {true, true, false}},
    {"recordFormat3", advancedPage, {false, true, false}},
    {"recordLengthLabel", advancedPage, {true, true, false}},
    {"recordLength", advancedPage, {true, true, false}},
    {"blockSizeLabel", advancedPage, {false, true, false}},
    {"blockSize", advancedPage, {false, true, false}},
    {"spaceGroup", advancedPage, {false, true, false}},
    {"spaceUnit0", advancedPage, {false, true, false}},
    {"spaceUnit1", advancedPage, {false, true, false}},
    {"averageBlock", advancedPage, {false, true, false}},
    {"spaceUnit2", advancedPage, {false, true, false}},
    {"spaceUnit3", advancedPage, {false, true, false}},
    {"primarySpaceLabel", advancedPage, {false, true, false}},
    {"primarySpace", advancedPage, {false, true, false}},
    {"secondarySpaceLabel", advancedPage, {false, true, false}},
    {"secondarySpace", advancedPage, {false, true, false}},
    {"hostFilePasswordLabel", advancedPage, {false, true, false}},
    {"hostFilePassword", advancedPage, {false, true, false}},
    {"transferProgramName", advancedPage, {true, true, true}},
    {"includeLeftParenthesis", advancedPage, {false, false, true}},
    {"includeRightParenthesis", advancedPage, {false, false, true}},
    {"additionalParameters", advancedPage, {true, true, true}},
    {"arabicProcessing", advancedPage, {true, true, true}},
    {"pcCodePageIndex", advancedPage, {true, true, true}},
};

void expectEnabled(OpenSheet& sheet, int host) {
    for (int page : {settingsPage, advancedPage}) {
        sheet.showPage(page);
        for (const EnabledRow& row : enabledRows) {
            if (row.page != page) continue;
            // No rule of a host system above 2 enables anything.
            const bool on = host < 3 ? row.on[host] : row.on[0] && row.on[1] && row.on[2];
            EXPECT_EQ(sheet.isEnabled(row.name), on) << row.name << " on host " << host;
        }
    }
    sheet.showPage(settingsPage);
}

TEST_F(TransferSheetTest, HostSystemDecidesWhatIsEnabledAtOnceAndOnTheOtherPage) {
    open([](OpenSheet& sheet) {
        expectEnabled(sheet, 0);
        for (int next : {1, 2, 0, 2, 1, 0}) {
            sheet.click(hostButtons[next]);
            expectEnabled(sheet, next);
        }
    });
}

TEST_F(TransferSheetTest, HostSystemHandedInDecidesWhatIsEnabled) {
    for (const int first : {0, 1, 2, 3, 255}) {
        host = static_cast<std::uint8_t>(first);
        open([&](OpenSheet& sheet) {
            for (int i = 0; i < 3; ++i)
                EXPECT_EQ(sheet.isChecked(hostButtons[i]), i == first);
            expectEnabled(sheet, first);
        });
    }
}

TEST_F(TransferSheetTest, TranslateTablesAreForTextOnly) {
    open([](OpenSheet& sheet) {
        sheet.click("binary1");
        EXPECT_FALSE(sheet.isEnabled("useLocalTranslateTables"));
        sheet.click(hostButtons[2]);
        EXPECT_FALSE(sheet.isEnabled("useLocalTranslateTables"));
        sheet.click("binary0");
        EXPECT_TRUE(sheet.isEnabled("useLocalTranslateTables"));
        sheet.click("binary1");
        sheet.end("ok");
    });
    open([](OpenSheet& sheet) { EXPECT_FALSE(sheet.isEnabled("useLocalTranslateTables")); });
}

TEST_F(TransferSheetTest, PacketSizeThatCannotBeChosenIsDisabledOnEveryHost) {
    setTransferNumber(settings, transfer::packetSizeEnabled, 0);
    open([](OpenSheet& sheet) {
        for (const char* button : hostButtons) {
            sheet.click(button);
            EXPECT_FALSE(sheet.isEnabled("packetSizeIndex")) << button;
            EXPECT_FALSE(sheet.isEnabled("packetSizeIndexLabel")) << button;
        }
    });
    EXPECT_EQ(number(transfer::packetSizeEnabled), 0U);
}

TEST_F(TransferSheetTest, TextOfTheCheckBoxThatErasesFollowsTheHost) {
    const auto textOf = [](OpenSheet& sheet) {
        return sheet.widget<QAbstractButton>(QStringLiteral("autoEraseInput")).text();
    };
    const QString clearScreen = qtText(state.language.loadText(14934));
    const QString eraseInput = qtText(state.language.loadText(10994));
    open([&](OpenSheet& sheet) {
        EXPECT_EQ(textOf(sheet), clearScreen);
        for (int tsoOrCics : {1, 2}) {
            sheet.click(hostButtons[tsoOrCics]);
            EXPECT_EQ(textOf(sheet), eraseInput);
        }
        sheet.click(hostButtons[0]);
        EXPECT_EQ(textOf(sheet), clearScreen);
    });
}

TEST_F(TransferSheetTest, CancelKeepsTheSettingsAndNotTheHost) {
    const std::pair<const char*, std::function<void(OpenSheet&)>> rows[] = {
        {"Cancel", [](OpenSheet& sheet) { sheet.end("cancel"); }},
        {"Escape", [](OpenSheet& sheet) { QTest::keyClick(&sheet.dialog, Qt::Key_Escape); }},
        {"close box", [](OpenSheet& sheet) { sheet.dialog.close(); }},
    };
    for (const auto& [name, leave] : rows) {
        const bool result = open([&](OpenSheet& sheet) {
            sheet.click(hostButtons[1]);
            sheet.type("hostFileName", QLatin1String(name));
            leave(sheet);
        });
        EXPECT_FALSE(result) << name;
        EXPECT_EQ(host, transferHostVmCms) << name;
        EXPECT_EQ(stored(transfer::hostFileName), name);
    }
}

TEST_F(TransferSheetTest, OkHandsTheHostBack) {
    for (const int chosen : {2, 1, 0}) {
        EXPECT_TRUE(open([&](OpenSheet& sheet) {
            sheet.click(hostButtons[chosen]);
            sheet.end("ok");
        }));
        EXPECT_EQ(host, chosen);
    }
}

TEST_F(TransferSheetTest, ReturnInAFieldIsOk) {
    EXPECT_TRUE(open([&](OpenSheet& sheet) {
        sheet.type("pcFileName", QStringLiteral("a"));
        auto& edit = sheet.widget<QLineEdit>(QStringLiteral("pcFileName"));
        QTest::keyClick(&edit, Qt::Key_Return);
    }));
    EXPECT_TRUE(answers.fileDialogs.empty());
}

TEST_F(TransferSheetTest, ForeignValuesShowAsTheyCanAndStayUnlessTheyAreChanged) {
    // Flags that are neither 0 nor 1, indices beyond every list, texts without an end.
    settings.bytes.fill(0xE9);
    const FileTransferSettings foreign = settings;
    host = 200;
    EXPECT_TRUE(open([](OpenSheet& sheet) {
        for (const char* radio : {"recordFormat0", "recordFormat3", "spaceUnit0", "binary0"})
            EXPECT_FALSE(sheet.isChecked(radio)) << radio;
        EXPECT_EQ(sheet.widget<QComboBox>(QStringLiteral("packetSizeIndex")).currentIndex(), -1);
        sheet.showPage(advancedPage);
        sheet.showPage(settingsPage);
        sheet.end("ok");
    }));
    EXPECT_EQ(settings, foreign);
    EXPECT_EQ(host, 200);

    open([&](OpenSheet& sheet) {
        sheet.click(hostButtons[1]);
        EXPECT_EQ(settings, foreign) << "choosing a host system is no change of the settings";
        sheet.showPage(advancedPage);
        sheet.click("recordFormat2");
        EXPECT_TRUE(sheet.isChecked("recordFormat2"));
        EXPECT_FALSE(sheet.isChecked("recordFormat0"));
        sheet.click("recordFormat0");
        EXPECT_FALSE(sheet.isChecked("recordFormat2"));
        EXPECT_EQ(number(transfer::recordFormat), 0U);
    });
}

TEST_F(TransferSheetTest, AdvancedLooksAtTheSettingsAgainEachTimeButForTheBidiOptions) {
    open([&](OpenSheet& sheet) {
        sheet.showPage(advancedPage);
        sheet.showPage(settingsPage);
        setTransferNumber(settings, transfer::recordLength, 80);
        setTransferText(settings, transfer::additionalParameters, "NEW");
        setTransferNumber(settings, transfer::arabicProcessing, 1);
        setTransferNumber(settings, transfer::pcCodePageIndex, 2);
        sheet.showPage(advancedPage);
        EXPECT_EQ(sheet.text("recordLength"), QStringLiteral("80"));
        EXPECT_EQ(sheet.text("additionalParameters"), QStringLiteral("NEW"));
        EXPECT_FALSE(sheet.isChecked("arabicProcessing"));
        EXPECT_EQ(sheet.widget<QComboBox>(QStringLiteral("pcCodePageIndex")).currentIndex(), 0);
    });
}

TEST_F(TransferSheetTest, LookingAgainAtForeignValuesStoresNothing) {
    open([&](OpenSheet& sheet) {
        sheet.showPage(advancedPage);
        EXPECT_TRUE(sheet.isChecked("recordFormat0"));
        sheet.showPage(settingsPage);
        settings.bytes.fill(0xE9);
        const FileTransferSettings foreign = settings;
        sheet.showPage(advancedPage);
        EXPECT_FALSE(sheet.isChecked("recordFormat0"));
        EXPECT_FALSE(sheet.isChecked("includeLeftParenthesis"));
        EXPECT_EQ(settings, foreign);
    });
}

TEST_F(TransferSheetTest, ChoosingAHostLooksAtTheSettingsAgain) {
    open([&](OpenSheet& sheet) {
        setTransferText(settings, transfer::hostFileName, "NEW");
        sheet.click(hostButtons[0]);
        EXPECT_EQ(sheet.text("hostFileName"), QString()) << "it was chosen already";
        sheet.click(hostButtons[1]);
        EXPECT_EQ(sheet.text("hostFileName"), QStringLiteral("NEW"));
    });
}

TEST_F(TransferSheetTest, BrowseAsksForAnExistingFileAndTakesIt) {
    state.settings.transferDir = editor.folder / "Transfer";
    state.document.fileName = editor.folder / "script.qds";
    answers.toFileDialogs = {std::nullopt, std::filesystem::path("/home/eve/r\u00e9sum\u00e9.txt")};
    open([&](OpenSheet& sheet) {
        sheet.type("pcFileName", QStringLiteral("old.txt"));
        sheet.click("browse");
        EXPECT_EQ(stored(transfer::pcFileName), "old.txt");
        sheet.click("browse");
        EXPECT_EQ(sheet.text("pcFileName"), QStringLiteral("/home/eve/r\u00e9sum\u00e9.txt"));
    });
    EXPECT_EQ(stored(transfer::pcFileName), "/home/eve/r\u00e9sum\u00e9.txt");
    EXPECT_EQ(state.document.fileName, editor.folder / "script.qds");
    ASSERT_EQ(answers.fileDialogs.size(), 2U);
    const FileDialogRequest& request = answers.fileDialogs.front();
    EXPECT_EQ(request.mode, FileDialogMode::Open);
    EXPECT_EQ(request.title, state.language.loadText(11998));
    EXPECT_EQ(request.filterDescription, "All Files(*.*)");
    EXPECT_EQ(request.extension, "");
    EXPECT_EQ(request.initialFolder, editor.folder / "Transfer");
    EXPECT_EQ(request.initialFile, "old.txt");
}

struct StartRow {
    const char* stored;
    const char* folder;
    QString offered;
};

TEST_F(TransferSheetTest, TheRealFileDialogStartsAtTheStoredName) {
    const auto& base = editor.folder.path();
    std::filesystem::create_directories(base / "Transfer");
    std::filesystem::create_directories(base / "Other");
    state.settings.transferDir = base / "Transfer";
    const std::string elsewhere = (base / "Other/b.txt").string();
    const StartRow rows[] = {
        {"", "Transfer", {}},
        {"a.txt", "Transfer", QStringLiteral("a.txt")},
        {elsewhere.c_str(), "Other", QStringLiteral("b.txt")},
    };
    const FileDialogHandler recorder = replaceFileDialogHandler({});
    for (const StartRow& row : rows) {
        setTransferText(settings, transfer::pcFileName, row.stored);
        bool looked = false;
        open([&](OpenSheet& sheet) {
            QTimer::singleShot(0, qApp, [&] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                if (dialog == nullptr) return;
                looked = true;
                EXPECT_EQ(dialog->directory().absolutePath(),
                          qtText(pathText(std::filesystem::canonical(base) / row.folder)));
                const auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                EXPECT_EQ(name->text(), row.offered);
                EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
                dialog->reject();
            });
            sheet.click("browse");
        });
        EXPECT_TRUE(looked) << row.stored;
        EXPECT_EQ(stored(transfer::pcFileName), row.stored);
    }
    replaceFileDialogHandler(recorder);
}

TEST_F(TransferSheetTest, PathsThatDoNotFitAreRefusedWithANote) {
    answers.toFileDialogs = {std::filesystem::path("/home/eve/\u0416.txt"),
                             std::filesystem::path("/" + std::string(255, 'x')),
                             std::filesystem::path("/bad\xff.txt")};
    open([&](OpenSheet& sheet) {
        sheet.type("pcFileName", QStringLiteral("old.txt"));
        for (int i = 0; i < 3; ++i) {
            sheet.click("browse");
            EXPECT_EQ(stored(transfer::pcFileName), "old.txt");
            EXPECT_NE(sheet.widget<QLabel>(QStringLiteral("note")).text(), QString()) << i;
            sheet.type("pcFileName", QStringLiteral("old.txt"));
        }
    });
}

TEST_F(TransferSheetTest, OpensOnSettingsWithTwoTabsAndTwoButtons) {
    open([&](OpenSheet& sheet) {
        EXPECT_EQ(sheet.dialog.windowTitle(), qtText(state.language.loadText(11998)));
        const auto& tabs = sheet.widget<QTabWidget>(QStringLiteral("tabs"));
        ASSERT_EQ(tabs.count(), 2);
        EXPECT_EQ(tabs.currentIndex(), settingsPage);
        EXPECT_EQ(tabs.tabText(0), qtText(state.language.loadText(10208)));
        EXPECT_EQ(tabs.tabText(1), qtText(state.language.loadText(10995)));
        EXPECT_EQ(sheet.dialog.findChildren<QPushButton*>().size(), 3) << "OK, Cancel, Browse";
        EXPECT_TRUE(sheet.widget<QWidget>(QStringLiteral("transferHost0")).hasFocus());
    });
}

TEST_F(TransferSheetTest, StandsInTheMiddleOfTheScreen) {
    open([](OpenSheet& sheet) {
        const QPoint offset =
            sheet.dialog.geometry().center() - sheet.dialog.screen()->geometry().center();
        EXPECT_LE(std::abs(offset.x()), 2);
        EXPECT_LE(std::abs(offset.y() + 10), 2);
    });
}

}  // namespace
}  // namespace quendra::test
