// The rules that one step, with at most its neighbour above, is enough for.
#pragma once

#include "analysis/script_check.h"
#include "model/entry_fields.h"

#include <vector>

namespace quendra {

/// Looks at the steps of a script one after the other, and adds what it finds.
class StepRules {
  public:
    /// `findings` outlives it.
    StepRules(const CheckOptions& options, std::vector<Finding>& findings)
        : options_(options), findings_(findings) {}

    /// The next step.
    void check(const ScriptEntry& entry);

  private:
    void checkSlot(const ScriptEntry& entry, Slot slot);
    void checkFields(const ScriptEntry& entry, Slot slot);
    void checkText(const ScriptEntry& entry, Slot slot, const EntryField& field);
    void checkNumber(const ScriptEntry& entry, Slot slot, const EntryField& field);
    void checkDate(const ScriptEntry& entry, Slot slot);
    void checkKey(const Step& step, Slot slot);
    void checkMenuCommand(const Step& step, Slot slot);
    void checkTransfer(const Step& step, Slot slot);
    void checkWaitFor(const ScriptEntry& entry);
    void checkTyped(const Step& step, Slot slot);
    void checkPassword(const ScriptEntry& entry);
    void report(Rule rule, Slot slot, StringId text, std::vector<std::string> arguments = {});

    const CheckOptions& options_;
    std::vector<Finding>& findings_;
    std::size_t step_ = 0;
    /// The step above waits for a text that asks for a password, Set_Cursors between passed over.
    bool isAskedForPassword_ = false;
    bool hasHiddenText_ = false;
};

}  // namespace quendra
