// Comment, Goto, Label, Message, Express_Logon and Type: one text.
#include "dialogs/command_dialogs.h"
#include "dialogs/text_offers.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

namespace quendra {

namespace {

StringId labelOf(CommandCode code) {
    switch (code) {
        case CommandCode::Comment: return textid::commentLabel;
        case CommandCode::Goto: return textid::gotoLabel;
        case CommandCode::Label: return textid::labelLabel;
        case CommandCode::Message: return textid::messageLabel;
        case CommandCode::ExpressLogon: return textid::expressLogonLabel;
        case CommandCode::Type: return textid::typeLabel;
        case CommandCode::None:
        case CommandCode::LuFunction:
        case CommandCode::MenuCommand:
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Input:
        case CommandCode::IfInputIs:
        case CommandCode::Return:
        case CommandCode::Run:
        case CommandCode::SetCursor:
        case CommandCode::Wait:
        case CommandCode::WaitFor:
        case CommandCode::WaitReady:
        case CommandCode::WaitUntil:
        case CommandCode::WatchFor:
        case CommandCode::Copy:
        case CommandCode::Paste: break;
    }
    return 0;
}

class TextDialog : public ParameterDialog {
  public:
    TextDialog(const DialogContext& context, const EditTarget& target)
        : ParameterDialog(context, target, "textDialog",
                          commandKeyword(slotFields(target.entry, target.slot).code)) {
        setWindowTitle(caption());
        text_ = named(new TextEdit, "text");
        body().addWidget(makeLabel("textLabel", text(labelOf(fields().code)), text_));
        body().addWidget(fieldWithOffers());
        if (fields().code == CommandCode::Type) addHidingParts();
        addButtons();
    }

    void load() override {
        if (isHiddenText(fields())) text_->setMasked(true);
        text_->setBytes(textOf(fields()));
        const bool sealed = isHiddenText(fields()) && fields().kept && textOf(fields()).empty();
        text_->setPlaceholderText(sealed ? text(textid::hiddenUnderOtherIdentity) : QString());
    }

    [[nodiscard]] std::optional<Refusal> check() const override {
        if (text_->text().isEmpty()) return required(text_, caption());
        const bool hides = isHiddenText(fields()) || (hide_ != nullptr && hide_->isChecked());
        if (hides && text_->bytes().size() > maxHiddenTextLength) {
            const auto limit = std::to_string(maxHiddenTextLength);
            return refusal(
                text_,
                qtText(libraryText(context().state.language, textid::hiddenTextTooLong, {limit})),
                caption());
        }
        return std::nullopt;
    }

    // A text once hidden stays hidden: the flag is set and never cleared here.
    void store() override {
        storeText(*text_);
        if (hide_ != nullptr && hide_->isChecked()) fields().hidden = 1;
    }

  private:
    [[nodiscard]] QString caption() const { return qtText(commandKeyword(fields().code)); }

    [[nodiscard]] QWidget* fieldWithOffers() const {
        const Script& script = context().state.script;
        if (fields().code == CommandCode::Type) {
            return withOffers(text_, variablesOf(script), text(textid::offeredVariables));
        }
        if (fields().code != CommandCode::Goto) return text_;
        const QStringList labels = labelsOf(script);
        return labels.isEmpty() ? text_ : withOffers(text_, labels, text(textid::offeredLabels));
    }

    void addHidingParts() {
        const bool obscures = context().state.cipher.onlyObscures();
        const QString note = obscures ? text(textid::hiddenTextOnlyObscured) : QString();
        text_->setToolTip(note);
        if (context().state.editing) return;
        hide_ = named(new QCheckBox(text(textid::typeHide)), "hide");
        hide_->setToolTip(note);
        connect(hide_, &QCheckBox::toggled, text_,
                [this](bool hides) { text_->setMasked(hides || isHiddenText(fields())); });
        body().addWidget(hide_);
    }

    TextEdit* text_ = nullptr;
    QCheckBox* hide_ = nullptr;
};

}  // namespace

std::unique_ptr<ParameterDialog> makeTextDialog(const DialogContext& context,
                                                const EditTarget& target) {
    return std::make_unique<TextDialog>(context, target);
}

}  // namespace quendra
