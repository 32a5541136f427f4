// A view for the editing operations whose lists, palettes and dialogs are plain values.
#pragma once

#include "session/editing.h"

#include <functional>
#include <utility>
#include <vector>

namespace quendra::test {

using Dialog = std::function<bool(ScriptEntry&)>;
using Indexes = std::vector<std::size_t>;

/// Every call is one that the window would have to pay for, so it is counted.
class FakeView : public EditingView {
  public:
    [[nodiscard]] Indexes selectedEntries() const override { return selection.entries; }
    [[nodiscard]] int focusedEntry() const override { return selection.focused; }
    [[nodiscard]] int selectedRow(Palette palette) const override {
        return rows[static_cast<std::size_t>(palette)];
    }
    void showScript(const EntrySelection& shown) override {
        selection = shown;
        ++shows;
    }
    [[nodiscard]] bool editParameters(ScriptEntry& entry) override {
        opened.push_back(entry);
        return dialog && dialog(entry);
    }
    [[nodiscard]] bool confirmDelete(std::size_t count) override {
        asked.push_back(count);
        return agrees;
    }
    void refuse(EditRefusal refusal, const ScriptEntry&) override { refusals.push_back(refusal); }
    void askForRow(Palette palette) override { askedFor.push_back(palette); }

    void select(Indexes entries, int focused) { selection = {std::move(entries), focused}; }
    void choose(Palette palette, int row) { rows[static_cast<std::size_t>(palette)] = row; }

    EntrySelection selection;
    int rows[3] = {-1, -1, -1};
    Dialog dialog;
    bool agrees = true;
    int shows = 0;
    std::vector<ScriptEntry> opened;
    Indexes asked;
    std::vector<EditRefusal> refusals;
    std::vector<Palette> askedFor;
};

}  // namespace quendra::test
