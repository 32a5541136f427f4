// What the Watch_For and the Action dialog share: the three lists, and what OK and a double-click
// make of them.
#pragma once

#include "dialogs/action_lists.h"
#include "dialogs/parameter_dialog.h"

namespace quendra {

/// A dialog that ends with OK only when an action was taken from its lists. The user may resize it.
class ActionChooser : public ParameterDialog {
    Q_OBJECT

  public:
    /// `target` is what the dialog edits beside the action, and `action` the action.
    ActionChooser(const DialogContext& context, const EditTarget& target, const EditTarget& action,
                  const char* name, const char* helpPage);

    void load() override;
    [[nodiscard]] std::optional<Refusal> check() const override;
    void accept() override;

  protected:
    void addLists();
    [[nodiscard]] ActionLists& lists() const { return *lists_; }
    [[nodiscard]] Step& actionFields() const { return slotFields(action_.entry, action_.slot); }

  private:
    [[nodiscard]] DialogContext overThis() { return {context().state, this}; }

    EditTarget action_;
    ActionLists* lists_ = nullptr;
};

}  // namespace quendra
