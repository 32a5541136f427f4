#include "widgets/dialog_frame.h"

#include "text/text_ids.h"
#include "widgets/mnemonics.h"
#include "widgets/placement.h"
#include "widgets/radio_focus.h"
#include "widgets/scrolling_content.h"
#include "widgets/ui_text.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QShowEvent>
#include <QStyle>
#include <QWindow>

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
    // The dialog keeps its width whatever the note says.
    note_->setWordWrap(true);
    note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return note_;
}

QDialogButtonBox* DialogFrame::makeButtons(const QString& okText, QPushButton* other) {
    auto* ok = new QPushButton(okText);
    ok->setObjectName(QStringLiteral("ok"));
    auto* cancel = new QPushButton(text(textid::cancelButton));
    cancel->setObjectName(QStringLiteral("cancel"));
    auto* buttons = new QDialogButtonBox;
    buttons->setObjectName(QStringLiteral("buttons"));
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    if (other != nullptr) buttons->addButton(other, QDialogButtonBox::ResetRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &DialogFrame::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &DialogFrame::reject);
    return buttons;
}

void DialogFrame::finish() {
    // Not before the button is in the dialog, which would else take the first one, such as Browse.
    findChild<QPushButton*>(QStringLiteral("ok"))->setDefault(true);
    actAtOnceOnMnemonics(*this);
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
}

void DialogFrame::makeResizable() {
    resizable_ = true;
    setSizeGripEnabled(true);
}

void DialogFrame::fit() {
    // What was built into them since they were made is not known to their layouts yet.
    for (auto* area : findChildren<ScrollingContent*>()) {
        area->widget()->layout()->activate();
        area->updateGeometry();
    }
    const QSize whole = sizeHint();
    const QSize largest = largestWindow(*this);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const QSize bars(whole.height() > largest.height() ? bar : 0,
                     whole.width() > largest.width() ? bar : 0);
    const QSize fitting = (whole + bars).boundedTo(largest);
    if (resizable_) {
        resize(isVisible() ? size().boundedTo(largest) : fitting);
    } else {
        setFixedSize(fitting);
    }
}

// Before the parts inside show themselves: a list scrolls to its row then.
void DialogFrame::setVisible(bool visible) {
    if (visible && isHidden()) {
        ensurePolished();
        fit();
    }
    QDialog::setVisible(visible);
}

void DialogFrame::showNote(const QString& note) {
    if (note_ == nullptr || note_->text() == note) return;
    note_->setText(note);
    QAccessibleEvent changed(note_, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

bool DialogFrame::event(QEvent* event) {
    const bool done = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest && !resizable_) fit();
    return done;
}

void DialogFrame::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        // The other screen of a desktop may be a smaller one.
        connect(windowHandle(), &QWindow::screenChanged, this, &DialogFrame::fit,
                Qt::UniqueConnection);
        focusFirst();
        centreOnScreen(*this);
    }
    QDialog::showEvent(event);
}

bool DialogFrame::focusNextPrevChild(bool next) {
    leadTabToChosenButtons(*this);
    return QDialog::focusNextPrevChild(next);
}

}  // namespace quendra
