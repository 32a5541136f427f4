// The Action dialog: chooses the then or else action of a Wait_For or an If_Input_Is.
#include "dialogs/action_choice.h"
#include "dialogs/action_chooser.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QPushButton>

namespace quendra {

namespace {

class ActionDialog : public ActionChooser {
  public:
    ActionDialog(const DialogContext& context, const EditTarget& action)
        : ActionChooser(context, action, action, "actionDialog", "Action") {
        const ActionPlace place = placeOf(action);
        setWindowTitle(qtText(actionCaption(place)));
        setPicture(bitmapIdOf(place.owner, 0));
        addLists();
        auto* none = new QPushButton(text(textid::noActionButton));
        none->setObjectName(QStringLiteral("noAction"));
        connect(none, &QPushButton::clicked, this, &ActionDialog::takeBack);
        addButtons(text(textid::okButton), none);
    }

    void store() override {}

  protected:
    void showEvent(QShowEvent* event) override {
        ActionChooser::showEvent(event);
        lists().focusActiveList();
    }

  private:
    void takeBack() {
        takeBackAction(target().entry, target().slot);
        // Nothing needs to be chosen for that.
        QDialog::accept();  // NOLINT(bugprone-parent-virtual-call)
    }
};

}  // namespace

bool chooseAction(const DialogContext& context, const EditTarget& target) {
    // A copy: OK and double-click change the action before their dialogs are answered, and Cancel
    // takes all of it back.
    ScriptEntry working = target.entry;
    ActionDialog dialog(context, {working, target.slot, target.owner, target.onceHidden});
    if (!dialog.run()) return false;
    target.entry = working;
    return true;
}

}  // namespace quendra
