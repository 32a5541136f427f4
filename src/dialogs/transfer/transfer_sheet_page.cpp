#include "dialogs/transfer/transfer_sheet_page.h"

#include "dialogs/transfer/advanced_page.h"
#include "dialogs/transfer/settings_page.h"
#include "text/text_ids.h"
#include "widgets/message_box.h"
#include "widgets/mnemonics.h"
#include "widgets/placement.h"
#include "widgets/ui_text.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QTabWidget>
#include <QVBoxLayout>

#include <memory>
#include <new>

namespace quendra {

namespace {

class TransferSheet : public QDialog {
  public:
    TransferSheet(ApplicationState& state, QWidget* window, std::uint8_t host);

    [[nodiscard]] std::uint8_t host() const { return model_.host; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    [[nodiscard]] QString text(StringId id) const {
        return qtText(model_.state.language.loadText(id));
    }
    void addPage(QTabWidget& tabs, BoundPage* page, StringId title);
    [[nodiscard]] QDialogButtonBox* makeButtons();
    void showNote(const QString& note);

    TransferSheetModel model_;
    SettingsPage* settings_;
    QLabel* note_;
};

TransferSheet::TransferSheet(ApplicationState& state, QWidget* window, std::uint8_t host)
    : QDialog(window), model_{state, host} {
    setObjectName(QStringLiteral("transferSheet"));
    setProperty("helpPage", QStringLiteral("File_Transfer_Settings"));
    setWindowTitle(text(textid::transferSettingsTitle));
    // The editor waits for the sheet, the help window stays usable.
    setWindowModality(Qt::WindowModal);
    auto* tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("tabs"));
    settings_ = new SettingsPage(model_);
    addPage(*tabs, settings_, textid::transferSettingsTab);
    addPage(*tabs, new AdvancedPage(model_), textid::transferAdvancedTab);
    note_ = new QLabel;
    note_->setObjectName(QStringLiteral("note"));
    note_->setTextFormat(Qt::PlainText);
    // The sheet keeps its size whatever the note says.
    note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(note_, 1);
    bottom->addWidget(makeButtons());
    auto* all = new QVBoxLayout(this);
    all->addWidget(tabs);
    all->addLayout(bottom);
    all->setSizeConstraint(QLayout::SetFixedSize);
    // Not before the button is in the dialog, which would else take the first one, Browse.
    findChild<QPushButton*>(QStringLiteral("ok"))->setDefault(true);
    actAtOnceOnMnemonics(*this);
}

void TransferSheet::addPage(QTabWidget& tabs, BoundPage* page, StringId title) {
    tabs.addTab(page, text(title));
    connect(page, &BoundPage::noted, this, &TransferSheet::showNote);
}

void TransferSheet::showNote(const QString& note) {
    if (!note.isEmpty()) QApplication::beep();
    if (note_->text() == note) return;
    note_->setText(note);
    QAccessibleEvent changed(note_, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

QDialogButtonBox* TransferSheet::makeButtons() {
    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("ok"));
    auto* cancel = new QPushButton(text(textid::cancelButton));
    cancel->setObjectName(QStringLiteral("cancel"));
    auto* buttons = new QDialogButtonBox;
    buttons->setObjectName(QStringLiteral("buttons"));
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void TransferSheet::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        settings_->focusHost();
        centreOnScreen(*this);
    }
    QDialog::showEvent(event);
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
