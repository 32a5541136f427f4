// Drives modal dialogs that open each other: what is to be done in which dialog, in order, while
// the code under test runs.
#pragma once

#include "support/open_dialog.h"

#include <deque>
#include <functional>
#include <string>

namespace quendra::test {

/// In the place of a dialog's name.
inline constexpr const char* anyDialog = "*";

/// Every step waits until its dialog is the active modal one. Steps that are left when the test
/// ends, and a dialog that is left open, fail it.
class ModalSteps {
  public:
    ModalSteps() = default;
    ~ModalSteps();
    ModalSteps(const ModalSteps&) = delete;
    ModalSteps& operator=(const ModalSteps&) = delete;

    void in(const char* dialog, std::function<void(const OpenDialog&)> step);
    /// Runs `operation`, which opens the first dialog, to its end.
    bool run(const std::function<bool()>& operation);

  private:
    struct Step {
        std::string dialog;
        std::function<void(const OpenDialog&)> act;
    };
    void look();
    /// Fails the test, and ends the loops of all modal dialogs.
    void giveUp(const std::string& fault);

    std::deque<Step> steps_;
    int idleLooks_ = 0;
};

}  // namespace quendra::test
