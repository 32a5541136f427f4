#include "dialogs/look_checks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>
#include <map>

namespace quendra::test {

namespace {

std::string textOfWidget(const QWidget& widget) {
    return widget.property("text").toString().toStdString();
}

}  // namespace

void expectMnemonicsThatWork(const QWidget& dialog) {
    std::map<QChar, std::string> taken;
    for (QWidget* part : dialog.findChildren<QWidget*>()) {
        const std::string text = textOfWidget(*part);
        const QKeySequence key = QKeySequence::mnemonic(QString::fromStdString(text));
        // "A & B" has none.
        if (!part->isVisible() || key.isEmpty() || text.find("& ") != std::string::npos) continue;
        // "Alt+X": the last character is the key.
        const QChar letter = key.toString().back();
        const auto [first, isNew] = taken.emplace(letter, text);
        EXPECT_TRUE(isNew) << text << " and " << first->second;
        const auto* button = qobject_cast<const QAbstractButton*>(part);
        const auto* label = qobject_cast<const QLabel*>(part);
        QWidget* target = label != nullptr ? label->buddy() : part;
        EXPECT_TRUE(button != nullptr || target != nullptr) << "leads nowhere: " << text;
        const bool takesFocus = button == nullptr || button->isCheckable();
        if (target == nullptr || !takesFocus || !target->isEnabled()) continue;
        QTest::keyClick(dialog.focusWidget(), letter.toLatin1(), Qt::AltModifier);
        EXPECT_TRUE(dialog.focusWidget() == target || target->isAncestorOf(dialog.focusWidget()))
            << text;
        EXPECT_FALSE(target->visibleRegion().isEmpty()) << text << " is out of sight";
    }
}

void expectToFitItsScreen(const QWidget& dialog) {
    const QSize largest = dialog.screen()->availableSize();
    EXPECT_EQ(dialog.size().boundedTo(largest), dialog.size());
    for (const char* name : {"ok", "cancel"}) {
        const auto& button = *dialog.findChild<QWidget*>(QLatin1String(name));
        const QRect place(button.mapTo(&dialog, QPoint()), button.size());
        EXPECT_TRUE(dialog.rect().contains(place)) << name;
        EXPECT_EQ(button.visibleRegion(), button.rect()) << name;
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
        const bool wraps = part->hasHeightForWidth();
        const QSize whole =
            wraps ? QSize(0, part->heightForWidth(part->width())) : part->sizeHint();
        EXPECT_GE(part->width(), whole.width()) << name << " is cut off";
        EXPECT_GE(part->height(), whole.height()) << name << " is cut off";
    }
}

}  // namespace quendra::test
