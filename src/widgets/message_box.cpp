#include "widgets/message_box.h"

#include "widgets/ui_text.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>

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

// The label wraps its text at blanks and the like only, and shows the beginning of longer pieces,
// such as the names in a path: here they may be broken too, where nothing shows.
QString breakable(const QString& text) {
    constexpr int longestPiece = 48;
    QString result;
    int piece = 0;
    for (const QChar character : text) {
        piece = character.isLetterOrNumber() || character == u'_' ? piece + 1 : 0;
        if (piece > longestPiece && !character.isLowSurrogate()) {
            result += QChar(0x200B);
            piece = 1;
        }
        result += character;
    }
    return result;
}

// The title bar has the window's buttons too, and its font may be bold.
void makeRoomForTitle(QMessageBox& box) {
    constexpr int buttons = 160;
    QFont font = box.font();
    font.setBold(true);
    const int width = QFontMetrics(font).horizontalAdvance(box.windowTitle()) + buttons;
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid) grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

MessageAnswer runBox(QWidget* owner, const Message& message) {
    QMessageBox box(owner);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setIcon(boxIcon(message.icon));
    box.setWindowTitle(qtText(message.title));
    // A path or a script text may look like markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(breakable(qtText(message.text)));
    box.setStandardButtons(boxButtons(message.buttons));
    if (message.defaultsToNo) box.setDefaultButton(QMessageBox::No);
    makeRoomForTitle(box);
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
