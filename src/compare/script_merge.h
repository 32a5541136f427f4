// Two people's changes of one script in one.
#pragma once

#include "hosts/host_type.h"
#include "model/script.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quendra {

/// A script with what it is for.
struct MergeSide {
    const Script& script;
    HostType hostType;
    /// What its part of a conflict is called, in UTF-8.
    std::string_view name = {};
};

enum class MergeRefusal : std::uint8_t {
    None,
    /// Both sides changed it, in different ways.
    HostTypes,
    /// More than a script holds.
    TooManyEntries,
    /// The host type of the one side cannot store what the other one added.
    NotInHostType,
};

struct MergeResult {
    MergeRefusal refusal = MergeRefusal::None;
    Script script;
    HostType hostType = HostType::Mainframe;
    std::size_t conflicts = 0;
};

/// Merges what `ours` and `theirs` made of `base`. Steps that only one side has changed, moved,
/// removed or added are as that side has them; where both changed a step, each of its fields. What
/// both changed differently stands in the script twice, between Comments that begin with "<<<<<<<",
/// "=======" and ">>>>>>>", so that neither is lost. Hidden texts are merged enciphered.
[[nodiscard]] MergeResult mergeScripts(const MergeSide& base, const MergeSide& ours,
                                       const MergeSide& theirs);

}  // namespace quendra
