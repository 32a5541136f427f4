#include "dialogs/look_checks.h"

#include "app/appearance.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPixmap>

#include <gtest/gtest.h>
#include <map>

namespace quendra::test {

namespace {

std::string textOfWidget(const QWidget& widget) {
    return widget.property("text").toString().toStdString();
}

QString pictureFolder() {
    return qEnvironmentVariable("QUENDRA_PICTURES");
}

}  // namespace

void expectMnemonicsOfTheirOwn(const QWidget& dialog) {
    std::map<QChar, std::string> taken;
    for (const QWidget* part : dialog.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(part);
        const bool carries = qobject_cast<const QAbstractButton*>(part) != nullptr ||
                             (label != nullptr && label->buddy() != nullptr);
        const QString text = part->property("text").toString();
        const qsizetype at = text.indexOf(u'&');
        // "A & B" has none.
        if (at >= 0 && text[at + 1].isSpace()) continue;
        EXPECT_TRUE(at < 0 || carries) << "leads nowhere: " << textOfWidget(*part);
        if (at < 0) continue;
        const auto [first, isNew] = taken.emplace(text[at + 1].toLower(), textOfWidget(*part));
        EXPECT_TRUE(isNew) << textOfWidget(*part) << " and " << first->second;
    }
}

void expectWholeTexts(const QWidget& dialog, const std::string& eliding) {
    for (const QWidget* part : dialog.findChildren<QWidget*>()) {
        const bool shown = part->isVisible() && (qobject_cast<const QLabel*>(part) != nullptr ||
                                                 qobject_cast<const QAbstractButton*>(part));
        if (!shown || part->objectName().startsWith(QLatin1String("qt_"))) continue;
        const std::string name = part->objectName().toStdString();
        EXPECT_FALSE(name.empty()) << textOfWidget(*part);
        EXPECT_TRUE(name == "note" || !textOfWidget(*part).empty()) << name;
        if (!name.empty() && eliding.find(name) != std::string::npos) continue;
        EXPECT_GE(part->width(), part->sizeHint().width()) << name << " is cut off";
        EXPECT_GE(part->height(), part->sizeHint().height()) << name << " is cut off";
    }
}

bool wantsPictures() {
    return !pictureFolder().isEmpty();
}

void forLightAndDark(const std::function<void(const std::string& appearance)>& draw) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(appearancePalette(Appearance::Light));
    draw("light");
    QApplication::setPalette(appearancePalette(Appearance::Dark));
    draw("dark");
    QApplication::setPalette(before);
}

void savePicture(QWidget& widget, const std::string& name) {
    ASSERT_TRUE(QDir().mkpath(pictureFolder()));
    const QString file =
        pictureFolder() + u'/' + QString::fromStdString(name) + QStringLiteral(".png");
    EXPECT_TRUE(widget.grab().save(file)) << name;
}

}  // namespace quendra::test
