// Where each field of the transfer pages goes, and what the fields take.
#include "app/ui_text.h"
#include "transfer/transfer_sheet_driver.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace quendra::test {
namespace {

constexpr int settingsPage = 0;
constexpr int advancedPage = 1;

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
    {transfer::hostFileName, settingsPage, 0, Way::Type, "'USER.SRC'", 0, "hostFileName"},
    {transfer::member, settingsPage, 1, Way::Type, "PROG1", 0, "member"},
    {transfer::fileType, settingsPage, 0, Way::Type, "EXEC", 0, "fileType"},
    {transfer::fileMode, settingsPage, 0, Way::Type, "A", 0, "fileMode"},
    {transfer::pcFileName, settingsPage, 2, Way::Type, "/home/eve/r\u00e9sum\u00e9 \u20ac.txt", 0,
     "pcFileName"},
    {transfer::binary, settingsPage, 0, Way::Click, "", 1, "binary1"},
    {transfer::crlf, settingsPage, 0, Way::Click, "", 0, "crlf"},
    {transfer::append, settingsPage, 1, Way::Click, "", 1, "append"},
    {transfer::packetSizeIndex, settingsPage, 2, Way::Choose, "", 3, "packetSizeIndex"},
    {transfer::recordFormat, advancedPage, 1, Way::Click, "", 3, "recordFormat3"},
    {transfer::recordLength, advancedPage, 0, Way::Type, "80", 80, "recordLength"},
    {transfer::blockSize, advancedPage, 1, Way::Type, "3120", 3120, "blockSize"},
    {transfer::spaceUnit, advancedPage, 1, Way::Click, "", 2, "spaceUnit2"},
    {transfer::averageBlock, advancedPage, 1, Way::Type, "9999999", 9999999, "averageBlock"},
    {transfer::primarySpace, advancedPage, 1, Way::Type, "10", 10, "primarySpace"},
    {transfer::secondarySpace, advancedPage, 1, Way::Type, "5", 5, "secondarySpace"},
    {transfer::hostFilePassword, advancedPage, 1, Way::Type, "S3CRET\u00e9", 0, "hostFilePassword"},
    {transfer::transferProgramName, advancedPage, 2, Way::Type, "INDFILE2", 0,
     "transferProgramName"},
    {transfer::includeLeftParenthesis, advancedPage, 2, Way::Click, "", 0,
     "includeLeftParenthesis"},
    {transfer::includeRightParenthesis, advancedPage, 2, Way::Click, "", 1,
     "includeRightParenthesis"},
    {transfer::additionalParameters, advancedPage, 0, Way::Type, "TRACE ON", 0,
     "additionalParameters"},
    {transfer::autoEraseInput, settingsPage, 2, Way::Click, "", 1, "autoEraseInput"},
    {transfer::useLocalTranslateTables, settingsPage, 0, Way::Click, "", 0,
     "useLocalTranslateTables"},
    {transfer::showSettingsBeforeTransfer, settingsPage, 0, Way::Click, "", 1,
     "showSettingsBeforeTransfer"},
    {transfer::arabicProcessing, advancedPage, 2, Way::Click, "", 1, "arabicProcessing"},
    {transfer::pcCodePageIndex, advancedPage, 0, Way::Choose, "", 2, "pcCodePageIndex"},
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

}  // namespace
}  // namespace quendra::test
