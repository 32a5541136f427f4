// The Wait_For dialog: what to wait for, where, how long, and what to do then. As the action of
// a Watch_For it has the text and the search options only.
#include "dialogs/action_pair.h"
#include "dialogs/parameter_dialog.h"
#include "model/entry_fields.h"
#include "text/text_ids.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quendra {

namespace {

constexpr ActionTexts foundTexts = {textid::foundButton, textid::foundLine};
constexpr ActionTexts notFoundTexts = {textid::notFoundButton, textid::notFoundLine};

// A position from a foreign file that lies outside is offered too, so that OK does not change what
// the user has not touched.
NumberRange widened(NumberRange range, std::uint8_t stored) {
    return {std::min<std::uint32_t>(range.smallest, stored),
            std::max<std::uint32_t>(range.largest, stored)};
}

std::uint8_t byteOf(const SpinEdit& field) {
    return static_cast<std::uint8_t>(field.number().value_or(0));
}

class WaitForDialog : public ParameterDialog {
  public:
    WaitForDialog(const DialogContext& context, const EditTarget& target)
        : ParameterDialog(context, target, "waitForDialog", "Wait_For"),
          text_(named(new TextEdit, "text")) {
        setWindowTitle(QStringLiteral("Wait_For"));
        addLabelled("textLabel", text(textid::waitForText), text_);
        body().addSpacing(4);
        auto* groups = new QHBoxLayout;
        groups->addWidget(makeFindGroup(), 1);
        if (target.slot == Slot::Entry) groups->addWidget(makeTimeoutGroup(), 1);
        body().addLayout(groups);
        if (target.slot == Slot::Entry) addActions();
        addButtons(text(textid::okButton));
    }

    void load() override {
        const ScriptEntry& entry = target().entry;
        text_->setBytes(textOf(fields()));
        row_->setNumber(entry.searchRow);
        column_->setNumber(entry.searchColumn);
        exact_->setChecked(entry.exactPosition != 0);
        case_->setChecked(entry.caseSensitive != 0);
        if (actions_ == nullptr) return;
        (entry.hasTimeout != 0 ? timeout_ : noTimeout_)->setChecked(true);
        seconds_->setNumber(entry.timeoutSeconds);
        actions_->refresh();
        enableTimeout();
    }

    [[nodiscard]] std::optional<Refusal> check() const override {
        const QString caption = QStringLiteral("Wait_For");
        if (text_->text().isEmpty()) return required(text_, caption);
        if (!row_->number()) return outOfRange(row_, text(textid::waitForRow), caption);
        if (!column_->number()) return outOfRange(column_, text(textid::waitForColumn), caption);
        if (waits() && !seconds_->number()) {
            return outOfRange(seconds_, text(textid::waitForTimeout), caption);
        }
        return std::nullopt;
    }

    void store() override {
        ScriptEntry& entry = target().entry;
        storeText(*text_);
        entry.searchRow = byteOf(*row_);
        entry.searchColumn = byteOf(*column_);
        entry.exactPosition = exact_->isChecked() ? 1 : 0;
        entry.caseSensitive = case_->isChecked() ? 1 : 0;
        entry.hasTimeout = waits() ? 1 : 0;
        entry.timeoutSeconds = actions_ == nullptr ? std::uint8_t{0} : byteOf(*seconds_);
    }

  private:
    [[nodiscard]] bool waits() const { return actions_ != nullptr && timeout_->isChecked(); }

    QGroupBox* makeGroup(const char* name, StringId title) {
        auto* group = new QGroupBox(text(title));
        group->setObjectName(QLatin1String(name));
        return group;
    }

    QGroupBox* makeFindGroup() {
        const ScriptEntry& entry = target().entry;
        QGroupBox* group = makeGroup("findGroup", textid::waitForFindText);
        auto* grid = new QGridLayout(group);
        row_ = named(new SpinEdit(widened(searchRowRange, entry.searchRow)), "row");
        column_ = named(new SpinEdit(widened(searchColumnRange, entry.searchColumn)), "column");
        exact_ = named(new QCheckBox(text(textid::waitForExactPosition)), "exactPosition");
        case_ = named(new QCheckBox(text(textid::waitForCaseSensitive)), "caseSensitive");
        grid->addWidget(makeLabel("startLabel", text(textid::waitForStartPosition)), 0, 0, 1, 5);
        grid->addWidget(makeLabel("rowLabel", text(textid::waitForRow), row_), 1, 0);
        grid->addWidget(row_, 1, 1);
        grid->addWidget(makeLabel("columnLabel", text(textid::waitForColumn), column_), 1, 2);
        grid->addWidget(column_, 1, 3);
        grid->addWidget(exact_, 2, 0, 1, 5);
        grid->addWidget(case_, 3, 0, 1, 5);
        grid->setColumnStretch(4, 1);
        return group;
    }

    QGroupBox* makeTimeoutGroup() {
        QGroupBox* group = makeGroup("timeoutGroup", textid::waitForTimeoutGroup);
        auto* grid = new QGridLayout(group);
        noTimeout_ = named(new QRadioButton(text(textid::waitForNoTimeout)), "noTimeout");
        timeout_ = named(new QRadioButton(text(textid::waitForTimeout)), "timeout");
        seconds_ = named(new SpinEdit(timeoutRange), "timeoutSeconds");
        seconds_->setAccessibleName(plainLabel(text(textid::waitForTimeout)));
        grid->addWidget(noTimeout_, 0, 0, 1, 3);
        grid->addWidget(timeout_, 1, 0);
        grid->addWidget(seconds_, 1, 1);
        grid->addWidget(makeReason(), 2, 0, 1, 3, Qt::AlignTop);
        grid->setColumnStretch(2, 1);
        grid->setRowStretch(2, 1);
        connect(timeout_, &QRadioButton::toggled, this, &WaitForDialog::enableTimeout);
        return group;
    }

    // Why the actions are off. It comes and goes without moving anything, and makes the group no
    // wider.
    QLabel* makeReason() {
        reason_ = makeLabel("actionsReason", text(textid::actionsNeedTimeout));
        reason_->setWordWrap(true);
        QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Minimum);
        policy.setRetainSizeWhenHidden(true);
        policy.setHeightForWidth(true);
        reason_->setSizePolicy(policy);
        return reason_;
    }

    void addActions() {
        actions_ = new ActionPair(context().state, target().entry, ActionOwner::WaitForOrWatchFor,
                                  foundTexts, notFoundTexts);
        body().addWidget(actions_);
    }

    void enableTimeout() {
        seconds_->setEnabled(waits());
        reason_->setVisible(!waits());
        actions_->setActionsEnabled(waits());
    }

    TextEdit* text_;
    SpinEdit* row_ = nullptr;
    SpinEdit* column_ = nullptr;
    QCheckBox* exact_ = nullptr;
    QCheckBox* case_ = nullptr;
    QRadioButton* noTimeout_ = nullptr;
    QRadioButton* timeout_ = nullptr;
    SpinEdit* seconds_ = nullptr;
    QLabel* reason_ = nullptr;
    /// None for the action of a Watch_For, like the timeout's fields.
    ActionPair* actions_ = nullptr;
};

// On a copy: the dialogs of the actions change it before this one ends.
bool editCopy(const DialogContext& context, ScriptEntry& entry, Slot slot) {
    ScriptEntry working = entry;
    WaitForDialog dialog(context, {working, slot, ActionOwner::WaitForOrWatchFor});
    if (!dialog.run()) return false;
    entry = working;
    return true;
}

}  // namespace

bool editWaitFor(const DialogContext& context, ScriptEntry& entry) {
    return editCopy(context, entry, Slot::Entry);
}

bool editWatchedWaitFor(const DialogContext& context, ScriptEntry& entry) {
    return editCopy(context, entry, Slot::Then);
}

}  // namespace quendra
