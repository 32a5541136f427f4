// How the sheet of the transfer settings looks and is reached by keys, in every language:
// mnemonics, room for every text, and pictures for looking at (QUENDRA_PICTURES=FOLDER;
// QT_SCALE_FACTOR=2 for the large ones).
#include "app/appearance.h"
#include "app/ui_text.h"
#include "transfer/transfer_sheet_driver.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <map>

namespace quendra::test {
namespace {

class TransferLook : public TransferSheetTest, public ::testing::WithParamInterface<const char*> {
  protected:
    TransferLook() { speak(GetParam()); }
};

/// What the key of each caption on the shown page leads to.
std::multimap<QString, QWidget*> mnemonics(OpenSheet& sheet) {
    std::multimap<QString, QWidget*> keys;
    const auto add = [&keys](const QString& caption, QWidget* target) {
        const QString key = QKeySequence::mnemonic(caption).toString();
        if (!key.isEmpty()) keys.emplace(key, target);
    };
    for (auto* label : sheet.dialog.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() != nullptr) add(label->text(), label->buddy());
    }
    for (auto* button : sheet.dialog.findChildren<QAbstractButton*>()) {
        if (button->isVisible()) add(button->text(), button);
    }
    for (auto* group : sheet.dialog.findChildren<QGroupBox*>()) {
        if (group->isVisible()) add(group->title(), group);
    }
    return keys;
}

TEST_P(TransferLook, EveryCaptionHasAKeyOfItsOwn) {
    open([](OpenSheet& sheet) {
        constexpr std::size_t captionsWithKey = 17;
        for (int page : {0, 1}) {
            sheet.showPage(page);
            const auto keys = mnemonics(sheet);
            EXPECT_EQ(keys.size(), captionsWithKey);
            for (const auto& [key, target] : keys) {
                EXPECT_EQ(keys.count(key), 1U)
                    << key.toStdString() << " for " << target->objectName().toStdString();
            }
        }
    });
}

TEST_P(TransferLook, KeysLeadToTheirFields) {
    for (host = 0; host < 3; ++host) {
        for (int page : {0, 1}) {
            open([page](OpenSheet& sheet) {
                sheet.showPage(page);
                for (const auto& [key, target] : mnemonics(sheet)) {
                    if (!target->isEnabled()) continue;
                    // "Alt+X": the last character is the key.
                    QTest::keyClick(sheet.dialog.focusWidget(), key.back().toLatin1(),
                                    Qt::AltModifier);
                    // A push button goes down without taking the focus.
                    const auto* button = qobject_cast<QPushButton*>(target);
                    const bool pressed = button != nullptr && button->isDown();
                    EXPECT_TRUE(pressed || target->hasFocus()) << key.toStdString();
                }
            });
        }
    }
}

void expectRoom(OpenSheet& sheet) {
    for (auto* widget : sheet.dialog.findChildren<QWidget*>()) {
        const bool hasText = qobject_cast<QLabel*>(widget) != nullptr ||
                             qobject_cast<QAbstractButton*>(widget) != nullptr ||
                             qobject_cast<QGroupBox*>(widget) != nullptr;
        const std::string name = widget->objectName().toStdString();
        if (!hasText || !widget->isVisible() || name == "note") continue;
        EXPECT_GE(widget->width(), widget->sizeHint().width()) << name;
        EXPECT_GE(widget->height(), widget->sizeHint().height()) << name;
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << name;
    }
}

TEST_P(TransferLook, NothingIsCutOffAndTheSheetKeepsItsSize) {
    QSize size;
    for (host = 0; host < 3; ++host) {
        open([&](OpenSheet& sheet) {
            for (int page : {0, 1}) {
                sheet.showPage(page);
                expectRoom(sheet);
                if (!size.isValid()) size = sheet.dialog.size();
                EXPECT_EQ(sheet.dialog.size(), size);
            }
        });
    }
}

TEST_P(TransferLook, NotesHaveRoom) {
    open([](OpenSheet& sheet) {
        const auto& note = sheet.widget<QLabel>(QStringLiteral("note"));
        const auto expectShown = [&note] {
            EXPECT_FALSE(note.text().isEmpty());
            EXPECT_LE(note.sizeHint().width(), note.width()) << note.text().toStdString();
        };
        sheet.type("hostFileName", QStringLiteral("\u0416"));
        expectShown();
        sheet.type("hostFileName", QString(256, u'x'));
        expectShown();
        sheet.showPage(1);
        EXPECT_TRUE(note.text().isEmpty()) << "the field was left";
        sheet.type("recordLength", QStringLiteral("x"));
        expectShown();
    });
}

INSTANTIATE_TEST_SUITE_P(, TransferLook, ::testing::Values(english, german),
                         [](const auto& language) {
                             return language.param == german ? "German" : "English";
                         });

class TransferPictures : public TransferSheetTest {
  protected:
    void draw(const QString& file) {
        open([&](OpenSheet& sheet) {
            sheet.type("hostFileName", QStringLiteral("'USER.SOURCE'"));
            sheet.type("pcFileName", QStringLiteral("/home/eve/Transfer/\u0416.txt"));
            for (int page : {0, 1}) {
                sheet.showPage(page);
                if (page == 1) sheet.type("recordLength", QStringLiteral("80x"));
                QTest::qWait(10);
                EXPECT_TRUE(sheet.dialog.grab().save(file.arg(page)));
            }
        });
    }
};

TEST_F(TransferPictures, AreDrawnOnDemand) {
    const QString folder = qEnvironmentVariable("QUENDRA_PICTURES");
    if (folder.isEmpty()) GTEST_SKIP() << "QUENDRA_PICTURES names no folder";
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    const std::pair<Appearance, const char*> appearances[] = {{Appearance::Light, "light"},
                                                              {Appearance::Dark, "dark"}};
    for (const auto& [appearance, look] : appearances) {
        applyAppearance(appearance);
        for (const char* language : {english, german}) {
            speak(language);
            for (host = 0; host < 3; ++host) {
                draw(QStringLiteral("%1/transfer-%2-%3-host%4-x%5-%6.png")
                         .arg(folder, QLatin1String(look), QLatin1String(language))
                         .arg(host)
                         .arg(scale, QStringLiteral("%1")));
            }
        }
    }
}

}  // namespace
}  // namespace quendra::test
