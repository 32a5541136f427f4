#include "dialogs/action_chooser.h"

#include "dialogs/action_choice.h"
#include "text/text_ids.h"

#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace quendra {

ActionChooser::ActionChooser(const DialogContext& context, const EditTarget& target,
                             const EditTarget& action, const char* name, const char* helpPage)
    : ParameterDialog(context, target, name, helpPage), action_(action) {
    makeResizable();
    action_.onceHidden = action.onceHidden || isHiddenText(actionFields());
}

void ActionChooser::addLists() {
    body().addWidget(makeLabel("actionPrompt", text(textid::actionHeading)));
    lists_ = new ActionLists(context().state, this);
    body().addWidget(lists_, 1);
    connect(lists_, &ActionLists::doubleClicked, this,
            [this](const PaletteChoice& choice) { openChoice(overThis(), action_, choice); });
    auto* open = new QShortcut(Qt::Key_F2, this);
    connect(open, &QShortcut::activated, this,
            [this] { openChoice(overThis(), action_, lists_->choice()); });
}

void ActionChooser::load() {
    // OK on a transfer that lacks a file goes on from what this one has already.
    if (actionFields().transferSettings != FileTransferSettings{}) {
        loadTransfer(context().state, actionFields());
    }
    ApplicationState& state = context().state;
    lists_->select(choiceOf(actionFields(), state.luCatalogues.of(state.currentHostType)));
}

std::optional<Refusal> ActionChooser::check() const {
    const auto message = refusalOf(context(), action_, lists_->choice());
    return message ? std::optional(Refusal{*message, nullptr}) : std::nullopt;
}

void ActionChooser::accept() {
    if (const auto found = check()) {
        refuse(*found);
        return;
    }
    store();
    if (!acceptChoice(overThis(), action_, lists_->choice())) return;
    // The base would check and store a second time.
    QDialog::accept();  // NOLINT(bugprone-parent-virtual-call)
}

}  // namespace quendra
