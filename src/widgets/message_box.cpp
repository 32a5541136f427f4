#include "widgets/message_box.h"

#include "widgets/ui_text.h"

#include <QMessageBox>

#include <utility>

namespace quendra {

namespace {

MessageHandler& currentHandler() {
    static MessageHandler handler;
    return handler;
}

QMessageBox::Icon boxIcon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information: return QMessageBox::Information;
        case MessageIcon::Question: return QMessageBox::Question;
        case MessageIcon::Exclamation: return QMessageBox::Warning;
        case MessageIcon::Stop: return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons boxButtons(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::Ok: return QMessageBox::Ok;
        case MessageButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
        case MessageButtons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

MessageAnswer answerOf(int button) {
    switch (button) {
        case QMessageBox::Yes: return MessageAnswer::Yes;
        case QMessageBox::No: return MessageAnswer::No;
        case QMessageBox::Cancel: return MessageAnswer::Cancel;
        default: return MessageAnswer::Ok;
    }
}

MessageAnswer runBox(QWidget* owner, const Message& message) {
    QMessageBox box(owner);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setIcon(boxIcon(message.icon));
    box.setWindowTitle(qtText(message.title));
    // A path or a script text may look like markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(qtText(message.text));
    box.setStandardButtons(boxButtons(message.buttons));
    if (message.defaultsToNo) box.setDefaultButton(QMessageBox::No);
    box.show();
    box.raise();
    box.activateWindow();
    return answerOf(box.exec());
}

}  // namespace

MessageAnswer askMessage(QWidget* owner, const Message& message) {
    // A copy: the handler may be replaced while it runs.
    const MessageHandler handler = currentHandler();
    return handler ? handler(owner, message) : runBox(owner, message);
}

void showMessage(QWidget* owner, const Message& message) {
    static_cast<void>(askMessage(owner, message));
}

MessageHandler replaceMessageHandler(MessageHandler handler) {
    return std::exchange(currentHandler(), std::move(handler));
}

}  // namespace quendra
