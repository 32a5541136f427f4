#include "widgets/dialog_frame.h"

#include "text/text_ids.h"
#include "widgets/mnemonics.h"
#include "widgets/placement.h"
#include "widgets/ui_text.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>

namespace quendra {

DialogFrame::DialogFrame(LanguageLibrary& language, QWidget* window, const char* name,
                         std::string_view helpPage)
    : QDialog(window), language_(language) {
    setObjectName(QLatin1String(name));
    setProperty("helpPage", qtText(helpPage));
    // The editor waits for the dialog, the help window stays usable.
    setWindowModality(Qt::WindowModal);
}

QString DialogFrame::text(StringId id) const {
    return qtText(libraryText(language_, id));
}

QLabel* DialogFrame::makeNote() {
    note_ = new QLabel;
    note_->setObjectName(QStringLiteral("note"));
    note_->setTextFormat(Qt::PlainText);
    return note_;
}

QDialogButtonBox* DialogFrame::makeButtons(const QString& okText) {
    auto* ok = new QPushButton(okText);
    ok->setObjectName(QStringLiteral("ok"));
    auto* cancel = new QPushButton(text(textid::cancelButton));
    cancel->setObjectName(QStringLiteral("cancel"));
    auto* buttons = new QDialogButtonBox;
    buttons->setObjectName(QStringLiteral("buttons"));
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &DialogFrame::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &DialogFrame::reject);
    return buttons;
}

void DialogFrame::finish() {
    // Not before the button is in the dialog, which would else take the first one, such as Browse.
    findChild<QPushButton*>(QStringLiteral("ok"))->setDefault(true);
    actAtOnceOnMnemonics(*this);
}

void DialogFrame::showNote(const QString& note) {
    if (note_ == nullptr || note_->text() == note) return;
    note_->setText(note);
    QAccessibleEvent changed(note_, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

void DialogFrame::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        focusFirst();
        centreOnScreen(*this);
    }
    QDialog::showEvent(event);
}

}  // namespace quendra
