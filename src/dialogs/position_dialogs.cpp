// Set_Cursor, Copy and Paste: positions on the host's screen.
#include "dialogs/command_dialogs.h"
#include "model/entry_fields.h"
#include "text/text_ids.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <initializer_list>

namespace quendra {

namespace {

std::uint8_t byteOf(const NumberEdit& field) {
    return static_cast<std::uint8_t>(field.number().value_or(0));
}

class SetCursorDialog : public ParameterDialog {
  public:
    SetCursorDialog(const DialogContext& context, const EditTarget& target)
        : ParameterDialog(context, target, "setCursorDialog", "Set_Cursor") {
        setWindowTitle(QStringLiteral("Set_Cursor"));
        body().addWidget(makeLabel("heading", text(textid::setCursorHeading)));
        QGridLayout& grid = *addGrid();
        row_ = named(new NumberEdit(positionRange), "row");
        column_ = named(new NumberEdit(positionRange), "column");
        grid.addWidget(makeLabel("rowLabel", text(textid::setCursorRow), row_), 0, 0);
        grid.addWidget(row_, 0, 1);
        grid.addWidget(makeLabel("columnLabel", text(textid::setCursorColumn), column_), 0, 2);
        grid.addWidget(column_, 0, 3);
        addButtons();
    }

    void load() override {
        row_->setNumber(fields().row);
        column_->setNumber(fields().column);
    }

    [[nodiscard]] std::optional<Refusal> check() const override {
        if (auto found = numberRefusal(row_, text(textid::setCursorRow), windowTitle()))
            return found;
        return numberRefusal(column_, text(textid::setCursorColumn), windowTitle());
    }

    void store() override {
        fields().row = byteOf(*row_);
        fields().column = byteOf(*column_);
    }

  private:
    NumberEdit* row_ = nullptr;
    NumberEdit* column_ = nullptr;
};

// Positions that a check box makes meaningless: they are disabled then, and still have to be there.
class AreaDialog : public ParameterDialog {
  public:
    using ParameterDialog::ParameterDialog;

    [[nodiscard]] std::optional<Refusal> check() const override {
        for (const auto& [field, label] : positions_) {
            auto found = numberRefusal(field, label->text(), windowTitle());
            if (!found) continue;
            // What is disabled cannot have the focus: the check box enables it.
            if (!field->isEnabled()) found->field = instead_;
            return found;
        }
        return std::nullopt;
    }

  protected:
    /// A row of label, row field and column field.
    void addPosition(QGridLayout& grid, const QString& label,
                     std::initializer_list<const char*> names) {
        const int line = grid.rowCount();
        QLabel* beside = makeLabel(QByteArray(*names.begin()) + "Label", label);
        grid.addWidget(beside, line, 0);
        int place = 1;
        for (const char* name : names) {
            auto* field = named(new NumberEdit(positionRange), name);
            if (place == 1) beside->setBuddy(field);
            field->setAccessibleName(
                plainLabel(label) + QStringLiteral(": ") +
                plainLabel(text(place == 1 ? textid::setCursorRow : textid::setCursorColumn)));
            grid.addWidget(field, line, place++);
            positions_.push_back({field, beside});
        }
    }

    void addInstead(const QString& text, const char* name) {
        instead_ = named(new QCheckBox(text), name);
        connect(instead_, &QCheckBox::toggled, this, [this](bool checked) {
            for (const auto& [field, label] : positions_) {
                field->setEnabled(!checked);
                label->setEnabled(!checked);
            }
        });
        body().addWidget(instead_);
    }

    [[nodiscard]] std::uint8_t position(std::size_t index) const {
        return byteOf(*positions_[index].field);
    }

    void show(const ScreenArea& area) {
        const std::uint8_t bytes[] = {area.startRow, area.startColumn, area.endRow, area.endColumn};
        for (std::size_t i = 0; i < positions_.size(); ++i)
            positions_[i].field->setNumber(bytes[i]);
        instead_->setChecked(fields().number != 0);
    }

    void storeFlag() { fields().number = instead_->isChecked() ? 1 : 0; }

  private:
    struct Position {
        NumberEdit* field;
        QLabel* label;
    };
    std::vector<Position> positions_;
    QCheckBox* instead_ = nullptr;
};

class CopyDialog : public AreaDialog {
  public:
    CopyDialog(const DialogContext& context, const EditTarget& target)
        : AreaDialog(context, target, "copyDialog", "Copy") {
        setWindowTitle(text(textid::copyDialogTitle));
        body().addWidget(makeLabel("heading", text(textid::copyDialogHeading)));
        QGridLayout& grid = *addGrid();
        addPosition(grid, text(textid::copyDialogStart), {"startRow", "startColumn"});
        addPosition(grid, text(textid::copyDialogEnd), {"endRow", "endColumn"});
        addInstead(text(textid::copyDialogEntireScreen), "entireScreen");
        addButtons();
    }

    void load() override { show(unpackArea(fields().area)); }

    void store() override {
        fields().area = packArea({position(0), position(1), position(2), position(3)});
        storeFlag();
    }
};

class PasteDialog : public AreaDialog {
  public:
    PasteDialog(const DialogContext& context, const EditTarget& target)
        : AreaDialog(context, target, "pasteDialog", "Paste") {
        setWindowTitle(text(textid::pasteDialogTitle));
        body().addWidget(makeLabel("heading", text(textid::pasteDialogHeading)));
        addPosition(*addGrid(), text(textid::pasteDialogPosition), {"row", "column"});
        addInstead(text(textid::pasteDialogAtCursor), "atCursor");
        addButtons();
    }

    void load() override { show(unpackArea(fields().area)); }

    void store() override {
        fields().area = packArea({position(0), position(1), 0, 0});
        storeFlag();
    }
};

}  // namespace

std::unique_ptr<ParameterDialog> makeSetCursorDialog(const DialogContext& context,
                                                     const EditTarget& target) {
    return std::make_unique<SetCursorDialog>(context, target);
}

std::unique_ptr<ParameterDialog> makeCopyDialog(const DialogContext& context,
                                                const EditTarget& target) {
    return std::make_unique<CopyDialog>(context, target);
}

std::unique_ptr<ParameterDialog> makePasteDialog(const DialogContext& context,
                                                 const EditTarget& target) {
    return std::make_unique<PasteDialog>(context, target);
}

}  // namespace quendra
