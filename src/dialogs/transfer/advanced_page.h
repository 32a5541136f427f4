// The page "Advanced" of the transfer sheet: how the host lays out the file that it receives, and
// what else goes into the command line.
#pragma once

#include "dialogs/transfer/bound_page.h"

namespace quendra {

class AdvancedPage : public BoundPage {
    Q_OBJECT

  public:
    explicit AdvancedPage(TransferSheetModel& model);

  private:
    QGroupBox* recordFormatGroup();
    QGroupBox* spaceGroup();
    QGroupBox* optionsGroup();
    QGroupBox* bidiGroup();
};

}  // namespace quendra
