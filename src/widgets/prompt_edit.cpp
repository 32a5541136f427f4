#include "widgets/prompt_edit.h"

#include "model/script_entry.h"
#include "text/text_encoding.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>

#include <algorithm>

namespace quendra {

namespace {

bool isBreak(QChar character) {
    return character == u'\n' || character == QChar::ParagraphSeparator ||
           character == QChar::LineSeparator;
}

// The file's line ends from Qt's, of which there are three kinds.
QString storedForm(const QString& given) {
    QString text = composedText(given);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    QString stored;
    for (const QChar character : text) {
        if (isBreak(character)) {
            stored += QStringLiteral("\r\n");
        } else {
            stored += character;
        }
    }
    return stored;
}

std::string toBytes(const QString& text) {
    return windows1252FromUtf8(text.toStdString()).value_or(std::string());
}

bool insertsText(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return !event.text().isEmpty() &&
           (event.text().front().isPrint() || event.text().front() == u'\r') &&
           modifiers != Qt::ControlModifier && modifiers != Qt::AltModifier;
}

}  // namespace

PromptEdit::PromptEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
}

void PromptEdit::setBytes(std::string_view windows1252) {
    stored_ = windows1252.substr(0, windows1252.find('\0'));
    setPlainText(QString::fromStdString(utf8FromWindows1252(stored_)));
    storedAsShown_ = shownBytes();
}

std::string PromptEdit::bytes() const {
    const std::string shown = shownBytes();
    return shown == storedAsShown_ ? stored_ : shown.substr(0, maxPromptLength);
}

// toPlainText() would turn no-break spaces into blanks.
std::string PromptEdit::shownBytes() const {
    return toBytes(storedForm(document()->toRawText()));
}

std::size_t PromptEdit::room() const {
    const auto used = static_cast<std::size_t>(storedForm(document()->toRawText()).size());
    const auto freed = static_cast<std::size_t>(storedForm(textCursor().selectedText()).size());
    return maxPromptLength - std::min(maxPromptLength, used - freed);
}

bool PromptEdit::accepts(const QString& text) {
    const QString stored = storedForm(text);
    const QString foreign = firstForeignCharacter(stored);
    if (!foreign.isEmpty()) {
        Q_EMIT refused({InputFault::Kind::Character, foreign});
        return false;
    }
    if (static_cast<std::size_t>(stored.size()) > room()) {
        Q_EMIT refused({InputFault::Kind::Length, {}, maxPromptLength});
        return false;
    }
    return true;
}

void PromptEdit::keyPressEvent(QKeyEvent* event) {
    if (insertsText(*event) && !accepts(event->text())) {
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void PromptEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty() && !accepts(event->commitString())) {
        QInputMethodEvent nothing;
        QPlainTextEdit::inputMethodEvent(&nothing);
        event->accept();
        return;
    }
    QPlainTextEdit::inputMethodEvent(event);
}

bool PromptEdit::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText();
}

void PromptEdit::insertFromMimeData(const QMimeData* source) {
    const QString text = storedForm(source->text());
    const QString foreign = firstForeignCharacter(text);
    if (!foreign.isEmpty()) {
        Q_EMIT refused({InputFault::Kind::Character, foreign});
        return;
    }
    const std::size_t fitting = room();
    QString taken = text.left(static_cast<qsizetype>(fitting));
    if (taken.endsWith(u'\r')) taken.chop(1);
    textCursor().insertText(taken);
    ensureCursorVisible();
    if (taken.size() < text.size()) Q_EMIT refused({InputFault::Kind::Length, {}, maxPromptLength});
}

}  // namespace quendra
