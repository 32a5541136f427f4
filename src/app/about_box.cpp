#include "app/about_box.h"

#include "platform/product_version.h"
#include "text/text_ids.h"
#include "widgets/placement.h"
#include "widgets/symbol_icon.h"
#include "widgets/ui_text.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quendra {

namespace {

QLabel* addLine(QVBoxLayout* lines, const char* objectName, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(objectName));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lines->addWidget(label);
    return label;
}

}  // namespace

AboutBox::AboutBox(LanguageLibrary& language, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("aboutBox"));
    setWindowTitle(qtText(libraryText(language, textid::aboutToolTip)));

    auto* icon = new QLabel;
    icon->setObjectName(QStringLiteral("aboutIcon"));
    icon->setAccessibleName(QStringLiteral("Quendra Script Editor"));
    icon->setPixmap(programIcon().pixmap(QSize(64, 64), devicePixelRatioF()));
    icon->setAlignment(Qt::AlignTop);

    auto* lines = new QVBoxLayout;
    lines->setSpacing(6);
    auto* version = addLine(lines, "aboutVersion",
                            QStringLiteral("Quendra Script Editor v") + QLatin1String(fullVersion));
    QFont large = version->font();
    large.setPointSizeF(large.pointSizeF() * 1.25);
    large.setBold(true);
    version->setFont(large);
    addLine(lines, "aboutNotice1",
            QStringLiteral("Builds login and automation scripts for Quendra terminal sessions."));
    addLine(lines, "aboutNotice2", QStringLiteral("Part of the Quendra terminal emulator family."));
    lines->addStretch();

    auto* top = new QHBoxLayout;
    top->setSpacing(20);
    top->addWidget(icon);
    top->addLayout(lines, 1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    buttons->setObjectName(QStringLiteral("aboutButtons"));
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("aboutOk"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(24, 24, 24, 16);
    all->setSpacing(20);
    all->addLayout(top);
    all->addWidget(buttons);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    buttons->button(QDialogButtonBox::Ok)->setFocus();
    adjustSize();
    centreOnScreen(*this);
}

void AboutBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return;
    QDialog::keyPressEvent(event);
}

}  // namespace quendra
