// Wait and Wait_Ready: one number.
#include "dialogs/command_dialogs.h"
#include "model/entry_fields.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quendra {

namespace {

class WaitDialog : public ParameterDialog {
  public:
    WaitDialog(const DialogContext& context, const EditTarget& target)
        : ParameterDialog(context, target, "waitDialog",
                          commandKeyword(slotFields(target.entry, target.slot).code)) {
        setWindowTitle(caption());
        number_ = named(new NumberEdit(waitRange), "number");
        body().addWidget(makeLabel("numberLabel", label(), number_));
        body().addWidget(number_, 0, Qt::AlignLeft);
        addButtons();
    }

    void load() override { number_->setNumber(fields().number); }

    [[nodiscard]] std::optional<Refusal> check() const override {
        return numberRefusal(number_, label(), caption());
    }

    void store() override { fields().number = number_->number().value_or(0); }

  private:
    [[nodiscard]] QString caption() const { return qtText(commandKeyword(fields().code)); }

    [[nodiscard]] QString label() const {
        const bool seconds = fields().code == CommandCode::Wait;
        if (target().slot != Slot::Else)
            return text(seconds ? textid::waitSeconds : textid::waitReadyRestores);
        return seconds ? QStringLiteral("&Enter time to Wait(seconds):")
                       : QStringLiteral("&Enter the number of Keyboard Restores to wait for:");
    }

    NumberEdit* number_ = nullptr;
};

}  // namespace

std::unique_ptr<ParameterDialog> makeWaitDialog(const DialogContext& context,
                                                const EditTarget& target) {
    return std::make_unique<WaitDialog>(context, target);
}

}  // namespace quendra
