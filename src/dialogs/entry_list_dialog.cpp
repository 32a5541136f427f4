#include "dialogs/entry_list_dialog.h"

#include "text/text_ids.h"
#include "widgets/dialog_frame.h"
#include "widgets/pane_list.h"

#include <QDialogButtonBox>
#include <QStringListModel>
#include <QVBoxLayout>

#include <algorithm>

namespace quendra {

namespace {

constexpr int listCharacters = 70;
constexpr int mostRows = 12;
constexpr int fewestRows = 4;

class EntryListDialog : public DialogFrame {
  public:
    EntryListDialog(LanguageLibrary& language, QWidget* window, const QString& title,
                    const QStringList& lines, int current)
        : DialogFrame(language, window, "entryListDialog", "Label"), list_(new PaneList) {
        setWindowTitle(title);
        list_->setObjectName(QStringLiteral("entries"));
        list_->setAccessibleName(title);
        list_->setModel(new QStringListModel(lines, list_));
        list_->setCurrentIndex(list_->model()->index(current, 0));
        const auto rows = std::clamp<int>(static_cast<int>(lines.size()), fewestRows, mostRows);
        list_->setMinimumSize(fontMetrics().averageCharWidth() * listCharacters,
                              rows * list_->sizeHintForRow(0) + 2 * list_->frameWidth());
        connect(list_, &QListView::doubleClicked, this, &EntryListDialog::accept);
        auto* all = new QVBoxLayout(this);
        all->setContentsMargins(16, 16, 16, 12);
        all->setSpacing(8);
        all->addWidget(list_, 1);
        all->addWidget(makeButtons(text(textid::okButton)));
        makeResizable();
        finish();
    }

    [[nodiscard]] int chosen() const { return list_->focusedRow(); }

  private:
    void focusFirst() override {
        list_->setFocus();
        list_->scrollTo(list_->currentIndex());
    }

    PaneList* list_;
};

}  // namespace

std::optional<int> chooseEntryLine(LanguageLibrary& language, QWidget* window, const QString& title,
                                   const QStringList& lines, int current) {
    EntryListDialog dialog(language, window, title, lines, current);
    if (dialog.exec() != QDialog::Accepted || dialog.chosen() < 0) return std::nullopt;
    return dialog.chosen();
}

}  // namespace quendra
