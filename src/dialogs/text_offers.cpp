#include "dialogs/text_offers.h"

#include "analysis/script_outline.h"
#include "text/text_encoding.h"
#include "widgets/pane_list.h"
#include "widgets/text_edit.h"
#include "widgets/ui_text.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStringListModel>
#include <QToolButton>

#include <algorithm>

namespace quendra {

namespace {

constexpr int mostOffers = 12;

// Watches a field and opens the list. Nothing of a masked text gets here.
class TextOffers : public QObject {
  public:
    TextOffers(TextEdit& field, const QStringList& offers, QToolButton& button)
        : QObject(&field),
          field_(field),
          button_(button),
          completer_(new QCompleter(offers, this)) {
        completer_->setWidget(&field);
        completer_->setFilterMode(Qt::MatchContains);
        completer_->setCaseSensitivity(Qt::CaseInsensitive);
        completer_->setMaxVisibleItems(mostOffers);
        completer_->popup()->setObjectName(QStringLiteral("offered"));
        completer_->popup()->setAccessibleName(button.accessibleName());
        connect(completer_, qOverload<const QString&>(&QCompleter::activated), this,
                [this](const QString& offer) { static_cast<void>(field_.takeText(offer)); });
        connect(&button, &QToolButton::clicked, this, &TextOffers::open);
        connect(&field, &QLineEdit::textEdited, this, &TextOffers::narrow);
        connect(&field, &TextEdit::maskingChanged, this, &TextOffers::followMasking);
        field.installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool opens = key.key() == Qt::Key_Down && !completer_->popup()->isVisible();
        if (!opens || isMasked()) return QObject::eventFilter(watched, event);
        open();
        return true;
    }

  private:
    [[nodiscard]] bool isMasked() const { return field_.echoMode() != QLineEdit::Normal; }

    void open() {
        if (isMasked()) return;
        field_.setFocus();
        completer_->setCompletionPrefix({});
        completer_->complete();
        const auto* model = completer_->completionModel();
        const auto found = model->match(model->index(0, 0), Qt::DisplayRole, field_.text(), 1,
                                        Qt::MatchExactly | Qt::MatchCaseSensitive);
        completer_->popup()->setCurrentIndex(found.isEmpty() ? model->index(0, 0) : found.front());
    }

    void narrow(const QString& text) {
        if (!completer_->popup()->isVisible()) return;
        completer_->setCompletionPrefix(text);
        if (completer_->completionCount() == 0) completer_->popup()->hide();
    }

    void followMasking(bool masked) {
        completer_->setCompletionPrefix({});
        button_.setVisible(!masked);
    }

    TextEdit& field_;
    QToolButton& button_;
    QCompleter* completer_;
};

bool canBeTyped(std::string_view name) {
    return std::ranges::none_of(
        name, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
}

}  // namespace

QStringList labelsOf(const Script& script) {
    const ScriptOutline outline = outlineOf(script);
    std::vector<const LabelOutline*> labels;
    for (const LabelOutline& label : outline.labels) {
        if (!label.definitions.empty() && canBeTyped(label.name)) labels.push_back(&label);
    }
    std::ranges::sort(labels, {}, [](const LabelOutline* l) { return l->definitions.front(); });
    QStringList names;
    for (const LabelOutline* label : labels) {
        names << qtText(utf8FromWindows1252(label->name));
    }
    return names;
}

QStringList variablesOf(const Script& script) {
    const ScriptOutline outline = outlineOf(script);
    QStringList stored;
    QStringList others;
    for (std::size_t kind = 0; kind < inputVariableNames.size(); ++kind) {
        QStringList& names = outline.variables[kind].stores.empty() ? others : stored;
        names << qtText(inputVariableNames[kind]);
    }
    return stored + others;
}

QWidget* withOffers(TextEdit* field, const QStringList& offers, const QString& name) {
    auto* whole = new QWidget;
    auto* button = new QToolButton;
    button->setObjectName(QStringLiteral("offers"));
    button->setArrowType(Qt::DownArrow);
    // Not shown beside the arrow.
    button->setText(name);
    button->setToolTip(name);
    button->setAccessibleName(name);
    auto* row = new QHBoxLayout(whole);
    row->setContentsMargins({});
    row->setSpacing(2);
    row->addWidget(field, 1);
    row->addWidget(button);
    new TextOffers(*field, offers, *button);
    return whole;
}

}  // namespace quendra
