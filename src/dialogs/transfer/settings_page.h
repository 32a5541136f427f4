// The page "Settings" of the transfer sheet: host system, file names and the options of the
// transfer.
#pragma once

#include "dialogs/transfer/bound_page.h"

#include <array>

class QRadioButton;

namespace quendra {

class SettingsPage : public BoundPage {
    Q_OBJECT

  public:
    explicit SettingsPage(TransferSheetModel& model);

    void load() override;
    /// Gives the focus to the button of the host system.
    void focusHost();

  private:
    void makeHosts();
    QGroupBox* hostSystemGroup();
    QGroupBox* hostFileGroup();
    QGroupBox* pcFileGroup();
    QGroupBox* fileOptionsGroup();
    QGroupBox* transferOptionsGroup();
    void chooseHost(std::uint8_t host);
    void choosePcFile();

    std::array<QRadioButton*, 3> hosts_ = {};
};

}  // namespace quendra
