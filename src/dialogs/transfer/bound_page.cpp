#include "dialogs/transfer/bound_page.h"

#include "widgets/input_note.h"
#include "widgets/text_edit.h"
#include "widgets/ui_text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QShowEvent>

#include <algorithm>

namespace quendra {

namespace {

QString nameOf(const TransferField& field, const QString& suffix = {}) {
    return qtText(field.name) + suffix;
}

}  // namespace

bool contains(HostSet hosts, std::uint8_t host) {
    if (hosts == everyHost) return true;
    return host <= transferHostCics && (static_cast<unsigned>(hosts) >> host & 1U) != 0;
}

void BoundPage::makeControls(std::span<const TransferControl> table) {
    controls_.reserve(table.size());
    for (const TransferControl& row : table)
        controls_.push_back(make(row));
}

void BoundPage::load() {
    loading_ = true;
    for (const Bound& control : controls_) {
        if (!control.row.loadedOnce || !loadedBefore_) show(control);
    }
    loading_ = false;
    loadedBefore_ = true;
    applyEnabled();
}

void BoundPage::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) load();
    QWidget::showEvent(event);
}

void BoundPage::applyEnabled() {
    for (const Group& group : groups_)
        group.box->setEnabled(contains(group.hosts, model_.host));
    for (const Bound& control : controls_) {
        const bool enabled = isOn(control.row);
        control.widget->setEnabled(enabled);
        if (control.label != nullptr) control.label->setEnabled(enabled);
    }
}

bool BoundPage::isOn(const TransferControl& row) const {
    if (!contains(row.hosts, model_.host)) return false;
    switch (row.when) {
        case EnableWhen::Always: return true;
        case EnableWhen::TextIsSelected:
            return transferNumber(model_.settings(), transfer::binary) == 0;
        case EnableWhen::PacketSizeCanBeChosen:
            return transferNumber(model_.settings(), transfer::packetSizeEnabled) == 1;
    }
    return false;
}

void BoundPage::show(const Bound& control) {
    const TransferControl& row = control.row;
    if (row.field.kind == TransferFieldKind::Text) {
        static_cast<TextEdit*>(control.widget)
            ->setBytes(transferText(model_.settings(), row.field));
        return;
    }
    const std::uint32_t number = transferNumber(model_.settings(), row.field);
    if (auto* edit = qobject_cast<NumberEdit*>(control.widget)) {
        edit->setNumber(number);
    } else if (auto* list = qobject_cast<QComboBox*>(control.widget)) {
        list->setCurrentIndex(number < row.items.size() ? static_cast<int>(number) : -1);
    } else if (auto* box = qobject_cast<QCheckBox*>(control.widget)) {
        box->setChecked(number == 1);
    } else if (auto* radio = qobject_cast<QRadioButton*>(control.widget)) {
        // An exclusive group would keep its button when a foreign value selects none.
        QButtonGroup& group = radioGroup(row.field);
        group.setExclusive(false);
        radio->setChecked(number == row.value);
        group.setExclusive(true);
    }
}

void BoundPage::store(const TransferField& field, std::uint32_t value) {
    if (loading_) return;
    setTransferNumber(model_.settings(), field, value);
    applyEnabled();
}

BoundPage::Bound BoundPage::make(const TransferControl& row) {
    if (row.kind == ControlKind::Radio || row.kind == ControlKind::CheckBox) {
        return {row, makeButton(row), nullptr};
    }
    QWidget* widget = row.kind == ControlKind::List     ? makeList(row)
                      : row.kind == ControlKind::Number ? makeNumberEdit(row)
                                                        : makeTextEdit(row);
    widget->setObjectName(nameOf(row.field));
    const QString text = caption(row);
    return {row, widget, text.isEmpty() ? nullptr : makeLabel(row.field, text, widget)};
}

QLabel* BoundPage::makeLabel(const TransferField& field, const QString& text, QWidget* buddy) {
    auto* label = new QLabel(this);
    label->setObjectName(nameOf(field, QStringLiteral("Label")));
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setBuddy(buddy);
    return label;
}

QWidget* BoundPage::makeButton(const TransferControl& row) {
    if (row.kind == ControlKind::CheckBox) {
        auto* box = new QCheckBox(caption(row), this);
        box->setObjectName(nameOf(row.field));
        connect(box, &QCheckBox::toggled, this,
                [this, &row](bool checked) { store(row.field, checked ? 1 : 0); });
        return box;
    }
    auto* radio = new QRadioButton(caption(row), this);
    radio->setObjectName(nameOf(row.field, QString::number(row.value)));
    radioGroup(row.field).addButton(radio);
    connect(radio, &QRadioButton::toggled, this, [this, &row](bool checked) {
        if (checked) store(row.field, row.value);
    });
    return radio;
}

QWidget* BoundPage::makeTextEdit(const TransferControl& row) {
    auto* edit = new TextEdit(this);
    edit->setMaxLength(row.field.size - 1);
    edit->setMasked(row.kind == ControlKind::Password);
    const auto take = [this, &row, edit] {
        if (!loading_) setTransferText(model_.settings(), row.field, edit->bytes().view());
    };
    // A masked field tells of a character in the place of another as an edit only, of one that was
    // removed not before the change of its asterisks.
    connect(edit, &QLineEdit::textEdited, this, take);
    connect(edit, &QLineEdit::textChanged, this, take);
    connect(edit, &TextEdit::refused, this, [this](const InputFault& fault) {
        Q_EMIT noted(faultNote(model_.state.language, fault));
    });
    // A paste that was cut to the field's length is an edit too: its note stays.
    connect(edit, &QLineEdit::textEdited, this, [this, edit] {
        if (edit->text().size() < edit->maxLength()) Q_EMIT noted({});
    });
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] { endNote(*edit); });
    return edit;
}

// The line edit is finished too when the focus only goes with the window, and what was said is
// still true when it comes back.
void BoundPage::endNote(const QLineEdit& edit) {
    if (window()->focusWidget() != &edit) Q_EMIT noted({});
}

QWidget* BoundPage::makeNumberEdit(const TransferControl& row) {
    auto* edit = new NumberEdit({0, row.field.largest}, this);
    connect(edit, &QLineEdit::textChanged, this,
            [this, &row, edit] { store(row.field, edit->number().value_or(0)); });
    const QString range = rangeNote(model_.state.language, edit->range());
    edit->setToolTip(range);
    connect(edit, &NumberEdit::refused, this, [this, range] { Q_EMIT noted(range); });
    connect(edit, &QLineEdit::textEdited, this, [this] { Q_EMIT noted({}); });
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] { endNote(*edit); });
    return edit;
}

QWidget* BoundPage::makeList(const TransferControl& row) {
    auto* list = new QComboBox(this);
    for (const char* item : row.items)
        list->addItem(QLatin1String(item));
    connect(list, &QComboBox::currentIndexChanged, this, [this, &row](int index) {
        if (index >= 0) store(row.field, static_cast<std::uint32_t>(index));
    });
    return list;
}

QButtonGroup& BoundPage::radioGroup(const TransferField& field) {
    const QString name = nameOf(field, QStringLiteral("Buttons"));
    auto* group = findChild<QButtonGroup*>(name, Qt::FindDirectChildrenOnly);
    if (group == nullptr) {
        group = new QButtonGroup(this);
        group->setObjectName(name);
    }
    return *group;
}

const BoundPage::Bound& BoundPage::bound(const TransferField& field, std::uint8_t value) const {
    return *std::find_if(controls_.begin(), controls_.end(), [&](const Bound& control) {
        return control.row.field.offset == field.offset && control.row.value == value;
    });
}

QString BoundPage::text(StringId id) const {
    return qtText(model_.state.language.loadText(id));
}

QString BoundPage::caption(const TransferControl& row) const {
    if (row.literal != nullptr) return QString::fromLatin1(row.literal);
    return row.caption == 0 ? QString() : text(row.caption);
}

QWidget* BoundPage::control(const TransferField& field, std::uint8_t value) const {
    return bound(field, value).widget;
}

QLabel* BoundPage::label(const TransferField& field) const {
    return bound(field, 0).label;
}

QGroupBox* BoundPage::addGroup(const char* name, const QString& title, HostSet hosts) {
    auto* box = new QGroupBox(title, this);
    box->setObjectName(QLatin1String(name));
    groups_.push_back({box, hosts});
    return box;
}

void BoundPage::addLabelled(QGridLayout& grid, const TransferField& field, int row, int column,
                            int span) const {
    grid.addWidget(label(field), row, column);
    grid.addWidget(control(field), row, column + 1, 1, span);
}

void BoundPage::alignLabels(std::initializer_list<TransferField> fields) const {
    int width = 0;
    for (const TransferField& field : fields)
        width = std::max(width, label(field)->sizeHint().width());
    for (const TransferField& field : fields)
        label(field)->setMinimumWidth(width);
}

}  // namespace quendra
