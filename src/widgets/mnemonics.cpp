#include "widgets/mnemonics.h"

#include <QAbstractButton>
#include <QShortcutEvent>

namespace quendra {

namespace {

class MnemonicFilter : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Shortcut) return false;
        // One of several with the same mnemonic only takes the focus.
        if (static_cast<const QShortcutEvent*>(event)->isAmbiguous()) return false;
        auto& button = static_cast<QAbstractButton&>(*watched);
        // The focus stays where it is when a dialog opens, so that Return is still OK behind it.
        if (button.isCheckable()) button.setFocus(Qt::ShortcutFocusReason);
        button.click();
        return true;
    }
};

}  // namespace

void actAtOnceOnMnemonics(QWidget& dialog) {
    auto* filter = new MnemonicFilter(&dialog);
    for (auto* button : dialog.findChildren<QAbstractButton*>()) {
        button->installEventFilter(filter);
    }
}

}  // namespace quendra
