#include "dialogs/transfer/transfer_sheet_page.h"

#include "dialogs/transfer/advanced_page.h"
#include "dialogs/transfer/settings_page.h"
#include "text/text_ids.h"
#include "widgets/dialog_frame.h"
#include "widgets/message_box.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <memory>
#include <new>

namespace quendra {

namespace {

class TransferSheet : public DialogFrame {
  public:
    TransferSheet(ApplicationState& state, QWidget* window, std::uint8_t host);

    [[nodiscard]] std::uint8_t host() const { return model_.host; }

  protected:
    void focusFirst() override { settings_->focusHost(); }

  private:
    void addPage(QTabWidget& tabs, BoundPage* page, StringId title);
    void tell(const QString& note);

    TransferSheetModel model_;
    SettingsPage* settings_;
};

TransferSheet::TransferSheet(ApplicationState& state, QWidget* window, std::uint8_t host)
    : DialogFrame(state.language, window, "transferSheet", "File_Transfer_Settings"),
      model_{state, host} {
    setWindowTitle(text(textid::transferSettingsTitle));
    auto* tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("tabs"));
    settings_ = new SettingsPage(model_);
    addPage(*tabs, settings_, textid::transferSettingsTab);
    addPage(*tabs, new AdvancedPage(model_), textid::transferAdvancedTab);
    QLabel* note = makeNote();
    // The sheet keeps its size whatever the note says.
    note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(note, 1);
    bottom->addWidget(makeButtons());
    auto* all = new QVBoxLayout(this);
    all->addWidget(tabs);
    all->addLayout(bottom);
    all->setSizeConstraint(QLayout::SetFixedSize);
    finish();
}

void TransferSheet::addPage(QTabWidget& tabs, BoundPage* page, StringId title) {
    tabs.addTab(page, text(title));
    connect(page, &BoundPage::noted, this, &TransferSheet::tell);
}

void TransferSheet::tell(const QString& note) {
    if (!note.isEmpty()) QApplication::beep();
    showNote(note);
}

std::unique_ptr<TransferSheet> makeSheet(ApplicationState& state, QWidget* window,
                                         std::uint8_t host) {
    try {
        return std::make_unique<TransferSheet>(state, window, host);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace

bool editTransferSettings(ApplicationState& state, QWidget* window, std::uint8_t& host,
                          TransferDirection direction) {
    state.workingTransfer.direction = direction;
    const auto sheet = makeSheet(state, window, host);
    if (!sheet) {
        LanguageLibrary& language = state.language;
        showMessage(window, {language.loadText(textid::transferSettingsCannotBeShown),
                             language.loadText(textid::transferRefusalTitle),
                             MessageIcon::Exclamation, MessageButtons::Ok, false});
        return false;
    }
    if (sheet->exec() != QDialog::Accepted) return false;
    host = sheet->host();
    return true;
}

}  // namespace quendra
