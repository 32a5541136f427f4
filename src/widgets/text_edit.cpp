#include "widgets/text_edit.h"

#include "model/script_entry.h"
#include "text/text_encoding.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QValidator>

#include <algorithm>
#include <memory>
#include <utility>

namespace quendra {

namespace {

constexpr QChar maskCharacter = u'*';

bool isLineBreak(QChar character) {
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

qsizetype firstLineBreak(QStringView text) {
    return std::find_if(text.begin(), text.end(), isLineBreak) - text.begin();
}

bool hasLineBreak(QStringView text) {
    return firstLineBreak(text) < text.size();
}

// What a field of one line takes of a text: its first line that is not empty.
struct FirstLine {
    QString line;
    bool hasFurther;
};

FirstLine firstLineOf(QStringView text) {
    while (!text.isEmpty() && isLineBreak(text.front()))
        text = text.mid(1);
    while (!text.isEmpty() && isLineBreak(text.back()))
        text.chop(1);
    return {composedText(text.left(firstLineBreak(text)).toString()), hasLineBreak(text)};
}

QString fromBytes(std::string_view windows1252) {
    const std::string utf8 = utf8FromWindows1252(windows1252);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// Piece by piece, so that no buffer in between holds the whole text.
SecretText toBytes(QStringView text) {
    SecretText bytes;
    for (const QChar character : text) {
        const auto byte = windows1252FromCharacter(character.unicode());
        if (byte) bytes.replace(bytes.size(), 0, {&*byte, 1});
    }
    return bytes;
}

bool insertsText(const QKeyEvent& event) {
    const QString text = event.text();
    const auto modifiers = event.modifiers() & ~Qt::ShiftModifier;
    return !text.isEmpty() && text.front().isPrint() && modifiers != Qt::ControlModifier &&
           modifiers != Qt::AltModifier;
}

}  // namespace

// Accepts what the file's encoding has, and remembers what it did not accept.
class TextValidator : public QValidator {
  public:
    using QValidator::QValidator;

    /// A text from a file may hold line breaks, and then keeps them.
    void setBreaksAllowed(bool allowed) { breaksAllowed_ = allowed; }

    State validate(QString& input, int& cursor) const override {
        if (!breaksAllowed_) dropFurtherLines(input, cursor);
        compose(input, cursor);
        rejected_ = firstForeignCharacter(input);
        return rejected_.isEmpty() ? Acceptable : Invalid;
    }

    QString takeRejected() { return std::exchange(rejected_, {}); }

  private:
    // The cursor stands behind what was pasted: what follows it was there before.
    static void dropFurtherLines(QString& input, int& cursor) {
        const auto first = static_cast<int>(firstLineBreak(QStringView(input).left(cursor)));
        input.remove(first, cursor - first);
        cursor = first;
    }

    static void compose(QString& input, int& cursor) {
        const QString composed = composedText(input);
        if (composed == input) return;
        cursor = static_cast<int>(composedText(input.left(cursor)).size());
        input = composed;
    }

    bool breaksAllowed_ = false;
    mutable QString rejected_;
};

TextEdit::TextEdit(QWidget* parent) : QLineEdit(parent), validator_(new TextValidator(this)) {
    setMaxLength(static_cast<int>(maxTextLength));
    setValidator(validator_);
    connect(this, &QLineEdit::inputRejected, this, &TextEdit::reportRejection);
    connect(this, &QLineEdit::textChanged, this, &TextEdit::followMaskedChange);
}

void TextEdit::setBytes(std::string_view windows1252) {
    if (masked_) {
        secret_ = SecretText(windows1252);
        showMask(secret_.size());
        return;
    }
    const QString text = fromBytes(windows1252);
    validator_->setBreaksAllowed(hasLineBreak(text));
    setText(text);
}

std::size_t TextEdit::lengthLimit() const {
    return static_cast<std::size_t>(maxLength());
}

SecretText TextEdit::bytes() const {
    return masked_ ? SecretText(secret_.view()) : toBytes(text());
}

bool TextEdit::takeText(const QString& text) {
    const QString taken = composedText(text);
    const qsizetype lineBreak = firstLineBreak(taken);
    const QString foreign =
        lineBreak < taken.size() ? QString(taken.at(lineBreak)) : firstForeignCharacter(taken);
    if (!foreign.isEmpty()) {
        Q_EMIT refused({InputFault::Kind::Character, foreign});
        return false;
    }
    if (taken.size() > maxLength()) {
        Q_EMIT refused({InputFault::Kind::Length, {}, lengthLimit()});
        return false;
    }
    selectAll();
    insert(taken);
    return true;
}

// Left to the line edit, a text would be cut before it is composed, and where lines are left out
// there would be nothing to undo any more.
bool TextEdit::insertPasted(const QString& text) {
    const FirstLine first = firstLineOf(text);
    if (!masked_ && first.line == text) return false;
    if (first.line.isEmpty()) return true;
    if (!hasSelectedText()) beginUndoStep();
    takeFirstLine(first.hasFurther,
                  [&] { masked_ ? insertMasked(first.line) : insert(first.line); });
    return true;
}

// Where the cursor has been elsewhere, a new step begins.
void TextEdit::beginUndoStep() {
    const int cursor = cursorPosition();
    setCursorPosition(cursor == 0 ? 1 : 0);
    setCursorPosition(cursor);
}

void TextEdit::takeFirstLine(bool hasFurther, const std::function<void()>& take) {
    bool taken = true;
    const auto watching = connect(this, &TextEdit::refused, this, [&taken] { taken = false; });
    take();
    disconnect(watching);
    if (taken && hasFurther) Q_EMIT refused({InputFault::Kind::FurtherLines});
}

void TextEdit::setMasked(bool masked) {
    if (masked == masked_) return;
    const auto cursor = static_cast<std::size_t>(cursorPosition());
    if (masked) {
        secret_ = bytes();
        masked_ = true;
        setEchoMode(QLineEdit::Password);
        showMask(cursor);
    } else {
        masked_ = false;
        setEchoMode(QLineEdit::Normal);
        setBytes(secret_.view());
        secret_ = {};
        setCursorPosition(static_cast<int>(cursor));
    }
    setAcceptDrops(!masked);
    Q_EMIT maskingChanged(masked);
}

void TextEdit::insertMasked(const QString& line) {
    const QString foreign = firstForeignCharacter(line);
    if (!foreign.isEmpty()) {
        Q_EMIT refused({InputFault::Kind::Character, foreign});
        return;
    }
    const auto removed = static_cast<std::size_t>(selectionLength());
    const auto at = static_cast<std::size_t>(removed > 0 ? selectionStart() : cursorPosition());
    const auto added = static_cast<std::size_t>(line.size());
    const std::size_t limit = std::min(lengthLimit(), maxHiddenTextLength);
    if (added > 0 && secret_.size() - removed + added > limit) {
        const auto kind =
            limit < maxHiddenTextLength ? InputFault::Kind::Length : InputFault::Kind::HiddenLength;
        Q_EMIT refused({kind, {}, limit});
        return;
    }
    secret_.replace(at, removed, toBytes(line).view());
    showMask(at + added);
    Q_EMIT textEdited(this->text());
}

void TextEdit::removeMaskedSelection() {
    if (selectionLength() > 0) insertMasked({});
}

// Setting the text empties the undo history too, which would bring back asterisks without a text.
void TextEdit::showMask(std::size_t cursor) {
    showingMask_ = true;
    setText(QString(static_cast<qsizetype>(secret_.size()), maskCharacter));
    setCursorPosition(static_cast<int>(cursor));
    showingMask_ = false;
}

// The line edit's own keys only ever remove something; the cursor then stands where it was.
void TextEdit::followMaskedChange() {
    if (!masked_ || showingMask_) return;
    const auto size = static_cast<std::size_t>(text().size());
    const auto cursor = static_cast<std::size_t>(cursorPosition());
    if (size < secret_.size()) secret_.replace(cursor, secret_.size() - size, {});
    showMask(std::min(cursor, secret_.size()));
}

void TextEdit::reportRejection() {
    const QString foreign = validator_->takeRejected();
    if (foreign.isEmpty()) {
        Q_EMIT refused({InputFault::Kind::Length, {}, lengthLimit()});
    } else {
        Q_EMIT refused({InputFault::Kind::Character, foreign});
    }
}

void TextEdit::keyPressEvent(QKeyEvent* event) {
    // The line edit's own undo would empty the field, and what a cut takes out of it would be
    // nowhere, for no clipboard gets a secret.
    const bool loses =
        masked_ && (event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Cut));
    const bool pasted =
        event->matches(QKeySequence::Paste) && insertPasted(QGuiApplication::clipboard()->text());
    const bool typed = masked_ && !loses && !pasted && insertsText(*event);
    if (typed) insertMasked(event->text());
    if (loses || pasted || typed) {
        event->accept();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void TextEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (!masked_) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    if (!event->commitString().isEmpty()) insertMasked(composedText(event->commitString()));
    event->accept();
}

void TextEdit::mouseReleaseEvent(QMouseEvent* event) {
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard.supportsSelection()) {
        deselect();
        if (insertPasted(clipboard.text(QClipboard::Selection))) return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void TextEdit::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    useForThis(*menu);
    menu->exec(event->globalPos());
}

void TextEdit::dropEvent(QDropEvent* event) {
    takeFirstLine(firstLineOf(event->mimeData()->text()).hasFurther,
                  [&] { QLineEdit::dropEvent(event); });
}

void TextEdit::useForThis(QMenu& menu) {
    if (auto* paste = menu.findChild<QAction*>(QStringLiteral("edit-paste"))) {
        paste->disconnect();
        connect(paste, &QAction::triggered, this, [this] {
            if (!insertPasted(QGuiApplication::clipboard()->text())) QLineEdit::paste();
        });
    }
    if (!masked_) return;
    if (auto* remove = menu.findChild<QAction*>(QStringLiteral("edit-delete"))) {
        remove->disconnect();
        connect(remove, &QAction::triggered, this, &TextEdit::removeMaskedSelection);
    }
}

}  // namespace quendra
