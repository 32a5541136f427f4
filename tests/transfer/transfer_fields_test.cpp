// Where each field of the transfer pages goes, and what the fields take.
#include "transfer/transfer_fixture.h"

#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

namespace quendra::test {
namespace {

using namespace transfer;

struct FieldRow {
    const TransferField& field;
    int page;
    std::uint8_t host;
    /// What is typed, the number of the button or the item, or the new state of a check box.
    const char* value;
};

constexpr FieldRow fieldRows[] = {
    {hostFileName, settingsPage, 0, "'USER.SRC'"},
    {member, settingsPage, 1, "PROG1"},
    {fileType, settingsPage, 0, "EXEC"},
    {fileMode, settingsPage, 0, "A"},
    {pcFileName, settingsPage, 2, "/home/eve/r\u00e9sum\u00e9 \u20ac.txt"},
    {binary, settingsPage, 0, "1"},
    {crlf, settingsPage, 0, "0"},
    {append, settingsPage, 1, "1"},
    {packetSizeIndex, settingsPage, 2, "3"},
    {recordFormat, advancedPage, 1, "3"},
    {recordLength, advancedPage, 0, "80"},
    {blockSize, advancedPage, 1, "3120"},
    {spaceUnit, advancedPage, 1, "2"},
    {averageBlock, advancedPage, 1, "9999999"},
    {primarySpace, advancedPage, 1, "10"},
    {secondarySpace, advancedPage, 1, "5"},
    {hostFilePassword, advancedPage, 1, "S3CRET\u00e9"},
    {transferProgramName, advancedPage, 2, "INDFILE2"},
    {includeLeftParenthesis, advancedPage, 2, "0"},
    {includeRightParenthesis, advancedPage, 2, "1"},
    {additionalParameters, advancedPage, 0, "TRACE ON"},
    {autoEraseInput, settingsPage, 2, "1"},
    {useLocalTranslateTables, settingsPage, 0, "0"},
    {showSettingsBeforeTransfer, settingsPage, 0, "1"},
    {arabicProcessing, advancedPage, 2, "1"},
    {pcCodePageIndex, advancedPage, 0, "2"},
};

class TransferFieldTest : public TransferSheetTest, public ::testing::WithParamInterface<FieldRow> {
  protected:
    [[nodiscard]] static std::string widgetName(const OpenDialog& d) {
        const std::string name(GetParam().field.name);
        return d.has(name.c_str()) ? name : name + GetParam().value;
    }
    void edit(const OpenDialog& d) {
        const std::string name = widgetName(d);
        d.showTab(GetParam().page);
        if (d.widget(name).inherits("QAbstractButton")) {
            d.click(name);
        } else if (d.widget(name).inherits("QComboBox")) {
            d.choose(name, std::stoi(GetParam().value));
        } else {
            d.retype(name, GetParam().value);
        }
    }
    void expectStored() {
        const TransferField& field = GetParam().field;
        const bool isText = field.kind == TransferFieldKind::Text;
        EXPECT_EQ(isText ? stored(field) : std::to_string(number(field)), GetParam().value);
    }
    static void expectShown(const OpenDialog& d) {
        const std::string name = widgetName(d);
        const auto* list = d.dialog->findChild<QComboBox*>(QString::fromStdString(name));
        const bool isRadio = d.widget(name).inherits("QRadioButton");
        const std::string state = list != nullptr ? std::to_string(list->currentIndex())
                                  : d.widget(name).inherits("QAbstractButton") ? d.checked(name)
                                                                               : d.shown(name);
        EXPECT_EQ(state, isRadio ? "1" : name == "hostFilePassword" ? "*******" : GetParam().value);
    }
};

TEST_P(TransferFieldTest, GoesIntoItsOwnBytesAtOnceAndComesBack) {
    const TransferField& field = GetParam().field;
    const FileTransferSettings before = settings;
    host = GetParam().host;
    open([this](const OpenDialog& d) {
        edit(d);
        expectStored();
        expectShown(d);
    });
    FileTransferSettings others = settings;
    std::copy_n(before.bytes.begin() + field.offset, field.size,
                others.bytes.begin() + field.offset);
    EXPECT_EQ(others, before) << "another field was touched";

    open([](const OpenDialog& d) {
        d.showTab(GetParam().page);
        expectShown(d);
        d.click("ok");
    });
    expectStored();
}

INSTANTIATE_TEST_SUITE_P(, TransferFieldTest, ::testing::ValuesIn(fieldRows),
                         [](const auto& row) { return std::string(row.param.field.name); });

TEST_F(TransferSheetTest, EveryRadioButtonAndListItemStandsForItsNumber) {
    host = transferHostTso;
    open([this](const OpenDialog& d) {
        d.showTab(advancedPage);
        for (std::uint32_t value : {1U, 2U, 3U, 0U}) {
            d.click("recordFormat" + std::to_string(value));
            EXPECT_EQ(number(recordFormat), value);
            d.click("spaceUnit" + std::to_string(value));
            EXPECT_EQ(number(spaceUnit), value);
        }
        const auto items = [&](const char* name) {
            const auto& list = d.widget<QComboBox>(name);
            std::string texts;
            for (int i = 0; i < list.count(); ++i)
                texts += list.itemText(i).toStdString() + ' ';
            return texts;
        };
        EXPECT_EQ(items("pcCodePageIndex"), "1256 Unicode UTF-8 ");
        EXPECT_EQ(items("packetSizeIndex"), "2K 4K 8K 16K 32K ");
    });
}

TEST_F(TransferSheetTest, TextsKeepAllCharactersUpToTheirLimitAndNoMore) {
    const struct {
        const TransferField& field;
        int page;
        std::uint8_t host;
        std::size_t limit;
    } rows[] = {
        {hostFileName, settingsPage, 0, 255},
        {member, settingsPage, 1, 31},
        {fileType, settingsPage, 0, 31},
        {fileMode, settingsPage, 0, 31},
        {pcFileName, settingsPage, 0, 255},
        {hostFilePassword, advancedPage, 1, 31},
        {transferProgramName, advancedPage, 0, 127},
        {additionalParameters, advancedPage, 0, 127},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.field.name);
        host = row.host;
        open([&](const OpenDialog& d) {
            d.showTab(row.page);
            // What is taken last shows that the first of them were.
            const std::string all = std::string(row.limit - 1, 'x') + "\u00fc";
            d.retype(std::string(row.field.name), all);
            EXPECT_EQ(stored(row.field), all);
            d.type("x");
            EXPECT_EQ(stored(row.field), all);
            EXPECT_EQ(d.shown("note"),
                      "At most " + std::to_string(row.limit) + " characters fit here.");
        });
    }
}

TEST_F(TransferSheetTest, NumbersTakeSevenDigitsOnly) {
    open([&](const OpenDialog& d) {
        d.showTab(advancedPage);
        d.retype("recordLength", "abc");
        EXPECT_EQ(number(recordLength), 0U);
        EXPECT_EQ(d.shown("note"), "A number from 0 to 9999999");
        d.retype("recordLength", "a1-2.3 4567x89");
        EXPECT_EQ(number(recordLength), 1234567U);
        EXPECT_EQ(d.shown("recordLength"), "1234567");
        d.retype("recordLength", "80");
        EXPECT_EQ(d.shown("note"), "");
        d.repaste("recordLength", "eighty");
        EXPECT_EQ(number(recordLength), 80U);
        // Past the validator, as an input method or an assistive tool may.
        for (const char* text : {"abc", "12ab", "", "99999999999", "-5", "4294967296"}) {
            setTransferNumber(settings, recordLength, 80);
            d.widget<QLineEdit>("recordLength").setText(QStringLiteral("7"));
            d.widget<QLineEdit>("recordLength").setText(QLatin1String(text));
            EXPECT_EQ(number(recordLength), 0U) << text;
        }
    });
}

TEST_F(TransferSheetTest, PasswordIsNeverInTheFieldItself) {
    host = transferHostTso;
    setTransferText(settings, hostFilePassword, "OLD");
    open([&](const OpenDialog& d) {
        d.showTab(advancedPage);
        EXPECT_EQ(d.shown("hostFilePassword"), "***");
        d.widget("hostFilePassword").setFocus();
        d.press(Qt::Key_End);
        d.press(Qt::Key_Backspace);
        EXPECT_EQ(stored(hostFilePassword), "OL");
        // One character in the place of another: the asterisks stay the same.
        d.press(Qt::Key_Left, Qt::ShiftModifier);
        d.type("x");
        EXPECT_EQ(stored(hostFilePassword), "Ox");
    });
    // Nothing of the longer passwords before it stays in the record.
    EXPECT_EQ(settings.bytes[hostFilePassword.offset + 2], 0);
}

}  // namespace
}  // namespace quendra::test
