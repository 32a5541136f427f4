// The Watch_For dialog: a text to watch for, and the action to run when it shows.
#include "dialogs/action_chooser.h"
#include "text/text_ids.h"

namespace quendra {

namespace {

class WatchForDialog : public ActionChooser {
  public:
    WatchForDialog(const DialogContext& context, ScriptEntry& entry)
        : ActionChooser(context, {entry}, {entry, Slot::Then, ActionOwner::WaitForOrWatchFor},
                        "watchForDialog", "Watch_For"),
          text_(named(new TextEdit, "text")) {
        setWindowTitle(QStringLiteral("Watch_For"));
        addLabelled("textLabel", text(textid::watchForText), text_);
        addLists();
        addButtons();
    }

    void load() override {
        text_->setBytes(textOf(fields()));
        if (actionFields().code == CommandCode::None) setCode(actionFields(), CommandCode::Beep);
        ActionChooser::load();
    }

    [[nodiscard]] std::optional<Refusal> check() const override {
        if (text_->text().isEmpty()) return required(text_, text(textid::watchForRefusalTitle));
        return ActionChooser::check();
    }

    void store() override { storeText(*text_); }

  private:
    TextEdit* text_;
};

}  // namespace

bool editWatchFor(const DialogContext& context, ScriptEntry& entry) {
    // A copy: the dialogs of the action change it before this one ends.
    ScriptEntry working = entry;
    WatchForDialog dialog(context, working);
    if (!dialog.run()) return false;
    entry = working;
    return true;
}

}  // namespace quendra
