// Where each field of the transfer pages goes, and what the fields take.
#include "dialogs/transfer/transfer_fixture.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

namespace quendra::test {
namespace {

using namespace transfer;

const struct {
    const TransferField& field;
    int page;
    std::uint8_t host;
    /// What is typed, the number of the button or the item, or the new state of a check box.
    std::string value;
} rows[] = {
    {hostFileName, settingsPage, 0, "'USER.SRC'"},
    {member, settingsPage, 1, "PROG1"},
    {fileType, settingsPage, 0, "EXEC"},
    {fileMode, settingsPage, 0, "A"},
    {pcFileName, settingsPage, 2, "/home/eve/r\u00e9sum\u00e9 \u20ac.txt"},
    {binary, settingsPage, 0, "1"},
    {crlf, settingsPage, 0, "0"},
    {append, settingsPage, 1, "1"},
    {packetSizeIndex, settingsPage, 2, "3"},
    {recordFormat, advancedPage, 1, "1"},
    {recordFormat, advancedPage, 1, "2"},
    {recordFormat, advancedPage, 1, "3"},
    {recordLength, advancedPage, 0, "80"},
    {blockSize, advancedPage, 1, "3120"},
    {spaceUnit, advancedPage, 1, "1"},
    {spaceUnit, advancedPage, 1, "2"},
    {spaceUnit, advancedPage, 1, "3"},
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

/// What the widget shows, as the rows write it.
std::string valueOf(QWidget& widget, const OpenDialog& d, const std::string& value) {
    const std::string name = widget.objectName().toStdString();
    if (widget.inherits("QRadioButton")) return d.isChecked(name.c_str()) ? value : "";
    if (widget.inherits("QCheckBox")) return d.checked(name);
    const auto* list = qobject_cast<QComboBox*>(&widget);
    return list != nullptr ? std::to_string(list->currentIndex()) : d.shown(name);
}

TEST_F(TransferSheetTest, EveryFieldGoesIntoItsOwnBytesAtOnceAndComesBack) {
    for (const auto& row : rows) {
        const std::string name(row.field.name);
        SCOPED_TRACE(name);
        settings = defaultTransferSettings();
        host = row.host;
        const auto widgetOf = [&](const OpenDialog& d) -> QWidget& {
            d.showTab(row.page);
            return d.widget(d.has(name.c_str()) ? name : name + row.value);
        };
        const std::string shown = name == "hostFilePassword" ? "*******" : row.value;
        open([&](const OpenDialog& d) {
            QWidget& widget = widgetOf(d);
            if (widget.inherits("QAbstractButton")) {
                clickOn(widget);
            } else if (widget.inherits("QComboBox")) {
                d.choose(name, std::stoi(row.value));
            } else {
                d.retype(name, row.value);
            }
            EXPECT_EQ(valueOf(widget, d, row.value), shown);
            const bool isText = row.field.kind == TransferFieldKind::Text;
            EXPECT_EQ(isText ? stored(row.field) : std::to_string(number(row.field)), row.value);
        });
        const FileTransferSettings edited = settings;
        open([&](const OpenDialog& d) {
            EXPECT_EQ(valueOf(widgetOf(d), d, row.value), shown);
            d.click("ok");
        });
        EXPECT_EQ(settings, edited);
        const FileTransferSettings& untouched = defaultTransferSettings();
        std::copy_n(untouched.bytes.begin() + row.field.offset, row.field.size,
                    settings.bytes.begin() + row.field.offset);
        EXPECT_EQ(settings, untouched) << "another field was touched";
    }
}

TEST_F(TransferSheetTest, TextsKeepAllCharactersUpToTheirLimitAndNoMore) {
    for (const auto& row : rows) {
        if (row.field.kind != TransferFieldKind::Text) continue;
        SCOPED_TRACE(row.field.name);
        host = row.host;
        open([&](const OpenDialog& d) {
            d.showTab(row.page);
            // What is taken last shows that the first of them were.
            const std::size_t limit = row.field.size - 1U;
            const std::string all = std::string(limit - 1, 'x') + "\u00fc";
            d.retype(std::string(row.field.name), all);
            EXPECT_EQ(stored(row.field), all);
            d.type("x");
            EXPECT_EQ(stored(row.field), all);
            QApplication::setActiveWindow(nullptr);
            QApplication::setActiveWindow(d.dialog);
            EXPECT_EQ(d.shown("note"),
                      "At most " + std::to_string(limit) + " characters fit here.");
        });
    }
}

TEST_F(TransferSheetTest, NumbersTakeSevenDigitsOnly) {
    open([&](const OpenDialog& d) {
        d.showTab(advancedPage);
        d.retype("recordLength", "a1-2.3 4567x89");
        EXPECT_EQ(number(recordLength), 1234567U);
        EXPECT_EQ(d.shown("note"), "A number from 0 to 9999999");
        d.repaste("recordLength", "eighty");
        EXPECT_EQ(number(recordLength), 1234567U);
        // Past the validator, as an input method or an assistive tool may.
        for (const char* text : {"12ab", "", "99999999999", "-5"}) {
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
