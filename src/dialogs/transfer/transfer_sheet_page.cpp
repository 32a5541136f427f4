#include "dialogs/transfer/transfer_sheet_page.h"

#include "dialogs/transfer/advanced_page.h"
#include "dialogs/transfer/settings_page.h"
#include "text/text_ids.h"
#include "widgets/dialog_frame.h"
#include "widgets/message_box.h"
#include "widgets/scrolling_content.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QTabBar>
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
    void addPage(BoundPage* page, StringId title);
    void turnPages(Qt::Key key, int by);
    void tell(const QString& note);

    TransferSheetModel model_;
    QTabWidget* tabs_;
    SettingsPage* settings_;
};

TransferSheet::TransferSheet(ApplicationState& state, QWidget* window, std::uint8_t host)
    : DialogFrame(state.language, window, "transferSheet", "File_Transfer_Settings"),
      model_{state, host} {
    setWindowTitle(text(textid::transferSettingsTitle));
    tabs_ = new QTabWidget;
    tabs_->setObjectName(QStringLiteral("tabs"));
    settings_ = new SettingsPage(model_);
    addPage(settings_, textid::transferSettingsTab);
    addPage(new AdvancedPage(model_), textid::transferAdvancedTab);
    turnPages(Qt::Key_PageDown, 1);
    turnPages(Qt::Key_PageUp, -1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(makeNote(), 1);
    bottom->addWidget(makeButtons());
    auto* all = new QVBoxLayout(this);
    all->addWidget(tabs_, 1);
    all->addLayout(bottom);
    finish();
}

void TransferSheet::addPage(BoundPage* page, StringId title) {
    tabs_->addTab(new ScrollingContent(page), text(title));
    connect(page, &BoundPage::noted, this, &TransferSheet::tell);
}

// With Ctrl, and behind the last page the first one again.
void TransferSheet::turnPages(Qt::Key key, int by) {
    auto* shortcut = new QShortcut(Qt::CTRL | key, this);
    connect(shortcut, &QShortcut::activated, this, [this, by] {
        tabs_->setCurrentIndex((tabs_->currentIndex() + by + tabs_->count()) % tabs_->count());
        // To the first field, as Tab goes there.
        tabs_->tabBar()->setFocus();
        focusNextChild();
    });
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
