// The pages of the transfer settings: what is enabled, where each field goes, what stays.
#include "app/ui_text.h"
#include "platform/text_encoding.h"
#include "transfer/transfer_sheet_driver.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

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

enum class Way : std::uint8_t { Type, Click, Choose };

struct FieldRow {
    const TransferField& field;
    int page;
    std::uint8_t host;
    Way way;
    /// What is typed, or the number of the button or the item, or the state of a check box.
    const char* text;
    std::uint32_t number;
    const char* widget;
};

constexpr FieldRow fieldRows[] = {
    {transfer::hostFileName, 0, 0, Way::Type, "'USER.SRC'", 0, "hostFileName"},
    {transfer::member, 0, 1, Way::Type, "PROG1", 0, "member"},
    {transfer::fileType, 0, 0, Way::Type, "EXEC", 0, "fileType"},
    {transfer::fileMode, 0, 0, Way::Type, "A", 0, "fileMode"},
    {transfer::pcFileName, 0, 2, Way::Type, "/home/eve/r\u00e9sum\u00e9 \u20ac.txt", 0,
     "pcFileName"},
    {transfer::binary, 0, 0, Way::Click, "", 1, "binary1"},
    {transfer::crlf, 0, 0, Way::Click, "", 0, "crlf"},
    {transfer::append, 0, 1, Way::Click, "", 1, "append"},
    {transfer::packetSizeIndex, 0, 2, Way::Choose, "", 3, "packetSizeIndex"},
    {transfer::recordFormat, 1, 1, Way::Click, "", 3, "recordFormat3"},
    {transfer::recordLength, 1, 0, Way::Type, "80", 80, "recordLength"},
    {transfer::blockSize, 1, 1, Way::Type, "3120", 3120, "blockSize"},
    {transfer::spaceUnit, 1, 1, Way::Click, "", 2, "spaceUnit2"},
    {transfer::averageBlock, 1, 1, Way::Type, "9999999", 9999999, "averageBlock"},
    {transfer::primarySpace, 1, 1, Way::Type, "10", 10, "primarySpace"},
    {transfer::secondarySpace, 1, 1, Way::Type, "5", 5, "secondarySpace"},
    {transfer::hostFilePassword, 1, 1, Way::Type, "S3CRET\u00e9", 0, "hostFilePassword"},
    {transfer::transferProgramName, 1, 2, Way::Type, "INDFILE2", 0, "transferProgramName"},
    {transfer::includeLeftParenthesis, 1, 2, Way::Click, "", 0, "includeLeftParenthesis"},
    {transfer::includeRightParenthesis, 1, 2, Way::Click, "", 1, "includeRightParenthesis"},
    {transfer::additionalParameters, 1, 0, Way::Type, "TRACE ON", 0, "additionalParameters"},
    {transfer::autoEraseInput, 0, 2, Way::Click, "", 1, "autoEraseInput"},
    {transfer::useLocalTranslateTables, 0, 0, Way::Click, "", 0, "useLocalTranslateTables"},
    {transfer::showSettingsBeforeTransfer, 0, 0, Way::Click, "", 1, "showSettingsBeforeTransfer"},
    {transfer::arabicProcessing, 1, 2, Way::Click, "", 1, "arabicProcessing"},
    {transfer::pcCodePageIndex, 1, 0, Way::Choose, "", 2, "pcCodePageIndex"},
};

class TransferFieldTest : public TransferSheetTest, public ::testing::WithParamInterface<FieldRow> {
  protected:
    void edit(OpenSheet& sheet) {
        const FieldRow& row = GetParam();
        sheet.showPage(row.page);
        switch (row.way) {
            case Way::Type: sheet.type(row.widget, QString::fromUtf8(row.text)); break;
            case Way::Click: sheet.click(row.widget); break;
            case Way::Choose: sheet.choose(row.widget, static_cast<int>(row.number)); break;
        }
    }
    void expectStored() {
        const FieldRow& row = GetParam();
        if (row.field.kind == TransferFieldKind::Text) {
            EXPECT_EQ(stored(row.field), row.text);
        } else {
            EXPECT_EQ(number(row.field), row.number);
        }
    }
    void expectShown(OpenSheet& sheet) {
        const FieldRow& row = GetParam();
        const QString text = QString::fromUtf8(row.text);
        switch (row.way) {
            case Way::Type:
                EXPECT_EQ(sheet.text(row.widget),
                          row.field.name == "hostFilePassword" ? QString(text.size(), u'*') : text);
                break;
            case Way::Click: {
                const bool isRadio = row.field.name != row.widget;
                EXPECT_EQ(sheet.isChecked(row.widget), isRadio || row.number == 1);
                break;
            }
            case Way::Choose:
                EXPECT_EQ(sheet.widget<QComboBox>(QLatin1String(row.widget)).currentIndex(),
                          static_cast<int>(row.number));
        }
    }
};

TEST_P(TransferFieldTest, GoesIntoItsOwnBytesAtOnceAndComesBack) {
    const FileTransferSettings before = settings;
    host = GetParam().host;
    open([this](OpenSheet& sheet) {
        edit(sheet);
        expectStored();
        expectShown(sheet);
    });
    FileTransferSettings others = settings;
    const auto place = others.bytes.begin() + GetParam().field.offset;
    std::copy_n(before.bytes.begin() + GetParam().field.offset, GetParam().field.size, place);
    EXPECT_EQ(others, before) << "another field was touched";

    open([this](OpenSheet& sheet) {
        sheet.showPage(GetParam().page);
        expectShown(sheet);
        sheet.end("ok");
    });
    expectStored();
}

INSTANTIATE_TEST_SUITE_P(, TransferFieldTest, ::testing::ValuesIn(fieldRows),
                         [](const auto& row) { return std::string(row.param.field.name); });

TEST_F(TransferSheetTest, EveryFieldButTheFlagWithoutControlIsTried) {
    for (const TransferField& field : transferFields()) {
        const bool tried =
            std::any_of(std::begin(fieldRows), std::end(fieldRows),
                        [&](const FieldRow& row) { return row.field.name == field.name; });
        EXPECT_EQ(tried, field.name != "packetSizeEnabled") << field.name;
    }
}

TEST_F(TransferSheetTest, EveryRadioButtonAndListItemStandsForItsNumber) {
    host = transferHostTso;
    open([this](OpenSheet& sheet) {
        sheet.showPage(advancedPage);
        for (std::uint32_t value : {1U, 2U, 3U, 0U}) {
            sheet.click(("recordFormat" + std::to_string(value)).c_str());
            EXPECT_EQ(number(transfer::recordFormat), value);
            sheet.click(("spaceUnit" + std::to_string(value)).c_str());
            EXPECT_EQ(number(transfer::spaceUnit), value);
        }
        const auto items = [&](const char* name) {
            const auto& list = sheet.widget<QComboBox>(QLatin1String(name));
            QStringList texts;
            for (int i = 0; i < list.count(); ++i)
                texts.append(list.itemText(i));
            return texts.join(u' ');
        };
        EXPECT_EQ(items("pcCodePageIndex"), QStringLiteral("1256 Unicode UTF-8"));
        EXPECT_EQ(items("packetSizeIndex"), QStringLiteral("2K 4K 8K 16K 32K"));
    });
}

struct LimitRow {
    const TransferField& field;
    int page;
    int limit;
};

TEST_F(TransferSheetTest, TextsKeepAllCharactersUpToTheirLimitAndNoMore) {
    constexpr LimitRow rows[] = {
        {transfer::hostFileName, 0, 255},        {transfer::member, 0, 31},
        {transfer::pcFileName, 0, 255},          {transfer::hostFilePassword, 1, 31},
        {transfer::transferProgramName, 1, 127}, {transfer::additionalParameters, 1, 127},
    };
    host = transferHostTso;
    open([&](OpenSheet& sheet) {
        for (const LimitRow& row : rows) {
            sheet.showPage(row.page);
            const std::string name(row.field.name);
            const QString all(row.limit, u'\u00fc');
            sheet.type(name.c_str(), all);
            EXPECT_EQ(qtText(stored(row.field)), all) << name;
            sheet.type(name.c_str(), all + QStringLiteral("x"));
            EXPECT_EQ(qtText(stored(row.field)), all) << name;
            const auto& note = sheet.widget<QLabel>(QStringLiteral("note"));
            EXPECT_EQ(note.text(),
                      qtText(libraryText(state.language, 16002, {std::to_string(row.limit)})))
                << name;
        }
    });
}

TEST_F(TransferSheetTest, FileTypeAndModeAreLimitedToo) {
    open([&](OpenSheet& sheet) {
        for (const TransferField& field : {transfer::fileType, transfer::fileMode}) {
            sheet.type(std::string(field.name).c_str(), QString(40, u'x'));
            EXPECT_EQ(stored(field).size(), 31U) << field.name;
        }
    });
}

TEST_F(TransferSheetTest, NumbersTakeSevenDigitsOnly) {
    host = transferHostTso;
    open([&](OpenSheet& sheet) {
        sheet.showPage(advancedPage);
        sheet.type("recordLength", QStringLiteral("a1-2.3 4567x89"));
        EXPECT_EQ(number(transfer::recordLength), 1234567U);
        EXPECT_EQ(sheet.text("recordLength"), QStringLiteral("1234567"));
        sheet.type("recordLength", {});
        EXPECT_EQ(number(transfer::recordLength), 0U);
    });
}

TEST_F(TransferSheetTest, TextThatIsNoNumberIsStoredAsZero) {
    host = transferHostTso;
    for (const char* text : {"abc", "12ab", "", "99999999999", "-5", "4294967296"}) {
        setTransferNumber(settings, transfer::recordLength, 80);
        open([&](OpenSheet& sheet) {
            sheet.showPage(advancedPage);
            // Past the validator, as an input method or an assistive tool may.
            sheet.widget<QLineEdit>(QStringLiteral("recordLength")).setText(QLatin1String(text));
            EXPECT_EQ(number(transfer::recordLength), 0U) << text;
        });
    }
}

TEST_F(TransferSheetTest, LettersInANumberAreNotTaken) {
    open([&](OpenSheet& sheet) {
        sheet.showPage(advancedPage);
        sheet.type("recordLength", QStringLiteral("abc"));
        EXPECT_EQ(number(transfer::recordLength), 0U);
        EXPECT_NE(sheet.widget<QLabel>(QStringLiteral("note")).text(), QString());
        sheet.type("recordLength", QStringLiteral("80"));
        EXPECT_EQ(sheet.widget<QLabel>(QStringLiteral("note")).text(), QString());
        sheet.paste("recordLength", QStringLiteral("eighty"));
        EXPECT_EQ(number(transfer::recordLength), 80U);
    });
}

TEST_F(TransferSheetTest, CharactersThatAScriptCannotStoreAreRefusedWhereTheyAreTyped) {
    host = transferHostTso;
    open([&](OpenSheet& sheet) {
        sheet.type("hostFileName", QStringLiteral("A\u0416B"));
        EXPECT_EQ(stored(transfer::hostFileName), "AB");
        sheet.showPage(advancedPage);
        sheet.type("hostFilePassword", QStringLiteral("A\u0416B"));
        EXPECT_EQ(stored(transfer::hostFilePassword), "AB");
    });
}

TEST_F(TransferSheetTest, PasswordIsNeverInTheFieldItself) {
    host = transferHostTso;
    setTransferText(settings, transfer::hostFilePassword, "OLD");
    open([&](OpenSheet& sheet) {
        sheet.showPage(advancedPage);
        auto& edit = sheet.widget<QLineEdit>(QStringLiteral("hostFilePassword"));
        EXPECT_EQ(edit.text(), QStringLiteral("***"));
        EXPECT_EQ(edit.displayText().count(u'O'), 0);
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_End);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        EXPECT_EQ(stored(transfer::hostFilePassword), "OL");
        // One character in the place of another: the asterisks stay the same.
        QTest::keyClick(&edit, Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(&edit, Qt::Key_X);
        EXPECT_EQ(stored(transfer::hostFilePassword), "Ox");
    });
    // Nothing of the longer passwords before it stays in the record.
    EXPECT_EQ(settings.bytes[transfer::hostFilePassword.offset + 2], 0);
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
    });
}

}  // namespace
}  // namespace quendra::test
