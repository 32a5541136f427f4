#include "compare/merge_conflicts.h"

#include "analysis/conflict_marks.h"
#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <optional>

namespace quendra {

namespace {

enum class MarkKind : std::uint8_t { Start, Middle, End };

struct Mark {
    std::size_t step;
    MarkKind kind;
};

// Unpacks no more than it has to: most Comments hold no mark.
bool holdsText(const EntryHandle& entry, std::string_view text) {
    if (entry.code() != CommandCode::Comment) return false;
    const auto record = entry.record();
    return !std::ranges::search(record, text, {}, {}, [](char c) {
                return static_cast<std::uint8_t>(c);
            }).empty();
}

std::optional<MarkKind> markOf(const EntryHandle& entry) {
    constexpr std::pair<std::string_view, MarkKind> marks[] = {{conflictStart, MarkKind::Start},
                                                               {conflictMiddle, MarkKind::Middle},
                                                               {conflictEnd, MarkKind::End}};
    for (const auto& [text, kind] : marks) {
        if (holdsText(entry, text) && isConflictMark(textOf(unpackSealedEntry(entry)), text)) {
            return kind;
        }
    }
    return std::nullopt;
}

std::vector<Mark> marksOf(const Script& script) {
    std::vector<Mark> marks;
    for (std::size_t step = 0; step < script.entryCount(); ++step) {
        if (const auto kind = markOf(script.entries[step])) marks.push_back({step, *kind});
    }
    return marks;
}

// The mark that ends the outermost of the conflicts that begin at `start`; none when it is missing.
std::optional<std::size_t> endOf(const std::vector<Mark>& marks, std::size_t start) {
    std::size_t depth = 0;
    for (std::size_t i = start; i < marks.size(); ++i) {
        if (marks[i].kind == MarkKind::Start) ++depth;
        if (marks[i].kind == MarkKind::End && --depth == 0) return i;
    }
    return std::nullopt;
}

}  // namespace

ConflictSearch findConflicts(const Script& script) {
    ConflictSearch found;
    const std::vector<Mark> marks = marksOf(script);
    std::size_t i = 0;
    while (i < marks.size()) {
        const auto end = marks[i].kind == MarkKind::Start ? endOf(marks, i) : std::nullopt;
        if (!end) {
            if (marks[i].kind != MarkKind::Middle) found.strayMarks.push_back(marks[i].step);
            ++i;
        } else if (*end == i + 2 && marks[i + 1].kind == MarkKind::Middle) {
            found.conflicts.push_back({marks[i].step, marks[i + 1].step, marks[*end].step});
            i = *end + 1;
        } else {
            for (; i <= *end; ++i)
                found.strayMarks.push_back(marks[i].step);
        }
    }
    return found;
}

bool hasConflictMarks(const Script& script) {
    return std::ranges::any_of(script.entries, [](const EntryHandle& entry) {
        const auto kind = markOf(entry);
        return kind && *kind != MarkKind::Middle;
    });
}

std::string conflictSideName(const Script& script, std::size_t mark) {
    const ScriptEntry comment = unpackSealedEntry(script.entries[mark]);
    return utf8FromWindows1252(conflictSide(textOf(comment)));
}

void resolveConflict(Script& script, const MergeConflict& conflict, ConflictChoice choice) {
    std::vector<std::size_t> dropped;
    for (std::size_t step = conflict.start; step <= conflict.end; ++step) {
        const bool isMark =
            step == conflict.start || step == conflict.middle || step == conflict.end;
        const bool isOurs = step < conflict.middle;
        const bool isKept =
            choice == ConflictChoice::Both || isOurs == (choice == ConflictChoice::Ours);
        if (isMark || !isKept) dropped.push_back(step);
    }
    removeEntries(script, dropped);
}

}  // namespace quendra
