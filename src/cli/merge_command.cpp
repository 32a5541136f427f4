// qds merge: two people's changes of one script in one, as a merge driver of version control.

#include "cli/qds.h"
#include "compare/script_merge.h"
#include "scriptfile/script_writer.h"

#include <algorithm>

namespace quendra::cli {

namespace {

std::string describe(MergeRefusal refusal) {
    switch (refusal) {
        case MergeRefusal::HostTypes: return "both sides changed the host type";
        case MergeRefusal::TooManyEntries: return "the merged script would have too many entries";
        case MergeRefusal::NotInHostType:
            return "the host type of one side cannot store what the other one added";
        case MergeRefusal::None: break;
    }
    return {};
}

bool haveSameBytes(const FileContent& left, const FileContent& right) {
    return std::ranges::equal(left.bytes(), right.bytes());
}

class ScriptMerge {
  public:
    ScriptMerge(const MergeRequest& request, Environment& environment)
        : request_(request), environment_(environment) {}

    int run() {
        auto base = readInput(environment_, request_.base, maxScriptFileSize + 1);
        auto ours = readInput(environment_, request_.ours, maxScriptFileSize + 1);
        auto theirs = readInput(environment_, request_.theirs, maxScriptFileSize + 1);
        if (!base || !ours || !theirs) return statusTrouble;
        // A file that only one side has changed is that side's, in whatever version it is.
        if (haveSameBytes(*base, *theirs) || haveSameBytes(*ours, *theirs)) {
            return isWhole(request_.ours, *ours) ? write(ours->bytes(), *ours, 0) : statusTrouble;
        }
        if (haveSameBytes(*base, *ours)) {
            return isWhole(request_.theirs, *theirs) ? write(theirs->bytes(), *ours, 0)
                                                     : statusTrouble;
        }
        return merge(*base, *ours, *theirs);
    }

  private:
    [[nodiscard]] bool isWhole(const std::string& file, const FileContent& content) {
        return wholeScriptOf(environment_, file, content).has_value();
    }

    int merge(const FileContent& baseFile, const FileContent& oursFile,
              const FileContent& theirsFile) {
        const auto ours = wholeScriptOf(environment_, request_.ours, oursFile);
        const auto theirs = wholeScriptOf(environment_, request_.theirs, theirsFile);
        if (!ours || !theirs) return statusTrouble;
        // Both sides added the file.
        ReadResult empty;
        empty.signature.hostType = ours->signature.hostType;
        const auto base = baseFile.size == 0 ? std::optional(std::move(empty))
                                             : wholeScriptOf(environment_, request_.base, baseFile);
        if (!base) return statusTrouble;

        const MergeResult merged =
            mergeScripts({base->script, base->signature.hostType},
                         {ours->script, ours->signature.hostType, request_.oursName},
                         {theirs->script, theirs->signature.hostType, request_.theirsName});
        if (merged.refusal != MergeRefusal::None) {
            report(environment_, request_.ours, describe(merged.refusal));
            return statusTrouble;
        }
        return write(writeScript(merged.script, merged.hostType), oursFile, merged.conflicts);
    }

    int write(std::span<const std::uint8_t> bytes, const FileContent& ours, std::size_t conflicts) {
        const std::string& target = request_.output.empty() ? request_.ours : request_.output;
        if (!writeMerged(environment_, target, bytes, ours)) return statusTrouble;
        if (conflicts == 0) return statusWell;
        report(environment_, target,
               std::to_string(conflicts) + (conflicts == 1 ? " conflict" : " conflicts"));
        return statusFound;
    }

    const MergeRequest& request_;
    Environment& environment_;
};

}  // namespace

int mergeOfScripts(const MergeRequest& request, Environment& environment) {
    return ScriptMerge(request, environment).run();
}

}  // namespace quendra::cli
