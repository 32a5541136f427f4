// Pictures of the sheet, for looking at: QUENDRA_PICTURES=FOLDER, and QT_SCALE_FACTOR=2 for the
// large ones.
#include "app/appearance.h"
#include "app/ui_text.h"
#include "transfer/transfer_sheet_driver.h"

#include <QApplication>
#include <QPixmap>
#include <QTest>

namespace quendra::test {
namespace {

class TransferPictures : public TransferSheetTest {
  protected:
    void draw(const QString& folder, const QString& look) {
        open([&](OpenSheet& sheet) {
            sheet.type("hostFileName", QStringLiteral("'USER.SOURCE'"));
            sheet.type("pcFileName", QStringLiteral("/home/eve/Transfer/source.txt"));
            for (int page = 0; page < 2; ++page) {
                sheet.showPage(page);
                QTest::qWait(10);
                const QString file = QStringLiteral("%1/transfer-%2-%3.png").arg(folder, look);
                EXPECT_TRUE(sheet.dialog.grab().save(file.arg(page)));
            }
        });
    }
};

TEST_F(TransferPictures, AreDrawnOnDemand) {
    const QString folder = qEnvironmentVariable("QUENDRA_PICTURES");
    if (folder.isEmpty()) GTEST_SKIP() << "QUENDRA_PICTURES names no folder";
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        applyAppearance(*qApp, appearance);
        for (const char* language : {english, german}) {
            speak(language);
            for (host = 0; host < 3; ++host) {
                const char* const light = appearance == Appearance::Dark ? "dark" : "light";
                draw(folder, QStringLiteral("%1-%2-host%3-x%4")
                                 .arg(QLatin1String(light), QLatin1String(language))
                                 .arg(host)
                                 .arg(scale));
            }
        }
    }
}

}  // namespace
}  // namespace quendra::test
