#include "dialogs/action_pair.h"

#include "dialogs/action_choice.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"
#include "widgets/tool_tip.h"
#include "widgets/ui_text.h"

#include <QGridLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolTip>

namespace quendra {

namespace {

constexpr int preferredCharacters = 48;
constexpr int fewestCharacters = 20;

// An action's line can have any length: it takes the room that there is, and a tool tip shows what
// does not fit.
class ActionLine : public QLabel {
  public:
    explicit ActionLine(const QString& text) : QLabel(text) {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize sizeHint() const override { return sizeOf(preferredCharacters); }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeOf(fewestCharacters); }

  protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return QLabel::event(event);
        const bool cut = shownText() != text();
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), cut ? wrappingToolTip(text()) : QString(), this);
        return true;
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        style()->drawItemText(&painter, contentsRect(),
                              Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                              isEnabled(), shownText(), foregroundRole());
    }

  private:
    [[nodiscard]] QSize sizeOf(int characters) const {
        return {characters * fontMetrics().averageCharWidth(), fontMetrics().height()};
    }
    [[nodiscard]] QString shownText() const {
        return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    }
};

}  // namespace

ActionPair::ActionPair(ApplicationState& state, ScriptEntry& entry, ActionOwner owner,
                       const ActionTexts& thenTexts, const ActionTexts& elseTexts)
    : QGroupBox(qtText(libraryText(state.language, textid::actionGroup))),
      state_(state),
      entry_(entry),
      owner_(owner) {
    setObjectName(QStringLiteral("actionGroup"));
    new QGridLayout(this);
    then_ = addRow(0, "then", thenTexts, Slot::Then);
    else_ = addRow(1, "else", elseTexts, Slot::Else);
}

ActionPair::Row ActionPair::addRow(int number, const char* name, const ActionTexts& texts,
                                   Slot slot) {
    const QString prefix = qtText(libraryText(state_.language, texts.line));
    const Row row = {new QPushButton(qtText(libraryText(state_.language, texts.button))),
                     new ActionLine(prefix), prefix};
    row.button->setObjectName(QLatin1String(name) + QStringLiteral("Button"));
    row.line->setObjectName(QLatin1String(name) + QStringLiteral("Line"));
    connect(row.button, &QPushButton::clicked, this, [this, slot] { choose(slot); });
    auto& grid = static_cast<QGridLayout&>(*layout());
    grid.addWidget(row.button, number, 0);
    grid.addWidget(row.line, number, 1);
    grid.setColumnStretch(1, 1);
    return row;
}

void ActionPair::choose(Slot slot) {
    const bool isHidden = isHiddenText(slotFields(entry_, slot));
    bool& onceHidden = (slot == Slot::Then ? then_ : else_).onceHidden;
    onceHidden = onceHidden || isHidden;
    if (chooseAction({state_, window()}, {entry_, slot, owner_, onceHidden})) refresh();
}

void ActionPair::refresh() {
    const bool compares = owner_ == ActionOwner::IfInputIs;
    const ActionSummaries lines = actionSummaries(entry_, compares, state_.displayNames());
    then_.line->setText(qtText(escapeControlCharacters(lines.thenLine)));
    else_.line->setText(lines.elseLine ? qtText(escapeControlCharacters(*lines.elseLine))
                                       : else_.prefix);
    for (const Slot slot : {Slot::Then, Slot::Else})
        loadTransfer(state_, slotFields(entry_, slot));
}

void ActionPair::setActionsEnabled(bool enabled) {
    const QString reason = qtText(libraryText(state_.language, textid::actionsNeedTimeout));
    for (const Row& row : {then_, else_}) {
        row.button->setEnabled(enabled);
        row.button->setToolTip(enabled ? QString() : reason);
        row.button->setAccessibleDescription(row.button->toolTip());
        row.line->setEnabled(enabled);
    }
}

}  // namespace quendra
