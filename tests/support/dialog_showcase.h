// Every dialog as it opens on a filled entry: for tests of how dialogs look, and for pictures of
// them.
#pragma once

#include "support/dialog_fixture.h"

#include <functional>
#include <span>

namespace quendra::test {

/// A dialog as it opens on a filled entry, and what is then done in it.
struct ShownDialog {
    const char* name;
    CommandCode code;
    std::uint32_t commandId = 0;
    /// Presses this, or types this into it.
    const char* field = "";
    const char* text = "";
    Slot slot = Slot::Entry;
    /// The then action is chosen for this one.
    ActionOwner chooses = ActionOwner::None;
};

[[nodiscard]] std::span<const ShownDialog> shownDialogs();

class DialogShowcase : public SearchDialogTest {
  protected:
    using SearchDialogTest::SearchDialogTest;

    /// Runs the dialog, and looks at it before Cancel.
    void show(const ShownDialog& row, const std::function<void(QDialog&)>& look);
};

}  // namespace quendra::test
