// How the sheet of the transfer settings looks and is reached by keys, in every language:
// mnemonics, room for every text, and pictures for looking at (QUENDRA_PICTURES=FOLDER;
// QT_SCALE_FACTOR=2 for the large ones).
#include "dialogs/look_checks.h"
#include "transfer/transfer_fixture.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QtTest>

#include <map>

namespace quendra::test {
namespace {

class TransferLook : public TransferSheetTest, public ::testing::WithParamInterface<const char*> {
  protected:
    TransferLook() { useLanguage(state, GetParam()); }
};

/// What the key of each caption on the shown page leads to.
std::multimap<QString, QWidget*> mnemonics(const OpenDialog& d) {
    std::multimap<QString, QWidget*> keys;
    for (auto* part : d.dialog->findChildren<QWidget*>()) {
        const auto* label = qobject_cast<QLabel*>(part);
        const bool isGroup = part->inherits("QGroupBox");
        const bool leads = isGroup || (label != nullptr && label->buddy() != nullptr) ||
                           part->inherits("QAbstractButton");
        const QString text = part->property(isGroup ? "title" : "text").toString();
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!part->isVisible() || !leads || key.isEmpty()) continue;
        keys.emplace(key, label != nullptr ? label->buddy() : part);
    }
    return keys;
}

void expectKeysLead(const OpenDialog& d, Answers& answers) {
    constexpr std::size_t captionsWithKey = 17;
    const auto keys = mnemonics(d);
    EXPECT_EQ(keys.size(), captionsWithKey);
    for (const auto& [key, target] : keys) {
        EXPECT_EQ(keys.count(key), 1U) << key.toStdString();
        if (!target->isEnabled()) continue;
        // The only push button with a key is Browse, which asks for a file at once and leaves the
        // focus where it was.
        const bool asks = target->inherits("QPushButton");
        if (asks) answers.toFileDialogs.emplace_back(std::nullopt);
        const auto* expected = asks ? d.dialog->focusWidget() : target;
        // "Alt+X": the last character is the key.
        QTest::keyClick(d.dialog->focusWidget(), key.back().toLatin1(), Qt::AltModifier);
        EXPECT_EQ(d.dialog->focusWidget(), expected) << key.toStdString();
        EXPECT_TRUE(answers.toFileDialogs.empty()) << key.toStdString();
    }
}

TEST_P(TransferLook, EveryCaptionHasAKeyOfItsOwnThatLeadsToItsField) {
    for (host = 0; host < 3; ++host) {
        for (const int page : {settingsPage, advancedPage}) {
            open([page, this](const OpenDialog& d) {
                d.showTab(page);
                expectKeysLead(d, answers);
            });
        }
    }
}

TEST_P(TransferLook, TabGoesThroughTheFieldsAsTheyStand) {
    constexpr const char* orders[] = {
        "transferHost0 hostFileName fileType fileMode pcFileName browse binary0 crlf append "
        "useLocalTranslateTables packetSizeIndex autoEraseInput showSettingsBeforeTransfer ok "
        "cancel ",
        "recordFormat0 recordLength transferProgramName additionalParameters arabicProcessing "
        "pcCodePageIndex ok cancel "};
    open([&](const OpenDialog& d) {
        for (const int page : {settingsPage, advancedPage}) {
            d.showTab(page);
            d.widget(page == settingsPage ? "transferHost0" : "recordFormat0").setFocus();
            std::string order;
            do {
                order += d.focused() + ' ';
                d.press(Qt::Key_Tab);
            } while (!order.ends_with("cancel ") && order.size() < 500);
            EXPECT_EQ(order, orders[page]);
        }
    });
}

TEST_P(TransferLook, NothingIsCutOffAndTheSheetKeepsItsSize) {
    QSize size;
    for (host = 0; host < 3; ++host) {
        open([&](const OpenDialog& d) {
            for (const int page : {settingsPage, advancedPage}) {
                d.showTab(page);
                expectWholeTexts(*d.dialog);
                for (const auto* group : d.dialog->findChildren<QGroupBox*>()) {
                    if (!group->isVisible()) continue;
                    EXPECT_EQ(group->size().expandedTo(group->sizeHint()), group->size());
                }
                if (!size.isValid()) size = d.dialog->size();
                EXPECT_EQ(d.dialog->size(), size);
            }
        });
    }
}

TEST_P(TransferLook, NotesHaveRoom) {
    open([](const OpenDialog& d) {
        const auto& note = d.widget<QLabel>("note");
        const auto expectNoteFor = [&](const char* field, const std::string& keys) {
            d.retype(field, keys);
            EXPECT_FALSE(note.text().isEmpty());
            EXPECT_LE(note.sizeHint().width(), note.width()) << note.text().toStdString();
        };
        expectNoteFor("hostFileName", "\u0416");
        expectNoteFor("hostFileName", std::string(256, 'x'));
        d.showTab(advancedPage);
        EXPECT_TRUE(note.text().isEmpty()) << "the field was left";
        expectNoteFor("recordLength", "x");
    });
}

TEST_P(TransferLook, CanBeSeenInPictures) {
    if (!wantsPictures()) GTEST_SKIP() << "QUENDRA_PICTURES names no folder";
    const std::string scale = qEnvironmentVariable("QT_SCALE_FACTOR", QString(u'1')).toStdString();
    forLightAndDark([&](const std::string& appearance) {
        for (host = 0; host < 3; ++host) {
            open([&](const OpenDialog& d) {
                d.retype("hostFileName", "'USER.SOURCE'");
                d.retype("pcFileName", "/home/eve/Transfer/\u0416.txt");
                for (const int page : {settingsPage, advancedPage}) {
                    d.showTab(page);
                    if (page == advancedPage) d.retype("recordLength", "80x");
                    QTest::qWait(10);
                    savePicture(*d.dialog, "transfer-" + appearance + '-' + GetParam() + "-host" +
                                               std::to_string(host) + "-x" + scale + '-' +
                                               std::to_string(page));
                }
            });
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, TransferLook, ::testing::Values("qdstring", "qdstring_de"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
}  // namespace quendra::test
